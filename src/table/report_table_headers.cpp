#include "table/report_table.hpp"

#include "support/library_error.hpp"
#include "support/support_services.hpp"

#include <excel/automation_error.hpp>
#include <excel/constants.hpp>
#include <excel/range.hpp>
#include <excel/safe_array.hpp>

#include <string>

namespace vos {

namespace {

// The number of elements of the array's first dimension; 0 for anything that has none to give:
// no array, an unallocated one, or an empty one.
int32_t FirstDimensionCount(const excel::Variant& values) {
    if (!values.IsArray() || !values.Array().IsAllocated())
        return 0;
    return static_cast<int32_t>(values.Array().Count(1));
}

}  // namespace

void ReportTable::CheckHeaderVariable(VosTableHeaderType whichHeader, const std::string& argumentName) {
    if (whichHeader == VosTopHeader) {
        if (!topHeaderRange_)
            RaiseLibraryError(error_code::InvalidArgument, "Table does not have a top header.");
    } else if (whichHeader == VosLeftHeader) {
        if (!leftHeaderRange_)
            RaiseLibraryError(error_code::InvalidArgument, "Table does not have a left header.");
    } else {
        RaiseLibraryError(error_code::OutOfRange, argumentName);
    }
}

void ReportTable::RequireTopHeader(VosTableHeaderType whichHeader) {
    if (whichHeader == VosLeftHeader)
        RaiseLibraryError(error_code::InvalidArgument,
                          "This method can not be used for this combintation of table format and header.");
}

std::shared_ptr<excel::Range> ReportTable::InnermostHeaderLine(VosTableHeaderType whichHeader) const {
    if (whichHeader == VosTopHeader)
        return topHeaderRange_->Rows(topHeaderRange_->Rows()->Count());
    if (whichHeader == VosLeftHeader)
        return leftHeaderRange_->Columns(leftHeaderRange_->Columns()->Count());
    RaiseLibraryError(error_code::NotInEnumeration, "whichHeader");
}

int32_t ReportTable::HeaderLength(VosTableHeaderType whichHeader) const {
    if (whichHeader == VosTopHeader)
        return topHeaderRange_->Columns()->Count();
    if (whichHeader == VosLeftHeader)
        return leftHeaderRange_->Rows()->Count();
    RaiseLibraryError(error_code::NotInEnumeration, "whichHeader");
}

void ReportTable::WriteHeaderItem(VosTableHeaderType whichHeader, int32_t position, const excel::Variant& theValue) {
    CheckHeaderVariable(whichHeader);
    ValidateHeaderPosition(whichHeader, position, "position");
    InnermostHeaderLine(whichHeader)->Cells(position)->SetValue(theValue);
}

void ReportTable::WriteHeaderMergedItem(VosTableHeaderType whichHeader, int32_t position,
                                        const excel::Variant& theValue) {
    CheckHeaderVariable(whichHeader);
    ValidateHeaderPosition(whichHeader, position, "position");
    RequireTopHeader(whichHeader);
    const auto column = topHeaderRange_->Columns(position);
    column->ClearContents();
    column->SetMergeCells(topHeaderRange_->Rows()->Count() > 1);
    column->SetVerticalAlignment(excel::xlCenter);
    column->SetValue(theValue);
}

void ReportTable::WriteHeaderPairedItem(VosTableHeaderType whichHeader, int32_t position,
                                        const excel::Variant& firstValue, const excel::Variant& secondValue) {
    CheckHeaderVariable(whichHeader);
    ValidateHeaderPosition(whichHeader, position, "position");
    RequireTopHeader(whichHeader);
    const int32_t headerRows = topHeaderRange_->Rows()->Count();
    if (headerRows < 2)
        RaiseLibraryError(error_code::NotAllowedNow, "The header is not wide enough to display a paired item.");
    const auto lower = topHeaderRange_->Columns(position)->Cells(headerRows);
    const auto upper = Support().Ranges().RangeOffset(lower, -1, 0);
    upper->SetValue(firstValue);
    lower->SetValue(secondValue);
}

void ReportTable::WriteHeaderArray(VosTableHeaderType whichHeader, int32_t startPosition,
                                   const excel::Variant& theValues) {
    CheckHeaderVariable(whichHeader);
    ValidateHeaderPosition(whichHeader, startPosition, "position");
    const auto line = InnermostHeaderLine(whichHeader);
    const int32_t count = FirstDimensionCount(theValues);
    if (count == 0)
        RaiseLibraryError(error_code::InvalidArgument, "No values to write.");
    if (count > line->Count() - startPosition + 1)
        RaiseLibraryError(error_code::NotAllowedNow, "Not enough room in header to display values.");
    const excel::SafeArray& values = theValues.Array();
    const int32_t lowerBound = values.LowerBound(1);
    for (int32_t i = 0; i < count; ++i)
        line->Cells(startPosition + i)->SetValue(values.Get({lowerBound + i}));
}

void ReportTable::WriteHeaderSummary(VosTableHeaderType whichHeader, const excel::Variant& summaryValue) {
    CheckHeaderVariable(whichHeader);
    RequireTopHeader(whichHeader);
    const auto outermostRow = topHeaderRange_->Rows(1);
    outermostRow->ClearContents();
    if (outermostRow->Count() >= 2) {
        outermostRow->SetMergeCells(true);
        outermostRow->SetHorizontalAlignment(excel::xlCenterAcrossSelection);
    }
    outermostRow->SetValue(summaryValue);
}

void ReportTable::WriteHeaderIndexNumbers(VosTableHeaderType whichHeader, int32_t startingPosition,
                                          int32_t numIndices, const std::string& prefixText) {
    CheckHeaderVariable(whichHeader);
    ValidateHeaderPosition(whichHeader, startingPosition, "startingPosition");
    const int32_t length = HeaderLength(whichHeader);
    if (numIndices < 0 || numIndices > length)
        RaiseLibraryError(error_code::OutOfRange, "numIndices");
    if (numIndices == 0)
        numIndices = length - startingPosition + 1;

    // The count is checked against the header's whole length, so from a late start the numbers
    // may run on past the header's end.
    const auto& ranges = Support().Ranges();
    const bool alongRow = whichHeader == VosTopHeader;
    const auto line = InnermostHeaderLine(whichHeader);
    const auto block = alongRow ? ranges.RangeOffset(ranges.RangeResize(line, 1, numIndices), 0, startingPosition - 1)
                                : ranges.RangeOffset(ranges.RangeResize(line, numIndices, 1), startingPosition - 1, 0);
    const auto count = static_cast<uint32_t>(numIndices);
    excel::SafeArray labels =
        excel::SafeArray::Matrix(excel::VarType::Variant, alongRow ? 1 : count, alongRow ? count : 1);
    for (uint32_t i = 0; i < count; ++i) {
        excel::Variant label(prefixText + std::to_string(i + 1));
        alongRow ? labels.Put(0, i, std::move(label)) : labels.Put(i, 0, std::move(label));
    }
    block->SetValue(excel::Variant(std::move(labels)));
}

}  // namespace vos
