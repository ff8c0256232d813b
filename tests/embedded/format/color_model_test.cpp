#include "excel/embedded/format/color_model.hpp"

#include <gtest/gtest.h>

namespace {

using excel::embedded::ColorIndexOf;
using excel::embedded::FormatColor;
using excel::embedded::RgbOf;
using excel::embedded::WorkbookColors;

constexpr uint32_t Automatic = 0x010203;

FormatColor Theme(int32_t index, double tint = 0.0) {
    return FormatColor{FormatColor::Kind::Theme, 0, index, tint};
}

TEST(ColorModelTest, ANewWorkbooksColoursAreTheStandardPaletteAndTheOfficeTheme) {
    const WorkbookColors colors;
    EXPECT_EQ(RgbOf(Theme(4), colors, Automatic), 0xC47244u);  // accent1 #4472C4
    EXPECT_EQ(RgbOf(FormatColor{FormatColor::Kind::Indexed, 0, 10, 0.0}, colors, Automatic), 0x0000FFu);  // red
}

TEST(ColorModelTest, ThemeColoursShowTheWorkbooksTheme) {
    WorkbookColors colors;
    colors.theme[4] = 0x66B9CE;  // accent1 #CEB966
    colors.theme[7] = 0xCF8565;  // accent4 #6585CF
    EXPECT_EQ(RgbOf(Theme(4), colors, Automatic), 0x66B9CEu);
    EXPECT_EQ(RgbOf(Theme(7, -1.0), colors, Automatic), 0x000000u);
    EXPECT_EQ(RgbOf(Theme(7, 1.0), colors, Automatic), 0xFFFFFFu);
    EXPECT_EQ(RgbOf(Theme(7, 0.5), colors, Automatic),
              RgbOf(FormatColor{FormatColor::Kind::Rgb, 0xFF6585CF, 0, 0.5}, colors, Automatic));
    EXPECT_EQ(RgbOf(Theme(12), colors, Automatic), Automatic);
}

TEST(ColorModelTest, TheColorIndexOfAThemeColourIsThePaletteEntryNearestTheWorkbooksTheme) {
    WorkbookColors colors;
    colors.theme[4] = 0x0000FF;  // red, ColorIndex 3
    EXPECT_EQ(ColorIndexOf(Theme(4), colors, 0), 3);
    colors.palette[20] = 0x0000FE;  // ColorIndex 21 made nearer
    colors.theme[4] = 0x0000FE;
    EXPECT_EQ(ColorIndexOf(Theme(4), colors, 0), 21);
}

}  // namespace
