#pragma once

#include "ooxml/carried/element_order.hpp"
#include "ooxml/document/chart_document.hpp"
#include "ooxml/xml/xml_writer.hpp"

namespace ooxml {

// Writes a series (<c:ser>) with the children its group's kind of series has (order): index,
// plotting order, name, shape properties, marker, invertIfNegative, categories or X values, values
// or Y values, smooth, and the carried children (data labels, trendlines, ...) in their slots.
void WriteChartSeries(XmlWriter& xml, const ChartSeries& series, ElementOrder order);

}  // namespace ooxml
