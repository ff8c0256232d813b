#include "excel/embedded/format/theme_colors.hpp"

#include <gtest/gtest.h>

namespace {

using excel::embedded::ApplyTintAndShade;
using excel::embedded::OfficeThemeColors;
using excel::embedded::ThemeColorFromThemeIndex;
using excel::embedded::ThemeIndexFromThemeColor;

// 0xRRGGBB as written in theme and style parts, to the object model's RGB Long.
constexpr uint32_t Hex(uint32_t rrggbb) {
    return ((rrggbb & 0xFF) << 16) | (rrggbb & 0xFF00) | (rrggbb >> 16);
}

// Tints Excel writes for its colour picker's shades.
constexpr double Lighter80 = 0.79998168889431442;
constexpr double Darker50 = -0.499984740745262;

TEST(ThemeColorsTest, OfficeThemeInStyleIndexOrder) {
    const auto& colors = OfficeThemeColors();
    EXPECT_EQ(colors[0], Hex(0xFFFFFF));  // lt1
    EXPECT_EQ(colors[1], Hex(0x000000));  // dk1
    EXPECT_EQ(colors[2], Hex(0xE7E6E6));  // lt2
    EXPECT_EQ(colors[3], Hex(0x44546A));  // dk2
    EXPECT_EQ(colors[4], Hex(0x4472C4));
    EXPECT_EQ(colors[5], Hex(0xED7D31));
    EXPECT_EQ(colors[6], Hex(0xA5A5A5));
    EXPECT_EQ(colors[7], Hex(0xFFC000));
    EXPECT_EQ(colors[8], Hex(0x5B9BD5));
    EXPECT_EQ(colors[9], Hex(0x70AD47));
    EXPECT_EQ(colors[10], Hex(0x0563C1));
    EXPECT_EQ(colors[11], Hex(0x954F72));
}

TEST(ThemeColorsTest, ThemeColorConstantsMapToStyleIndices) {
    EXPECT_EQ(ThemeIndexFromThemeColor(1), 0);   // xlThemeColorDark1: Background 1, lt1
    EXPECT_EQ(ThemeIndexFromThemeColor(2), 1);   // xlThemeColorLight1: Text 1, dk1
    EXPECT_EQ(ThemeIndexFromThemeColor(5), 4);   // Accent1
    EXPECT_EQ(ThemeIndexFromThemeColor(10), 9);  // Accent6
    EXPECT_EQ(ThemeIndexFromThemeColor(11), 10);
    EXPECT_EQ(ThemeIndexFromThemeColor(12), 11);
    EXPECT_EQ(ThemeIndexFromThemeColor(0), -1);
    EXPECT_EQ(ThemeIndexFromThemeColor(13), -1);
    for (int32_t index = 0; index < 12; ++index) {
        EXPECT_EQ(ThemeIndexFromThemeColor(ThemeColorFromThemeIndex(index)), index);
    }
    EXPECT_EQ(ThemeColorFromThemeIndex(-1), -1);
    EXPECT_EQ(ThemeColorFromThemeIndex(12), -1);
}

TEST(ThemeColorsTest, NoTintLeavesTheColour) {
    for (uint32_t color : OfficeThemeColors())
        EXPECT_EQ(ApplyTintAndShade(color, 0), color);
}

TEST(ThemeColorsTest, FullTintAndShadeReachWhiteAndBlack) {
    EXPECT_EQ(ApplyTintAndShade(Hex(0x4472C4), 1.0), Hex(0xFFFFFF));
    EXPECT_EQ(ApplyTintAndShade(Hex(0x4472C4), -1.0), Hex(0x000000));
    EXPECT_EQ(ApplyTintAndShade(Hex(0xED7D31), 5.0), Hex(0xFFFFFF));  // clamped
}

TEST(ThemeColorsTest, MatchesExcelsTintedColour) {
    // Accent 2, lighter 80%, as Excel renders and reports it.
    EXPECT_EQ(ApplyTintAndShade(Hex(0xED7D31), Lighter80), Hex(0xFCE4D6));
}

TEST(ThemeColorsTest, GraysKeepEqualChannels) {
    const uint32_t darkened = ApplyTintAndShade(Hex(0xFFFFFF), Darker50);
    EXPECT_EQ(darkened & 0xFF, (darkened >> 8) & 0xFF);
    EXPECT_EQ(darkened & 0xFF, (darkened >> 16) & 0xFF);
    EXPECT_NEAR(static_cast<double>(darkened & 0xFF), 127.5, 1.0);
    const uint32_t lightened = ApplyTintAndShade(Hex(0x000000), 0.5);
    EXPECT_NEAR(static_cast<double>(lightened & 0xFF), 127.5, 1.0);
}

TEST(ThemeColorsTest, TintMovesLuminanceMonotonically) {
    int previous = -1;
    for (double tint = -1.0; tint <= 1.0; tint += 0.125) {
        const uint32_t color = ApplyTintAndShade(Hex(0x5B9BD5), tint);
        const int sum = static_cast<int>((color & 0xFF) + ((color >> 8) & 0xFF) + ((color >> 16) & 0xFF));
        EXPECT_GE(sum, previous) << tint;
        previous = sum;
    }
}

}  // namespace
