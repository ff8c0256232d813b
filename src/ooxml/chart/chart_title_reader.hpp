#pragma once

#include "ooxml/document/chart_document.hpp"

#include <pugixml.hpp>

namespace ooxml {

// A chart's or an axis's c:title; its layout and extensions are carried.
ChartTitle ReadChartTitle(pugi::xml_node title);

}  // namespace ooxml
