#pragma once

#include "ooxml/document/workbook_document.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace ooxml {

// Gives comments the shapes of their notes in a legacy VML drawing, matched by cell (x:Row and
// x:Column): place and size, fill and line, insets, visibility, anchor and whether the note moves
// and sizes with its cells. What a shape leaves out takes VML's defaults. VML is Excel's older
// drawing format, which not every writer makes well-formed XML; such a part gives no shapes.
void ReadVmlNoteShapes(std::string& xml, std::vector<CellComment>& comments);

}  // namespace ooxml
