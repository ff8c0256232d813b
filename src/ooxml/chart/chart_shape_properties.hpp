#pragma once

#include "ooxml/document/chart_document.hpp"
#include "ooxml/xml/xml_writer.hpp"

namespace ooxml {

// Writes a chart element's shape properties (<c:spPr>): its fill (none, solid or a linear
// gradient) and outline (width, fill, dash), or the file's markup when kept. Automatic
// properties write nothing.
void WriteChartShapeProperties(XmlWriter& xml, const ChartShapeProperties& properties);

}  // namespace ooxml
