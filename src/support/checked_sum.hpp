#pragma once

#include <excel/automation_error.hpp>

#include <cstdint>

namespace vos {

// first + second, failing with the runtime's overflow error (6) where 32-bit arithmetic overflows.
inline int32_t CheckedSum(int32_t first, int32_t second) {
    constexpr int32_t OverflowError = 6;
    int32_t sum = 0;
    if (__builtin_add_overflow(first, second, &sum))
        excel::ThrowRuntimeError(OverflowError);
    return sum;
}

}  // namespace vos
