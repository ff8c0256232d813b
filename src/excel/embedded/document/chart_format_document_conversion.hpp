#pragma once

#include "excel/embedded/format/workbook_colors.hpp"
#include "excel/embedded/model/charts/chart_format.hpp"
#include "excel/embedded/model/charts/chart_title_model.hpp"
#include "ooxml/document/chart_document.hpp"

namespace excel::embedded {

// A chart's formats in the chart part's terms: fills and lines as DrawingML spells them (Excel's
// weights in EMU, a one-colour gradient as its two stops and angle), fonts as run properties,
// orientations as rotations. A part whose opened formatting still holds keeps the file's markup.
ooxml::ChartShapeProperties DocumentShapeProperties(const ChartElementFormat& format, const WorkbookColors& colors,
                                                    const ooxml::ChartShapeProperties* opened);
ooxml::ChartTextProperties DocumentTextProperties(const ChartTextFormat& text,
                                                  const ooxml::ChartTextProperties* opened);
ooxml::ChartFont DocumentChartFont(const FontFormat& font, const WorkbookColors& colors);
ooxml::ChartTitle DocumentTitle(const ChartTitleModel& title, const WorkbookColors& colors);
ooxml::Color DocumentShapeColor(const ShapeColor& color, const WorkbookColors& colors);

}  // namespace excel::embedded
