#include "ooxml/xml/escaped_text_decoder.hpp"

#include <cstdint>
#include <optional>

namespace ooxml {

namespace {

constexpr std::size_t EscapeLength = 7;  // _xHHHH_
constexpr char32_t Replacement = 0xFFFD;

std::optional<char32_t> EscapedUnit(std::string_view text, std::size_t at) {
    if (at + EscapeLength > text.size() || text[at] != '_' || text[at + 1] != 'x' || text[at + 6] != '_') {
        return std::nullopt;
    }
    char32_t unit = 0;
    for (std::size_t i = at + 2; i < at + 6; ++i) {
        const char c = text[i];
        unit <<= 4;
        if (c >= '0' && c <= '9') {
            unit |= static_cast<char32_t>(c - '0');
        } else if (c >= 'a' && c <= 'f') {
            unit |= static_cast<char32_t>(c - 'a' + 10);
        } else if (c >= 'A' && c <= 'F') {
            unit |= static_cast<char32_t>(c - 'A' + 10);
        } else {
            return std::nullopt;
        }
    }
    return unit;
}

bool IsHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool IsLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

}  // namespace

void AppendUtf8(std::string& out, char32_t codePoint) {
    if (codePoint < 0x80) {
        out += static_cast<char>(codePoint);
    } else if (codePoint < 0x800) {
        out += static_cast<char>(0xC0 | (codePoint >> 6));
        out += static_cast<char>(0x80 | (codePoint & 0x3F));
    } else if (codePoint < 0x10000) {
        out += static_cast<char>(0xE0 | (codePoint >> 12));
        out += static_cast<char>(0x80 | ((codePoint >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (codePoint & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (codePoint >> 18));
        out += static_cast<char>(0x80 | ((codePoint >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((codePoint >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (codePoint & 0x3F));
    }
}

std::string DecodeEscapedText(std::string_view text) {
    std::size_t next = text.find("_x");
    if (next == std::string_view::npos) {
        return std::string(text);
    }
    std::string out;
    out.reserve(text.size());
    std::size_t copied = 0;
    while (next != std::string_view::npos) {
        const std::optional<char32_t> unit = EscapedUnit(text, next);
        if (!unit) {
            next = text.find("_x", next + 1);
            continue;
        }
        out.append(text, copied, next - copied);
        std::size_t consumed = EscapeLength;
        char32_t codePoint = *unit;
        if (IsHighSurrogate(*unit)) {
            const std::optional<char32_t> low = EscapedUnit(text, next + EscapeLength);
            if (low && IsLowSurrogate(*low)) {
                codePoint = 0x10000 + ((*unit - 0xD800) << 10) + (*low - 0xDC00);
                consumed += EscapeLength;
            } else {
                codePoint = Replacement;
            }
        } else if (IsLowSurrogate(*unit)) {
            codePoint = Replacement;
        }
        AppendUtf8(out, codePoint);
        copied = next + consumed;
        next = text.find("_x", copied);
    }
    out.append(text, copied);
    return out;
}

}  // namespace ooxml
