#pragma once

#include "worksheet/report_sheet_fixture.hpp"

#include <cstdint>
#include <memory>
#include <string>

// A report sheet of a new report workbook that tables are placed on, as a client builds a report.
class TableTest : public ReportSheetTest {
protected:
    // Starts again on a sheet of a new report workbook that uses theme colours.
    void UseThemes(int32_t language = 9) {
        UseLanguage(language);
        report->SetUseThemes(true);
    }

    std::shared_ptr<excel::Range> At(const std::string& address) { return excelSheet->Range(address); }
    std::string Cursor() { return AddressOf(sheet->CurrentCell()); }
    // The address of a range without dollar signs, "none" for a missing one.
    static std::string AddressOf(const std::shared_ptr<excel::Range>& range) {
        return range ? range->Address(false, false) : "none";
    }
};
