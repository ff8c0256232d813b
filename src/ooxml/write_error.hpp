#pragma once

#include "ooxml/package_error.hpp"

#include <string>

namespace ooxml {

// The PackageErrors made from the file system's refusals. Each message names what was attempted
// and then the system's reason, which the engine shows after Excel's own sentence.

// A failed system call while saving: a missing folder is PathNotFound, a permission or read-only
// problem AccessDenied, anything else (disk full, name too long, I/O) WriteFailed.
PackageError WriteError(int errorNumber, const std::string& attempted);
// A failed system call while opening a file to read: a path that leads nowhere is FileNotFound,
// anything else (permission, I/O) AccessDenied.
PackageError ReadError(int errorNumber, const std::string& attempted);
// A path that names a folder, a named pipe or a device where a file was expected.
PackageError NotARegularFileError(const std::string& attempted);

}  // namespace ooxml
