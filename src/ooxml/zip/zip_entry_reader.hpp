#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

struct zip_file;

namespace ooxml {

// One entry of a zip file, uncompressed piece by piece as it is read. Throws
// PackageError(Corrupt) on damaged data, and on an entry taken for a zip bomb: one that grows
// beyond MaxSize, or beyond GraceSize to more than MaxExpansion times what it takes in the file.
class ZipEntryReader {
public:
    // The largest entry read, uncompressed.
    static constexpr std::size_t MaxSize = std::size_t{1} << 30;
    // Markup Excel writes deflates to a tenth or a twentieth, and little of it past a fiftieth (a
    // long run of one comment's shapes); past a hundredth is repetition made to exhaust memory, as
    // soon as there is enough of it to matter.
    static constexpr std::size_t GraceSize = std::size_t{64} << 20;
    static constexpr std::size_t MaxExpansion = 100;

    // Takes over file; description names the entry in errors; compressedSize is what the entry
    // takes in the file, statedSize what its directory says it inflates to (checked at once,
    // though only what is read counts).
    ZipEntryReader(zip_file* file, std::string description, std::size_t compressedSize,
                   std::optional<std::size_t> statedSize);

    // Fills buffer with up to size bytes and returns how many; 0 at the end of the entry.
    std::size_t Read(char* buffer, std::size_t size);

private:
    // Refuses an entry of that size: beyond MaxSize, or a bomb.
    void CheckSize(std::size_t size) const;

    struct Closer {
        void operator()(zip_file* file) const;
    };
    std::unique_ptr<zip_file, Closer> file_;
    std::string description_;
    std::size_t compressedSize_;
    std::size_t total_ = 0;
};

}  // namespace ooxml
