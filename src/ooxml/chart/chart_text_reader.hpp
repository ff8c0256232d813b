#pragma once

#include "ooxml/document/chart_document.hpp"

#include <pugixml.hpp>

namespace ooxml {

// Run properties (a:defRPr, a:rPr, a:endParaRPr): what they set, nothing else.
ChartFont ReadChartFont(pugi::xml_node properties);

// A chart element's c:txPr: its body's rotation and vertical text, the first paragraph's default
// run properties, and always its children as written.
ChartTextProperties ReadChartTextProperties(pugi::xml_node properties);

// A title's rich text (c:rich) into the title: its runs, one text with a line feed between
// paragraphs, the body's rotation, the first paragraph's font, and its children as written.
void ReadChartRichText(pugi::xml_node rich, ChartTitle& title);

}  // namespace ooxml
