#include "embedded/engine_fixture.hpp"

using namespace excel;

TEST_F(EngineTest, RangeMovesRightWhenAColumnIsInsertedBeforeIt) {
    auto range = At("B2");
    sheet->Columns(1)->Insert();
    EXPECT_EQ(range->Address(), "$C$2");
}

TEST_F(EngineTest, RangeMovesDownWhenARowIsInsertedAboveIt) {
    auto range = At("B2:C3");
    sheet->Rows(1)->Insert();
    EXPECT_EQ(range->Address(), "$B$3:$C$4");
}

TEST_F(EngineTest, RangeStaysWhenCellsAreInsertedAfterIt) {
    auto range = At("B2");
    sheet->Columns(3)->Insert();
    sheet->Rows(3)->Insert();
    EXPECT_EQ(range->Address(), "$B$2");
}

TEST_F(EngineTest, RangeMovesBackWhenCellsBeforeItAreDeleted) {
    auto range = At("C3");
    sheet->Columns(1)->Delete();
    sheet->Rows(1)->Delete();
    EXPECT_EQ(range->Address(), "$B$2");
}

TEST_F(EngineTest, RangeGrowsWhenCellsAreInsertedInsideIt) {
    auto range = At("B2:D2");
    sheet->Columns(3)->Insert();
    EXPECT_EQ(range->Address(), "$B$2:$E$2");
}

TEST_F(EngineTest, RangePartlyDeletedShrinks) {
    auto range = At("B2:D2");
    sheet->Columns(3)->Delete();
    EXPECT_EQ(range->Address(), "$B$2:$C$2");
    EXPECT_EQ(range->Count(), 2);
}

TEST_F(EngineTest, RangeWhollyDeletedRaisesObjectRequired) {
    auto range = At("B2:C3");
    auto font = range->Font();
    sheet->Rows(1)->Insert();
    At("2:5")->Delete();
    EXPECT_EQ(ErrorCodeOf([&] { range->Address(); }), kObjectRequired);
    EXPECT_EQ(ErrorCodeOf([&] { range->SetValue("lost"); }), kObjectRequired);
    EXPECT_EQ(ErrorCodeOf([&] { range->Row(); }), kObjectRequired);
    EXPECT_EQ(ErrorCodeOf([&] { font->SetBold(true); }), kObjectRequired);
    // Cells inserted where it was later do not bring it back.
    sheet->Rows(2)->Insert();
    EXPECT_EQ(ErrorCodeOf([&] { range->Address(); }), kObjectRequired);
}

TEST_F(EngineTest, RangeDeletingItsOwnCellsRaisesObjectRequiredAfterwards) {
    auto range = At("B2");
    range->Delete(xlShiftUp);
    EXPECT_EQ(ErrorCodeOf([&] { range->Value(); }), kObjectRequired);
}

TEST_F(EngineTest, RangeInsertingAtItsOwnCellsMovesItWithThem) {
    auto range = At("B2");
    range->SetValue("kept");
    range->Insert(xlShiftDown);
    EXPECT_EQ(range->Address(), "$B$3");
    EXPECT_EQ(range->Value(), Variant("kept"));
}

TEST_F(EngineTest, MultiAreaRangeDropsTheAreaThatWasDeleted) {
    auto range = At("A1,C1:C2,E1");
    sheet->Columns(3)->Delete();
    EXPECT_EQ(range->Address(), "$A$1,$D$1");
    EXPECT_EQ(range->Areas()->Count(), 2);
    EXPECT_EQ(range->Count(), 2);
}

TEST_F(EngineTest, WholeColumnsRowsAndSheetStayWhole) {
    auto cells = sheet->Cells();
    auto column = sheet->Columns(2);
    auto row = sheet->Rows(2);
    sheet->Rows(1)->Insert();
    sheet->Columns(1)->Insert();
    EXPECT_EQ(cells->Address(), "$1:$1048576");
    EXPECT_EQ(column->Address(), "$C:$C");
    EXPECT_EQ(row->Address(), "$3:$3");
    sheet->Rows(1)->Delete();
    sheet->Columns(1)->Delete();
    EXPECT_EQ(cells->Address(), "$1:$1048576");
    EXPECT_EQ(column->Address(), "$B:$B");
    EXPECT_EQ(row->Address(), "$2:$2");
}

TEST_F(EngineTest, RangeOnAnotherSheetIsUnaffected) {
    auto other = book->Worksheets()->Add();
    auto range = other->Range("B2");
    sheet->Columns(1)->Insert();
    sheet->Rows(1)->Delete();
    EXPECT_EQ(range->Address(), "$B$2");
}

TEST_F(EngineTest, FontTakenBeforeAnInsertFormatsTheMovedCells) {
    auto font = At("B2")->Font();
    sheet->Columns(1)->Insert();
    font->SetBold(true);
    EXPECT_EQ(At("C2")->Font()->Bold(), Variant(true));
    EXPECT_EQ(At("B2")->Font()->Bold(), Variant(false));
    EXPECT_EQ(font->Bold(), Variant(true));
}

TEST_F(EngineTest, InteriorTakenBeforeAnInsertColoursTheMovedCells) {
    auto interior = At("B2")->Interior();
    sheet->Rows(1)->Insert();
    interior->SetColor(0x00FF00);
    EXPECT_EQ(At("B3")->Interior()->Color(), Variant(static_cast<double>(0x00FF00)));
    EXPECT_EQ(At("B2")->Interior()->Color(), Variant(static_cast<double>(0xFFFFFF)));
}

TEST_F(EngineTest, BorderTakenBeforeAnInsertLinesTheMovedCells) {
    auto top = At("B2")->Borders(xlEdgeTop);
    auto borders = At("B2")->Borders();
    sheet->Columns(1)->Insert();
    top->SetLineStyle(xlContinuous);
    EXPECT_EQ(At("C2")->Borders(xlEdgeTop)->LineStyle(), Variant(xlContinuous));
    EXPECT_EQ(At("B2")->Borders(xlEdgeTop)->LineStyle(), Variant(xlLineStyleNone));
    borders->SetWeight(xlThick);
    EXPECT_EQ(At("C2")->Borders(xlEdgeBottom)->Weight(), Variant(xlThick));
    EXPECT_EQ(At("B2")->Borders(xlEdgeBottom)->LineStyle(), Variant(xlLineStyleNone));
}

TEST_F(EngineTest, AreasTakenBeforeAnInsertAnswerTheMovedBlocks) {
    auto areas = At("A1,C1")->Areas();
    sheet->Columns(2)->Insert();
    EXPECT_EQ(areas->Item(1)->Address(), "$A$1");
    EXPECT_EQ(areas->Item(2)->Address(), "$D$1");
}

TEST_F(EngineTest, CharactersTakenBeforeAnInsertActOnTheMovedCell) {
    At("B2")->SetValue("Hello world");
    auto characters = At("B2")->Characters(1, 5);
    sheet->Rows(1)->Insert();
    EXPECT_EQ(characters->Text(), "Hello");
    characters->Font()->SetBold(true);
    EXPECT_EQ(At("B3")->Characters(1, 5)->Font()->Bold(), Variant(true));
    characters->Insert("Howdy");
    EXPECT_EQ(At("B3")->Value(), Variant("Howdy world"));
    EXPECT_TRUE(At("B2")->Value().IsEmpty());
    sheet->Rows(3)->Delete();
    EXPECT_EQ(ErrorCodeOf([&] { characters->Text(); }), kObjectRequired);
}

TEST_F(EngineTest, ValueWrittenThroughARangeTakenBeforeAnInsertLandsInTheMovedCell) {
    auto range = At("B2");
    sheet->Columns(1)->Insert();
    range->SetValue("moved");
    EXPECT_EQ(At("C2")->Value(), Variant("moved"));
    EXPECT_TRUE(At("B2")->Value().IsEmpty());
}

TEST_F(EngineTest, CellInsertMovesOnlyRangesWithinItsBand) {
    auto inBand = At("B2");
    auto belowBand = At("B4");
    auto acrossBand = At("B2:B5");
    At("A1:A3")->Insert(xlShiftToRight);
    EXPECT_EQ(inBand->Address(), "$C$2");
    EXPECT_EQ(belowBand->Address(), "$B$4");
    // Part of it moved and part did not, so it keeps its place, as references in formulas do.
    EXPECT_EQ(acrossBand->Address(), "$B$2:$B$5");
}

TEST_F(EngineTest, RangeDerivedAfterAShiftStartsFromTheMovedCells) {
    auto range = At("B2");
    sheet->Rows(1)->Insert();
    EXPECT_EQ(range->Offset(1, 1)->Address(), "$C$4");
    EXPECT_EQ(range->EntireRow()->Address(), "$3:$3");
    auto copy = range->Cells();
    sheet->Columns(1)->Insert();
    EXPECT_EQ(copy->Address(), "$C$3");
}

TEST_F(EngineTest, NameOverAWholeColumnStaysWholeWhenRowsAreInserted) {
    book->Names()->Add("Column", "=Sheet1!$B:$B");
    sheet->Rows(1)->Insert();
    EXPECT_EQ(book->Names()->Item("Column")->RefersTo(), "=Sheet1!$B:$B");
}
