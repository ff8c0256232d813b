#pragma once

#include "ooxml/document/drawing_shape.hpp"
#include "ooxml/xml/xml_writer.hpp"

#include <string_view>

namespace ooxml {

// The drawing a text box shape is written into: the qualified names of its elements there and
// whether it gets the style Excel gives a text box inserted on a sheet.
struct TextBoxDrawing {
    std::string_view shape;           // "xdr:sp"
    std::string_view nonVisual;       // "xdr:nvSpPr"
    std::string_view nonVisualShape;  // "xdr:cNvPr"
    std::string_view textBoxFlag;     // "xdr:cNvSpPr"
    std::string_view properties;      // "xdr:spPr"
    std::string_view style;           // "xdr:style"
    std::string_view body;            // "xdr:txBody"
    // A sheet's text box states no fill and no line and carries a style; a chart's has neither
    // unless set, as Excel writes them.
    bool styled = true;
};

inline constexpr TextBoxDrawing SheetTextBoxDrawing{"xdr:sp",   "xdr:nvSpPr", "xdr:cNvPr",  "xdr:cNvSpPr",
                                                    "xdr:spPr", "xdr:style",  "xdr:txBody", true};
inline constexpr TextBoxDrawing ChartTextBoxDrawing{"cdr:sp",   "cdr:nvSpPr", "cdr:cNvPr",  "cdr:cNvSpPr",
                                                    "cdr:spPr", "cdr:style",  "cdr:txBody", false};

// Writes a text box as the shape element of a drawing (<xdr:sp>, <cdr:sp>): its names, its place
// and size, fill and outline, and its text's body, paragraphs and runs.
void WriteTextBoxShape(XmlWriter& xml, const DrawingShape& box, const TextBoxDrawing& drawing);

}  // namespace ooxml
