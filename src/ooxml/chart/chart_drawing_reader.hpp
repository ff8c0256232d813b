#pragma once

#include "ooxml/document/chart_document.hpp"

#include <string_view>

namespace ooxml {

// Reads a chart's drawing part (c:userShapes) into the chart: each relative anchor holding a text
// box becomes one of its shapes; the other anchors (absolute ones, pictures, groups, other shapes)
// are carried in drawingCarried, each in the slot of the number of text boxes below it, with the
// root's attributes. False, and the chart left as it was, when the part is not well formed or
// binds the prefixes otherwise than Excel.
bool ReadChartDrawing(std::string_view xml, ChartDocument& chart);

}  // namespace ooxml
