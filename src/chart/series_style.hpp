#pragma once

#include <cstdint>

namespace vos {

// The colour number (red + 256 green + 65536 blue) of the series of that number, from a table of
// fifteen colours that repeats: series 16 takes series 1's colour. The number must be 1 or more.
int32_t SeriesColor(int16_t formattingIndex);
// The XlMarkerStyle of the series of that number, from five shapes that repeat.
int32_t SeriesMarkerStyle(int16_t formattingIndex);

}  // namespace vos
