#pragma once

#include "ooxml/document/workbook_document.hpp"

#include <pugixml.hpp>

#include <cstdint>
#include <optional>
#include <vector>

namespace ooxml {

// A CT_Color element (<color>, <fgColor>, <bgColor>, ...): auto, rgb (ARGB hex), indexed or theme,
// with tint. A missing element is Kind::None.
Color ReadColor(pugi::xml_node node);

// The indexed colours a <colors> element lists (0x00RRGGBB; none for an entry without an RGB
// value), at most the 64 of the table: 8 fixed colours, then the 56 a workbook may change.
std::vector<std::optional<uint32_t>> ReadIndexedColors(pugi::xml_node colors);

}  // namespace ooxml
