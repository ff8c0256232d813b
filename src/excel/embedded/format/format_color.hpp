#pragma once

#include <cstdint>

namespace excel::embedded {

// A colour as cell formats, runs and shapes keep it: automatic, an entry of the workbook's palette,
// a colour of the workbook's theme, or a fixed colour; theme and fixed colours may be tinted.
struct FormatColor {
    enum class Kind : uint8_t { None, Automatic, Rgb, Indexed, Theme };
    Kind kind = Kind::None;
    uint32_t argb = 0;  // Rgb: 0xAARRGGBB
    int32_t index = 0;  // Indexed: 0..7 the fixed colours, 8..63 the palette, 64/65 system colours;
                        // Theme: 0 lt1, 1 dk1, 2 lt2, 3 dk2, 4..9 accent1..6, 10 hlink, 11 folHlink
    double tint = 0.0;  // -1 (darkest) .. 1 (lightest)

    friend bool operator==(const FormatColor&, const FormatColor&) = default;
};

}  // namespace excel::embedded
