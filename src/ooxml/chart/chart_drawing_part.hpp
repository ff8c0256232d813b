#pragma once

#include "ooxml/document/chart_document.hpp"
#include "ooxml/xml/xml_writer.hpp"

#include <string_view>

namespace ooxml {

inline constexpr std::string_view kChartDrawingContentType =
    "application/vnd.openxmlformats-officedocument.drawingml.chartshapes+xml";
inline constexpr std::string_view kChartUserShapesRelationshipType =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/chartUserShapes";

// Whether the chart has a drawing of its own to write: text boxes, or anchors the opened one carries.
bool HasChartDrawing(const ChartDocument& chart);

// Writes a chart's drawing (<c:userShapes>, stored as xl/drawings/drawingN.xml): each text box as
// a shape in an anchor placed by fractions of the chart's size, in z-order, and among them the
// anchors the opened drawing had that the engine does not model.
void WriteChartDrawingPart(XmlWriter& xml, const ChartDocument& chart);

}  // namespace ooxml
