#pragma once

#include <cstdint>

namespace excel::embedded {

// Excel's defaults for a Calibri 11 workbook: a maximum digit width of 7 px, 5 px of padding per
// column, 0.75 pt per pixel.
inline constexpr double StandardColumnWidth = 8.43;
inline constexpr double StandardRowHeight = 15.0;
inline constexpr double PointsPerPixel = 0.75;

// A column width in characters (as ColumnWidth reads) to pixels: 8.43 -> 64; below one character
// round(characters * 12).
int32_t ColumnWidthToPixels(double characters);

// The same in points: 8.43 -> 48.
double ColumnWidthToPoints(double characters);

// The width the file stores for a column of that many characters: 8.43 -> 9.140625.
double FileColumnWidth(double characters);

// The inverse of FileColumnWidth, rounded to hundredths as Excel shows it: 9.140625 -> 8.43.
double ColumnWidthFromFile(double fileWidth);

// A row height in points snapped to whole pixels (0.75 pt steps), as Excel stores it.
double RowHeightToPoints(double points);

}  // namespace excel::embedded
