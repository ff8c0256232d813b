#pragma once

#include "ooxml/document/workbook_document.hpp"
#include "ooxml/xml/xml_writer.hpp"


namespace ooxml {

// Writes <a:solidFill> with a colour of the cell colour model: theme colours as <a:schemeClr>
// named after the theme index, RGB colours as <a:srgbClr>. DrawingML has no palette: indexed and
// automatic colours, which the engine resolves before saving, are written black. A tint darkens with
// luminance modulation (lumMod = 1 + tint) or lightens with modulation and offset
// (lumMod = 1 - tint, lumOff = tint), which is how Excel turns a tint into a drawing colour. A
// transparency above 0 is written as the colour's alpha, 1 - transparency.
void WriteSolidFill(XmlWriter& xml, const Color& color, double transparency = 0.0);

// The colour element alone (<a:schemeClr>, <a:srgbClr>), as a fill's or a gradient stop's.
void WriteDrawingColor(XmlWriter& xml, const Color& color, double transparency = 0.0);

}  // namespace ooxml
