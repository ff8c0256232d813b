#include "worksheet/report_worksheet.hpp"

#include "support/cell_comment.hpp"
#include "support/checked_sum.hpp"
#include "support/library_error.hpp"
#include "support/support_services.hpp"
#include "workbook/creation_tags.hpp"
#include "workbook/report_workbook.hpp"

#include <excel/automation_error.hpp>
#include <excel/constants.hpp>
#include <excel/page_setup.hpp>
#include <excel/range.hpp>
#include <excel/window.hpp>
#include <excel/workbook.hpp>
#include <excel/worksheet.hpp>

namespace vos {

namespace {

constexpr double ReportColumnWidth = 8.45;
constexpr double SpacingColumnWidth = 0.17;

}  // namespace

void ReportWorksheet::InitializeReportWorksheet(const std::shared_ptr<ReportWorkbook>& parentWorkbook,
                                                const std::shared_ptr<excel::Worksheet>& p_ExcelWorksheet,
                                                const std::string& applicationIdentifier, int32_t defaultLanguage) {
    if (!p_ExcelWorksheet)
        RaiseLibraryError(error_code::MissingObject, "p_ExcelWorksheet");
    parentWorkbook_ = parentWorkbook;
    excelWorksheet_ = p_ExcelWorksheet;
    applicationIdentifier_ = applicationIdentifier;
    defaultLanguage_ = defaultLanguage;
    limitingRange_ = p_ExcelWorksheet->Cells();
    currentCell_ = p_ExcelWorksheet->Cells(1, 1);
    roundToRowBoundaries_ = true;
    TagWorksheet(p_ExcelWorksheet, applicationIdentifier);
    try {
        p_ExcelWorksheet->Parent()->Windows(1)->SetDisplayGridlines(false);
        p_ExcelWorksheet->PageSetup()->SetPrintGridlines(false);
    } catch (const excel::AutomationError&) {
        // Gridlines are cosmetic; a sheet whose window or page setup refuses keeps them.
    }
    p_ExcelWorksheet->Cells()->SetColumnWidth(ReportColumnWidth);
    p_ExcelWorksheet->SetDisplayPageBreaks(false);
}

std::shared_ptr<excel::Worksheet> ReportWorksheet::ExcelWorksheet() const {
    return excelWorksheet_;
}

int32_t ReportWorksheet::DefaultLanguage() const {
    return defaultLanguage_;
}

std::shared_ptr<excel::Range> ReportWorksheet::LimitingRange() const {
    return limitingRange_;
}

bool ReportWorksheet::RoundToRowBoundaries() const {
    return roundToRowBoundaries_;
}

// Row rounding cannot be switched off: whatever is written, the flag stays on.
void ReportWorksheet::SetRoundToRowBoundaries(bool /*roundToRowBoundaries*/) {
    roundToRowBoundaries_ = true;
}

std::shared_ptr<excel::Range> ReportWorksheet::CurrentCell() const {
    return currentCell_;
}

void ReportWorksheet::SetCurrentCell(const std::shared_ptr<excel::Range>& cell) {
    if (!cell) {
        currentCell_ = nullptr;
        return;
    }
    const auto& ranges = Support().Ranges();
    if (cell->Cells()->CountLarge() >= 2)
        RaiseLibraryError(error_code::InvalidArgument, "CurrentCell must be a single cell.");
    if (!ranges.IsSameWorksheet(cell->Parent(), excelWorksheet_))
        RaiseLibraryError(error_code::InvalidArgument, "CurrentCell must be on the report worksheet.");
    if (!ranges.IsRangeWithinRange(cell, limitingRange_))
        RaiseLibraryError(error_code::InvalidArgument, "CurrentCell must lie within the limiting range of the report.");
    currentCell_ = cell;
}

bool ReportWorksheet::HasAvailableSpace(int32_t numRows, int32_t numColumns) {
    if (numRows < 1)
        RaiseLibraryError(error_code::OutOfRange, "numRows");
    if (numColumns < 1)
        RaiseLibraryError(error_code::OutOfRange, "numColumns");
    return currentCell_ && CursorStaysInsideAfter(numRows, numColumns);
}

void ReportWorksheet::AddSeparatorRows(int32_t numRows) {
    if (numRows < 1)
        RaiseLibraryError(error_code::OutOfRange, "numRows");
    RequireAvailableSpace(numRows, 1);
    AdvanceCurrentCell(numRows, 0);
}

void ReportWorksheet::AddSpacingColumn() {
    excelWorksheet_->Columns(1)->Insert(excel::xlShiftToRight);
    excelWorksheet_->Columns(1)->SetColumnWidth(SpacingColumnWidth);
}

std::shared_ptr<excel::Comment> ReportWorksheet::AddComment(const std::shared_ptr<excel::Range>& whichCell,
                                                            const std::string& headerText, const std::string& mainText) {
    return CreateClientCellComment(whichCell, headerText, mainText);
}

void ReportWorksheet::AdvanceCurrentCell(int32_t numRows, int32_t numColumns) {
    if (numRows < 0)
        RaiseLibraryError(error_code::OutOfRange, "numRows");
    if (numColumns < 0)
        RaiseLibraryError(error_code::OutOfRange, "numColumns");
    if (!currentCell_)
        RaiseLibraryError(error_code::PropertyNotSet, "CurrentCell");
    currentCell_ = CursorStaysInsideAfter(numRows, numColumns)
                       ? Support().Ranges().RangeOffset(currentCell_, numRows, numColumns)
                       : nullptr;
}

// Whether moving the cursor that many rows down and columns right keeps it inside the limiting range.
bool ReportWorksheet::CursorStaysInsideAfter(int32_t numRows, int32_t numColumns) const {
    const auto& ranges = Support().Ranges();
    return CheckedSum(currentCell_->Row(), numRows) <= ranges.LastRowOfRange(limitingRange_) &&
           CheckedSum(currentCell_->Column(), numColumns) <= ranges.LastColumnOfRange(limitingRange_);
}

void ReportWorksheet::RequireAvailableSpace(int32_t numRows, int32_t numColumns) {
    if (!HasAvailableSpace(numRows, numColumns))
        RaiseNoRoomForElement();
}

void ReportWorksheet::RaiseNoRoomForElement() {
    RaiseLibraryError(error_code::NotAllowedNow, "Requested report element can not fit in available space.");
}

}  // namespace vos
