#include "excel/embedded/format/palette.hpp"

#include "excel/embedded/format/color_conversion.hpp"
#include "ooxml/styles/default_palette.hpp"

#include <algorithm>
#include <cstddef>
#include <limits>

namespace excel::embedded {

const std::array<uint32_t, 56>& DefaultPalette() {
    static const std::array<uint32_t, 56> palette = [] {
        const std::array<uint32_t, 56>& rgb = ooxml::DefaultPalette();
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
