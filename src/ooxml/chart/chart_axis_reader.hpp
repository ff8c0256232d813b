#pragma once

#include "ooxml/document/chart_document.hpp"

#include <pugixml.hpp>

namespace ooxml {

// An axis of the plot area (c:catAx, c:valAx, c:dateAx, c:serAx). An element Excel leaves out when
// it holds Excel's default takes that default (a major tick mark "out", not the schema's "cross").
ChartAxis ReadChartAxis(pugi::xml_node axis);

}  // namespace ooxml
