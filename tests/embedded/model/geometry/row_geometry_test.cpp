#include "embedded/engine_fixture.hpp"

#include <excel/excel.hpp>

#include <gtest/gtest.h>

// Row tops and the rows under shapes' corners follow every change of row heights: custom heights,
// hidden rows, rows inserted and deleted, and the sheet's default height.
class RowGeometryTest : public EngineTest {};

TEST_F(RowGeometryTest, TopsAddUpCustomHeightsAndSkipHiddenRows) {
    At("3:3")->SetRowHeight(30);
    At("5:6")->SetHidden(true);
    EXPECT_DOUBLE_EQ(At("A3")->Top(), 30.0);
    EXPECT_DOUBLE_EQ(At("A4")->Top(), 60.0);
    EXPECT_DOUBLE_EQ(At("A7")->Top(), 75.0);
    EXPECT_DOUBLE_EQ(At("A5:A6")->Height(), 0.0);
    EXPECT_DOUBLE_EQ(At("A1:A10")->Height(), 135.0);
}

TEST_F(RowGeometryTest, TheRowUnderAPointSkipsHiddenRowsAndTakesTheRowBelowABoundary) {
    At("5:6")->SetHidden(true);
    At("8:8")->SetRowHeight(40);
    const auto at = [&](double top) {
        return sheet->Shapes()->AddTextbox(excel::msoTextOrientationHorizontal, 0, top, 10, 1)->TopLeftCell()->Row();
    };
    EXPECT_EQ(at(59.0), 4);
    EXPECT_EQ(at(60.0), 7);   // the top of row 5 is the top of row 7: rows 5 and 6 are hidden
    EXPECT_EQ(at(75.0), 8);
    EXPECT_EQ(at(114.9), 8);
    EXPECT_EQ(at(115.0), 9);
    EXPECT_EQ(at(115.0 + 15.0 * 1000.5), 1009);
}

TEST_F(RowGeometryTest, TopsFollowRowsInsertedAndDeleted) {
    At("2:2")->SetRowHeight(50);
    EXPECT_DOUBLE_EQ(At("A4")->Top(), 80.0);
    At("1:2")->Insert();
    EXPECT_DOUBLE_EQ(At("A4")->Top(), 45.0);  // the tall row is now row 4
    EXPECT_DOUBLE_EQ(At("A5")->Top(), 95.0);
    At("4:4")->Delete();
    EXPECT_DOUBLE_EQ(At("A5")->Top(), 60.0);
}

TEST_F(RowGeometryTest, TheSheetsDefaultHeightMovesEveryRowOfThatHeight) {
    At("2:2")->SetRowHeight(40);
    sheet->Cells()->SetRowHeight(20);
    EXPECT_DOUBLE_EQ(At("A4")->Top(), 60.0);
    EXPECT_EQ(sheet->Shapes()->AddTextbox(excel::msoTextOrientationHorizontal, 0, 41, 10, 1)->TopLeftCell()->Row(), 3);
}

TEST_F(RowGeometryTest, APointBelowTheLastRowFallsInTheLastRow) {
    const auto box = sheet->Shapes()->AddTextbox(excel::msoTextOrientationHorizontal, 0, 15.0 * 1048576 + 100, 10, 1);
    EXPECT_EQ(box->TopLeftCell()->Row(), 1048576);
}
