#pragma once

#include <cstddef>
#include <string_view>

namespace vos {

// The number of characters of a UTF-8 text, as Characters(start, length) counts positions.
inline size_t CharacterCount(std::string_view text) {
    size_t count = 0;
    for (const char byte : text) {
        if ((static_cast<unsigned char>(byte) & 0xC0) != 0x80)
            ++count;
    }
    return count;
}

}  // namespace vos
