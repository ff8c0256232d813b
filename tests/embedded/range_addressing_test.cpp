#include "engine_fixture.hpp"

using namespace excel;

TEST_F(EngineTest, CellsIsRelativeToTheRangeAndMayLieOutsideIt) {
    auto block = At("B2:D4");
    EXPECT_EQ(block->Cells(1, 1)->Address(), "$B$2");
    EXPECT_EQ(block->Cells(0, 0)->Address(), "$A$1");
    EXPECT_EQ(block->Cells(5, 5)->Address(), "$F$6");
    EXPECT_EQ(block->Item(2, 3)->Address(), "$D$3");
}

TEST_F(EngineTest, CellsByIndexWalksRowByRowAndMayRunBelow) {
    auto block = At("B2:D4");
    EXPECT_EQ(block->Cells(1)->Address(), "$B$2");
    EXPECT_EQ(block->Cells(3)->Address(), "$D$2");
    EXPECT_EQ(block->Cells(4)->Address(), "$B$3");
    EXPECT_EQ(block->Cells(10)->Address(), "$B$5");
}

TEST_F(EngineTest, RowsAndColumnsAreRelativeAndKeepTheWidth) {
    auto block = At("B3:D5");
    EXPECT_EQ(block->Rows(1)->Address(), "$B$3:$D$3");
    EXPECT_EQ(block->Rows(0)->Address(), "$B$2:$D$2");
    EXPECT_EQ(block->Rows(-1)->Address(), "$B$1:$D$1");
    EXPECT_EQ(block->Columns(2)->Address(), "$C$3:$C$5");
    EXPECT_EQ(block->Rows()->Count(), 3);
    EXPECT_EQ(block->Columns()->Count(), 3);
    EXPECT_EQ(block->Count(), 9);
}

TEST_F(EngineTest, IndexingOffTheSheetIsRefused) {
    auto block = At("B3:D5");
    EXPECT_EQ(ErrorCodeOf([&] { block->Rows(-2); }), kRefused);
    EXPECT_EQ(ErrorCodeOf([&] { block->Cells(0, -1); }), kRefused);
    EXPECT_EQ(ErrorCodeOf([&] { sheet->Cells(1048577, 1); }), kRefused);
    EXPECT_EQ(ErrorCodeOf([&] { sheet->Cells(1, 16385); }), kRefused);
    EXPECT_EQ(ErrorCodeOf([&] { sheet->Range("A0"); }), kRefused);
    EXPECT_EQ(ErrorCodeOf([&] { sheet->Range("not an address!"); }), kRefused);
}

TEST_F(EngineTest, ResizeAndOffset) {
    auto cell = At("B2");
    EXPECT_EQ(cell->Resize(2, 3)->Address(), "$B$2:$D$3");
    EXPECT_EQ(cell->Resize(Variant(), 2)->Address(), "$B$2:$C$2");
    EXPECT_EQ(cell->Offset(1, -1)->Address(), "$A$3");
    EXPECT_EQ(ErrorCodeOf([&] { cell->Offset(-2, 0); }), kRefused);
    EXPECT_EQ(ErrorCodeOf([&] { cell->Resize(0); }), kRefused);
}

TEST_F(EngineTest, EntireRowAndEntireColumn) {
    EXPECT_EQ(At("B2:C3")->EntireRow()->Address(), "$2:$3");
    EXPECT_EQ(At("B2:C3")->EntireColumn()->Address(), "$B:$C");
    EXPECT_EQ(sheet->Columns(1)->Address(), "$A:$A");
    EXPECT_EQ(sheet->Rows(1)->Address(), "$1:$1");
    EXPECT_EQ(At("B2:C3")->EntireRow()->Rows()->Count(), 2);
}

TEST_F(EngineTest, AddressVariants) {
    auto block = At("A1:C3");
    EXPECT_EQ(block->Address(), "$A$1:$C$3");
    EXPECT_EQ(block->Address(false, false), "A1:C3");
    EXPECT_EQ(block->Address(true, false), "A$1:C$3");
    EXPECT_EQ(block->Address(true, true, xlR1C1), "R1C1:R3C3");
    EXPECT_EQ(At("A1")->Address(true, true, xlA1, true), "[Book1]Sheet1!$A$1");
    EXPECT_EQ(At("A1,C3:D4")->Address(), "$A$1,$C$3:$D$4");
}

TEST_F(EngineTest, UnionKeepsAreasInOrderAndCountsEveryCell) {
    auto joined = app->Union(At("C3:D4"), At("A1"), {At("C4:E4")});
    EXPECT_EQ(joined->Areas()->Count(), 3);
    EXPECT_EQ(joined->Areas()->Item(1)->Address(), "$C$3:$D$4");
    EXPECT_EQ(joined->Address(), "$C$3:$D$4,$A$1,$C$4:$E$4");
    EXPECT_EQ(joined->Count(), 4 + 1 + 3);
    EXPECT_EQ(joined->Rows()->Count(), 2);
    EXPECT_EQ(joined->Row(), 3);
    EXPECT_EQ(joined->Column(), 3);
}

TEST_F(EngineTest, UnionOfRangesOnDifferentSheetsIsRefused) {
    auto other = book->Worksheets()->Add();
    EXPECT_EQ(ErrorCodeOf([&] { app->Union(At("A1"), other->Range("A1")); }), kRefused);
}

TEST_F(EngineTest, RangeRelativeAddressAndTwoCellForm) {
    EXPECT_EQ(At("B2:D4")->GetRange("A1:B2")->Address(), "$B$2:$C$3");
    EXPECT_EQ(sheet->Range(sheet->Cells(3, 3), sheet->Cells(1, 2))->Address(), "$B$1:$C$3");
}

TEST_F(EngineTest, MergeAreaIsTheMergedBlockOrTheCell) {
    At("B2:C3")->Merge();
    EXPECT_EQ(At("C3")->MergeArea()->Address(), "$B$2:$C$3");
    EXPECT_EQ(At("D4")->MergeArea()->Address(), "$D$4");
}

TEST_F(EngineTest, WholeSheetCountOverflowsButCountLargeDoesNot) {
    EXPECT_EQ(sheet->Cells()->CountLarge(), int64_t{1048576} * 16384);
    EXPECT_EQ(ErrorCodeOf([&] { sheet->Cells()->Count(); }), static_cast<int32_t>(0x800A0006));
}
