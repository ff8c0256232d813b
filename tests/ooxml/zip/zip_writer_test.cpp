#include "ooxml/package_error.hpp"
#include "ooxml/writer_test_support.hpp"
#include "ooxml/zip/zip_writer.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

namespace {

using namespace ooxml;
using namespace writer_test;
using ::testing::ElementsAre;

void WriteArchive(const std::string& path, const std::vector<std::pair<std::string, std::string>>& entries) {
    const int fd = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    ASSERT_GE(fd, 0);
    {
        ZipWriter zip(fd);
        for (const auto& [name, content] : entries) {
            zip.BeginEntry(name);
            // In pieces, as parts stream in.
            for (std::size_t offset = 0; offset < content.size(); offset += 1000) {
                zip.Write(content.data() + offset, std::min<std::size_t>(1000, content.size() - offset));
            }
            zip.EndEntry();
        }
        zip.Finish();
    }
    close(fd);
}

std::string LargeText() {
    std::string text;
    for (int i = 0; i < 200000; ++i) {
        text += "<c r=\"A" + std::to_string(i) + "\"><v>" + std::to_string(i * 0.37) + "</v></c>";
    }
    return text;
}

TEST(ZipWriter, EntriesReadBackWithTheirContent) {
    ScratchFolder folder;
    const std::string path = folder.File("a.zip");
    const std::string large = LargeText();
    WriteArchive(path, {{"first.txt", "hello"}, {"empty", ""}, {"dir/large.xml", large}});
    EXPECT_THAT(ZipEntryNames(path), ElementsAre("first.txt", "empty", "dir/large.xml"));
    EXPECT_EQ(ZipEntry(path, "first.txt"), "hello");
    EXPECT_EQ(ZipEntry(path, "empty"), "");
    EXPECT_EQ(ZipEntry(path, "dir/large.xml"), large);
}

TEST(ZipWriter, DeflatesAndStoresFixedTimestamps) {
    ScratchFolder folder;
    const std::string path = folder.File("a.zip");
    const std::string large = LargeText();
    WriteArchive(path, {{"large.xml", large}});
    int error = 0;
    zip_t* archive = zip_open(path.c_str(), ZIP_RDONLY, &error);
    ASSERT_NE(archive, nullptr);
    zip_stat_t status;
    ASSERT_EQ(zip_stat(archive, "large.xml", 0, &status), 0);
    EXPECT_EQ(status.comp_method, ZIP_CM_DEFLATE);
    EXPECT_EQ(status.size, large.size());
    EXPECT_LT(status.comp_size * 4, status.size);
    std::tm local{};
    localtime_r(&status.mtime, &local);
    EXPECT_EQ(local.tm_year + 1900, 1980);
    EXPECT_EQ(local.tm_mon, 0);
    EXPECT_EQ(local.tm_mday, 1);
    zip_close(archive);
}

TEST(ZipWriter, SameEntriesGiveTheSameBytes) {
    ScratchFolder folder;
    WriteArchive(folder.File("a.zip"), {{"x", "same"}, {"y", LargeText()}});
    WriteArchive(folder.File("b.zip"), {{"x", "same"}, {"y", LargeText()}});
    EXPECT_EQ(FileBytes(folder.File("a.zip")), FileBytes(folder.File("b.zip")));
}

TEST(ZipWriter, WriteFailureThrowsWriteFailed) {
    const int fd = open("/dev/full", O_WRONLY);
    ASSERT_GE(fd, 0);
    ZipWriter zip(fd);
    zip.BeginEntry("x");
    const std::string large = LargeText();
    try {
        zip.Write(large.data(), large.size());
        zip.EndEntry();
        zip.Finish();
        FAIL() << "writing to a full device succeeded";
    } catch (const PackageError& error) {
        EXPECT_EQ(error.reason(), PackageError::Reason::WriteFailed) << error.what();
    }
    close(fd);
}

}  // namespace
