#pragma once

#include "excel/embedded/format/font_format.hpp"
#include "excel/embedded/text/rich_text.hpp"

#include <excel/constants.hpp>

namespace excel::embedded {

// Space between a shape's edges and its text, in points.
struct TextMargins {
    double left = 7.2;
    double top = 3.6;
    double right = 7.2;
    double bottom = 3.6;

    friend bool operator==(const TextMargins&, const TextMargins&) = default;
};

// The text of a shape and how it sits in the shape. Runs without a font show the frame's font;
// a line feed separates paragraphs.
struct ShapeText {
    RichText text;
    FontFormat font;
    bool autoMargins = true;
    TextMargins margins;  // in force once automatic margins are off
    bool autoSize = false;
    bool wordWrap = true;
    int32_t horizontalAlignment = xlHAlignLeft;
    int32_t verticalAlignment = xlVAlignTop;

    // The margins the text is laid out with: the automatic ones while AutoMargins is on.
    TextMargins Margins() const { return autoMargins ? TextMargins{} : margins; }
};

}  // namespace excel::embedded
