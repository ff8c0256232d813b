#pragma once

#include <string>

namespace ooxml {

// Refuses a path holding a NUL character: the system would read the path only up to it and open
// or write another file than the one named. Throws PackageError(InvalidPath), its message naming
// what was attempted.
void CheckFilePath(const std::string& path, const std::string& attempted);

}  // namespace ooxml
