// Opening a package's file: what is not a regular file, what cannot be read and paths no file can
// have are refused at once, each with the system's reason.

#include "ooxml/child_process.hpp"
#include "ooxml/opc/package_reader.hpp"
#include "ooxml/opc/package_writer.hpp"
#include "ooxml/package_refusal.hpp"
#include "ooxml/writer_test_support.hpp"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <future>
#include <optional>
#include <string>

namespace {

using namespace ooxml;
using namespace writer_test;
using ooxml_test::Refusal;
using ooxml_test::RefusalOf;

std::optional<Refusal> OpenRefusal(const std::string& path) {
    return RefusalOf([&] { ReadPackage(path); });
}

TEST(PackageFileOpen, ANamedPipeIsRefusedAtOnce) {
    ScratchFolder folder;
    const std::string pipe = folder.File("pipe.xlsx");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0666), 0);
    auto opening = std::async(std::launch::async, [&] { return OpenRefusal(pipe); });
    if (opening.wait_for(std::chrono::seconds(10)) != std::future_status::ready) {
        // A writer that comes and goes ends the wait, so the test fails rather than hangs.
        close(open(pipe.c_str(), O_WRONLY | O_NONBLOCK));
        FAIL() << "opening a named pipe waited for a writer";
    }
    EXPECT_EQ(opening.get(), (Refusal{PackageError::Reason::AccessDenied, "opening the file: not a regular file"}));
}

TEST(PackageFileOpen, AFolderIsRefusedAsNoRegularFile) {
    ScratchFolder folder;
    EXPECT_EQ(OpenRefusal(folder.Path().string()),
              (Refusal{PackageError::Reason::AccessDenied, "opening the file: not a regular file"}));
}

TEST(PackageFileOpen, AMissingFileIsNotFound) {
    ScratchFolder folder;
    EXPECT_EQ(OpenRefusal(folder.File("none.xlsx")),
              (Refusal{PackageError::Reason::FileNotFound, "opening the file: No such file or directory"}));
}

// Root reads any file, so the open is made by a child that gave root's rights up.
TEST(PackageFileOpen, AFileThatMayNotBeReadNamesThePermissionProblem) {
    ScratchFolder folder;
    const std::string path = folder.File("locked.xlsx");
    WritePackage(FullDocument(), path);
    ASSERT_EQ(chmod(path.c_str(), 0), 0);
    const std::optional<std::string> refused = ooxml_test::RunInChild(ooxml_test::WithoutRootRights, [&] {
        const std::optional<Refusal> refusal = OpenRefusal(path);
        return refusal ? std::to_string(static_cast<int>(refusal->reason)) + " " + refusal->message : "opened";
    });
    if (!refused) {
        GTEST_SKIP() << "cannot give root's rights up";
    }
    EXPECT_EQ(*refused, std::to_string(static_cast<int>(PackageError::Reason::AccessDenied)) +
                            " opening the file: Permission denied");
}

TEST(PackageFileOpen, ANameTooLongNamesTheSystemsReason) {
    ScratchFolder folder;
    EXPECT_EQ(OpenRefusal(folder.File(std::string(295, 'n') + ".xlsx")),
              (Refusal{PackageError::Reason::FileNotFound, "opening the file: File name too long"}));
}

// The path up to the NUL names a workbook: a reader that cut the path there would open it.
TEST(PackageFileOpen, APathWithANulIsRefused) {
    ScratchFolder folder;
    WritePackage(FullDocument(), folder.File("book.xlsx"));
    EXPECT_EQ(OpenRefusal(folder.File("book.xlsx") + std::string(1, '\0') + "other.xlsx"),
              (Refusal{PackageError::Reason::InvalidPath, "opening the file: the file name contains a NUL character"}));
}

}  // namespace
