// Mutations that know the input is a zip package. Flipping bytes of a deflated, checksummed entry
// almost always ends in the zip layer's refusal, so most mutations unpack the input, change one part
// (its bytes, its name, or whether it is there) and pack it again, stored, with the checksums right:
// the part readers then see the damage. The rest mutate the raw bytes, for the zip layer itself.

#include <zip.h>
#include <zlib.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <random>
#include <string>
#include <vector>

extern "C" size_t LLVMFuzzerMutate(uint8_t* data, size_t size, size_t maxSize);

namespace {

struct Part {
    std::string name;
    std::string bytes;
};

using Parts = std::vector<Part>;

// What the mutator unpacks at most: beyond it the input is mutated as raw bytes.
constexpr zip_uint64_t kMostUnpacked = 16 * 1024 * 1024;
constexpr size_t kLongestName = 256;

// The parts of a zip held in memory, or nothing when it is not a zip that unpacks cleanly.
std::optional<Parts> Unpack(const uint8_t* data, size_t size) {
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* source = zip_source_buffer_create(data, size, 0, &error);
    zip_t* archive = source != nullptr ? zip_open_from_source(source, ZIP_RDONLY, &error) : nullptr;
    zip_error_fini(&error);
    if (archive == nullptr) {
        if (source != nullptr) {
            zip_source_free(source);
        }
        return std::nullopt;
    }
    Parts parts;
    zip_uint64_t total = 0;
    bool clean = true;
    const zip_int64_t count = zip_get_num_entries(archive, 0);
    for (zip_int64_t index = 0; clean && index < count; ++index) {
        const char* name = zip_get_name(archive, static_cast<zip_uint64_t>(index), ZIP_FL_ENC_RAW);
        zip_file_t* file = zip_fopen_index(archive, static_cast<zip_uint64_t>(index), 0);
        if (name == nullptr || file == nullptr) {
            clean = false;
            break;
        }
        Part part{name, {}};
        char buffer[16384];
        zip_int64_t read = 0;
        while ((read = zip_fread(file, buffer, sizeof buffer)) > 0) {
            total += static_cast<zip_uint64_t>(read);
            if (total > kMostUnpacked) {
                read = -1;
                break;
            }
            part.bytes.append(buffer, static_cast<size_t>(read));
        }
        zip_fclose(file);
        clean = read == 0;
        parts.push_back(std::move(part));
    }
    zip_discard(archive);  // frees the source too
    if (!clean) {
        return std::nullopt;
    }
    return parts;
}

void PutU16(std::string& out, uint32_t value) {
    out.push_back(static_cast<char>(value & 0xFF));
    out.push_back(static_cast<char>((value >> 8) & 0xFF));
}

void PutU32(std::string& out, uint32_t value) {
    PutU16(out, value & 0xFFFF);
    PutU16(out, value >> 16);
}

// The parts as a zip of stored entries, so that later raw mutations land on the parts' own bytes.
std::string Pack(const Parts& parts) {
    constexpr uint32_t kVersion = 20;
    constexpr uint32_t kDosDate = (0 << 9) | (1 << 5) | 1;  // 1980-01-01
    std::string out;
    std::string directory;
    for (const Part& part : parts) {
        const auto crc = static_cast<uint32_t>(
            crc32(0, reinterpret_cast<const Bytef*>(part.bytes.data()), static_cast<uInt>(part.bytes.size())));
        const auto size = static_cast<uint32_t>(part.bytes.size());
        const auto nameLength = static_cast<uint32_t>(part.name.size());
        const auto offset = static_cast<uint32_t>(out.size());
        PutU32(out, 0x04034B50);
        PutU16(out, kVersion);
        PutU16(out, 0);  // flags
        PutU16(out, 0);  // stored
        PutU16(out, 0);  // time
        PutU16(out, kDosDate);
        PutU32(out, crc);
        PutU32(out, size);
        PutU32(out, size);
        PutU16(out, nameLength);
        PutU16(out, 0);  // extra field
        out += part.name;
        out += part.bytes;

        PutU32(directory, 0x02014B50);
        PutU16(directory, kVersion);  // made by
        PutU16(directory, kVersion);  // needed
        PutU16(directory, 0);
        PutU16(directory, 0);
        PutU16(directory, 0);
        PutU16(directory, kDosDate);
        PutU32(directory, crc);
        PutU32(directory, size);
        PutU32(directory, size);
        PutU16(directory, nameLength);
        PutU16(directory, 0);  // extra field
        PutU16(directory, 0);  // comment
        PutU16(directory, 0);  // disk
        PutU16(directory, 0);  // internal attributes
        PutU32(directory, 0);  // external attributes
        PutU32(directory, offset);
        directory += part.name;
    }
    const auto directoryOffset = static_cast<uint32_t>(out.size());
    out += directory;
    PutU32(out, 0x06054B50);
    PutU16(out, 0);
    PutU16(out, 0);
    PutU16(out, static_cast<uint32_t>(parts.size()));
    PutU16(out, static_cast<uint32_t>(parts.size()));
    PutU32(out, static_cast<uint32_t>(directory.size()));
    PutU32(out, directoryOffset);
    PutU16(out, 0);  // comment
    return out;
}

// Runs libFuzzer's own mutations (the dictionary's tokens among them) over a string.
void MutateBytes(std::string& bytes, size_t room) {
    const size_t size = bytes.size();
    bytes.resize(size + room);
    bytes.resize(LLVMFuzzerMutate(reinterpret_cast<uint8_t*>(bytes.data()), size, bytes.size()));
}

// One change to one part, as the seed picks it.
void MutateParts(Parts& parts, std::minstd_rand& random) {
    const size_t index = random() % parts.size();
    Part& part = parts[index];
    const auto choice = random() % 20;
    if (choice < 16) {
        MutateBytes(part.bytes, 64 + part.bytes.size() / 8);
    } else if (choice < 18) {
        MutateBytes(part.name, part.name.size() < kLongestName ? kLongestName - part.name.size() : 0);
    } else if (choice < 19) {
        parts.erase(parts.begin() + static_cast<std::ptrdiff_t>(index));
    } else {
        parts.push_back(part);  // the same name twice
    }
}

size_t CopyOut(const std::string& packed, uint8_t* out, size_t maxSize) {
    if (packed.size() > maxSize) {
        return 0;
    }
    std::memcpy(out, packed.data(), packed.size());
    return packed.size();
}

}  // namespace

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t* data, size_t size, size_t maxSize, unsigned int seed) {
    std::minstd_rand random(seed);
    if (random() % 4 != 0) {
        if (auto parts = Unpack(data, size); parts && !parts->empty()) {
            MutateParts(*parts, random);
            if (const size_t packed = CopyOut(Pack(*parts), data, maxSize)) {
                return packed;
            }
        }
    }
    return LLVMFuzzerMutate(data, size, maxSize);
}

// Crosses two packages part by part: a part of the first takes the bytes of the second's part of
// the same name, or the second's part is added beside the first's.
extern "C" size_t LLVMFuzzerCustomCrossOver(const uint8_t* data1, size_t size1, const uint8_t* data2, size_t size2,
                                            uint8_t* out, size_t maxOutSize, unsigned int seed) {
    auto first = Unpack(data1, size1);
    auto second = Unpack(data2, size2);
    if (!first || !second || first->empty() || second->empty()) {
        return 0;
    }
    std::minstd_rand random(seed);
    const Part& donor = (*second)[random() % second->size()];
    bool replaced = false;
    for (Part& part : *first) {
        if (part.name == donor.name) {
            part.bytes = donor.bytes;
            replaced = true;
            break;
        }
    }
    if (!replaced) {
        first->push_back(donor);
    }
    return CopyOut(Pack(*first), out, maxOutSize);
}
