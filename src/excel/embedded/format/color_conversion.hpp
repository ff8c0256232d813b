#pragma once

#include <cstdint>

namespace excel::embedded {

// 0x00BBGGRR (the object model's RGB Long) -> 0xFFRRGGBB (the file's opaque ARGB).
uint32_t ArgbFromRgbLong(uint32_t rgbLong);

// 0xAARRGGBB -> 0x00BBGGRR; the alpha byte is dropped.
uint32_t RgbLongFromArgb(uint32_t argb);

}  // namespace excel::embedded
