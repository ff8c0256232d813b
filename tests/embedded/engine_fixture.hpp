#pragma once

#include "embedded/test_application.hpp"

#include <excel/excel.hpp>

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>

// A new engine with one workbook of one sheet, as a client starts.
class EngineTest : public ::testing::Test {
protected:
    void SetUp() override {
        app = TestApplication();
        book = app->Workbooks()->Add();
        sheet = book->Worksheets(1);
    }

    std::shared_ptr<excel::Range> At(const char* address) { return sheet->Range(address); }

    std::shared_ptr<excel::Application> app;
    std::shared_ptr<excel::Workbook> book;
    std::shared_ptr<excel::Worksheet> sheet;
};

// Runs the statement and answers the HRESULT of the AutomationError it throws (0 if none).
template <class Statement>
int32_t ErrorCodeOf(Statement&& statement) {
    try {
        statement();
    } catch (const excel::AutomationError& error) {
        return error.code();
    }
    return 0;
}

inline constexpr int32_t kRefused = static_cast<int32_t>(0x800A03EC);
inline constexpr int32_t kSubscriptOutOfRange = static_cast<int32_t>(0x800A0009);
inline constexpr int32_t kObjectRequired = static_cast<int32_t>(0x800A01A8);
inline constexpr int32_t kTypeMismatch = static_cast<int32_t>(0x800A000D);
