#pragma once

#include "ooxml/document/workbook_document.hpp"

#include <pugixml.hpp>

#include <optional>

namespace ooxml {

// The colour a DrawingML fill holds (<a:solidFill>, or the first stop of a gradient) in the cell
// colour model: a scheme colour as its theme index, an RGB, system or scRGB colour as RGB. Its
// luminance modulation and offset become the tint again; a shade or tint, which Excel does not
// write for a text box, is taken as the nearest tint. Nothing for a fill without a colour.
std::optional<Color> ReadDrawingFillColor(pugi::xml_node fill);

// How transparent that colour is: 1 - its alpha, 0 when it has none.
double ReadDrawingFillTransparency(pugi::xml_node fill);

}  // namespace ooxml
