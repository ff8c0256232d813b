#include "excel/embedded/format/shape_color.hpp"

#include "excel/embedded/engine_errors.hpp"

#include <excel/constants.hpp>

#include <array>

namespace excel::embedded {

namespace {

// MsoThemeColorIndex 1..16 to the file's theme index. Drawing objects name the scheme colours
// themselves (1 dk1, 2 lt1, ...), while the file orders them lt1, dk1, lt2, dk2; Text 1,
// Background 1, Text 2 and Background 2 (13..16) are other names of dk1, lt1, dk2 and lt2.
constexpr std::array<int32_t, 16> ThemeIndexOfObjectThemeColor{1, 0, 3, 2, 4, 5, 6, 7, 8, 9, 10, 11, 1, 0, 3, 2};

}  // namespace

ShapeColor ShapeColorFromRgb(int32_t rgb) {
    return ShapeColor{ColorFromRgb(rgb), msoNotThemeColor};
}

ShapeColor ShapeColorFromObjectTheme(int32_t objectThemeColor) {
    if (objectThemeColor < msoThemeColorDark1 || objectThemeColor > msoThemeColorBackground2) {
        ThrowRefused("The specified value is out of range.");
    }
    const int32_t index = ThemeIndexOfObjectThemeColor[static_cast<size_t>(objectThemeColor - 1)];
    return ShapeColor{FormatColor{FormatColor::Kind::Theme, 0, index, 0.0}, objectThemeColor};
}

ShapeColor ShapeColorFromThemeIndex(int32_t themeIndex, double tint) {
    for (int32_t objectThemeColor = msoThemeColorDark1; objectThemeColor <= msoThemeColorFollowedHyperlink;
         ++objectThemeColor) {
        if (ThemeIndexOfObjectThemeColor[static_cast<size_t>(objectThemeColor - 1)] == themeIndex) {
            return ShapeColor{FormatColor{FormatColor::Kind::Theme, 0, themeIndex, tint}, objectThemeColor};
        }
    }
    ThrowRefused("The specified value is out of range.");
}

uint32_t RgbOf(const ShapeColor& color, const WorkbookColors& colors) {
    return RgbOf(color.color, colors, 0);
}

}  // namespace excel::embedded
