#pragma once

#include "ooxml/document/sheet_document.hpp"
#include "ooxml/xml/xml_writer.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace ooxml {

inline constexpr std::string_view kDrawingContentType = "application/vnd.openxmlformats-officedocument.drawing+xml";
inline constexpr std::string_view kDrawingRelationshipType =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/drawing";

// Writes a sheet's drawing part (xl/drawings/drawingN.xml): each text box as a shape and each
// chart as a graphic frame, in two-cell anchors in z-order, and among them the anchors the opened
// drawing had that the engine does not model. chartRelationshipIds: the drawing's relationship to
// each chart's part, in the order the charts come among the shapes.
void WriteDrawingPart(XmlWriter& xml, const SheetDocument& sheet, const std::vector<std::string>& chartRelationshipIds);

}  // namespace ooxml
