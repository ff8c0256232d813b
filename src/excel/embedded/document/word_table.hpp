#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <utility>

namespace excel::embedded {

// Excel's constants and the words the file spells them with, first the default.
template <std::size_t N>
using WordTable = std::array<std::pair<int32_t, std::string_view>, N>;

// The word of a constant; the default's for a constant the table does not list.
template <std::size_t N>
std::string_view WordOf(const WordTable<N>& table, int32_t value) {
    for (const auto& [constant, word] : table) {
        if (constant == value) {
            return word;
        }
    }
    return table.front().second;
}

// The constant of a word; the default for a word the table does not list.
template <std::size_t N>
int32_t ConstantOf(const WordTable<N>& table, std::string_view word) {
    for (const auto& [constant, entry] : table) {
        if (entry == word) {
            return constant;
        }
    }
    return table.front().first;
}

}  // namespace excel::embedded
