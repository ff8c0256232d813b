#include "ooxml/zip/zip_entry_reader.hpp"

#include "ooxml/package_error.hpp"

#include <zip.h>

namespace ooxml {

void ZipEntryReader::Closer::operator()(zip_file* file) const {
    zip_fclose(file);
}

ZipEntryReader::ZipEntryReader(zip_file* file, std::string description, std::size_t compressedSize,
                               std::optional<std::size_t> statedSize)
    : file_(file), description_(std::move(description)), compressedSize_(compressedSize) {
    // A bomb that states its size is refused before any of it is inflated.
    if (statedSize) {
        CheckSize(*statedSize);
    }
}

void ZipEntryReader::CheckSize(std::size_t size) const {
    if (size > MaxSize) {
        throw PackageError(PackageError::Reason::Corrupt, "Oversized entry " + description_);
    }
    if (size > GraceSize && size / MaxExpansion > compressedSize_) {
        throw PackageError(PackageError::Reason::Corrupt,
                           "Entry " + description_ + " expands more than " + std::to_string(MaxExpansion) + " times (" +
                               std::to_string(compressedSize_) + " bytes compressed): taken for a zip bomb");
    }
}

std::size_t ZipEntryReader::Read(char* buffer, std::size_t size) {
    const zip_int64_t count = zip_fread(file_.get(), buffer, size);
    if (count < 0) {
        throw PackageError(PackageError::Reason::Corrupt, "Damaged entry " + description_);
    }
    total_ += static_cast<std::size_t>(count);
    CheckSize(total_);
    return static_cast<std::size_t>(count);
}

}  // namespace ooxml
