#pragma once

#include "ooxml/document/workbook_document.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace ooxml {

// Reads a sheet's legacy VML drawing. Gives comments the shapes of their notes, matched by cell
// (x:Row and x:Column): place and size, fill and line, insets, visibility, anchor and whether the
// note moves and sizes with its cells; what a shape leaves out takes VML's defaults. The drawing's
// other shapes go to carried.legacyDrawing as they are, the blocks of their ids to
// carried.legacyDrawingIdBlocks. VML is Excel's older drawing format, which not every writer makes
// well-formed XML; such a part gives neither shapes nor carried content.
void ReadVmlDrawing(std::string& xml, std::vector<CellComment>& comments, CarriedWorksheet& carried);

}  // namespace ooxml
