#pragma once

#include <array>
#include <cstdint>

namespace excel::embedded {

// Excel's default 56-colour palette as RGB Longs (0x00BBGGRR); element 0 is ColorIndex 1.
const std::array<uint32_t, 56>& DefaultPalette();

// The ColorIndex (1..56) of the palette colour nearest to an RGB Long, which is what ColorIndex
// reads for a cell coloured by RGB.
int32_t NearestColorIndex(const std::array<uint32_t, 56>& palette, uint32_t rgbLong);

}  // namespace excel::embedded
