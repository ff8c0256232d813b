#pragma once

#include "excel/embedded/format/palette.hpp"
#include "excel/embedded/format/theme_colors.hpp"

#include <array>
#include <cstdint>

namespace excel::embedded {

using Palette = std::array<uint32_t, 56>;
using ThemeColors = std::array<uint32_t, 12>;

// The colours a workbook's colour references show, as RGB Longs (0x00BBGGRR): its palette for
// indexed colours and ColorIndex, its theme's colour scheme for theme colours. A new workbook has
// Excel's standard palette and the Office theme; an opened one the colours its file gives.
struct WorkbookColors {
    Palette palette = DefaultPalette();
    ThemeColors theme = OfficeThemeColors();
};

}  // namespace excel::embedded
