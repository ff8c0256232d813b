#include "table/report_table.hpp"

#include "support/cell_comment.hpp"
#include "support/library_error.hpp"
#include "support/report_theme_colors.hpp"
#include "support/support_services.hpp"
#include "support/trim_blanks.hpp"

#include <vos/theme_property_type.hpp>

#include <excel/automation_error.hpp>
#include <excel/range.hpp>
#include <excel/safe_array.hpp>

namespace vos {

namespace {

constexpr int32_t ObjectVariableNotSet = 91;
constexpr int32_t CommentOutlineColorIndex = 5;

bool IsWritableElementType(excel::VarType type) {
    using enum excel::VarType;
    switch (type) {
        case Integer:
        case Long:
        case Single:
        case Double:
        case String:
        case Boolean:
        case Variant:
            return true;
        default:
            return false;
    }
}

}  // namespace

void ReportTable::WriteDataToColumn(int32_t columnPosition, const excel::Variant& dataArray,
                                    int32_t startingRowPosition) {
    if (columnPosition < 1 || columnPosition > InteriorColumnCount())
        RaiseLibraryError(error_code::OutOfRange, "columnPosition");
    if (!dataArray.IsArray())
        RaiseLibraryError(error_code::InvalidArgument, "dataArray must be an array.");
    const excel::SafeArray& data = dataArray.Array();
    if (data.Dimensions() != 1)
        RaiseLibraryError(error_code::InvalidArgument, "dataArray must be a 1-dimensional array.");
    if (!IsWritableElementType(data.ElementType()))
        RaiseLibraryError(error_code::InvalidArgument, "Invalid dataArray type.");
    const int32_t interiorRows = InteriorRowCount();
    if (startingRowPosition < 1 || startingRowPosition > interiorRows)
        RaiseLibraryError(error_code::OutOfRange, "startingRowPosition");
    const auto count = data.Count(1);
    if (count > static_cast<uint32_t>(interiorRows - startingRowPosition + 1))
        RaiseLibraryError(error_code::NotAllowedNow, "Not enough rows to write dataArray.");
    if (count == 0)
        return;

    const auto& ranges = Support().Ranges();
    const auto target = ranges.RangeOffset(
        ranges.RangeResize(interiorRange_->Columns(columnPosition), static_cast<int32_t>(count), RangeServices::KeepCount),
        startingRowPosition - 1, 0);
    excel::SafeArray column = excel::SafeArray::Matrix(excel::VarType::Variant, count, 1);
    const auto& elements = data.Elements();
    for (uint32_t i = 0; i < count; ++i)
        column.Put(i, 0, elements[i]);
    target->SetValue(excel::Variant(std::move(column)));
}

std::shared_ptr<excel::Comment> ReportTable::AddComment(int32_t interiorRowPosition, int32_t interiorColumnPosition,
                                                        const std::string& headerText, const std::string& mainText) {
    if (interiorRowPosition < 0 || interiorRowPosition > InteriorRowCount())
        RaiseLibraryError(error_code::OutOfRange, "interiorRowPosition");
    if (interiorColumnPosition < 0 || interiorColumnPosition > InteriorColumnCount())
        RaiseLibraryError(error_code::OutOfRange, "interiorColumnPosition");
    RequireCommentTexts(headerText, mainText);

    std::shared_ptr<excel::Range> cell;
    if (interiorRowPosition > 0 && interiorColumnPosition > 0) {
        cell = interiorRange_->Cells(interiorRowPosition, interiorColumnPosition);
    } else if (interiorRowPosition > 0) {
        if (!leftHeaderRange_)
            RaiseLibraryError(error_code::NotAllowedNow, "This table has no left-header range.");
        // The row index is the header's column count and the cell index runs along that row:
        // with one header column this is the header cell of the interior row.
        cell = leftHeaderRange_->Rows(LeftHeaderColumnCount())->Cells(interiorRowPosition);
    } else if (interiorColumnPosition > 0) {
        if (!topHeaderRange_)
            RaiseLibraryError(error_code::NotAllowedNow, "This table has no top-header range.");
        cell = topHeaderRange_->Rows(TopHeaderRowCount())->Cells(interiorColumnPosition);
    } else {
        if (!signatureRange_)
            excel::ThrowRuntimeError(ObjectVariableNotSet);
        cell = signatureRange_->Cells(signatureRange_->Cells()->Count());
    }

    const std::string header = TrimBlanks(headerText);
    const std::string main = TrimBlanks(mainText);
    if (reportWorkbook_->UseThemes())
        return CreateCellComment(cell, header, main, true, reportWorkbook_->ThemeColorFor(VosCommentFont, true));
    return CreateCellComment(cell, header, main, false, CommentOutlineColorIndex);
}

}  // namespace vos
