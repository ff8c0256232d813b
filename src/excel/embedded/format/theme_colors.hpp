#pragma once

#include <array>
#include <cstdint>

namespace excel::embedded {

// The default Office theme's colours as RGB Longs (0x00BBGGRR), in the order cell styles index
// them: lt1, dk1, lt2, dk2, accent1..accent6, hlink, folHlink.
const std::array<uint32_t, 12>& OfficeThemeColors();

// Lightens (tint > 0) or darkens (tint < 0) a colour by moving its HLS luminance, as a cell
// colour's tint does. tint is in -1..1.
uint32_t ApplyTintAndShade(uint32_t rgbLong, double tint);

// xlThemeColor (1..12) to the file's theme index (0..11) and back; -1 when out of range.
int32_t ThemeIndexFromThemeColor(int32_t xlThemeColor);
int32_t ThemeColorFromThemeIndex(int32_t index);

}  // namespace excel::embedded
