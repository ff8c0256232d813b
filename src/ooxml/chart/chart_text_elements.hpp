#pragma once

#include "ooxml/document/chart_document.hpp"
#include "ooxml/xml/xml_writer.hpp"

#include <string_view>

namespace ooxml {

// Writes run properties of chart text (element: "a:rPr", "a:defRPr"): the language when given,
// then only what the font sets: size, bold, italic, underline, strike, colour, typeface.
void WriteChartFont(XmlWriter& xml, std::string_view element, const ChartFont& font, std::string_view language = {});

// Writes an element's text properties (<c:txPr>): its body's rotation and direction and its
// paragraphs' default font, or the file's markup. Nothing when none is set.
void WriteChartTextProperties(XmlWriter& xml, const ChartTextProperties& properties, std::string_view language);

// Writes a title (<c:title>) of the chart or an axis: its rich text as one paragraph of runs (a
// line feed stays inside its run, as Excel keeps a typed one) or its cell reference, then its
// layout, overlay, shape and text properties. language: the chart's, which runs are marked with.
void WriteChartTitle(XmlWriter& xml, const ChartTitle& title, std::string_view language);

}  // namespace ooxml
