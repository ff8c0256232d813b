#pragma once

#include "ooxml/document/drawing_shape.hpp"

#include <pugixml.hpp>

#include <cstdint>
#include <optional>
#include <string_view>

namespace ooxml {

// Text boxes are the same elements in a sheet's drawing (xdr:sp) and in a chart's drawing
// (cdr:sp), under their own prefix and namespace: they are read by local name, whatever the
// drawing's.

// Whether a drawing's shape element is a text box.
bool IsTextBox(pugi::xml_node shape);

// The anchor's shape when it is a text box; an anchor holds one shape, picture, chart or group.
pugi::xml_node TextBoxOf(pugi::xml_node anchor);

// A text box shape: its id, name, macro and visibility, its own transform (its place and size
// whatever the anchor), fill, outline, body and text. Where the anchor puts it is the caller's.
DrawingShape ReadTextBoxShape(pugi::xml_node shape);

// A coordinate in EMU as a drawing writes it, blanks around it allowed.
std::optional<int64_t> ParseCoordinate(std::string_view text);

}  // namespace ooxml
