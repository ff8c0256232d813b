#include "embedded/engine_fixture.hpp"

using namespace excel;

TEST_F(EngineTest, InsertingAColumnShiftsCellsFormatsWidthsMergesAndNames) {
    At("B2")->SetValue("b");
    At("C2")->SetValue("c");
    sheet->Columns(2)->SetColumnWidth(20);
    sheet->Columns(3)->Font()->SetBold(true);
    At("C4:D5")->Merge();
    book->Names()->Add("Target", "=Sheet1!$C$2");
    sheet->Columns(2)->Insert();
    EXPECT_TRUE(At("B2")->Value().IsEmpty());
    EXPECT_EQ(At("C2")->Value(), Variant("b"));
    EXPECT_EQ(At("D2")->Value(), Variant("c"));
    EXPECT_EQ(At("C1")->ColumnWidth(), Variant(20.0));
    EXPECT_EQ(At("D9")->Font()->Bold(), Variant(true));
    EXPECT_EQ(At("E4")->MergeArea()->Address(), "$D$4:$E$5");
    EXPECT_EQ(book->Names()->Item("Target")->RefersTo(), "=Sheet1!$D$2");
}

TEST_F(EngineTest, InsertedColumnTakesTheFormatOfTheColumnToItsLeft) {
    sheet->Columns(1)->SetColumnWidth(30);
    sheet->Columns(1)->Interior()->SetColor(0x00FF00);
    At("A3")->Font()->SetItalic(true);
    At("B1")->EntireColumn()->Insert();
    EXPECT_EQ(At("B1")->ColumnWidth(), Variant(30.0));
    EXPECT_EQ(At("B7")->Interior()->Color(), Variant(static_cast<double>(0x00FF00)));
    EXPECT_EQ(At("B3")->Font()->Italic(), Variant(true));
    EXPECT_EQ(At("C1")->ColumnWidth(), Variant(8.43));
}

TEST_F(EngineTest, InsertingRowsShiftsDown) {
    At("A2")->SetValue(2.0);
    At("A3")->SetValue(3.0);
    sheet->Rows(3)->SetRowHeight(25);
    book->Names()->Add("Block", "=Sheet1!$A$2:$A$3");
    At("A3:B4")->EntireRow()->Insert();
    EXPECT_EQ(At("A2")->Value(), Variant(2.0));
    EXPECT_TRUE(At("A3")->Value().IsEmpty());
    EXPECT_EQ(At("A5")->Value(), Variant(3.0));
    EXPECT_EQ(At("A5")->RowHeight(), Variant(25.0));
    EXPECT_EQ(book->Names()->Item("Block")->RefersTo(), "=Sheet1!$A$2:$A$5");
}

TEST_F(EngineTest, PartialBlocksShiftAsAsked) {
    At("B2")->SetValue("down");
    At("C2")->SetValue("stays");
    At("B2")->Insert(xlShiftDown);
    EXPECT_EQ(At("B3")->Value(), Variant("down"));
    EXPECT_EQ(At("C2")->Value(), Variant("stays"));
    At("A3")->Insert(xlShiftToRight);
    EXPECT_EQ(At("C3")->Value(), Variant("down"));
    At("A3")->Delete(xlShiftToLeft);
    EXPECT_EQ(At("B3")->Value(), Variant("down"));
    At("B2")->Delete(xlShiftUp);
    EXPECT_EQ(At("B2")->Value(), Variant("down"));
}

TEST_F(EngineTest, DeletingColumnsMirrorsInserting) {
    At("A1")->SetValue("a");
    At("C1")->SetValue("c");
    sheet->Columns(3)->SetColumnWidth(15);
    book->Names()->Add("Gone", "=Sheet1!$B$1");
    book->Names()->Add("Moved", "=Sheet1!$C$1");
    sheet->Columns(2)->Delete();
    EXPECT_EQ(At("B1")->Value(), Variant("c"));
    EXPECT_EQ(At("B1")->ColumnWidth(), Variant(15.0));
    EXPECT_EQ(book->Names()->Item("Gone")->RefersTo(), "=Sheet1!#REF!");
    EXPECT_EQ(book->Names()->Item("Moved")->RefersTo(), "=Sheet1!$B$1");
}

TEST_F(EngineTest, PushingDataOffTheSheetIsRefusedAndChangesNothing) {
    At("XFD1")->SetValue("edge");
    At("A1")->SetValue("start");
    EXPECT_EQ(ErrorCodeOf([&] { sheet->Columns(1)->Insert(); }), kRefused);
    EXPECT_EQ(At("A1")->Value(), Variant("start"));
    EXPECT_EQ(At("XFD1")->Value(), Variant("edge"));
    At("A1048576")->SetValue(1.0);
    EXPECT_EQ(ErrorCodeOf([&] { sheet->Rows(1)->Insert(); }), kRefused);
}

TEST_F(EngineTest, ShiftingPartOfAMergeIsRefused) {
    At("B2:C3")->Merge();
    EXPECT_EQ(ErrorCodeOf([&] { At("B1")->Insert(xlShiftDown); }), kRefused);
    EXPECT_EQ(At("B2")->MergeArea()->Address(), "$B$2:$C$3");
}

TEST_F(EngineTest, InsertCanTakeFormatsFromTheRight) {
    sheet->Columns(2)->SetColumnWidth(30);
    At("B4")->Font()->SetBold(true);
    sheet->Columns(2)->Insert(xlShiftToRight, xlFormatFromRightOrBelow);
    EXPECT_EQ(At("B1")->ColumnWidth(), Variant(30.0));
    EXPECT_EQ(At("B4")->Font()->Bold(), Variant(true));
    EXPECT_EQ(At("C4")->Font()->Bold(), Variant(true));
}
