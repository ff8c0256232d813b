#pragma once

#include "ooxml/document/workbook_document.hpp"
#include "ooxml/xml/xml_writer.hpp"

#include <cstdint>
#include <vector>

namespace ooxml {

// Writes <a:solidFill> with a colour of the cell colour model: theme colours as <a:schemeClr>
// named after the theme index, the rest as <a:srgbClr> (indexed colours through palette, the
// workbook's 56 colours or empty for the standard ones; automatic as black). A tint darkens with
// luminance modulation (lumMod = 1 + tint) or lightens with modulation and offset
// (lumMod = 1 - tint, lumOff = tint), which is how Excel turns a tint into a drawing colour. A
// transparency above 0 is written as the colour's alpha, 1 - transparency.
void WriteSolidFill(XmlWriter& xml, const Color& color, const std::vector<uint32_t>& palette,
                    double transparency = 0.0);

}  // namespace ooxml
