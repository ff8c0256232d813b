#pragma once

#include "ooxml/document/chart_document.hpp"
#include "ooxml/xml/xml_writer.hpp"

#include <string_view>

namespace ooxml {

inline constexpr std::string_view kChartContentType =
    "application/vnd.openxmlformats-officedocument.drawingml.chart+xml";
inline constexpr std::string_view kChartRelationshipType =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/chart";

// Whether the writer can write every chart group and axis of the chart.
bool WritableChart(const ChartDocument& chart);

// Writes a chart part (xl/charts/chartN.xml) as Excel 2010 and later write one, every value
// spelled out: the chart space with its style, the chart (title, plot area with its groups and
// axes, legend), the chart area's shape and text properties, default print settings and, when
// userShapesId names the relationship to the chart's drawing, the reference to it; among them
// the elements the opened chart had that the document does not model.
void WriteChartPart(XmlWriter& xml, const ChartDocument& chart, std::string_view userShapesId);

}  // namespace ooxml
