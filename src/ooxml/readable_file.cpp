#include "ooxml/readable_file.hpp"

#include "ooxml/file_path_check.hpp"
#include "ooxml/write_error.hpp"

#include <fcntl.h>
#include <sys/stat.h>

#ifdef _WIN32
#include <io.h>

#include <filesystem>
#else
#include <unistd.h>
#endif

#include <cerrno>
#include <utility>

namespace ooxml {

namespace {

constexpr const char* Attempted = "opening the file";

#ifdef _WIN32
// Paths are UTF-8 everywhere in the library; Windows opens them in UTF-16.
int OpenDescriptor(const std::string& path) {
    const std::filesystem::path native(std::u8string(path.begin(), path.end()));
    return _wopen(native.c_str(), _O_RDONLY | _O_BINARY | _O_NOINHERIT);
}

bool IsRegularFile(int fd) {
    struct _stat64 status {};
    return _fstat64(fd, &status) == 0 && (status.st_mode & _S_IFMT) == _S_IFREG;
}

void CloseDescriptor(int fd) {
    _close(fd);
}
#else
int OpenDescriptor(const std::string& path) {
    // Only a regular file is opened at all: opening a device may act on it.
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) {
        throw ReadError(errno, Attempted);
    }
    if (!S_ISREG(status.st_mode)) {
        throw NotARegularFileError(Attempted);
    }
    // Should a pipe take the file's place before the open, the open still returns at once; reads
    // of a regular file ignore the flag.
    return open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
}

bool IsRegularFile(int fd) {
    struct stat status {};
    return fstat(fd, &status) == 0 && S_ISREG(status.st_mode);
}

void CloseDescriptor(int fd) {
    close(fd);
}
#endif

}  // namespace

ReadableFile::ReadableFile(const std::string& path) {
    CheckFilePath(path, Attempted);
    fd_ = OpenDescriptor(path);
    if (fd_ < 0) {
        throw ReadError(errno, Attempted);
    }
    // What was opened is what counts: something else may have taken the name since it was checked.
    if (!IsRegularFile(fd_)) {
        CloseDescriptor(std::exchange(fd_, -1));
        throw NotARegularFileError(Attempted);
    }
}

ReadableFile::~ReadableFile() {
    if (fd_ >= 0) {
        CloseDescriptor(fd_);
    }
}

int ReadableFile::Release() noexcept {
    return std::exchange(fd_, -1);
}

}  // namespace ooxml
