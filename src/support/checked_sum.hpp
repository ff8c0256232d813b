#pragma once

#include <excel/automation_error.hpp>

#include <cstdint>

namespace vos {

inline constexpr int32_t RuntimeOverflowError = 6;

// first + second, failing with the runtime's overflow error (6) where 32-bit arithmetic overflows.
inline int32_t CheckedSum(int32_t first, int32_t second) {
    int32_t sum = 0;
    if (__builtin_add_overflow(first, second, &sum))
        excel::ThrowRuntimeError(RuntimeOverflowError);
    return sum;
}

// The value as a 16-bit integer, failing with the runtime's overflow error where it does not fit.
inline int16_t CheckedInt16(int32_t value) {
    int16_t narrow = 0;
    if (__builtin_add_overflow(value, 0, &narrow))
        excel::ThrowRuntimeError(RuntimeOverflowError);
    return narrow;
}

}  // namespace vos
