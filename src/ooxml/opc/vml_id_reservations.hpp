#pragma once

#include "ooxml/comments/vml_id_blocks.hpp"
#include "ooxml/document/workbook_document.hpp"
#include "ooxml/opc/carried_parts_writer.hpp"

namespace ooxml {

// The VML id blocks for the drawings a package writes, with the blocks of the shapes it keeps
// reserved: those the sheets' rewritten drawings carry, and those of the VML drawings kept whole
// (of the sheets without comments, of dialog sheets), which the notes must not take either.
VmlIdBlocks ReserveVmlIdBlocks(const WorkbookDocument& document, const CarriedPartsPlan& carriedParts);

}  // namespace ooxml
