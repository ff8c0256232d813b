#include "embedded/engine_fixture.hpp"

using namespace excel;

TEST_F(EngineTest, DefaultGeometry) {
    EXPECT_DOUBLE_EQ(At("A1")->Width(), 48.0);
    EXPECT_DOUBLE_EQ(At("A1")->Height(), 15.0);
    EXPECT_DOUBLE_EQ(At("C5")->Left(), 96.0);
    EXPECT_DOUBLE_EQ(At("C5")->Top(), 60.0);
    EXPECT_DOUBLE_EQ(At("A1:C2")->Width(), 144.0);
    EXPECT_DOUBLE_EQ(sheet->StandardHeight(), 15.0);
    EXPECT_DOUBLE_EQ(sheet->StandardWidth(), 8.43);
}

TEST_F(EngineTest, CustomSizesAndHiddenRowsAndColumns) {
    sheet->Rows(2)->SetRowHeight(30);
    sheet->Rows(3)->SetHidden(true);
    sheet->Columns(1)->SetHidden(true);
    EXPECT_DOUBLE_EQ(At("B4")->Top(), 15.0 + 30.0);
    EXPECT_DOUBLE_EQ(At("A3")->Height(), 0.0);
    EXPECT_DOUBLE_EQ(At("A1")->Width(), 0.0);
    EXPECT_DOUBLE_EQ(At("B1")->Left(), 0.0);
    EXPECT_DOUBLE_EQ(sheet->Rows(1000)->Top(), 999 * 15.0 + (30.0 - 15.0) - 15.0);  // row 2 taller, row 3 hidden
}

TEST_F(EngineTest, WholeSheetRowHeightChangesEveryRow) {
    sheet->Rows(2)->SetRowHeight(30);
    sheet->Cells()->SetRowHeight(20);
    EXPECT_EQ(At("A2")->RowHeight(), Variant(20.0));
    EXPECT_DOUBLE_EQ(At("A11")->Top(), 200.0);
}
