#include "ooxml/write_error.hpp"

#include <cerrno>
#include <cstring>

namespace ooxml {

namespace {

PackageError SystemError(PackageError::Reason reason, int errorNumber, const std::string& attempted) {
    return PackageError(reason, attempted + ": " + std::strerror(errorNumber));
}

}  // namespace

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
    return SystemError(reason, errorNumber, attempted);
}

PackageError ReadError(int errorNumber, const std::string& attempted) {
    switch (errorNumber) {
        case ENOENT:
        case ENOTDIR:
        case ENAMETOOLONG:
        case ELOOP:
            return SystemError(PackageError::Reason::FileNotFound, errorNumber, attempted);
        default:
            return SystemError(PackageError::Reason::AccessDenied, errorNumber, attempted);
    }
}

PackageError NotARegularFileError(const std::string& attempted) {
    return PackageError(PackageError::Reason::AccessDenied, attempted + ": not a regular file");
}

}  // namespace ooxml
