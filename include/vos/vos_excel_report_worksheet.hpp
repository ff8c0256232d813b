#pragma once

#include <excel/fwd.hpp>

#include <cstdint>
#include <memory>

namespace vos {

// A worksheet of a report workbook that report elements are laid down one below the other.
// Each element is placed at the layout cursor, CurrentCell, which then moves below it; the cursor
// stays inside LimitingRange, and becomes empty once a move would leave it. Only
// VosExcelReportWorkbook::NewReportWorksheet hands one out.
class VosExcelReportWorksheet {
public:
    virtual ~VosExcelReportWorksheet() = default;

    virtual std::shared_ptr<excel::Worksheet> ExcelWorksheet() const = 0;
    virtual int32_t DefaultLanguage() const = 0;
    // The region report elements may occupy: the whole sheet.
    virtual std::shared_ptr<excel::Range> LimitingRange() const = 0;
    // Whether charts are stretched to end on a row boundary. Always true: setting it to false
    // leaves it true.
    virtual bool RoundToRowBoundaries() const = 0;
    virtual void SetRoundToRowBoundaries(bool roundToRowBoundaries) = 0;
    // The cell where the next element goes, or none once the cursor has run off the limiting
    // range. A new cursor must be one cell of this sheet inside the limiting range, or none.
    virtual std::shared_ptr<excel::Range> CurrentCell() const = 0;
    virtual void SetCurrentCell(const std::shared_ptr<excel::Range>& cell) = 0;

    // Whether an element of that many rows and columns fits at the cursor and still leaves the
    // cursor a cell of the limiting range below and right of it.
    virtual bool HasAvailableSpace(int32_t numRows, int32_t numColumns) = 0;
    // Leaves numRows empty rows below the last element.
    virtual void AddSeparatorRows(int32_t numRows) = 0;
    // Inserts a narrow gutter column at the left edge of the sheet; everything shifts right.
    virtual void AddSpacingColumn() = 0;

protected:
    VosExcelReportWorksheet() = default;
    VosExcelReportWorksheet(const VosExcelReportWorksheet&) = delete;
    VosExcelReportWorksheet& operator=(const VosExcelReportWorksheet&) = delete;
};

}  // namespace vos
