#pragma once

#include <string>

namespace ooxml {

// A file written under a unique temporary name in its target's folder and renamed over the target
// only by Commit, so readers see either the old file or the complete new one. Destroying it
// without Commit removes the temporary file; the temporaries that saves of the target killed
// before they finished left are removed when the next one starts. On POSIX systems a target
// that is a symbolic link is followed: the file it leads to is replaced and the link stays.
// Failures throw PackageError, a read-only target ReadOnly, a path holding a NUL InvalidPath.
class AtomicFile {
public:
    explicit AtomicFile(const std::string& targetPath);
    ~AtomicFile();
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;

    int Descriptor() const noexcept { return fd_; }
    // Makes the content durable and puts it in place of the target.
    void Commit();

private:
    std::string targetPath_;  // the file replaced, links followed
    std::string temporaryPath_;
    std::string folder_;
    int fd_ = -1;
    bool committed_ = false;
};

}  // namespace ooxml
