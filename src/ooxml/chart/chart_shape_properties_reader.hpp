#pragma once

#include "ooxml/document/chart_document.hpp"

#include <pugixml.hpp>

namespace ooxml {

// A chart element's c:spPr: its fill and outline as far as the document models them, and always
// its children as written. An absent element is automatic.
ChartShapeProperties ReadChartShapeProperties(pugi::xml_node properties);

}  // namespace ooxml
