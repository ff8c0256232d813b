#pragma once

#include "ooxml/zip/zip_entry_reader.hpp"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

struct zip;

namespace ooxml {

// Read access to the entries of a zip file. Entry names are matched without regard to case, as
// package part names are. Throws PackageError: FileNotFound, AccessDenied, NotAPackage, Corrupt.
class ZipArchiveReader {
public:
    explicit ZipArchiveReader(const std::string& path);
    ZipArchiveReader(const ZipArchiveReader&) = delete;
    ZipArchiveReader& operator=(const ZipArchiveReader&) = delete;
    ~ZipArchiveReader();

    bool Contains(std::string_view entryName) const;
    // The uncompressed bytes of the entry, or nothing when there is no such entry.
    std::optional<std::string> Read(std::string_view entryName) const;
    // The entry opened to be read piece by piece, or nothing when there is no such entry.
    std::optional<ZipEntryReader> Open(std::string_view entryName) const;

private:
    // The index of the entry of that name, matched exactly or else ignoring case; negative when
    // there is none. The exact match is a hash lookup, the other a scan of every entry.
    int64_t Locate(std::string_view entryName) const;
    ZipEntryReader OpenAt(int64_t index, std::string_view entryName) const;
    // The entry's size as the directory states it, which a hostile file may have made up.
    std::optional<std::size_t> StatedSize(int64_t index) const;

    struct Closer {
        void operator()(zip* archive) const;
    };
    std::string path_;
    std::unique_ptr<zip, Closer> archive_;
};

}  // namespace ooxml
