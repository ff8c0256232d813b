// Windows' atomic save: the temporary file is moved over the target with MoveFileExW, which
// replaces it in one step and returns only once the move is on disk.
#ifdef _WIN32

#include "ooxml/opc/atomic_file.hpp"

#include "ooxml/file_path_check.hpp"
#include "ooxml/opc/temporary_file_name.hpp"
#include "ooxml/write_error.hpp"

#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <windows.h>

#include <cerrno>
#include <random>

namespace ooxml {

namespace {

constexpr const char* Attempted = "saving the file";

// Paths are UTF-8 everywhere in the library; Windows takes them in UTF-16.
std::wstring Wide(const std::string& utf8) {
    if (utf8.empty()) {
        return {};
    }
    const int length = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), nullptr, 0);
    std::wstring wide(static_cast<size_t>(length), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), static_cast<int>(utf8.size()), wide.data(), length);
    return wide;
}

std::string FolderOf(const std::string& path) {
    const size_t slash = path.find_last_of("/\\");
    return slash == std::string::npos ? std::string(".") : path.substr(0, slash == 0 ? 1 : slash);
}

// The C library's number for the last Windows failure, as the POSIX save reports its failures.
int LastErrorNumber() {
    switch (GetLastError()) {
        case ERROR_FILE_NOT_FOUND:
        case ERROR_PATH_NOT_FOUND:
            return ENOENT;
        case ERROR_ACCESS_DENIED:
        case ERROR_SHARING_VIOLATION:
        case ERROR_WRITE_PROTECT:
            return EACCES;
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
            return ENOSPC;
        default:
            return EIO;
    }
}

// Removes the temporaries of the target that saves killed before they finished left. A running
// save's temporary is open without sharing deletion, so Windows refuses to remove it.
void RemoveLeftTemporaries(const std::string& folder, const std::string& prefix) {
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW(Wide(folder + "/" + prefix + "*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) {
        return;
    }
    do {
        // The names sought are ASCII; any other character keeps a name from matching.
        std::string name;
        for (const wchar_t* c = found.cFileName; *c != L'\0'; ++c) {
            name += *c < 0x80 ? static_cast<char>(*c) : '?';
        }
        if (IsTemporaryName(name, prefix)) {
            DeleteFileW(Wide(folder + "/" + name).c_str());
        }
    } while (FindNextFileW(search, &found));
    FindClose(search);
}

}  // namespace

AtomicFile::AtomicFile(const std::string& targetPath) {
    CheckFilePath(targetPath, Attempted);
    targetPath_ = targetPath;
    folder_ = FolderOf(targetPath);
    const DWORD folderAttributes = GetFileAttributesW(Wide(folder_).c_str());
    if (folderAttributes == INVALID_FILE_ATTRIBUTES) {
        throw WriteError(ENOENT, Attempted);
    }
    if ((folderAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
        throw WriteError(ENOTDIR, Attempted);
    }
    const DWORD targetAttributes = GetFileAttributesW(Wide(targetPath_).c_str());
    if (targetAttributes != INVALID_FILE_ATTRIBUTES) {
        if ((targetAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
            throw WriteError(EISDIR, Attempted);
        }
        if ((targetAttributes & FILE_ATTRIBUTE_READONLY) != 0) {
            throw PackageError(PackageError::Reason::ReadOnly, std::string(Attempted) + ": the file is read-only");
        }
    }

    const std::string prefix = TemporaryNamePrefix(targetPath_.substr(targetPath_.find_last_of("/\\") + 1));
    std::random_device randomDevice;
    std::mt19937_64 random((static_cast<uint64_t>(randomDevice()) << 32) ^ randomDevice() ^ GetCurrentProcessId());
    for (;;) {
        temporaryPath_ = folder_ + "/" + TemporaryName(prefix, random());
        fd_ = _wopen(Wide(temporaryPath_).c_str(), _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY | _O_NOINHERIT,
                     _S_IREAD | _S_IWRITE);
        if (fd_ >= 0) {
            break;
        }
        if (errno != EEXIST) {
            throw WriteError(errno, Attempted);
        }
    }
    RemoveLeftTemporaries(folder_, prefix);
}

AtomicFile::~AtomicFile() {
    if (fd_ >= 0) {
        _close(fd_);
    }
    if (!committed_) {
        _wunlink(Wide(temporaryPath_).c_str());
    }
}

void AtomicFile::Commit() {
    if (_commit(fd_) != 0) {
        throw WriteError(errno, Attempted);
    }
    // Windows moves only a closed file.
    const int fd = fd_;
    fd_ = -1;
    if (_close(fd) != 0) {
        throw WriteError(errno, Attempted);
    }
    if (!MoveFileExW(Wide(temporaryPath_).c_str(), Wide(targetPath_).c_str(),
                     MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
        throw WriteError(LastErrorNumber(), Attempted);
    }
    committed_ = true;
}

}  // namespace ooxml

#endif  // _WIN32
