#include "excel/embedded/model/geometry/geometry.hpp"

#include <gtest/gtest.h>

namespace {

using namespace excel::embedded;

TEST(GeometryTest, StandardColumnIs64PixelsOr48Points) {
    EXPECT_EQ(ColumnWidthToPixels(StandardColumnWidth), 64);
    EXPECT_DOUBLE_EQ(ColumnWidthToPoints(StandardColumnWidth), 48.0);
}

TEST(GeometryTest, ColumnWidthsInPixels) {
    EXPECT_EQ(ColumnWidthToPixels(0), 0);
    EXPECT_EQ(ColumnWidthToPixels(-3), 0);
    EXPECT_EQ(ColumnWidthToPixels(1), 12);
    EXPECT_EQ(ColumnWidthToPixels(10), 75);
    EXPECT_EQ(ColumnWidthToPixels(10.5), 79);
    EXPECT_EQ(ColumnWidthToPixels(20), 145);
    EXPECT_EQ(ColumnWidthToPixels(255), 1790);
}

TEST(GeometryTest, WidthsBelowOneCharacterHaveNoPadding) {
    EXPECT_EQ(ColumnWidthToPixels(0.5), 6);
    EXPECT_EQ(ColumnWidthToPixels(0.08), 1);
    EXPECT_EQ(ColumnWidthToPixels(0.92), 11);
    EXPECT_DOUBLE_EQ(ColumnWidthToPoints(0.5), 4.5);
}

TEST(GeometryTest, FileWidths) {
    EXPECT_DOUBLE_EQ(FileColumnWidth(8.43), 9.140625);
    EXPECT_DOUBLE_EQ(FileColumnWidth(10), 10.7109375);
    EXPECT_DOUBLE_EQ(FileColumnWidth(1), 1.7109375);
    EXPECT_DOUBLE_EQ(FileColumnWidth(0.5), 0.85546875);
    EXPECT_DOUBLE_EQ(FileColumnWidth(0), 0.0);
}

TEST(GeometryTest, WidthsFromTheFile) {
    EXPECT_DOUBLE_EQ(ColumnWidthFromFile(9.140625), 8.43);
    EXPECT_DOUBLE_EQ(ColumnWidthFromFile(10.7109375), 10.0);
    EXPECT_DOUBLE_EQ(ColumnWidthFromFile(0.85546875), 0.5);
    EXPECT_DOUBLE_EQ(ColumnWidthFromFile(0), 0.0);
    // A width written by another program snaps to Excel's pixels.
    EXPECT_DOUBLE_EQ(ColumnWidthFromFile(9.14), 8.43);
    EXPECT_DOUBLE_EQ(ColumnWidthFromFile(13.0), 12.29);
}

TEST(GeometryTest, FileWidthsRoundTripEveryPixelWidth) {
    for (int hundredths = 0; hundredths <= 25500; hundredths += 7) {
        const double characters = hundredths / 100.0;
        const double shown = ColumnWidthFromFile(FileColumnWidth(characters));
        ASSERT_EQ(ColumnWidthToPixels(shown), ColumnWidthToPixels(characters)) << characters;
    }
}

TEST(GeometryTest, RowHeightsSnapToWholePixels) {
    EXPECT_DOUBLE_EQ(RowHeightToPoints(StandardRowHeight), 15.0);
    EXPECT_DOUBLE_EQ(RowHeightToPoints(15.2), 15.0);
    EXPECT_DOUBLE_EQ(RowHeightToPoints(15.5), 15.75);
    EXPECT_DOUBLE_EQ(RowHeightToPoints(30), 30.0);
    EXPECT_DOUBLE_EQ(RowHeightToPoints(12.75), 12.75);
    EXPECT_DOUBLE_EQ(RowHeightToPoints(0.3), 0.0);
    EXPECT_DOUBLE_EQ(RowHeightToPoints(0.4), 0.75);
    EXPECT_DOUBLE_EQ(RowHeightToPoints(0), 0.0);
    EXPECT_DOUBLE_EQ(RowHeightToPoints(409.5), 409.5);
}

}  // namespace
