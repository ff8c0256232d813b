#pragma once

#include "ooxml/xml/byte_sink.hpp"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace ooxml {

// Writes a zip archive to an open file, one entry at a time, each deflated as it streams in.
// Every entry carries the same fixed timestamp (1980-01-01 00:00) so equal content gives equal
// bytes. Sizes and CRCs are patched into the local header when an entry ends, so the file must be
// seekable. Archives are limited to 4 GiB (no ZIP64). I/O failures throw PackageError.
class ZipWriter final : public ByteSink {
public:
    // fileDescriptor stays owned by the caller and must be open for writing at offset 0.
    explicit ZipWriter(int fileDescriptor);
    ~ZipWriter() override;
    ZipWriter(const ZipWriter&) = delete;
    ZipWriter& operator=(const ZipWriter&) = delete;

    void BeginEntry(const std::string& name);
    // Appends to the current entry.
    void Write(const char* data, std::size_t size) override;
    void EndEntry();
    // Writes the central directory; the archive is complete once this returns.
    void Finish();

private:
    struct Entry {
        std::string name;
        uint64_t headerOffset = 0;
        uint32_t crc = 0;
        uint64_t compressedSize = 0;
        uint64_t uncompressedSize = 0;
    };

    void Deflate(const char* data, std::size_t size, int flushMode);
    void PutBytes(const void* data, std::size_t size);
    void FlushOutput();
    uint64_t Offset() const noexcept { return flushed_ + used_; }

    int fd_;
    struct Compressor;
    std::unique_ptr<Compressor> compressor_;
    std::vector<unsigned char> output_;
    std::size_t used_ = 0;
    uint64_t flushed_ = 0;
    std::vector<Entry> entries_;
};

}  // namespace ooxml
