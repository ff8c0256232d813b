#include "ooxml/zip/zip_archive_reader.hpp"
#include "ooxml/package_error.hpp"
#include "ooxml/writer_test_support.hpp"
#include "ooxml/zip/zip_writer.hpp"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>
#include <zip.h>

#include <cstdint>
#include <string>

namespace {

using namespace ooxml;
using namespace writer_test;

void WriteArchive(const std::string& path, const std::vector<std::pair<std::string, std::string>>& entries) {
    const int fd = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    ASSERT_GE(fd, 0);
    {
        ZipWriter zip(fd);
        for (const auto& [name, content] : entries) {
            zip.BeginEntry(name);
            zip.Write(content.data(), content.size());
            zip.EndEntry();
        }
        zip.Finish();
    }
    close(fd);
}

// Part names compare without regard to case in a package; writers differ in how they spell them.
TEST(ZipArchiveReader, FindsEntriesExactlyOrIgnoringCase) {
    ScratchFolder folder;
    const std::string path = folder.File("a.zip");
    WriteArchive(path, {{"xl/Workbook.xml", "book"}, {"xl/workbook.XML", "other"}, {"docProps/app.xml", "app"}});
    const ZipArchiveReader archive(path);
    EXPECT_EQ(archive.Read("xl/Workbook.xml"), "book");
    EXPECT_EQ(archive.Read("xl/workbook.XML"), "other");  // an exact match wins over an earlier case-folded one
    EXPECT_EQ(archive.Read("DOCPROPS/APP.XML"), "app");
    EXPECT_TRUE(archive.Contains("docprops/App.xml"));
    EXPECT_FALSE(archive.Contains("docProps/core.xml"));
    EXPECT_EQ(archive.Read("docProps/core.xml"), std::nullopt);
    ASSERT_TRUE(archive.Open("xl/WORKBOOK.xml").has_value());
}

// The first of names that differ only in case is the one a case-folded lookup finds.
TEST(ZipArchiveReader, ACaseFoldedLookupFindsTheFirstOfNamesEqualButForCase) {
    ScratchFolder folder;
    const std::string path = folder.File("a.zip");
    WriteArchive(path, {{"xl/Styles.xml", "first"}, {"xl/STYLES.xml", "second"}});
    EXPECT_EQ(ZipArchiveReader(path).Read("xl/styles.xml"), "first");
}

std::string Repeated(const std::string& piece, std::size_t size) {
    std::string text;
    text.reserve(size + piece.size());
    while (text.size() < size) {
        text += piece;
    }
    return text;
}

// A part that inflates past a hundred times its compressed size, once there is more of it than
// any real part of that kind, is taken for a zip bomb before it fills memory.
TEST(ZipArchiveReader, AnEntryThatExpandsAHundredfoldPastTheGraceSizeIsRefused) {
    ScratchFolder folder;
    const std::string path = folder.File("bomb.zip");
    WriteArchive(path, {{"xl/sharedStrings.xml", Repeated("<si><t>a</t></si>", ZipEntryReader::GraceSize + 1024)}});
    try {
        ZipArchiveReader(path).Read("xl/sharedStrings.xml");
        FAIL() << "read";
    } catch (const PackageError& error) {
        EXPECT_EQ(error.reason(), PackageError::Reason::Corrupt);
        EXPECT_NE(std::string(error.what())
                      .find("Entry xl/sharedStrings.xml in " + path +
                            " expands more than 100 "
                            "times"),
                  std::string::npos)
            << error.what();
        EXPECT_NE(std::string(error.what()).find("taken for a zip bomb"), std::string::npos);
    }
}

// A file may state any size for an entry: what is inflated counts, whatever it said.
TEST(ZipEntryReader, AnEntryWhoseStatedSizeHidesTheBombIsRefusedAsItInflates) {
    ScratchFolder folder;
    const std::string path = folder.File("bomb.zip");
    WriteArchive(path, {{"xl/styles.xml", Repeated("<xf/>", ZipEntryReader::GraceSize + 1024)}});
    int error = 0;
    zip_t* archive = zip_open(path.c_str(), ZIP_RDONLY, &error);
    ASSERT_NE(archive, nullptr);
    zip_stat_t stat;
    ASSERT_EQ(zip_stat_index(archive, 0, 0, &stat), 0);
    {  // the entry is closed before its archive
        ZipEntryReader entry(zip_fopen_index(archive, 0, 0), "xl/styles.xml", static_cast<std::size_t>(stat.comp_size),
                             std::size_t{1000});
        char buffer[1 << 16];
        std::size_t read = 0;
        try {
            while (const std::size_t count = entry.Read(buffer, sizeof buffer)) {
                read += count;
            }
            ADD_FAILURE() << "read whole";
        } catch (const PackageError& refusal) {
            EXPECT_NE(std::string(refusal.what()).find("taken for a zip bomb"), std::string::npos);
            EXPECT_GT(read, ZipEntryReader::GraceSize - sizeof buffer);
            EXPECT_LT(read, ZipEntryReader::GraceSize + sizeof buffer);
        }
    }
    zip_discard(archive);
}

// Repetition alone is no bomb: a part under the grace size may deflate as well as it likes, and
// a large one that compresses as real markup does is read whole.
TEST(ZipArchiveReader, RepetitiveEntriesUnderTheGraceSizeAndLargeOrdinaryOnesAreRead) {
    ScratchFolder folder;
    const std::string path = folder.File("large.zip");
    const std::string repetitive = Repeated(R"(<xf numFmtId="0" fontId="0" fillId="0" borderId="0"/>)", 8u << 20);
    std::string ordinary;
    ordinary.reserve(ZipEntryReader::GraceSize + (1u << 20));
    for (uint32_t row = 1; ordinary.size() <= ZipEntryReader::GraceSize; ++row) {
        ordinary += "<row r=\"" + std::to_string(row) + "\"><c r=\"A" + std::to_string(row) + "\"><v>" +
                    std::to_string(row * 2654435761u) + "</v></c></row>";
    }
    WriteArchive(path, {{"xl/styles.xml", repetitive}, {"xl/worksheets/sheet1.xml", ordinary}});
    const ZipArchiveReader archive(path);
    EXPECT_EQ(archive.Read("xl/styles.xml")->size(), repetitive.size());
    EXPECT_EQ(archive.Read("xl/worksheets/sheet1.xml")->size(), ordinary.size());
}

}  // namespace
