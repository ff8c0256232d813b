#pragma once

#include "ooxml/document/workbook_document.hpp"

#include <pugixml.hpp>

namespace ooxml {

// A CT_Color element (<color>, <fgColor>, <bgColor>, ...): auto, rgb (ARGB hex), indexed or theme,
// with tint. A missing element is Kind::None.
Color ReadColor(pugi::xml_node node);

}  // namespace ooxml
