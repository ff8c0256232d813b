#pragma once

#include "ooxml/document/workbook_document.hpp"

#include <excel/variant.hpp>

#include <array>
#include <cstdint>

namespace excel::embedded {

using Palette = std::array<uint32_t, 56>;

// The RGB Long a colour shows; automatic (and none) show as the given colour.
uint32_t RgbOf(const ooxml::Color& color, const Palette& palette, uint32_t automatic);
// ColorIndex as Excel reads it: the palette entry, else the nearest one; whenAutomatic for
// automatic or missing colours.
int32_t ColorIndexOf(const ooxml::Color& color, const Palette& palette, int32_t whenAutomatic);
// ThemeColor as Excel reads it; Excel refuses to read it from a colour that is not a theme colour.
int32_t ThemeColorOf(const ooxml::Color& color);
double TintOf(const ooxml::Color& color);

// Colours from the object model's setters; out-of-range arguments are refused.
ooxml::Color ColorFromRgb(int32_t rgb);
ooxml::Color ColorFromIndex(int32_t colorIndex);
ooxml::Color ColorFromTheme(int32_t themeColor);
// The colour with a tint, refused outside -1..1.
ooxml::Color WithTint(ooxml::Color color, double tint);

}  // namespace excel::embedded
