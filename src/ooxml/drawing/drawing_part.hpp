#pragma once

#include "ooxml/document/sheet_document.hpp"
#include "ooxml/xml/xml_writer.hpp"

#include <string_view>

namespace ooxml {

inline constexpr std::string_view kDrawingContentType = "application/vnd.openxmlformats-officedocument.drawing+xml";
inline constexpr std::string_view kDrawingRelationshipType =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/drawing";

// Writes a sheet's drawing part (xl/drawings/drawingN.xml): each text box as a shape in a two-cell
// anchor, with the style, body and runs Excel gives a text box it inserts, and among them the
// anchors the opened drawing had that the engine does not model.
void WriteDrawingPart(XmlWriter& xml, const SheetDocument& sheet);

}  // namespace ooxml

