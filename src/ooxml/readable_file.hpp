#pragma once

#include <string>

namespace ooxml {

// A file opened to be read, refused at once when the path names a folder, a named pipe or a
// device: opening a pipe would wait for a writer for ever. Throws PackageError: InvalidPath,
// FileNotFound, AccessDenied; each message names the system's reason.
class ReadableFile {
public:
    explicit ReadableFile(const std::string& path);
    ~ReadableFile();
    ReadableFile(const ReadableFile&) = delete;
    ReadableFile& operator=(const ReadableFile&) = delete;

    int Descriptor() const noexcept { return fd_; }
    // Hands the descriptor to a new owner, which closes it.
    int Release() noexcept;

private:
    int fd_ = -1;
};

}  // namespace ooxml
