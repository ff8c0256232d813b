#pragma once

#include <excel/automation_error.hpp>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

// Runs `call` and checks it fails with the automation runtime's error `number`
// (HRESULT 0x800A0000 + number) and the given text.
template <class Call>
void ExpectRuntimeError(Call&& call, int32_t number, const std::string& text) {
    try {
        call();
        ADD_FAILURE() << "expected runtime error " << number;
    } catch (const excel::AutomationError& error) {
        EXPECT_EQ(error.code(), static_cast<int32_t>(0x800A0000u + static_cast<uint32_t>(number)));
        EXPECT_EQ(std::string(error.what()), text);
    }
}

inline void ExpectTypeMismatch(auto&& call) {
    ExpectRuntimeError(call, 13, "Type mismatch");
}
inline void ExpectOverflow(auto&& call) {
    ExpectRuntimeError(call, 6, "Overflow");
}
inline void ExpectInvalidUseOfNull(auto&& call) {
    ExpectRuntimeError(call, 94, "Invalid use of Null");
}
inline void ExpectSubscriptOutOfRange(auto&& call) {
    ExpectRuntimeError(call, 9, "Subscript out of range");
}
