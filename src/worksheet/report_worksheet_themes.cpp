#include "worksheet/report_worksheet.hpp"

#include "support/workbook_range_theme.hpp"
#include "workbook/report_workbook.hpp"

namespace vos {

int32_t ReportWorksheet::ThemeColor(int32_t p_VosThemePropertyType, bool p_ObjectThemeColor) {
    return parentWorkbook_->ThemeColorFor(p_VosThemePropertyType, p_ObjectThemeColor);
}

// Tints are the same for cells and drawing objects.
float ReportWorksheet::ThemeTintAndShade(int32_t p_VosThemePropertyType, bool /*p_ObjectThemeColor*/) {
    return parentWorkbook_->ThemeTintAndShadeFor(p_VosThemePropertyType);
}

void ReportWorksheet::SetTitleRangeTheme(const std::shared_ptr<excel::Range>& p_Range) {
    ApplyTitleRangeTheme(*parentWorkbook_, p_Range);
}

void ReportWorksheet::SetInteriorRangeTheme(const std::shared_ptr<excel::Range>& p_Range, int32_t p_InsideBorderType) {
    ApplyInteriorRangeTheme(*parentWorkbook_, p_Range, p_InsideBorderType);
}

void ReportWorksheet::SetTopHeaderRangeTheme(const std::shared_ptr<excel::Range>& p_Range, int32_t p_InsideBorderType) {
    ApplyTopHeaderRangeTheme(*parentWorkbook_, p_Range, p_InsideBorderType);
}

void ReportWorksheet::SetLeftHeaderRangeTheme(const std::shared_ptr<excel::Range>& p_Range, int32_t p_InsideBorderType) {
    ApplyLeftHeaderRangeTheme(*parentWorkbook_, p_Range, p_InsideBorderType);
}

}  // namespace vos
