#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

namespace excel::embedded {

// A table pairing Excel constants with the names the file stores for them.
template <size_t N>
using ConstantNames = std::array<std::pair<int32_t, std::string_view>, N>;

// The constant a stored name stands for; fallback for a name the table does not hold.
template <size_t N>
int32_t ConstantOf(const ConstantNames<N>& table, std::string_view name, int32_t fallback) {
    for (const auto& [constant, stored] : table) {
        if (stored == name) {
            return constant;
        }
    }
    return fallback;
}

// The stored name of a constant, or nullptr for a constant the table does not hold.
template <size_t N>
const std::string_view* NameOf(const ConstantNames<N>& table, int32_t constant) {
    for (const auto& entry : table) {
        if (entry.first == constant) {
            return &entry.second;
        }
    }
    return nullptr;
}

}  // namespace excel::embedded
