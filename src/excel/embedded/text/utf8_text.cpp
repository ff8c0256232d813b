#include "excel/embedded/text/utf8_text.hpp"

namespace excel::embedded {

namespace {

constexpr char32_t ReplacementCharacter = 0xFFFD;

bool InRange(char32_t c, char32_t first, char32_t last) {
    return c >= first && c <= last;
}

// Letters whose capital and small forms alternate: the capital at the even (or, with
// `capitalOdd`, the odd) code point, the small one right after it.
char32_t FoldAlternating(char32_t c, bool capitalOdd) {
    return (c % 2 == 1) == capitalOdd ? c + 1 : c;
}

}  // namespace

char32_t NextCodePoint(std::string_view text, size_t& position) {
    const auto lead = static_cast<unsigned char>(text[position]);
    if (lead < 0x80) {
        ++position;
        return lead;
    }
    size_t length = 0;
    char32_t codePoint = 0;
    char32_t smallest = 0;
    if ((lead & 0xE0) == 0xC0) {
        length = 2, codePoint = lead & 0x1F, smallest = 0x80;
    } else if ((lead & 0xF0) == 0xE0) {
        length = 3, codePoint = lead & 0x0F, smallest = 0x800;
    } else if ((lead & 0xF8) == 0xF0) {
        length = 4, codePoint = lead & 0x07, smallest = 0x10000;
    }
    if (length == 0 || position + length > text.size()) {
        ++position;
        return ReplacementCharacter;
    }
    for (size_t i = 1; i < length; ++i) {
        const auto continuation = static_cast<unsigned char>(text[position + i]);
        if ((continuation & 0xC0) != 0x80) {
            ++position;
            return ReplacementCharacter;
        }
        codePoint = (codePoint << 6) | (continuation & 0x3F);
    }
    if (codePoint < smallest || codePoint > 0x10FFFF || InRange(codePoint, 0xD800, 0xDFFF)) {
        ++position;
        return ReplacementCharacter;
    }
    position += length;
    return codePoint;
}

size_t CodePointCount(std::string_view text) {
    size_t count = 0;
    for (size_t position = 0; position < text.size(); ++count)
        NextCodePoint(text, position);
    return count;
}

char32_t FoldCase(char32_t c) {
    if (c < 0x80)
        return InRange(c, 'A', 'Z') ? c + 32 : c;
    if (InRange(c, 0xC0, 0xDE))
        return c == 0xD7 ? c : c + 32;
    if (c == 0x130)
        return U'i';
    if (c == 0x178)
        return 0xFF;
    if (InRange(c, 0x100, 0x137) || InRange(c, 0x14A, 0x177))
        return FoldAlternating(c, false);
    if (InRange(c, 0x139, 0x148) || InRange(c, 0x179, 0x17E))
        return FoldAlternating(c, true);
    if (c == 0x386)
        return 0x3AC;
    if (InRange(c, 0x388, 0x38A))
        return c + 37;
    if (c == 0x38C)
        return 0x3CC;
    if (InRange(c, 0x38E, 0x38F))
        return c + 63;
    if (InRange(c, 0x391, 0x3AB))
        return c == 0x3A2 ? c : c + 32;
    if (c == 0x3C2)
        return 0x3C3;  // final sigma compares equal to sigma
    if (InRange(c, 0x400, 0x40F))
        return c + 80;
    if (InRange(c, 0x410, 0x42F))
        return c + 32;
    if (InRange(c, 0x460, 0x481) || InRange(c, 0x48A, 0x4BF) || InRange(c, 0x4D0, 0x52F)) {
        return FoldAlternating(c, false);
    }
    if (c == 0x4C0)
        return 0x4CF;
    if (InRange(c, 0x4C1, 0x4CE))
        return FoldAlternating(c, true);
    if (InRange(c, 0x1E00, 0x1E95) || InRange(c, 0x1EA0, 0x1EFF))
        return FoldAlternating(c, false);
    if (InRange(c, 0xFF21, 0xFF3A))
        return c + 32;
    return c;
}

bool IsNameLetter(char32_t c) {
    if (c < 0x80)
        return InRange(c, 'A', 'Z') || InRange(c, 'a', 'z');
    return !(c <= 0xBF || c == 0xD7 || c == 0xF7 || InRange(c, 0x2000, 0x206F) || InRange(c, 0x3000, 0x3003) ||
             c == 0xFEFF || c == ReplacementCharacter);
}

size_t Utf16Length(std::string_view text) {
    size_t units = 0;
    for (size_t position = 0; position < text.size();) {
        units += NextCodePoint(text, position) >= 0x10000 ? 2 : 1;
    }
    return units;
}

std::string WithMalformedBytesReplaced(std::string_view text) {
    std::string replaced;
    replaced.reserve(text.size());
    for (size_t position = 0; position < text.size();) {
        const size_t start = position;
        if (NextCodePoint(text, position) == 0xFFFD) {
            replaced += "\xEF\xBF\xBD";
        } else {
            replaced.append(text.substr(start, position - start));
        }
    }
    return replaced;
}

std::u32string FoldedCodePoints(std::string_view text) {
    std::u32string folded;
    folded.reserve(text.size());
    for (size_t position = 0; position < text.size();) {
        folded.push_back(FoldCase(NextCodePoint(text, position)));
    }
    return folded;
}

bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
    size_t positionA = 0;
    size_t positionB = 0;
    while (positionA < a.size() && positionB < b.size()) {
        const auto byteA = static_cast<unsigned char>(a[positionA]);
        const auto byteB = static_cast<unsigned char>(b[positionB]);
        if (byteA < 0x80 && byteB < 0x80) {
            if (FoldCase(byteA) != FoldCase(byteB))
                return false;
            ++positionA;
            ++positionB;
        } else if (FoldCase(NextCodePoint(a, positionA)) != FoldCase(NextCodePoint(b, positionB))) {
            return false;
        }
    }
    return positionA == a.size() && positionB == b.size();
}

std::string_view TrimSpaces(std::string_view text) {
    while (!text.empty() && text.front() == ' ') {
        text.remove_prefix(1);
    }
    while (!text.empty() && text.back() == ' ') {
        text.remove_suffix(1);
    }
    return text;
}

}  // namespace excel::embedded
