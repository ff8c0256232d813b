#pragma once

#include "ooxml/document/chart_document.hpp"
#include "ooxml/xml/xml_writer.hpp"

#include <string_view>

namespace ooxml {

// Whether the writer knows the kind of chart group (its type: "barChart", "lineChart",
// "scatterChart", "areaChart").
bool WritableChartGroup(std::string_view type);

// Writes a chart group of the plot area (<c:barChart>, ...) with every value Excel writes for its
// kind spelled out: direction, grouping or scatter style, varied colours, the series, gap width and
// overlap, markers and smoothing, the axis ids; the carried children (data labels, drop lines, ...)
// in their slots. The group's type must be one WritableChartGroup accepts.
void WriteChartGroup(XmlWriter& xml, const ChartGroup& group);

}  // namespace ooxml
