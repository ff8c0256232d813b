#pragma once

#include "report_fixture.hpp"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

inline constexpr int32_t LastSheetRow = 1048576;
inline constexpr int32_t LastSheetColumn = 16384;
inline constexpr const char* NoRoomForElement = "Requested report element can not fit in available space.";

// A report sheet in a new report workbook, as a client starts a report.
class ReportSheetTest : public ReportTest {
protected:
    void SetUp() override {
        ReportTest::SetUp();
        UseLanguage(9);
    }

    // Starts again on a sheet of a new report workbook in that language.
    void UseLanguage(int32_t language) {
        report = reporting.NewReportWorkbook(app, "MyApp", nullptr, false, language);
        sheet = report->NewReportWorksheet("Report");
        excelSheet = sheet->ExcelWorksheet();
    }

    std::string Cursor() { return sheet->CurrentCell() ? sheet->CurrentCell()->Address() : "none"; }

    std::shared_ptr<vos::VosExcelReportWorkbook> report;
    std::shared_ptr<vos::VosExcelReportWorksheet> sheet;
    std::shared_ptr<excel::Worksheet> excelSheet;
};

// A report sheet in unit-testing mode, so that header blocks show fixed user and date texts.
class ReportHeaderTest : public ReportSheetTest {
protected:
    void SetUp() override {
        reporting.SetUnitTestingMode(true);
        ReportSheetTest::SetUp();
    }
    void TearDown() override { reporting.SetUnitTestingMode(false); }
};

// Runs the call and checks that it fails with this automation error code, whatever its text.
template <class Call>
void ExpectFailureCode(Call&& call, int32_t code) {
    try {
        call();
        ADD_FAILURE() << "expected error 0x" << std::hex << static_cast<uint32_t>(code);
    } catch (const excel::AutomationError& error) {
        EXPECT_EQ(static_cast<uint32_t>(error.code()), static_cast<uint32_t>(code));
    }
}

// Two extra header lines, the second with blanks around its label.
inline const excel::Variant ModelAndRuns(std::vector<std::string>{"Model\tRisk A", "  Runs \t1000"});
