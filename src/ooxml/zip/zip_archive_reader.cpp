#include "ooxml/zip/zip_archive_reader.hpp"

#include "ooxml/package_error.hpp"
#include "ooxml/readable_file.hpp"

#include <zip.h>

#include <algorithm>

namespace ooxml {

namespace {

[[noreturn]] void ThrowOpenError(const std::string& path, int zipError) {
    switch (zipError) {
        case ZIP_ER_OPEN:
        case ZIP_ER_READ:
            throw PackageError(PackageError::Reason::AccessDenied, "Cannot read: " + path);
        case ZIP_ER_MEMORY:
            throw std::bad_alloc();
        default:
            throw PackageError(PackageError::Reason::NotAPackage, "Not a zip package: " + path);
    }
}

// Part names compare without regard to ASCII case (non-ASCII letters must match exactly).
std::string AsciiLowerCase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return text;
}

}  // namespace

void ZipArchiveReader::Closer::operator()(zip* archive) const {
    zip_discard(archive);
}

ZipArchiveReader::ZipArchiveReader(const std::string& path) : path_(path) {
    // Opened here rather than by libzip, which reports a missing, unreadable or special file only
    // as a failed open, and would wait on a named pipe.
    ReadableFile file(path);
    int zipError = 0;
    zip* archive = zip_fdopen(file.Descriptor(), ZIP_RDONLY, &zipError);
    if (archive == nullptr) {
        ThrowOpenError(path, zipError);
    }
    file.Release();  // the archive closes it
    archive_.reset(archive);
}

ZipArchiveReader::~ZipArchiveReader() = default;

int64_t ZipArchiveReader::Locate(std::string_view entryName) const {
    const std::string name(entryName);
    const zip_int64_t exact = zip_name_locate(archive_.get(), name.c_str(), 0);
    if (exact >= 0) {
        return exact;
    }
    if (!entriesIgnoringCase_) {
        entriesIgnoringCase_.emplace();
        const zip_int64_t count = zip_get_num_entries(archive_.get(), 0);
        entriesIgnoringCase_->reserve(static_cast<std::size_t>(std::max<zip_int64_t>(count, 0)));
        for (zip_int64_t index = 0; index < count; ++index) {
            if (const char* entry = zip_get_name(archive_.get(), static_cast<zip_uint64_t>(index), 0)) {
                entriesIgnoringCase_->emplace(AsciiLowerCase(entry), index);
            }
        }
    }
    const auto found = entriesIgnoringCase_->find(AsciiLowerCase(name));
    return found != entriesIgnoringCase_->end() ? found->second : -1;
}

bool ZipArchiveReader::Contains(std::string_view entryName) const {
    return Locate(entryName) >= 0;
}

std::optional<ZipEntryReader> ZipArchiveReader::Open(std::string_view entryName) const {
    const int64_t index = Locate(entryName);
    if (index < 0) {
        return std::nullopt;
    }
    return OpenAt(index, entryName);
}

ZipEntryReader ZipArchiveReader::OpenAt(int64_t index, std::string_view entryName) const {
    const std::string where = std::string(entryName) + " in " + path_;
    zip_file_t* file = zip_fopen_index(archive_.get(), static_cast<zip_uint64_t>(index), 0);
    if (file == nullptr) {
        throw PackageError(PackageError::Reason::Corrupt, "Cannot open entry " + where);
    }
    // An entry whose compressed size is unknown is held to the largest size alone.
    const StatedSizes stated = Stated(index);
    return ZipEntryReader(file, where, stated.compressed.value_or(ZipEntryReader::MaxSize), stated.size);
}

ZipArchiveReader::StatedSizes ZipArchiveReader::Stated(int64_t index) const {
    zip_stat_t stat;
    zip_stat_init(&stat);
    StatedSizes sizes;
    if (zip_stat_index(archive_.get(), static_cast<zip_uint64_t>(index), 0, &stat) == 0) {
        if ((stat.valid & ZIP_STAT_SIZE) != 0) {
            sizes.size = static_cast<std::size_t>(stat.size);
        }
        if ((stat.valid & ZIP_STAT_COMP_SIZE) != 0) {
            sizes.compressed = static_cast<std::size_t>(stat.comp_size);
        }
    }
    return sizes;
}

std::optional<std::string> ZipArchiveReader::Read(std::string_view entryName) const {
    const int64_t index = Locate(entryName);
    if (index < 0) {
        return std::nullopt;
    }
    ZipEntryReader entry = OpenAt(index, entryName);
    std::string bytes;
    // The stated size is the file's word only: room is made for no more than the reader accepts.
    if (const std::optional<std::size_t> size = Stated(index).size; size && *size <= ZipEntryReader::GraceSize) {
        bytes.reserve(*size);
    }
    char buffer[64 * 1024];
    while (const std::size_t count = entry.Read(buffer, sizeof buffer)) {
        bytes.append(buffer, count);
    }
    return bytes;
}

}  // namespace ooxml
