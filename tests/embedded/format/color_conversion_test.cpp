#include "excel/embedded/format/color_conversion.hpp"

#include <gtest/gtest.h>

namespace {

using excel::embedded::ArgbFromRgbLong;
using excel::embedded::RgbLongFromArgb;

TEST(ColorConversionTest, RgbLongToOpaqueArgb) {
    EXPECT_EQ(ArgbFromRgbLong(0x0000FF), 0xFFFF0000u);  // red
    EXPECT_EQ(ArgbFromRgbLong(0xFF0000), 0xFF0000FFu);  // blue
    EXPECT_EQ(ArgbFromRgbLong(0x00FF00), 0xFF00FF00u);
    EXPECT_EQ(ArgbFromRgbLong(0xC47244), 0xFF4472C4u);
    EXPECT_EQ(ArgbFromRgbLong(0), 0xFF000000u);
}

TEST(ColorConversionTest, ArgbToRgbLongDropsAlpha) {
    EXPECT_EQ(RgbLongFromArgb(0xFF4472C4), 0xC47244u);
    EXPECT_EQ(RgbLongFromArgb(0x00FF0000), 0x0000FFu);
    EXPECT_EQ(RgbLongFromArgb(0x80123456), 0x563412u);
}

TEST(ColorConversionTest, RoundTrips) {
    for (uint32_t color : {0x000000u, 0xFFFFFFu, 0x123456u, 0xABCDEFu, 0x0000FFu}) {
        EXPECT_EQ(RgbLongFromArgb(ArgbFromRgbLong(color)), color);
    }
}

}  // namespace
