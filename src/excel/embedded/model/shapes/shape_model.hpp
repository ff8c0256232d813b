#pragma once

#include "excel/embedded/format/shape_color.hpp"
#include "excel/embedded/text/shape_text.hpp"

#include <excel/constants.hpp>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace excel::embedded {

class ChartModel;

// A point of the sheet as drawings anchor to it: a cell (1-based) and an offset into it in points.
struct CellPoint {
    int32_t column = 1;
    double columnOffset = 0.0;
    int32_t row = 1;
    double rowOffset = 0.0;

    friend bool operator==(const CellPoint&, const CellPoint&) = default;
};

// A rectangle in points from the sheet's top-left corner.
struct ShapeBounds {
    double left = 0.0;
    double top = 0.0;
    double width = 0.0;
    double height = 0.0;

    friend bool operator==(const ShapeBounds&, const ShapeBounds&) = default;
};

struct ShapeFill {
    ShapeColor color;
    bool visible = true;
    double transparency = 0.0;
};

struct ShapeLine {
    ShapeColor color;
    double weight = 0.75;  // points
    bool visible = true;
};

// The cell a comment's shape belongs to, and who wrote the comment.
struct CommentLink {
    int32_t row = 1;
    int32_t column = 1;
    std::string author;
};

// A drawing object of a sheet: a text box, a chart's frame, or the shape of a cell comment. Where it
// is depends on its placement: moved and sized with cells it is held by the cells under its corners
// (from and to); moved with cells, by the cell under its top-left corner and its size; free
// floating, by its bounds alone. A text box of a chart is placed by its bounds from the chart
// area's corner and sized with the chart. See shape_placement.hpp.
struct ShapeModel {
    uint32_t id = 0;
    std::string name;
    int32_t type = msoTextBox;
    int32_t placement = xlMoveAndSize;
    CellPoint from;
    CellPoint to;
    ShapeBounds bounds;
    bool visible = true;
    ShapeFill fill;
    ShapeLine line;
    ShapeText text;
    std::string onAction;
    std::optional<CommentLink> comment;  // set for a comment's shape
    std::shared_ptr<ChartModel> chart;    // set for a chart's frame
    bool inChart = false;                 // a text box of a chart
    bool deleted = false;
};

}  // namespace excel::embedded
