#include "ooxml/write_error.hpp"

#include <cerrno>
#include <cstring>

namespace ooxml {

PackageError WriteError(int errorNumber, const std::string& attempted) {
    PackageError::Reason reason = PackageError::Reason::WriteFailed;
    switch (errorNumber) {
    case ENOENT:
    case ENOTDIR:
        reason = PackageError::Reason::PathNotFound;
        break;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
    case ETXTBSY:
        reason = PackageError::Reason::AccessDenied;
        break;
    default:
        break;
    }
    return PackageError(reason, attempted + ": " + std::strerror(errorNumber));
}

}  // namespace ooxml
