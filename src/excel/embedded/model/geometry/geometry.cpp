#include "excel/embedded/model/geometry/geometry.hpp"

#include <cmath>

namespace excel::embedded {

namespace {

constexpr double MaxDigitWidth = 7.0;
constexpr double ColumnPadding = 5.0;
// Below one character a column has no padding: one character is MaxDigitWidth + padding pixels.
constexpr double PixelsOfOneCharacter = MaxDigitWidth + ColumnPadding;
// The file stores widths in 1/256 of a character.
constexpr double FileWidthSteps = 256.0;

}  // namespace

int32_t ColumnWidthToPixels(double characters) {
    if (!(characters > 0))
        return 0;
    if (characters < 1)
        return static_cast<int32_t>(std::lround(characters * PixelsOfOneCharacter));
    return static_cast<int32_t>(std::lround(characters * MaxDigitWidth) + static_cast<long>(ColumnPadding));
}

double ColumnWidthToPoints(double characters) {
    return ColumnWidthToPixels(characters) * PointsPerPixel;
}

// Excel keeps column widths in whole pixels, so the file width is that of the column's pixels:
// truncate(pixels / MaxDigitWidth * 256) / 256, which Excel reads back as the same pixels.
double FileColumnWidth(double characters) {
    const int32_t pixels = ColumnWidthToPixels(characters);
    return std::trunc(pixels / MaxDigitWidth * FileWidthSteps) / FileWidthSteps;
}

double ColumnWidthFromFile(double fileWidth) {
    if (!(fileWidth > 0))
        return 0;
    // How Excel turns a stored width into pixels: half a pixel's worth of 1/256 steps is added
    // before truncating.
    const double steps = std::trunc(fileWidth * FileWidthSteps);
    const double pixels = std::trunc((steps + std::trunc(128 / MaxDigitWidth)) / FileWidthSteps * MaxDigitWidth);
    const double characters =
        pixels < PixelsOfOneCharacter ? pixels / PixelsOfOneCharacter : (pixels - ColumnPadding) / MaxDigitWidth;
    return std::round(characters * 100.0) / 100.0;
}

double RowHeightToPoints(double points) {
    if (!(points > 0))
        return 0;
    return std::round(points / PointsPerPixel) * PointsPerPixel;
}

}  // namespace excel::embedded
