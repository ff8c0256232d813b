#pragma once

#include "ooxml/document/carried_content.hpp"

#include <pugixml.hpp>

#include <cstdint>
#include <vector>

namespace ooxml {

// Keeps what a legacy VML drawing holds besides its notes, which the engine writes itself: every
// shape, group or other drawing element that is not a note (a group keeps its shapes but its
// notes), the shape types they use but the notes' own, and the root's attributes beyond the VML,
// Office and Excel namespaces. idBlocks: the blocks of the kept shapes' ids, ascending.
void CarryVmlShapes(pugi::xml_node root, CarriedMarkup& markup, std::vector<uint32_t>& idBlocks);

}  // namespace ooxml
