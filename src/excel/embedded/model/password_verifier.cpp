#include "excel/embedded/model/password_verifier.hpp"

#include "excel/embedded/text/utf8_text.hpp"

#include <cstdint>
#include <cstdio>
#include <vector>

namespace excel::embedded {

namespace {

constexpr std::size_t maxCharacters = 15;
constexpr uint16_t finalKey = 0xCE4B;

// Rotates the 15 low bits one place to the left.
uint16_t Rotated(uint16_t value) {
    return static_cast<uint16_t>(((value >> 14) & 0x01) | ((value << 1) & 0x7FFF));
}

// The password's first 15 characters as single bytes: each character's low byte, or its high byte
// when the low one is 0.
std::vector<uint8_t> SingleBytes(std::string_view password) {
    std::vector<uint8_t> bytes;
    for (size_t position = 0; position < password.size() && bytes.size() < maxCharacters;) {
        const char32_t character = NextCodePoint(password, position);
        const auto low = static_cast<uint8_t>(character & 0xFF);
        bytes.push_back(low != 0 ? low : static_cast<uint8_t>((character >> 8) & 0xFF));
    }
    return bytes;
}

}  // namespace

std::string LegacyPasswordVerifier(std::string_view password) {
    const std::vector<uint8_t> bytes = SingleBytes(password);
    uint16_t verifier = 0;
    for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte) {
        verifier = static_cast<uint16_t>(Rotated(verifier) ^ *byte);
    }
    verifier = static_cast<uint16_t>(Rotated(verifier) ^ bytes.size() ^ finalKey);
    char text[5];
    std::snprintf(text, sizeof text, "%04X", static_cast<unsigned>(verifier));
    return text;
}

}  // namespace excel::embedded
