#pragma once

#include "ooxml/zip/zip_entry_reader.hpp"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

struct zip;

namespace ooxml {

// Read access to the entries of a zip file. Entry names are matched without regard to case, as
// package part names are. Throws PackageError: InvalidPath, FileNotFound, AccessDenied, NotAPackage,
// Corrupt.
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
    // there is none. Both are hash lookups: a package of 70,000 sheets looks up as many parts that
    // are not there (their relationships) as parts that are.
    int64_t Locate(std::string_view entryName) const;
    ZipEntryReader OpenAt(int64_t index, std::string_view entryName) const;
    // The entry's sizes, uncompressed and compressed, as the directory states them: a hostile file
    // may have made them up.
    struct StatedSizes {
        std::optional<std::size_t> size;
        std::optional<std::size_t> compressed;
    };
    StatedSizes Stated(int64_t index) const;

    struct Closer {
        void operator()(zip* archive) const;
    };
    std::string path_;
    std::unique_ptr<zip, Closer> archive_;
    // Each entry by its name in lower case (the first of names equal but for case), made on the
    // first lookup that needs it.
    mutable std::optional<std::unordered_map<std::string, int64_t>> entriesIgnoringCase_;
};

}  // namespace ooxml
