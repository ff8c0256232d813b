#pragma once

#include "ooxml/document/shared_string.hpp"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace ooxml {

// The legacy (VML) anchor of a comment's shape: cells 0-based, offsets in pixels.
struct LegacyAnchor {
    uint32_t leftColumn = 0, leftOffset = 0, topRow = 0, topOffset = 0;
    uint32_t rightColumn = 0, rightOffset = 0, bottomRow = 0, bottomOffset = 0;

    friend bool operator==(const LegacyAnchor&, const LegacyAnchor&) = default;
};

// A cell comment: its text in the comments part, its shape in the legacy VML drawing.
struct CellComment {
    uint32_t row = 1, column = 1;  // 1-based
    std::string author;
    SharedString text;             // runs with their fonts
    bool visible = false;
    // Whether the legacy drawing gave the shape below; a comment read without one is placed where
    // Excel places a new comment.
    bool hasShape = true;
    double left = 0, top = 0, width = 96, height = 55.5;  // points from the sheet's top-left corner
    LegacyAnchor anchor;
    bool moveWithCells = true;
    bool sizeWithCells = true;
    uint32_t fillRgb = 0xFFFFE1;   // 0x00RRGGBB
    uint32_t lineRgb = 0x000000;
    double lineWeight = 0.75;      // points
    std::optional<std::array<double, 4>> insets;  // left, top, right, bottom in points; none = automatic
};

}  // namespace ooxml
