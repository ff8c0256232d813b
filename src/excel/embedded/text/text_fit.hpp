#pragma once

#include "excel/embedded/text/shape_text.hpp"

namespace excel::embedded {

struct TextExtent {
    double width;
    double height;
};

// The size a shape takes when sized to its text: each paragraph (and, with word wrap, each line
// it wraps into) is as high as the largest font in the paragraph; without word wrap the width is
// the widest paragraph's. The margins are added. With word wrap the width stays currentWidth and
// the text wraps at word boundaries, or within a word that alone is too wide.
TextExtent FitToText(const ShapeText& text, double currentWidth);

}  // namespace excel::embedded
