#include "excel/embedded/format/color_model.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/format/color_conversion.hpp"
#include "excel/embedded/format/palette.hpp"
#include "excel/embedded/format/theme_colors.hpp"

#include <excel/constants.hpp>

namespace excel::embedded {

namespace {
// The file's indexed colours 0..7 repeat the palette's first eight; 8..63 are the palette.
constexpr int32_t firstPaletteIndex = 8;
constexpr int32_t systemForeground = 64;
constexpr int32_t systemBackground = 65;
constexpr uint32_t white = 0xFFFFFF;
}  // namespace

uint32_t RgbOf(const FormatColor& color, const WorkbookColors& colors, uint32_t automatic) {
    const Palette& palette = colors.palette;
    switch (color.kind) {
        case FormatColor::Kind::Rgb:
            return ApplyTintAndShade(RgbLongFromArgb(color.argb), color.tint);
        case FormatColor::Kind::Indexed:
            if (color.index >= 0 && color.index < firstPaletteIndex) {
                return palette[static_cast<size_t>(color.index)];
            }
            if (color.index >= firstPaletteIndex && color.index < firstPaletteIndex + 56) {
                return palette[static_cast<size_t>(color.index - firstPaletteIndex)];
            }
            return color.index == systemBackground ? white : automatic;
        case FormatColor::Kind::Theme:
            if (color.index >= 0 && color.index < 12) {
                return ApplyTintAndShade(colors.theme[static_cast<size_t>(color.index)], color.tint);
            }
            return automatic;
        case FormatColor::Kind::None:
        case FormatColor::Kind::Automatic:
            break;
    }
    return automatic;
}

int32_t ColorIndexOf(const FormatColor& color, const WorkbookColors& colors, int32_t whenAutomatic) {
    switch (color.kind) {
        case FormatColor::Kind::None:
        case FormatColor::Kind::Automatic:
            return whenAutomatic;
        case FormatColor::Kind::Indexed:
            if (color.index >= 0 && color.index < firstPaletteIndex) {
                return color.index + 1;
            }
            if (color.index >= firstPaletteIndex && color.index < firstPaletteIndex + 56) {
                return color.index - firstPaletteIndex + 1;
            }
            return color.index == systemForeground ? whenAutomatic : NearestColorIndex(colors.palette, white);
        case FormatColor::Kind::Rgb:
        case FormatColor::Kind::Theme:
            break;
    }
    return NearestColorIndex(colors.palette, RgbOf(color, colors, 0));
}

int32_t ThemeColorOf(const FormatColor& color) {
    if (color.kind != FormatColor::Kind::Theme) {
        ThrowRefused("Unable to get the ThemeColor property: the colour is not a theme colour");
    }
    return ThemeColorFromThemeIndex(color.index);
}

double TintOf(const FormatColor& color) {
    return color.kind == FormatColor::Kind::None ? 0.0 : color.tint;
}

FormatColor ColorFromRgb(int32_t rgb) {
    if (rgb < 0 || rgb > 0xFFFFFF) {
        ThrowRefused("Unable to set the Color property");
    }
    return FormatColor{FormatColor::Kind::Rgb, ArgbFromRgbLong(static_cast<uint32_t>(rgb)), 0, 0.0};
}

FormatColor ColorFromIndex(int32_t colorIndex) {
    if (colorIndex < 1 || colorIndex > 56) {
        ThrowRefused("Unable to set the ColorIndex property");
    }
    return FormatColor{FormatColor::Kind::Indexed, 0, colorIndex + firstPaletteIndex - 1, 0.0};
}

FormatColor ColorFromTheme(int32_t themeColor) {
    const int32_t index = ThemeIndexFromThemeColor(themeColor);
    if (index < 0) {
        ThrowRefused("Unable to set the ThemeColor property");
    }
    return FormatColor{FormatColor::Kind::Theme, 0, index, 0.0};
}

FormatColor WithTint(FormatColor color, double tint) {
    if (!(tint >= -1.0 && tint <= 1.0)) {
        ThrowRefused("Unable to set the TintAndShade property");
    }
    if (color.kind == FormatColor::Kind::None || color.kind == FormatColor::Kind::Automatic) {
        color = FormatColor{FormatColor::Kind::Theme, 0, 1, 0.0};
    }
    color.tint = tint;
    return color;
}

}  // namespace excel::embedded
