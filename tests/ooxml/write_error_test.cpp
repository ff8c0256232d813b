// The PackageErrors made from the file system's refusals: their reasons and messages.

#include "ooxml/write_error.hpp"

#include "ooxml/file_descriptor_writes.hpp"
#include "ooxml/package_refusal.hpp"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <string>

namespace {

using namespace ooxml;
using ooxml_test::Refusal;
using ooxml_test::RefusalOf;

Refusal AsRefusal(const PackageError& error) {
    return Refusal{error.reason(), error.what()};
}

TEST(WriteError, AFullDiskNamesTheSystemsReason) {
    EXPECT_EQ(AsRefusal(WriteError(ENOSPC, "writing the package")),
              (Refusal{PackageError::Reason::WriteFailed, "writing the package: No space left on device"}));
}

TEST(WriteError, AWriteToAFullDeviceNamesTheSystemsReason) {
    const int fd = open("/dev/full", O_WRONLY | O_CLOEXEC);
    ASSERT_GE(fd, 0);
    EXPECT_EQ(RefusalOf([&] { WriteAll(fd, "bytes", 5, "writing the package"); }),
              (Refusal{PackageError::Reason::WriteFailed, "writing the package: No space left on device"}));
    close(fd);
}

TEST(WriteError, ReasonsOfSaving) {
    EXPECT_EQ(WriteError(ENOENT, "saving").reason(), PackageError::Reason::PathNotFound);
    EXPECT_EQ(AsRefusal(WriteError(EACCES, "saving")),
              (Refusal{PackageError::Reason::AccessDenied, "saving: Permission denied"}));
    EXPECT_EQ(AsRefusal(WriteError(ENAMETOOLONG, "saving")),
              (Refusal{PackageError::Reason::WriteFailed, "saving: File name too long"}));
}

TEST(ReadError, ReasonsOfOpening) {
    EXPECT_EQ(AsRefusal(ReadError(ENOENT, "opening")),
              (Refusal{PackageError::Reason::FileNotFound, "opening: No such file or directory"}));
    EXPECT_EQ(AsRefusal(ReadError(ENAMETOOLONG, "opening")),
              (Refusal{PackageError::Reason::FileNotFound, "opening: File name too long"}));
    EXPECT_EQ(AsRefusal(ReadError(EACCES, "opening")),
              (Refusal{PackageError::Reason::AccessDenied, "opening: Permission denied"}));
    EXPECT_EQ(AsRefusal(NotARegularFileError("opening")),
              (Refusal{PackageError::Reason::AccessDenied, "opening: not a regular file"}));
}

}  // namespace
