#include "excel/embedded/format/theme_colors.hpp"

#include "excel/embedded/format/color_conversion.hpp"

#include <algorithm>
#include <cmath>

namespace excel::embedded {

namespace {

constexpr int32_t ThemeColorCount = 12;

// Excel converts to and from HLS with the classic integer algorithm; with a tint it works on a
// 0..240 scale (not the 0..255 the file format documentation mentions), which is what makes its
// tinted colours come out as they do.
constexpr int32_t HlsMax = 240;
constexpr int32_t RgbMax = 255;
constexpr int32_t UndefinedHue = HlsMax * 2 / 3;

struct Hls {
    int32_t hue;
    int32_t luminance;
    int32_t saturation;
};

Hls HlsFromRgb(int32_t red, int32_t green, int32_t blue) {
    const int32_t high = std::max({red, green, blue});
    const int32_t low = std::min({red, green, blue});
    const int32_t sum = high + low;
    const int32_t luminance = (sum * HlsMax + RgbMax) / (2 * RgbMax);
    if (high == low)
        return {UndefinedHue, luminance, 0};
    const int32_t spread = high - low;
    const int32_t saturation = luminance <= HlsMax / 2
                                   ? (spread * HlsMax + sum / 2) / sum
                                   : (spread * HlsMax + (2 * RgbMax - sum) / 2) / (2 * RgbMax - sum);
    const auto delta = [&](int32_t channel) { return ((high - channel) * (HlsMax / 6) + spread / 2) / spread; };
    int32_t hue = 0;
    if (red == high)
        hue = delta(blue) - delta(green);
    else if (green == high)
        hue = HlsMax / 3 + delta(red) - delta(blue);
    else
        hue = 2 * HlsMax / 3 + delta(green) - delta(red);
    if (hue < 0)
        hue += HlsMax;
    if (hue > HlsMax)
        hue -= HlsMax;
    return {hue, luminance, saturation};
}

int32_t ChannelFromHue(int32_t low, int32_t high, int32_t hue) {
    if (hue < 0)
        hue += HlsMax;
    if (hue > HlsMax)
        hue -= HlsMax;
    if (hue < HlsMax / 6)
        return low + ((high - low) * hue + HlsMax / 12) / (HlsMax / 6);
    if (hue < HlsMax / 2)
        return high;
    if (hue < HlsMax * 2 / 3)
        return low + ((high - low) * (HlsMax * 2 / 3 - hue) + HlsMax / 12) / (HlsMax / 6);
    return low;
}

uint32_t RgbLongFromHls(const Hls& hls) {
    const auto toByte = [](int32_t value) { return static_cast<uint32_t>(std::clamp(value, 0, RgbMax)); };
    if (hls.saturation == 0) {
        const uint32_t gray = toByte(hls.luminance * RgbMax / HlsMax);
        return gray | (gray << 8) | (gray << 16);
    }
    const int32_t high = hls.luminance <= HlsMax / 2
                             ? (hls.luminance * (HlsMax + hls.saturation) + HlsMax / 2) / HlsMax
                             : hls.luminance + hls.saturation - (hls.luminance * hls.saturation + HlsMax / 2) / HlsMax;
    const int32_t low = 2 * hls.luminance - high;
    const auto channel = [&](int32_t hue) {
        return toByte((ChannelFromHue(low, high, hue) * RgbMax + HlsMax / 2) / HlsMax);
    };
    return channel(hls.hue + HlsMax / 3) | (channel(hls.hue) << 8) | (channel(hls.hue - HlsMax / 3) << 16);
}

}  // namespace

const std::array<uint32_t, 12>& OfficeThemeColors() {
    static const std::array<uint32_t, 12> colors = [] {
        constexpr std::array<uint32_t, 12> argb{
            0xFFFFFFFF, 0xFF000000, 0xFFE7E6E6, 0xFF44546A,                          // lt1, dk1, lt2, dk2
            0xFF4472C4, 0xFFED7D31, 0xFFA5A5A5, 0xFFFFC000, 0xFF5B9BD5, 0xFF70AD47,  // accent1..6
            0xFF0563C1, 0xFF954F72,                                                  // hlink, folHlink
        };
        std::array<uint32_t, 12> rgbLongs{};
        std::transform(argb.begin(), argb.end(), rgbLongs.begin(), RgbLongFromArgb);
        return rgbLongs;
    }();
    return colors;
}

uint32_t ApplyTintAndShade(uint32_t rgbLong, double tint) {
    if (tint == 0 || std::isnan(tint))
        return rgbLong & 0xFFFFFF;
    tint = std::clamp(tint, -1.0, 1.0);
    Hls hls = HlsFromRgb(static_cast<int32_t>(rgbLong & 0xFF), static_cast<int32_t>((rgbLong >> 8) & 0xFF),
                         static_cast<int32_t>((rgbLong >> 16) & 0xFF));
    const double luminance =
        tint < 0 ? hls.luminance * (1.0 + tint) : hls.luminance * (1.0 - tint) + (HlsMax - HlsMax * (1.0 - tint));
    hls.luminance = static_cast<int32_t>(std::lround(luminance));
    return RgbLongFromHls(hls);
}

int32_t ThemeIndexFromThemeColor(int32_t xlThemeColor) {
    return xlThemeColor >= 1 && xlThemeColor <= ThemeColorCount ? xlThemeColor - 1 : -1;
}

int32_t ThemeColorFromThemeIndex(int32_t index) {
    return index >= 0 && index < ThemeColorCount ? index + 1 : -1;
}

}  // namespace excel::embedded
