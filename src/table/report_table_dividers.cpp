#include "table/report_table.hpp"

#include "support/library_error.hpp"
#include "support/report_theme_colors.hpp"
#include "support/support_services.hpp"

#include <vos/theme_property_type.hpp>

#include <excel/border.hpp>
#include <excel/constants.hpp>
#include <excel/range.hpp>

namespace vos {

namespace {

// The line run back over the header cells before it: rows up and columns left, as many as given.
std::shared_ptr<excel::Range> ExtendedBackOverHeader(const std::shared_ptr<excel::Range>& line, int32_t rows,
                                                     int32_t columns) {
    const auto& ranges = Support().Ranges();
    const auto moved = ranges.RangeOffset(line, -rows, -columns);
    return ranges.RangeResize(moved, moved->Rows()->Count() + rows, moved->Columns()->Count() + columns);
}

}  // namespace

void ReportTable::AddRowDividerLine(int32_t position, bool extendIntoColumnHeader, int32_t lineStyle,
                                    int32_t weight, int16_t colorIndex) {
    if (position < 0 || position > InteriorRowCount())
        RaiseLibraryError(error_code::OutOfRange, "position");
    // Row 0 is the row just above the interior: its bottom edge runs under the header.
    auto line = interiorRange_->Rows(position);
    if (extendIntoColumnHeader)
        line = ExtendedBackOverHeader(line, 0, LeftHeaderColumnCount());
    DrawDivider(line->Borders(excel::xlEdgeBottom), lineStyle, weight, colorIndex);
}

void ReportTable::AddColumnDividerLine(int32_t position, bool extendIntoRowHeader, int32_t lineStyle, int32_t weight,
                                       int16_t colorIndex) {
    if (position < 0 || position > InteriorColumnCount())
        RaiseLibraryError(error_code::OutOfRange, "position");
    auto line = interiorRange_->Columns(position);
    if (extendIntoRowHeader)
        line = ExtendedBackOverHeader(line, TopHeaderRowCount(), 0);
    DrawDivider(line->Borders(excel::xlEdgeRight), lineStyle, weight, colorIndex);
}

void ReportTable::AddCustomDivider(const std::shared_ptr<excel::Border>& borderObject, int32_t lineStyle,
                                   int32_t weight, int16_t colorIndex) {
    if (!borderObject)
        RaiseLibraryError(error_code::MissingObject, "borderObject");
    DrawDivider(borderObject, lineStyle, weight, colorIndex);
}

// With themes every divider takes the table-border colour of the theme, whatever index is given.
void ReportTable::DrawDivider(const std::shared_ptr<excel::Border>& border, int32_t lineStyle, int32_t weight,
                              int16_t colorIndex) const {
    border->SetWeight(weight);
    border->SetLineStyle(lineStyle);
    if (reportWorkbook_->UseThemes()) {
        border->SetThemeColor(reportWorkbook_->ThemeColorFor(VosTableBorders, false));
        border->SetTintAndShade(reportWorkbook_->ThemeTintAndShadeFor(VosTableBorders));
    } else {
        border->SetColorIndex(colorIndex);
    }
}

}  // namespace vos
