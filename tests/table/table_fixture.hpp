#pragma once

#include "report_fixture.hpp"

#include <cstdint>
#include <memory>
#include <string>

// A report sheet of a new report workbook that tables are placed on, as a client builds a report.
class TableTest : public ReportTest {
protected:
    void SetUp() override {
        ReportTest::SetUp();
        UseLanguage(9);
    }

    // Starts again on a sheet of a new report workbook in that language.
    void UseLanguage(int32_t language) {
        report = reporting.NewReportWorkbook(app, "MyApp", nullptr, false, language);
        sheet = report->NewReportWorksheet("Tables");
        excelSheet = sheet->ExcelWorksheet();
    }

    // Starts again on a sheet of a new report workbook that uses theme colours.
    void UseThemes(int32_t language = 9) {
        UseLanguage(language);
        report->SetUseThemes(true);
    }

    std::shared_ptr<excel::Range> At(const std::string& address) { return excelSheet->Range(address); }
    std::string Cursor() { return sheet->CurrentCell() ? sheet->CurrentCell()->Address(false, false) : "none"; }
    // The address of a range without dollar signs, "none" for a missing one.
    static std::string AddressOf(const std::shared_ptr<excel::Range>& range) {
        return range ? range->Address(false, false) : "none";
    }

    std::shared_ptr<vos::VosExcelReportWorkbook> report;
    std::shared_ptr<vos::VosExcelReportWorksheet> sheet;
    std::shared_ptr<excel::Worksheet> excelSheet;
};
