#include "ooxml/zip/zip_archive_reader.hpp"
#include "ooxml/writer_test_support.hpp"
#include "ooxml/zip/zip_writer.hpp"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

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

}  // namespace
