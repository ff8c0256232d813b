#pragma once

#include "excel/embedded/format/format_color.hpp"
#include "excel/embedded/format/workbook_colors.hpp"

#include <excel/variant.hpp>

#include <cstdint>

namespace excel::embedded {

// The RGB Long a colour shows in a workbook of these colours: an indexed colour its palette's, a
// theme colour its theme's, tinted; automatic (and none) show as the given colour.
uint32_t RgbOf(const FormatColor& color, const WorkbookColors& colors, uint32_t automatic);
// ColorIndex as Excel reads it: the palette entry, else the nearest one; whenAutomatic for
// automatic or missing colours.
int32_t ColorIndexOf(const FormatColor& color, const WorkbookColors& colors, int32_t whenAutomatic);
// ThemeColor as Excel reads it; Excel refuses to read it from a colour that is not a theme colour.
int32_t ThemeColorOf(const FormatColor& color);
double TintOf(const FormatColor& color);

// Colours from the object model's setters; out-of-range arguments are refused.
FormatColor ColorFromRgb(int32_t rgb);
FormatColor ColorFromIndex(int32_t colorIndex);
FormatColor ColorFromTheme(int32_t themeColor);
// The colour with a tint, refused outside -1..1.
FormatColor WithTint(FormatColor color, double tint);

}  // namespace excel::embedded
