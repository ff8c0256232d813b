#include "embedded/engine_fixture.hpp"

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

TEST_F(EngineTest, CellsByIndexOfAColumnWalksDownIt) {
    auto column = At("C5:C9");
    EXPECT_EQ(column->Cells(1)->Address(), "$C$5");
    EXPECT_EQ(column->Cells(5)->Address(), "$C$9");
    EXPECT_EQ(column->Cells(7)->Address(), "$C$11");
    EXPECT_EQ(ErrorCodeOf([&] { column->Cells(0); }), kRefused);
}

TEST_F(EngineTest, LastCellByIndexIsTheBottomRightCell) {
    for (const char* address : {"B3:K4", "A5:A100004", "C3:F3", "D7"}) {
        auto block = At(address);
        const std::string last = block->Cells(block->Cells()->Count())->Address();
        const std::string expected = block->Cells(block->Rows()->Count(), block->Columns()->Count())->Address();
        EXPECT_EQ(last, expected) << address;
    }
    EXPECT_EQ(At("B3:K4")->Cells(20)->Address(), "$K$4");
}

TEST_F(EngineTest, CellsOfARowOrColumnOfABlockCountWithinIt) {
    auto block = At("B3:E6");
    EXPECT_EQ(block->Rows(2)->Cells(3)->Address(), "$D$4");
    EXPECT_EQ(block->Columns(2)->Cells(3)->Address(), "$C$5");
    EXPECT_EQ(block->Rows(0)->Cells(1)->Address(), "$B$2");
    EXPECT_EQ(block->Columns(0)->Address(), "$A$3:$A$6");
    EXPECT_EQ(block->Columns(0)->Cells(4)->Address(), "$A$6");
    EXPECT_EQ(block->Columns(4)->Cells(block->Columns(4)->Count())->Address(), "$E$6");
    EXPECT_EQ(block->Rows(5)->Address(), "$B$7:$E$7");
    EXPECT_EQ(block->Cells(2, 3)->Address(), "$D$4");
    EXPECT_EQ(ErrorCodeOf([&] { At("B1:C2")->Rows(0); }), kRefused);
    EXPECT_EQ(ErrorCodeOf([&] { At("A1:B2")->Columns(0); }), kRefused);
}

TEST_F(EngineTest, EntireColumnOfABlocksColumnSetsItsWidth) {
    auto block = At("B3:E6");
    block->Columns(2)->EntireColumn()->SetColumnWidth(14.5);
    EXPECT_EQ(At("C1")->ColumnWidth(), Variant(14.5));
    EXPECT_EQ(At("B1")->ColumnWidth(), Variant(8.43));
    EXPECT_EQ(At("D1")->ColumnWidth(), Variant(8.43));
    EXPECT_TRUE(block->ColumnWidth().IsNull());
    EXPECT_EQ(block->Columns(2)->EntireColumn()->Address(), "$C:$C");
}
