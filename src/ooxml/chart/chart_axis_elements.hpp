#pragma once

#include "ooxml/document/chart_document.hpp"
#include "ooxml/xml/xml_writer.hpp"

#include <string_view>

namespace ooxml {

// Whether the writer knows the kind of axis (its type: "catAx", "valAx", "dateAx", "serAx").
bool WritableChartAxis(std::string_view type);

// Writes an axis of the plot area with the children its kind has: id, scaling (log base,
// orientation, maximum before minimum), deleted, position, gridlines, title, number format, tick
// marks and labels, shape and text properties, the axis it crosses and where, then a category
// axis' label settings or a value axis' crossBetween and units; the carried children in their
// slots. language: the chart's, for the title's runs. The type must be one WritableChartAxis accepts.
void WriteChartAxis(XmlWriter& xml, const ChartAxis& axis, std::string_view language);

}  // namespace ooxml
