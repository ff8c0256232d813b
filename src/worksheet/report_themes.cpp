#include "worksheet/report_worksheet.hpp"

#include "workbook/report_workbook.hpp"
#include "worksheet/range_theme.hpp"

#include <vos/theme_property_type.hpp>

namespace vos {

int32_t ReportWorksheet::ThemeColor(int32_t p_VosThemePropertyType, bool p_ObjectThemeColor) {
    return parentWorkbook_->ThemeColorFor(p_VosThemePropertyType, p_ObjectThemeColor);
}

// Tints are the same for cells and drawing objects.
float ReportWorksheet::ThemeTintAndShade(int32_t p_VosThemePropertyType, bool /*p_ObjectThemeColor*/) {
    return parentWorkbook_->ThemeTintAndShadeFor(p_VosThemePropertyType);
}

void ReportWorksheet::SetTitleRangeTheme(const std::shared_ptr<excel::Range>& p_Range) {
    ApplyTitleRangeTheme(p_Range, ThemeColor(VosTableTitle), ThemeTintAndShade(VosTableTitle),
                         ThemeColor(VosTableTitleFont), ThemeTintAndShade(VosTableTitleFont),
                         ThemeColor(VosTableBorders), ThemeTintAndShade(VosTableBorders));
}

void ReportWorksheet::SetInteriorRangeTheme(const std::shared_ptr<excel::Range>& p_Range, int32_t p_InsideBorderType) {
    ApplyInteriorRangeTheme(p_Range, ThemeColor(VosTableBorders), ThemeTintAndShade(VosTableBorders),
                            p_InsideBorderType);
}

void ReportWorksheet::SetTopHeaderRangeTheme(const std::shared_ptr<excel::Range>& p_Range, int32_t p_InsideBorderType) {
    ApplyTopHeaderRangeTheme(p_Range, ThemeColor(VosTableHeader), ThemeTintAndShade(VosTableHeader),
                             ThemeColor(VosTableBorders), ThemeTintAndShade(VosTableBorders), p_InsideBorderType);
}

void ReportWorksheet::SetLeftHeaderRangeTheme(const std::shared_ptr<excel::Range>& p_Range, int32_t p_InsideBorderType) {
    ApplyLeftHeaderRangeTheme(p_Range, ThemeColor(VosTableHeader), ThemeTintAndShade(VosTableHeader),
                              ThemeColor(VosTableBorders), ThemeTintAndShade(VosTableBorders), p_InsideBorderType);
}

}  // namespace vos
