#pragma once

#include <stdexcept>
#include <string>

namespace ooxml {

// Why a package could not be written or read. The engine turns these into Excel's errors.
class PackageError : public std::runtime_error {
public:
    enum class Reason {
        PathNotFound,  // the folder of the target does not exist
        FileNotFound,  // the file to open does not exist
        AccessDenied,  // the file or folder cannot be written or read, or is no regular file
        ReadOnly,      // the target to save over has no write permission
        InvalidPath,   // the path holds a NUL character, which no file name can
        NotAPackage,   // not a zip, or no workbook part in it
        Corrupt,       // a part could not be parsed
        WriteFailed,   // an I/O error while writing (disk full, ...)
    };

    PackageError(Reason reason, const std::string& message) : std::runtime_error(message), reason_(reason) {}

    Reason reason() const noexcept { return reason_; }

private:
    Reason reason_;
};

}  // namespace ooxml
