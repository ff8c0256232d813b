#include "excel/embedded/format/palette.hpp"

#include "excel/embedded/format/color_conversion.hpp"

#include <algorithm>
#include <cstddef>
#include <limits>

namespace excel::embedded {

const std::array<uint32_t, 56>& DefaultPalette() {
    // Written as 0xRRGGBB, the way colour pickers and the file show them.
    static constexpr std::array<uint32_t, 56> rgb{
        0x000000, 0xFFFFFF, 0xFF0000, 0x00FF00, 0x0000FF, 0xFFFF00, 0xFF00FF, 0x00FFFF,  // 1..8
        0x800000, 0x008000, 0x000080, 0x808000, 0x800080, 0x008080, 0xC0C0C0, 0x808080,  // 9..16
        0x9999FF, 0x993366, 0xFFFFCC, 0xCCFFFF, 0x660066, 0xFF8080, 0x0066CC, 0xCCCCFF,  // 17..24
        0x000080, 0xFF00FF, 0xFFFF00, 0x00FFFF, 0x800080, 0x800000, 0x008080, 0x0000FF,  // 25..32
        0x00CCFF, 0xCCFFFF, 0xCCFFCC, 0xFFFF99, 0x99CCFF, 0xFF99CC, 0xCC99FF, 0xFFCC99,  // 33..40
        0x3366FF, 0x33CCCC, 0x99CC00, 0xFFCC00, 0xFF9900, 0xFF6600, 0x666699, 0x969696,  // 41..48
        0x003366, 0x339966, 0x003300, 0x333300, 0x993300, 0x993366, 0x333399, 0x333333,  // 49..56
    };
    static const std::array<uint32_t, 56> palette = [] {
        std::array<uint32_t, 56> rgbLongs{};
        std::transform(rgb.begin(), rgb.end(), rgbLongs.begin(), RgbLongFromArgb);
        return rgbLongs;
    }();
    return palette;
}

int32_t NearestColorIndex(const std::array<uint32_t, 56>& palette, uint32_t rgbLong) {
    const auto channel = [](uint32_t color, int shift) { return static_cast<int32_t>((color >> shift) & 0xFF); };
    int32_t nearest = 1;
    int64_t nearestDistance = std::numeric_limits<int64_t>::max();
    for (std::size_t i = 0; i < palette.size(); ++i) {
        int64_t distance = 0;
        for (int shift : {0, 8, 16}) {
            const int64_t difference = channel(palette[i], shift) - channel(rgbLong, shift);
            distance += difference * difference;
        }
        // The first of equally near colours wins, so an exact match finds its lowest index.
        if (distance < nearestDistance) {
            nearestDistance = distance;
            nearest = static_cast<int32_t>(i) + 1;
        }
    }
    return nearest;
}

}  // namespace excel::embedded
