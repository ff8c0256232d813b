#include "ooxml/opc/temporary_file_name.hpp"

#include <algorithm>
#include <cctype>

#include <fmt/format.h>

namespace ooxml {

namespace {

constexpr std::string_view Extension = ".tmp";
constexpr size_t RandomDigits = 16;

// FNV-1a: stable across builds and platforms, so a later version still finds an earlier one's
// temporaries.
uint64_t NameHash(std::string_view name) {
    uint64_t hash = 0xcbf29ce484222325u;
    for (const char c : name) {
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3u;
    }
    return hash;
}

}  // namespace

std::string TemporaryNamePrefix(std::string_view targetName) {
    return fmt::format(".~{:016x}.", NameHash(targetName));
}

std::string TemporaryName(std::string_view prefix, uint64_t random) {
    return fmt::format("{}{:0{}x}{}", prefix, random, RandomDigits, Extension);
}

bool IsTemporaryName(std::string_view name, std::string_view prefix) {
    if (name.size() != prefix.size() + RandomDigits + Extension.size() || !name.starts_with(prefix) ||
        !name.ends_with(Extension)) {
        return false;
    }
    const std::string_view digits = name.substr(prefix.size(), RandomDigits);
    return std::all_of(digits.begin(), digits.end(),
                       [](char c) { return std::isxdigit(static_cast<unsigned char>(c)); });
}

}  // namespace ooxml
