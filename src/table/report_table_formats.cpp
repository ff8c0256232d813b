#include "table/report_table.hpp"

#include "support/language_font_size.hpp"
#include "support/report_theme_colors.hpp"
#include "support/support_services.hpp"
#include "support/workbook_range_theme.hpp"

#include <vos/table_inside_border_type.hpp>

#include <excel/border.hpp>
#include <excel/constants.hpp>
#include <excel/font.hpp>
#include <excel/interior.hpp>
#include <excel/range.hpp>

namespace vos {

namespace {

constexpr int32_t TitleFillColorIndex = 15;

void SetEdge(const std::shared_ptr<excel::Range>& range, int32_t edge, int32_t weight) {
    const auto border = range->Borders(edge);
    border->SetWeight(weight);
    border->SetColorIndex(excel::xlColorIndexAutomatic);
}

void FormatInterior(const std::shared_ptr<excel::Range>& interior, double fontSize) {
    interior->SetHorizontalAlignment(excel::xlCenter);
    interior->Font()->SetSize(fontSize);
    interior->SetVerticalAlignment(excel::xlTop);
}

void FormatTopHeader(const std::shared_ptr<excel::Range>& header, double fontSize) {
    header->SetHorizontalAlignment(excel::xlCenter);
    header->Font()->SetSize(fontSize);
    header->Font()->SetBold(true);
}

void FormatLeftHeader(const std::shared_ptr<excel::Range>& header, double fontSize) {
    header->SetVerticalAlignment(excel::xlTop);
    header->SetHorizontalAlignment(excel::xlLeft);
    header->Font()->SetSize(fontSize);
    header->Font()->SetBold(true);
}

void FormatSignature(const std::shared_ptr<excel::Range>& signature, double fontSize) {
    signature->SetHorizontalAlignment(excel::xlLeft);
    signature->Font()->SetBold(true);
    signature->Font()->SetSize(fontSize);
}

void FormatTitleRow(const std::shared_ptr<excel::Range>& row, double fontSize, bool bold) {
    row->SetMergeCells(true);
    row->Font()->SetSize(fontSize);
    row->Font()->SetBold(bold);
}

}  // namespace

double ReportTable::LargeFontSize() const {
    return SizeForLanguage(language_, 12.0, 10.0);
}

double ReportTable::SmallFontSize() const {
    return SizeForLanguage(language_, 10.0, 8.0);
}

void ReportTable::FormatTitleRows() const {
    FormatTitleRow(titleRange_->Rows(1), LargeFontSize(), true);
    if (titleRange_->Rows()->Count() >= 2)
        FormatTitleRow(titleRange_->Rows(2), SmallFontSize(), false);
}

// Both passes centre the title and then left-align it: the left alignment is the one that stays.
void ReportTable::ApplyStandardFormat() {
    Support().Ranges().RangeBorderAround(tableRange_, excel::xlContinuous, excel::xlMedium,
                                         excel::xlColorIndexAutomatic);
    if (titleRange_) {
        titleRange_->SetHorizontalAlignment(excel::xlCenter);
        titleRange_->Interior()->SetColorIndex(TitleFillColorIndex);
        titleRange_->SetHorizontalAlignment(excel::xlLeft);
        SetEdge(titleRange_, excel::xlEdgeBottom, excel::xlMedium);
        FormatTitleRows();
    }
    if (interiorRange_)
        FormatInterior(interiorRange_, SmallFontSize());
    // The header lines also run under and beside the signature block.
    if (topHeaderRange_)
        SetEdge(TopHeaderRange(true), excel::xlEdgeBottom, excel::xlThin);
    if (leftHeaderRange_)
        SetEdge(LeftHeaderRange(true), excel::xlEdgeRight, excel::xlThin);
    if (topHeaderRange_)
        FormatTopHeader(topHeaderRange_, SmallFontSize());
    if (leftHeaderRange_)
        FormatLeftHeader(leftHeaderRange_, SmallFontSize());
    if (signatureRange_)
        FormatSignature(signatureRange_, SmallFontSize());
}

// The theme supplies the fills, lines and title font colour that the standard pass sets by index.
void ReportTable::ApplyThemeFormat() {
    const ReportThemeColors& workbook = *reportWorkbook_;
    if (titleRange_) {
        titleRange_->SetHorizontalAlignment(excel::xlCenter);
        titleRange_->SetHorizontalAlignment(excel::xlLeft);
        FormatTitleRows();
    }
    ApplyTitleRangeTheme(workbook, titleRange_);
    if (interiorRange_)
        FormatInterior(interiorRange_, SmallFontSize());
    ApplyInteriorRangeTheme(workbook, interiorRange_, VosBorderHorizontal);
    if (topHeaderRange_)
        FormatTopHeader(topHeaderRange_, SmallFontSize());
    ApplyTopHeaderRangeTheme(workbook, topHeaderRange_, VosBorderNone);
    if (leftHeaderRange_)
        FormatLeftHeader(leftHeaderRange_, SmallFontSize());
    ApplyLeftHeaderRangeTheme(workbook, leftHeaderRange_, VosBorderIgnore);
    if (signatureRange_)
        FormatSignature(signatureRange_, SmallFontSize());
    ApplySignatureRangeTheme(workbook, signatureRange_);
}

}  // namespace vos
