#include "support/workbook_range_theme.hpp"

#include "support/range_theme.hpp"
#include "support/report_theme_colors.hpp"

#include <vos/theme_property_type.hpp>

namespace vos {

namespace {

int32_t CellColor(const ReportThemeColors& workbook, int32_t propertyType) {
    return workbook.ThemeColorFor(propertyType, false);
}

}  // namespace

void ApplyTitleRangeTheme(const ReportThemeColors& workbook, const std::shared_ptr<excel::Range>& range) {
    ApplyTitleRangeTheme(range, CellColor(workbook, VosTableTitle), workbook.ThemeTintAndShadeFor(VosTableTitle),
                         CellColor(workbook, VosTableTitleFont), workbook.ThemeTintAndShadeFor(VosTableTitleFont),
                         CellColor(workbook, VosTableBorders), workbook.ThemeTintAndShadeFor(VosTableBorders));
}

void ApplyInteriorRangeTheme(const ReportThemeColors& workbook, const std::shared_ptr<excel::Range>& range,
                             int32_t insideBorderType) {
    ApplyInteriorRangeTheme(range, CellColor(workbook, VosTableBorders), workbook.ThemeTintAndShadeFor(VosTableBorders),
                            insideBorderType);
}

void ApplyTopHeaderRangeTheme(const ReportThemeColors& workbook, const std::shared_ptr<excel::Range>& range,
                              int32_t insideBorderType) {
    ApplyTopHeaderRangeTheme(range, CellColor(workbook, VosTableHeader), workbook.ThemeTintAndShadeFor(VosTableHeader),
                             CellColor(workbook, VosTableBorders), workbook.ThemeTintAndShadeFor(VosTableBorders),
                             insideBorderType);
}

void ApplyLeftHeaderRangeTheme(const ReportThemeColors& workbook, const std::shared_ptr<excel::Range>& range,
                               int32_t insideBorderType) {
    ApplyLeftHeaderRangeTheme(range, CellColor(workbook, VosTableHeader), workbook.ThemeTintAndShadeFor(VosTableHeader),
                              CellColor(workbook, VosTableBorders), workbook.ThemeTintAndShadeFor(VosTableBorders),
                              insideBorderType);
}

void ApplySignatureRangeTheme(const ReportThemeColors& workbook, const std::shared_ptr<excel::Range>& range) {
    ApplySignatureRangeTheme(range, CellColor(workbook, VosTableHeader), workbook.ThemeTintAndShadeFor(VosTableHeader));
}

}  // namespace vos
