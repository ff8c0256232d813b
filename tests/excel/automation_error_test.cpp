#include "excel/expect_runtime_error.hpp"

#include <excel/automation_error.hpp>

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using excel::AutomationError;
using excel::ThrowRuntimeError;

TEST(AutomationErrorTest, WhatReturnsTheTextExactly) {
    const AutomationError error(static_cast<int32_t>(0x80040003), "Sheet name is invalid");
    EXPECT_STREQ(error.what(), "Sheet name is invalid");
    EXPECT_EQ(error.code(), static_cast<int32_t>(0x80040003));
}

TEST(AutomationErrorTest, IsARuntimeError) {
    EXPECT_THROW(ThrowRuntimeError(13), std::runtime_error);
}

struct RuntimeErrorCase {
    int32_t number;
    const char* text;
};

class RuntimeErrorTextTest : public ::testing::TestWithParam<RuntimeErrorCase> {};

TEST_P(RuntimeErrorTextTest, CarriesTheRuntimeCodeAndText) {
    ExpectRuntimeError([] { ThrowRuntimeError(GetParam().number); }, GetParam().number, GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    KnownNumbers, RuntimeErrorTextTest,
    ::testing::Values(RuntimeErrorCase{5, "Invalid procedure call or argument"}, RuntimeErrorCase{6, "Overflow"},
                      RuntimeErrorCase{7, "Out of memory"}, RuntimeErrorCase{9, "Subscript out of range"},
                      RuntimeErrorCase{11, "Division by zero"}, RuntimeErrorCase{13, "Type mismatch"},
                      RuntimeErrorCase{94, "Invalid use of Null"}, RuntimeErrorCase{326, "Resource not found"},
                      RuntimeErrorCase{424, "Object required"},
                      RuntimeErrorCase{4242, "Application-defined or object-defined error"}));

TEST(AutomationErrorTest, SharedCodesMatchTheRuntimeNumbers) {
    ExpectRuntimeError([] { ThrowRuntimeError(6); }, 6, "Overflow");
    EXPECT_EQ(excel::hresult::Overflow, static_cast<int32_t>(0x800A0006));
    EXPECT_EQ(excel::hresult::TypeMismatch, static_cast<int32_t>(0x800A0000 + 13));
    EXPECT_EQ(excel::hresult::ResourceNotFound, static_cast<int32_t>(0x800A0000 + 326));
    EXPECT_EQ(excel::hresult::ObjectRequired, static_cast<int32_t>(0x800A0000 + 424));
}

}  // namespace
