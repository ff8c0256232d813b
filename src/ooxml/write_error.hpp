#pragma once

#include "ooxml/package_error.hpp"

#include <string>

namespace ooxml {

// The PackageError for a failed system call while saving: a missing folder is PathNotFound,
// a permission or read-only problem AccessDenied, anything else (disk full, I/O) WriteFailed.
// The message names what was attempted and the system's reason.
PackageError WriteError(int errorNumber, const std::string& attempted);

}  // namespace ooxml
