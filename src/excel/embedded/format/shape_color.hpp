#pragma once

#include "excel/embedded/format/color_model.hpp"

#include <cstdint>

namespace excel::embedded {

// The colour of a shape's fill or outline: an RGB colour, or a theme colour (file theme index
// plus tint, as cells keep theirs) together with the MsoThemeColorIndex it was set by, which is
// what ObjectThemeColor answers.
struct ShapeColor {
    FormatColor color;
    int32_t objectThemeColor = 0;  // msoNotThemeColor for an RGB colour

    friend bool operator==(const ShapeColor&, const ShapeColor&) = default;
};

ShapeColor ShapeColorFromRgb(int32_t rgb);
// Refused for an index that names no scheme colour.
ShapeColor ShapeColorFromObjectTheme(int32_t objectThemeColor);
// A theme colour given by the file's theme index (0 lt1, 1 dk1, ...), as files store them.
ShapeColor ShapeColorFromThemeIndex(int32_t themeIndex, double tint);
// The RGB Long the colour shows.
uint32_t RgbOf(const ShapeColor& color, const WorkbookColors& colors);

}  // namespace excel::embedded
