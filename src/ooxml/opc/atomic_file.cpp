// The POSIX file system's atomic save; atomic_file_windows.cpp is Windows'.
#ifndef _WIN32

#include "ooxml/opc/atomic_file.hpp"

#include "ooxml/write_error.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <random>

#include <fmt/format.h>

namespace ooxml {

namespace {

std::string FolderOf(const std::string& path) {
    const std::string folder = std::filesystem::path(path).parent_path().string();
    return folder.empty() ? std::string(".") : folder;
}

}  // namespace

AtomicFile::AtomicFile(const std::string& targetPath) : targetPath_(targetPath), folder_(FolderOf(targetPath)) {
    struct stat folderStatus {};
    if (stat(folder_.c_str(), &folderStatus) != 0) {
        throw WriteError(errno, "saving " + targetPath_);
    }
    if (!S_ISDIR(folderStatus.st_mode)) {
        throw WriteError(ENOTDIR, "saving " + targetPath_);
    }
    struct stat targetStatus {};
    const bool targetExists = stat(targetPath_.c_str(), &targetStatus) == 0;
    if (targetExists && (S_ISDIR(targetStatus.st_mode) || access(targetPath_.c_str(), W_OK) != 0)) {
        throw WriteError(S_ISDIR(targetStatus.st_mode) ? EISDIR : EACCES, "saving " + targetPath_);
    }

    const std::string baseName = std::filesystem::path(targetPath_).filename().string();
    std::random_device randomDevice;
    std::mt19937_64 random((static_cast<uint64_t>(randomDevice()) << 32) ^ randomDevice() ^
                           static_cast<uint64_t>(getpid()));
    for (;;) {
        temporaryPath_ = fmt::format("{}/.~{}.{:016x}.tmp", folder_, baseName, random());
        // The umask applies to the mode, as it would to a file created in place.
        fd_ = open(temporaryPath_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (fd_ >= 0) {
            break;
        }
        if (errno != EEXIST) {
            throw WriteError(errno, "saving " + targetPath_);
        }
    }
    if (targetExists) {
        fchmod(fd_, targetStatus.st_mode & 07777);
    }
}

AtomicFile::~AtomicFile() {
    if (fd_ >= 0) {
        close(fd_);
    }
    if (!committed_) {
        unlink(temporaryPath_.c_str());
    }
}

void AtomicFile::Commit() {
    if (fsync(fd_) != 0) {
        throw WriteError(errno, "saving " + targetPath_);
    }
    const int fd = fd_;
    fd_ = -1;
    if (close(fd) != 0) {
        throw WriteError(errno, "saving " + targetPath_);
    }
    if (rename(temporaryPath_.c_str(), targetPath_.c_str()) != 0) {
        throw WriteError(errno, "saving " + targetPath_);
    }
    committed_ = true;
    // Makes the rename itself durable; the file is already in place if this fails.
    const int folder = open(folder_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder >= 0) {
        fsync(folder);
        close(folder);
    }
}

}  // namespace ooxml

#endif  // _WIN32
