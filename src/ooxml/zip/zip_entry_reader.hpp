#pragma once

#include <cstddef>
#include <memory>
#include <string>

struct zip_file;

namespace ooxml {

// One entry of a zip file, uncompressed piece by piece as it is read. Throws
// PackageError(Corrupt) on damaged data, and on an entry that grows beyond MaxSize.
class ZipEntryReader {
public:
    // The largest entry read, uncompressed; a larger one is taken for a zip bomb.
    static constexpr std::size_t MaxSize = std::size_t{1} << 30;

    // Takes over file; description names the entry in errors.
    ZipEntryReader(zip_file* file, std::string description);

    // Fills buffer with up to size bytes and returns how many; 0 at the end of the entry.
    std::size_t Read(char* buffer, std::size_t size);

private:
    struct Closer {
        void operator()(zip_file* file) const;
    };
    std::unique_ptr<zip_file, Closer> file_;
    std::string description_;
    std::size_t total_ = 0;
};

}  // namespace ooxml
