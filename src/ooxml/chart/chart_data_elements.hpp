#pragma once

#include "ooxml/document/chart_document.hpp"
#include "ooxml/xml/xml_writer.hpp"

#include <string_view>

namespace ooxml {

// Writes where a series' name, categories or values (or a title's text) come from, as the child
// of element ("c:val", "c:tx"): a reference with the values the file caches (<c:numRef>,
// <c:strRef>), the values themselves (<c:numLit>, <c:strLit>), every point with its index, or the
// file's markup (a multi-level reference). Nothing for ChartData::Kind::None.
void WriteChartData(XmlWriter& xml, std::string_view element, const ChartData& data);

}  // namespace ooxml
