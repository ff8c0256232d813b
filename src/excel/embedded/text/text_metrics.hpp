#pragma once

#include "excel/embedded/format/font_format.hpp"

#include <string_view>

namespace excel::embedded {

// Text is measured without a font renderer, from tables of the advance widths and vertical
// metrics of the fonts reports use (Calibri, Tahoma, Arial; other names measure as Calibri).
// Italic measures as regular. Beyond Latin-1, characters are measured by class: East Asian
// wide and full-width characters one em, combining marks nothing, anything else an average width.

// Approximate advance width in points of a line of text (UTF-8, no line feeds) set in the font.
double TextAdvance(std::string_view text, const FontFormat& font);

// Height in points of one line of text of the font at single line spacing.
double LineHeight(const FontFormat& font);

}  // namespace excel::embedded
