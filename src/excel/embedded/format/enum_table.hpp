#pragma once

#include <array>
#include <cstddef>
#include <optional>

namespace excel::embedded {

// What each value of an engine enumeration stands for elsewhere (an Excel constant, a name in the
// file), listed in the enumeration's order.
template <class Enum, class Value, std::size_t N>
struct EnumTable {
    std::array<Value, N> values;

    constexpr const Value& operator[](Enum value) const { return values[static_cast<std::size_t>(value)]; }

    // The enumeration value that stands for value, or none.
    constexpr std::optional<Enum> Find(const Value& value) const {
        for (std::size_t i = 0; i < N; ++i) {
            if (values[i] == value) {
                return static_cast<Enum>(i);
            }
        }
        return std::nullopt;
    }
};

}  // namespace excel::embedded
