// The POSIX file system's atomic save; atomic_file_windows.cpp is Windows'.
#ifndef _WIN32

#include "ooxml/opc/atomic_file.hpp"

#include "ooxml/file_path_check.hpp"
#include "ooxml/opc/temporary_file_name.hpp"
#include "ooxml/write_error.hpp"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <optional>
#include <random>
#include <system_error>

namespace ooxml {

namespace {

constexpr const char* Attempted = "saving the file";
// As many links as Linux follows in one path before it gives up.
constexpr int MostLinks = 40;

std::string FolderOf(const std::string& path) {
    const std::string folder = std::filesystem::path(path).parent_path().string();
    return folder.empty() ? std::string(".") : folder;
}

// The file the path names once symbolic links are followed: the save replaces that file and the
// links stay links. A link to a file not there yet leads to where that file is to be.
std::string FileBehindLinks(std::string path) {
    for (int followed = 0; followed < MostLinks; ++followed) {
        std::error_code error;
        if (!std::filesystem::is_symlink(std::filesystem::symlink_status(path, error))) {
            return path;
        }
        const std::filesystem::path target = std::filesystem::read_symlink(path, error);
        if (error) {
            throw WriteError(error.value(), Attempted);
        }
        path = target.is_absolute() ? target.string() : (std::filesystem::path(FolderOf(path)) / target).string();
    }
    throw WriteError(ELOOP, Attempted);
}

void CheckFolder(const std::string& folder) {
    struct stat status {};
    if (stat(folder.c_str(), &status) != 0) {
        throw WriteError(errno, Attempted);
    }
    if (!S_ISDIR(status.st_mode)) {
        throw WriteError(ENOTDIR, Attempted);
    }
}

// The permissions of the file the save replaces, which the new file keeps; nothing when there is
// no file yet.
std::optional<mode_t> ReplacedFileMode(const std::string& target) {
    struct stat status {};
    if (stat(target.c_str(), &status) != 0) {
        if (errno == ENOENT) {
            return std::nullopt;
        }
        throw WriteError(errno, Attempted);
    }
    if (S_ISDIR(status.st_mode)) {
        throw WriteError(EISDIR, Attempted);
    }
    if (!S_ISREG(status.st_mode)) {
        throw NotARegularFileError(Attempted);
    }
    // The permission bits decide, not access(), which lets root write anything: a read-only file
    // is refused whoever saves.
    if ((status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0) {
        throw PackageError(PackageError::Reason::ReadOnly, std::string(Attempted) + ": the file is read-only");
    }
    if (access(target.c_str(), W_OK) != 0) {
        throw WriteError(errno, Attempted);
    }
    return status.st_mode & 07777;
}

// Whether the path still names the open file: a temporary may be removed while it is open.
bool NamesOpenFile(const std::string& path, int fd) {
    struct stat named {};
    struct stat opened {};
    return lstat(path.c_str(), &named) == 0 && fstat(fd, &opened) == 0 && named.st_dev == opened.st_dev &&
           named.st_ino == opened.st_ino;
}

// Creates a temporary of a new name in the folder and locks it for the time of the save, which
// tells other saves of the target that it is not left over. Answers its descriptor.
int CreateTemporary(const std::string& folder, const std::string& prefix, std::string& path) {
    std::random_device randomDevice;
    std::mt19937_64 random((static_cast<uint64_t>(randomDevice()) << 32) ^ randomDevice() ^
                           static_cast<uint64_t>(getpid()));
    for (;;) {
        path = folder + "/" + TemporaryName(prefix, random());
        // The umask applies to the mode, as it would to a file created in place.
        const int fd = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (fd < 0 && errno != EEXIST) {
            throw WriteError(errno, Attempted);
        }
        if (fd < 0) {
            continue;
        }
        // Another save clearing left-over temporaries may take this one before it is locked; it
        // is then gone from the folder (or about to be) and another name is tried. Where the file
        // system has no locks, no save removes another's temporaries.
        const bool locked = flock(fd, LOCK_EX | LOCK_NB) == 0;
        if ((locked || errno != EWOULDBLOCK) && NamesOpenFile(path, fd)) {
            return fd;
        }
        close(fd);
    }
}

// Removes the temporaries of the target that saves killed before they finished left: those no
// running save holds locked. What cannot be removed stays; the save goes on regardless.
void RemoveLeftTemporaries(const std::string& folder, const std::string& prefix) {
    DIR* directory = opendir(folder.c_str());
    if (directory == nullptr) {
        return;
    }
    while (const dirent* entry = readdir(directory)) {
        if (!IsTemporaryName(entry->d_name, prefix)) {
            continue;
        }
        const std::string path = folder + "/" + entry->d_name;
        const int fd = open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
        if (fd < 0) {
            continue;
        }
        if (flock(fd, LOCK_EX | LOCK_NB) == 0 && NamesOpenFile(path, fd)) {
            unlink(path.c_str());
        }
        close(fd);
    }
    closedir(directory);
}

}  // namespace

AtomicFile::AtomicFile(const std::string& targetPath) {
    CheckFilePath(targetPath, Attempted);
    targetPath_ = FileBehindLinks(targetPath);
    folder_ = FolderOf(targetPath_);
    CheckFolder(folder_);
    const std::optional<mode_t> mode = ReplacedFileMode(targetPath_);
    const std::string prefix = TemporaryNamePrefix(std::filesystem::path(targetPath_).filename().string());
    fd_ = CreateTemporary(folder_, prefix, temporaryPath_);
    RemoveLeftTemporaries(folder_, prefix);
    if (mode) {
        fchmod(fd_, *mode);
    }
}

AtomicFile::~AtomicFile() {
    // Removed while still locked, so no other save takes it meanwhile.
    if (!committed_) {
        unlink(temporaryPath_.c_str());
    }
    if (fd_ >= 0) {
        close(fd_);
    }
}

void AtomicFile::Commit() {
    if (fsync(fd_) != 0) {
        throw WriteError(errno, Attempted);
    }
    // Renamed while still open and locked, so no other save takes it for left over meanwhile.
    if (rename(temporaryPath_.c_str(), targetPath_.c_str()) != 0) {
        throw WriteError(errno, Attempted);
    }
    committed_ = true;
    // The content is durable since the fsync; closing has nothing left to report.
    close(fd_);
    fd_ = -1;
    // Makes the rename itself durable; the file is already in place if this fails.
    const int folder = open(folder_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder >= 0) {
        fsync(folder);
        close(folder);
    }
}

}  // namespace ooxml

#endif  // _WIN32
