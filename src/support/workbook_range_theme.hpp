#pragma once

#include <excel/fwd.hpp>

#include <cstdint>
#include <memory>

namespace vos {

class ReportThemeColors;

// The range themes of range_theme.hpp in the colours of a report workbook's theme table: the
// title, header, border and title-font entries, asked in the numbering of cells. Used by the
// report sheet's Set...RangeTheme members and by tables alike, so both colour a range the same way.
void ApplyTitleRangeTheme(const ReportThemeColors& workbook, const std::shared_ptr<excel::Range>& range);
void ApplyInteriorRangeTheme(const ReportThemeColors& workbook, const std::shared_ptr<excel::Range>& range,
                             int32_t insideBorderType);
void ApplyTopHeaderRangeTheme(const ReportThemeColors& workbook, const std::shared_ptr<excel::Range>& range,
                              int32_t insideBorderType);
void ApplyLeftHeaderRangeTheme(const ReportThemeColors& workbook, const std::shared_ptr<excel::Range>& range,
                               int32_t insideBorderType);
void ApplySignatureRangeTheme(const ReportThemeColors& workbook, const std::shared_ptr<excel::Range>& range);

}  // namespace vos
