#pragma once

#include <cstddef>
#include <cstdint>

namespace ooxml {

// Writes on an open file descriptor that fail with a WriteError naming what was attempted. On
// Windows the descriptor must be in binary mode.

// Writes every byte at the file's current position, retrying partial and interrupted writes.
void WriteAll(int fileDescriptor, const char* data, std::size_t size, const char* attempted);
// Writes the bytes at an offset, leaving the position the next WriteAll writes at where it was.
void WriteAt(int fileDescriptor, const char* data, std::size_t size, uint64_t offset, const char* attempted);

}  // namespace ooxml
