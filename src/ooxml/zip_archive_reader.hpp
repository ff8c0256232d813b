#pragma once

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
    // The largest entry read, uncompressed; a larger one is taken for a zip bomb.
    static constexpr std::size_t MaxEntrySize = std::size_t{1} << 30;

    explicit ZipArchiveReader(const std::string& path);
    ZipArchiveReader(const ZipArchiveReader&) = delete;
    ZipArchiveReader& operator=(const ZipArchiveReader&) = delete;
    ~ZipArchiveReader();

    bool Contains(std::string_view entryName) const;
    // The uncompressed bytes of the entry, or nothing when there is no such entry.
    std::optional<std::string> Read(std::string_view entryName) const;

private:
    struct Closer {
        void operator()(zip* archive) const;
    };
    std::string path_;
    std::unique_ptr<zip, Closer> archive_;
};

}  // namespace ooxml
