#pragma once

#include "ooxml/document/workbook_document.hpp"
#include "ooxml/xml/xml_writer.hpp"

#include <cstdint>
#include <string_view>
#include <vector>

namespace ooxml {

inline constexpr std::string_view kVmlDrawingContentType = "application/vnd.openxmlformats-officedocument.vmlDrawing";
inline constexpr std::string_view kVmlDrawingRelationshipType =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/vmlDrawing";

// The shape type of the text box every note is drawn as.
inline constexpr std::string_view kVmlNoteShapeTypeId = "_x0000_t202";

// Writes a sheet's legacy drawing (xl/drawings/vmlDrawingN.vml) the way Excel writes it: the
// shape of each comment, numbered in noteIdBlocks (taken from the workbook's VmlIdBlocks for as
// many shapes as the sheet has comments), with its place, size, colours, visibility and anchor;
// then the shapes the sheet's opened drawing carries, as they were. The idmap lists the blocks of
// both.
void WriteVmlDrawingPart(XmlWriter& xml, const SheetDocument& sheet, const std::vector<uint32_t>& noteIdBlocks);

}  // namespace ooxml
