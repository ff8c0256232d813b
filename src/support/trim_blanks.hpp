#pragma once

#include <string>
#include <string_view>

namespace vos {

// The text without leading and trailing spaces (U+0020 only, as the automation runtime trims;
// tabs and line breaks stay).
inline std::string TrimBlanks(std::string_view text) {
    const size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

}  // namespace vos
