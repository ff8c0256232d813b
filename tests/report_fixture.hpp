#pragma once

#include <vos/reporting.hpp>
#include <excel/embedded.hpp>

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

// A running engine and the library's entry object, as a client of the report library starts.
class ReportTest : public ::testing::Test {
protected:
    void SetUp() override { app = excel::embedded::CreateApplication(); }

    std::shared_ptr<vos::VosExcelReportWorkbook> NewWorkbook(const std::string& applicationIdentifier = "MyApp") {
        return reporting.NewReportWorkbook(app, applicationIdentifier);
    }

    vos::VosExcelReporting reporting;
    std::shared_ptr<excel::Application> app;
};

// The names of the workbook's sheets in order.
inline std::vector<std::string> SheetNames(const std::shared_ptr<excel::Workbook>& workbook) {
    std::vector<std::string> names;
    const auto sheets = workbook->Worksheets();
    for (int32_t i = 1; i <= sheets->Count(); ++i)
        names.push_back(sheets->Item(i)->Name());
    return names;
}

// Runs the call and checks that it fails with exactly this automation error code and text.
template <class Call>
void ExpectAutomationError(Call&& call, int32_t code, const std::string& text) {
    try {
        call();
        ADD_FAILURE() << "expected error 0x" << std::hex << static_cast<uint32_t>(code) << " \"" << text << "\"";
    } catch (const excel::AutomationError& error) {
        EXPECT_EQ(static_cast<uint32_t>(error.code()), static_cast<uint32_t>(code));
        EXPECT_EQ(std::string(error.what()), text);
    }
}
