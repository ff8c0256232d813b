#include "excel/embedded/format/palette.hpp"

#include <gtest/gtest.h>

namespace {

using excel::embedded::DefaultPalette;
using excel::embedded::NearestColorIndex;

// Colours as VBA's RGB(r, g, b) makes them.
constexpr uint32_t Rgb(uint32_t red, uint32_t green, uint32_t blue) {
    return red | (green << 8) | (blue << 16);
}

uint32_t PaletteColor(int32_t colorIndex) {
    return DefaultPalette()[static_cast<size_t>(colorIndex - 1)];
}

TEST(PaletteTest, StandardColours) {
    EXPECT_EQ(PaletteColor(1), Rgb(0, 0, 0));
    EXPECT_EQ(PaletteColor(2), Rgb(255, 255, 255));
    EXPECT_EQ(PaletteColor(3), Rgb(255, 0, 0));
    EXPECT_EQ(PaletteColor(4), Rgb(0, 255, 0));
    EXPECT_EQ(PaletteColor(5), Rgb(0, 0, 255));
    EXPECT_EQ(PaletteColor(6), Rgb(255, 255, 0));
    EXPECT_EQ(PaletteColor(15), Rgb(192, 192, 192));
    EXPECT_EQ(PaletteColor(16), Rgb(128, 128, 128));
    EXPECT_EQ(PaletteColor(36), Rgb(255, 255, 153));
    EXPECT_EQ(PaletteColor(46), Rgb(255, 102, 0));
    EXPECT_EQ(PaletteColor(48), Rgb(150, 150, 150));
    EXPECT_EQ(PaletteColor(56), Rgb(51, 51, 51));
}

TEST(PaletteTest, ExactColoursFindTheirLowestIndex) {
    EXPECT_EQ(NearestColorIndex(DefaultPalette(), Rgb(255, 0, 0)), 3);
    EXPECT_EQ(NearestColorIndex(DefaultPalette(), Rgb(0, 0, 128)), 11);   // 25 is the same colour
    EXPECT_EQ(NearestColorIndex(DefaultPalette(), Rgb(255, 255, 0)), 6);  // 27 is the same colour
    EXPECT_EQ(NearestColorIndex(DefaultPalette(), Rgb(51, 51, 51)), 56);
    for (int32_t index = 1; index <= 56; ++index) {
        EXPECT_EQ(PaletteColor(NearestColorIndex(DefaultPalette(), PaletteColor(index))), PaletteColor(index));
    }
}

TEST(PaletteTest, OtherColoursFindTheNearest) {
    EXPECT_EQ(NearestColorIndex(DefaultPalette(), Rgb(250, 5, 5)), 3);
    EXPECT_EQ(NearestColorIndex(DefaultPalette(), Rgb(10, 10, 10)), 1);
    EXPECT_EQ(NearestColorIndex(DefaultPalette(), Rgb(250, 250, 250)), 2);
    EXPECT_EQ(NearestColorIndex(DefaultPalette(), Rgb(140, 140, 140)), 48);
}

TEST(PaletteTest, WorksOnAModifiedPalette) {
    auto palette = DefaultPalette();
    palette[9] = Rgb(1, 2, 3);
    EXPECT_EQ(NearestColorIndex(palette, Rgb(1, 2, 3)), 10);
}

}  // namespace
