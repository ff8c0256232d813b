#pragma once

#include <array>
#include <cstdint>

namespace excel::embedded {

// The metrics of one font face, in font units, as its TrueType tables give them.
struct FontFaceMetrics {
    int32_t unitsPerEm;
    int32_t ascender;        // hhea ascender, above the baseline
    int32_t descender;       // hhea descender, below the baseline, as a positive distance
    int32_t lineGap;         // hhea line gap
    int32_t averageAdvance;  // OS/2 xAvgCharWidth
    // Advance widths of U+0020 to U+00FF, indexed by code point minus 0x20; the controls
    // (U+007F to U+009F) advance nothing.
    std::array<uint16_t, 0xE0> latinAdvances;
};

extern const FontFaceMetrics CalibriRegular;
extern const FontFaceMetrics CalibriBold;
extern const FontFaceMetrics TahomaRegular;
extern const FontFaceMetrics TahomaBold;
extern const FontFaceMetrics ArialRegular;
extern const FontFaceMetrics ArialBold;

}  // namespace excel::embedded
