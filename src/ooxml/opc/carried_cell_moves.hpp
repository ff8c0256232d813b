#pragma once

#include "ooxml/document/workbook_document.hpp"
#include "ooxml/worksheet/carried_reference_mover.hpp"

namespace ooxml {

// Moves what a sheet of the document carries as its cells moved since the file was opened: its
// carried elements and drawing anchors (sheet.carried becomes a moved copy) and its tables (their
// moved parts go to document.movedParts). A table whose cells were all deleted goes with its
// relationship, as Excel deletes it.
void MoveCarriedCells(WorkbookDocument& document, SheetDocument& sheet, const CellBlockMove& move);

}  // namespace ooxml
