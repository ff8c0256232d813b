#pragma once

#include <vos/vos_excel_report_worksheet.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace vos {

class ReportWorkbook;

// The report sheet behind VosExcelReportWorksheet: the sheet, its layout cursor and the space
// test every placement runs, with the members the library's other classes call.
class ReportWorksheet final : public VosExcelReportWorksheet {
public:
    // Prepares a new report sheet: cursor at A1, the whole sheet as limiting range, creation tag,
    // no gridlines on screen or paper, every column 8.45 characters wide, no page-break display.
    void InitializeReportWorksheet(const std::shared_ptr<ReportWorkbook>& parentWorkbook,
                                   const std::shared_ptr<excel::Worksheet>& p_ExcelWorksheet,
                                   const std::string& applicationIdentifier, int32_t defaultLanguage);

    std::shared_ptr<excel::Worksheet> ExcelWorksheet() const override;
    int32_t DefaultLanguage() const override;
    std::shared_ptr<excel::Range> LimitingRange() const override;
    bool RoundToRowBoundaries() const override;
    void SetRoundToRowBoundaries(bool roundToRowBoundaries) override;
    std::shared_ptr<excel::Range> CurrentCell() const override;
    void SetCurrentCell(const std::shared_ptr<excel::Range>& cell) override;
    bool HasAvailableSpace(int32_t numRows, int32_t numColumns) override;
    void AddSeparatorRows(int32_t numRows) override;
    void AddSpacingColumn() override;

    // Moves the cursor down and right; a move past the limiting range empties the cursor.
    void AdvanceCurrentCell(int32_t numRows, int32_t numColumns);
    // Refuses, with NotAllowedNow, an element that does not fit at the cursor.
    void RequireAvailableSpace(int32_t numRows, int32_t numColumns);

private:
    bool CursorStaysInsideAfter(int32_t numRows, int32_t numColumns) const;

    std::shared_ptr<ReportWorkbook> parentWorkbook_;
    std::shared_ptr<excel::Worksheet> excelWorksheet_;
    std::string applicationIdentifier_;
    int32_t defaultLanguage_ = 0;
    std::shared_ptr<excel::Range> limitingRange_;
    std::shared_ptr<excel::Range> currentCell_;
    bool roundToRowBoundaries_ = true;
};

}  // namespace vos
