#pragma once

#include "ooxml/document/workbook_document.hpp"

#include <pugixml.hpp>

namespace ooxml {

// A <font> of the styles part or the <rPr> of a rich text run (which names the face "rFont").
// What the element leaves out stays unset: no colour, family 0, no scheme.
Font ReadFont(pugi::xml_node node);

}  // namespace ooxml
