#pragma once

#include "ooxml/document/chart_document.hpp"

#include <pugixml.hpp>

#include <string_view>

namespace ooxml {

// A c:ser of a chart group of the given type ("barChart", "lineChart", "scatterChart",
// "areaChart"): what the document models of it, the rest carried in the slots of that type's
// series.
ChartSeries ReadChartSeries(pugi::xml_node series, std::string_view groupType);

}  // namespace ooxml
