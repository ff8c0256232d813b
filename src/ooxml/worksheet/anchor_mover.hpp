#pragma once

#include "ooxml/reference/formula_reference_mover.hpp"

#include <pugixml.hpp>

#include <optional>
#include <string>
#include <string_view>

namespace ooxml {

// Moves the cell anchors of the drawing objects in the tree as the cells under them moved, as each
// object is set to follow its cells: both corners (moved and sized with cells), the top left one
// with the object's size kept (moved but not sized), or neither. An anchor whose cells were all
// deleted keeps its place. Three forms hold such anchors:
// - a drawing's <twoCellAnchor> (editAs "twoCell", "oneCell", "absolute") and <oneCellAnchor>;
// - the <anchor> of a sheet's form control or embedded object (moveWithCells, sizeWithCells);
// - a legacy VML shape's <x:Anchor> ("left column, offset, top row, offset, right column, offset,
//   bottom row, offset"), whose <x:MoveWithCells/> and <x:SizeWithCells/> say it does not.
// Whether any moved.
bool MoveAnchorsIn(pugi::xml_node node, const CellBlockMove& move);

// A whole part (a legacy VML drawing kept as the file had it) with its anchors moved; nothing when
// none moved or the part cannot be read.
std::optional<std::string> MoveAnchorsInPart(std::string_view part, const CellBlockMove& move);

}  // namespace ooxml
