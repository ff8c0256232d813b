#pragma once

#include "ooxml/document/workbook_document.hpp"
#include "ooxml/xml/xml_writer.hpp"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace ooxml {

inline constexpr std::string_view kVmlDrawingContentType = "application/vnd.openxmlformats-officedocument.vmlDrawing";
inline constexpr std::string_view kVmlDrawingRelationshipType =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/vmlDrawing";

// VML shapes are numbered in blocks of 1,024 ids that no two drawings of a workbook share: the
// shapes of block b are _x0000_s(1024 b + 1) onwards. How many blocks commentCount shapes take.
uint32_t VmlIdBlockCount(std::size_t commentCount);

// Writes a sheet's legacy drawing (xl/drawings/vmlDrawingN.vml) the way Excel writes it: the
// shape of each comment, numbered from firstIdBlock (1 or more), with its place, size, colours,
// visibility and anchor.
void WriteVmlDrawingPart(XmlWriter& xml, const SheetDocument& sheet, uint32_t firstIdBlock);

}  // namespace ooxml
