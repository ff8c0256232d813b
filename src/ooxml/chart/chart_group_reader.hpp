#pragma once

#include "ooxml/document/chart_document.hpp"

#include <pugixml.hpp>

#include <string_view>

namespace ooxml {

// Whether the document models chart groups of this kind (the plot area carries the others whole).
bool ModelledChartGroup(std::string_view type);

// A c:barChart, c:lineChart, c:scatterChart or c:areaChart with its series. Values Excel leaves out
// when they hold its default take that default (a bar group's gap width 150, overlap 0).
ChartGroup ReadChartGroup(pugi::xml_node group);

}  // namespace ooxml
