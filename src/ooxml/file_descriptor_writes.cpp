#include "ooxml/file_descriptor_writes.hpp"

#include "ooxml/write_error.hpp"

#include <cerrno>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace ooxml {

namespace {

#ifdef _WIN32
// The C runtime writes at most an unsigned int at a time.
constexpr std::size_t MostBytesPerWrite = 1u << 30;

long long WriteSome(int fileDescriptor, const char* data, std::size_t size) {
    return _write(fileDescriptor, data, static_cast<unsigned>(size < MostBytesPerWrite ? size : MostBytesPerWrite));
}
#else
long long WriteSome(int fileDescriptor, const char* data, std::size_t size) {
    return ::write(fileDescriptor, data, size);
}
#endif

}  // namespace

void WriteAll(int fileDescriptor, const char* data, std::size_t size, const char* attempted) {
    std::size_t written = 0;
    while (written < size) {
        const long long result = WriteSome(fileDescriptor, data + written, size - written);
        if (result < 0) {
            if (errno == EINTR) {
                continue;
            }
            throw WriteError(errno, attempted);
        }
        written += static_cast<std::size_t>(result);
    }
}

void WriteAt(int fileDescriptor, const char* data, std::size_t size, uint64_t offset, const char* attempted) {
#ifdef _WIN32
    // No positioned write in the C runtime: go there, write, and come back.
    const long long position = _lseeki64(fileDescriptor, 0, SEEK_CUR);
    if (position < 0 || _lseeki64(fileDescriptor, static_cast<long long>(offset), SEEK_SET) < 0) {
        throw WriteError(errno, attempted);
    }
    WriteAll(fileDescriptor, data, size, attempted);
    if (_lseeki64(fileDescriptor, position, SEEK_SET) < 0) {
        throw WriteError(errno, attempted);
    }
#else
    if (pwrite(fileDescriptor, data, size, static_cast<off_t>(offset)) != static_cast<ssize_t>(size)) {
        throw WriteError(errno, attempted);
    }
#endif
}

}  // namespace ooxml
