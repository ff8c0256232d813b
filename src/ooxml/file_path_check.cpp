#include "ooxml/file_path_check.hpp"

#include "ooxml/package_error.hpp"

namespace ooxml {

void CheckFilePath(const std::string& path, const std::string& attempted) {
    if (path.find('\0') != std::string::npos) {
        throw PackageError(PackageError::Reason::InvalidPath, attempted + ": the file name contains a NUL character");
    }
}

}  // namespace ooxml
