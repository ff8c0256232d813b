#include "ooxml/opc/percent_decoder.hpp"

#include <optional>

namespace ooxml {

namespace {

std::optional<int> HexDigit(char c) {
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    if (c >= 'a' && c <= 'f') {
        return c - 'a' + 10;
    }
    if (c >= 'A' && c <= 'F') {
        return c - 'A' + 10;
    }
    return std::nullopt;
}

}  // namespace

std::string PercentDecoded(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '%' && i + 2 < text.size()) {
            const std::optional<int> high = HexDigit(text[i + 1]);
            const std::optional<int> low = HexDigit(text[i + 2]);
            if (high && low) {
                out += static_cast<char>(*high * 16 + *low);
                i += 2;
                continue;
            }
        }
        out += text[i];
    }
    return out;
}

}  // namespace ooxml
