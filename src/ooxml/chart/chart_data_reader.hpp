#pragma once

#include "ooxml/document/chart_document.hpp"

#include <pugixml.hpp>

namespace ooxml {

// Where a series takes its data from: source is the element holding the reference or literal
// (c:cat, c:val, c:xVal, c:yVal, c:tx). A reference or literal holding more than the document
// models (a multi-level reference, extensions, a point's own format) is kept whole as kind Other.
ChartData ReadChartData(pugi::xml_node source);

}  // namespace ooxml
