#include "ooxml/zip/zip_writer.hpp"

#include "ooxml/file_descriptor_writes.hpp"
#include "ooxml/package_error.hpp"

#include <libdeflate.h>
#include <zlib.h>

#include <algorithm>
#include <limits>

namespace ooxml {

namespace {

constexpr std::size_t kOutputBufferSize = 256 * 1024;
// Level 1 deflates worksheet XML to about a tenth at several times the speed of the default level;
// higher levels gain a few percent of size for much more time.
constexpr int kCompressionLevel = 1;

constexpr uint32_t kLocalHeaderSignature = 0x04034b50;
constexpr uint32_t kCentralHeaderSignature = 0x02014b50;
constexpr uint32_t kEndOfCentralDirectorySignature = 0x06054b50;
constexpr uint16_t kVersion = 20;  // 2.0: deflate
constexpr uint16_t kMethodDeflate = 8;
constexpr uint16_t kDosTime = 0;                        // 00:00:00
constexpr uint16_t kDosDate = (0 << 9) | (1 << 5) | 1;  // 1980-01-01
constexpr std::size_t kLocalHeaderSize = 30;
constexpr std::size_t kLocalHeaderCrcOffset = 14;

class LittleEndian {
public:
    LittleEndian& U16(uint16_t value) {
        bytes_.push_back(static_cast<unsigned char>(value));
        bytes_.push_back(static_cast<unsigned char>(value >> 8));
        return *this;
    }
    LittleEndian& U32(uint32_t value) {
        return U16(static_cast<uint16_t>(value)).U16(static_cast<uint16_t>(value >> 16));
    }
    LittleEndian& Bytes(const std::string& text) {
        bytes_.insert(bytes_.end(), text.begin(), text.end());
        return *this;
    }
    const std::vector<unsigned char>& Result() const noexcept { return bytes_; }

private:
    std::vector<unsigned char> bytes_;
};

uint32_t Narrow32(uint64_t value) {
    if (value > std::numeric_limits<uint32_t>::max()) {
        throw PackageError(PackageError::Reason::WriteFailed, "the workbook is too large for a package (4 GiB)");
    }
    return static_cast<uint32_t>(value);
}

}  // namespace

struct ZipWriter::Compressor {
    z_stream stream{};

    Compressor() {
        if (deflateInit2(&stream, kCompressionLevel, Z_DEFLATED, -MAX_WBITS, 8, Z_DEFAULT_STRATEGY) != Z_OK) {
            throw PackageError(PackageError::Reason::WriteFailed, "the compressor could not be started");
        }
    }
    ~Compressor() { deflateEnd(&stream); }
    Compressor(const Compressor&) = delete;
    Compressor& operator=(const Compressor&) = delete;
};

ZipWriter::ZipWriter(int fileDescriptor)
    : fd_(fileDescriptor), compressor_(std::make_unique<Compressor>()), output_(kOutputBufferSize) {}

ZipWriter::~ZipWriter() = default;

void ZipWriter::BeginEntry(const std::string& name) {
    Entry entry;
    entry.name = name;
    entry.headerOffset = Offset();
    // CRC and sizes are zero here and patched by EndEntry.
    LittleEndian header;
    header.U32(kLocalHeaderSignature).U16(kVersion).U16(0).U16(kMethodDeflate).U16(kDosTime).U16(kDosDate);
    header.U32(0).U32(0).U32(0).U16(static_cast<uint16_t>(name.size())).U16(0).Bytes(name);
    PutBytes(header.Result().data(), header.Result().size());
    entries_.push_back(std::move(entry));
    deflateReset(&compressor_->stream);
}

void ZipWriter::Write(const char* data, std::size_t size) {
    Entry& entry = entries_.back();
    entry.crc = static_cast<uint32_t>(libdeflate_crc32(entry.crc, data, size));
    entry.uncompressedSize += size;
    Deflate(data, size, Z_NO_FLUSH);
}

void ZipWriter::EndEntry() {
    Deflate(nullptr, 0, Z_FINISH);
    Entry& entry = entries_.back();
    const uint64_t dataOffset = entry.headerOffset + kLocalHeaderSize + entry.name.size();
    entry.compressedSize = Offset() - dataOffset;
    LittleEndian patch;
    patch.U32(entry.crc).U32(Narrow32(entry.compressedSize)).U32(Narrow32(entry.uncompressedSize));
    FlushOutput();
    WriteAt(fd_, reinterpret_cast<const char*>(patch.Result().data()), patch.Result().size(),
            entry.headerOffset + kLocalHeaderCrcOffset, "writing the package");
}

void ZipWriter::Finish() {
    const uint64_t directoryOffset = Offset();
    for (const Entry& entry : entries_) {
        LittleEndian header;
        header.U32(kCentralHeaderSignature).U16(kVersion).U16(kVersion).U16(0).U16(kMethodDeflate);
        header.U16(kDosTime).U16(kDosDate).U32(entry.crc);
        header.U32(Narrow32(entry.compressedSize)).U32(Narrow32(entry.uncompressedSize));
        header.U16(static_cast<uint16_t>(entry.name.size())).U16(0).U16(0).U16(0).U16(0).U32(0);
        header.U32(Narrow32(entry.headerOffset)).Bytes(entry.name);
        PutBytes(header.Result().data(), header.Result().size());
    }
    const uint64_t directorySize = Offset() - directoryOffset;
    const auto entryCount = static_cast<uint16_t>(entries_.size());
    LittleEndian end;
    end.U32(kEndOfCentralDirectorySignature).U16(0).U16(0).U16(entryCount).U16(entryCount);
    end.U32(Narrow32(directorySize)).U32(Narrow32(directoryOffset)).U16(0);
    PutBytes(end.Result().data(), end.Result().size());
    FlushOutput();
}

void ZipWriter::Deflate(const char* data, std::size_t size, int flushMode) {
    z_stream& stream = compressor_->stream;
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(data));
    stream.avail_in = static_cast<uInt>(size);
    for (;;) {
        if (used_ == output_.size()) {
            FlushOutput();
        }
        stream.next_out = output_.data() + used_;
        stream.avail_out = static_cast<uInt>(output_.size() - used_);
        const int result = deflate(&stream, flushMode);
        used_ = output_.size() - stream.avail_out;
        if (result == Z_STREAM_ERROR) {
            throw PackageError(PackageError::Reason::WriteFailed, "the compressor failed");
        }
        const bool done = flushMode == Z_FINISH ? result == Z_STREAM_END : stream.avail_in == 0 && stream.avail_out > 0;
        if (done) {
            return;
        }
    }
}

void ZipWriter::PutBytes(const void* data, std::size_t size) {
    const auto* bytes = static_cast<const unsigned char*>(data);
    while (size > 0) {
        if (used_ == output_.size()) {
            FlushOutput();
        }
        const std::size_t chunk = std::min(size, output_.size() - used_);
        std::copy(bytes, bytes + chunk, output_.data() + used_);
        used_ += chunk;
        bytes += chunk;
        size -= chunk;
    }
}

void ZipWriter::FlushOutput() {
    WriteAll(fd_, reinterpret_cast<const char*>(output_.data()), used_, "writing the package");
    flushed_ += used_;
    used_ = 0;
}

}  // namespace ooxml
