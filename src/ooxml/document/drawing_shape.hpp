#pragma once

#include "ooxml/document/shared_string.hpp"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace ooxml {

struct ChartDocument;

// A corner of a drawing object as anchors store it: a cell (0-based) and an offset into it in EMU
// (12,700 per point).
struct CellAnchor {
    uint32_t column = 0;
    int64_t columnOffset = 0;
    uint32_t row = 0;
    int64_t rowOffset = 0;

    friend bool operator==(const CellAnchor&, const CellAnchor&) = default;
};

// An object of a sheet's drawing: a text box, or the frame of a chart (chart set: the frame takes
// the id, name, anchor, macro and visibility; the text box members are unused). Colours use the cell colour model: Theme colours carry the
// file's theme index (0 lt1, 1 dk1, 2 lt2, 3 dk2, 4..9 accent1..6, 10 hlink, 11 folHlink) and their
// tint, which the drawing stores as luminance modulation and offset.
struct DrawingShape {
    uint32_t id = 2;     // unique among the drawing's objects
    std::string name;    // "TextBox 1"
    std::string editAs = "twoCell";  // "twoCell" (move and size), "oneCell" (move), "absolute"
    CellAnchor from;
    CellAnchor to;
    int64_t x = 0, y = 0, width = 0, height = 0;  // EMU from the sheet's top-left corner
    std::optional<Color> fill;      // none: no fill
    double fillTransparency = 0.0;  // 0 (opaque) to 1: the fill colour's alpha is 1 - transparency
    std::optional<Color> line;      // none: no outline
    int64_t lineWidth = 9525;       // EMU
    int64_t insetLeft = 91440, insetTop = 45720, insetRight = 91440, insetBottom = 45720;  // EMU
    bool wrap = true;
    bool autoFit = false;               // the shape is sized to its text
    std::string verticalAnchor = "t";   // "t", "ctr", "b", "just", "dist"
    std::string alignment = "l";        // of every paragraph: "l", "ctr", "r", "just", "dist"
    std::string macro;                  // run on click; "" for none
    bool hidden = false;
    // The text; a line feed separates paragraphs. A run without a font takes the default
    // (the theme's minor font, 11 points, Text 1).
    SharedString text;
    std::shared_ptr<const ChartDocument> chart;

    friend bool operator==(const DrawingShape&, const DrawingShape&) = default;
};

}  // namespace ooxml
