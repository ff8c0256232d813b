#include "embedded/document/save_open_fixture.hpp"

using namespace excel;

// Merged blocks as table titles and headers use them: one row across columns, one column down
// rows, a value written to the whole block, and the values found in the cells when merging.

TEST_F(SaveOpenTest, MergingARowOrAColumnMakesOneBlock) {
    At("A1:K1")->SetMergeCells(true);
    At("A5:A9")->SetMergeCells(true);
    EXPECT_EQ(At("F1")->MergeArea()->Address(), "$A$1:$K$1");
    EXPECT_EQ(At("A7")->MergeArea()->Address(), "$A$5:$A$9");
    EXPECT_EQ(At("A1:K1")->MergeCells(), Variant(true));
    EXPECT_EQ(At("A5:A9")->MergeCells(), Variant(true));
    EXPECT_EQ(At("B2")->MergeCells(), Variant(false));
}

TEST_F(SaveOpenTest, UnmergingOneCellUnmergesItsWholeBlock) {
    At("A1:K1")->SetMergeCells(true);
    At("C1")->SetMergeCells(false);
    EXPECT_EQ(At("A1:K1")->MergeCells(), Variant(false));
    EXPECT_EQ(At("C1")->MergeArea()->Address(), "$C$1");
    At("D4")->SetMergeCells(false);  // an unmerged cell stays as it is
    EXPECT_EQ(At("D4")->MergeCells(), Variant(false));
}

// A scalar written to a range is written to each of its cells, merged or not: the cells the
// merge hides hold the value too and show it again once unmerged.
TEST_F(SaveOpenTest, ScalarWrittenToAMergedBlockFillsEveryCell) {
    auto title = At("A1:D1");
    title->SetMergeCells(true);
    title->SetValue("Main");
    EXPECT_EQ(At("A1")->Value(), Variant("Main"));
    EXPECT_EQ(At("D1")->Value(), Variant("Main"));
    EXPECT_EQ(title->MergeCells(), Variant(true));
    auto opened = SaveAndReopen("merged_value.xlsx");
    auto reopened = opened->Worksheets(1);
    EXPECT_EQ(reopened->Range("B1")->MergeArea()->Address(), "$A$1:$D$1");
    EXPECT_EQ(reopened->Range("A1")->Value(), Variant("Main"));
    EXPECT_EQ(reopened->Range("D1")->Value(), Variant("Main"));
}

TEST_F(SaveOpenTest, ValueWrittenToTheTopLeftCellIsTheBlocksValue) {
    auto header = At("A5:A9");
    header->SetMergeCells(true);
    At("A5")->SetValue("Rows");
    EXPECT_EQ(header->Cells(1)->Value(), Variant("Rows"));
    EXPECT_TRUE(At("A6")->Value().IsEmpty());
}

// Merging keeps one value: the first one in reading order, moved into the top-left cell;
// every other value in the block is dropped.
TEST_F(SaveOpenTest, MergingKeepsTheFirstValueInReadingOrder) {
    At("A1")->SetValue("first");
    At("C1")->SetValue("dropped");
    At("B2")->SetValue("dropped too");
    At("A1:C2")->SetMergeCells(true);
    EXPECT_EQ(At("A1")->Value(), Variant("first"));
    EXPECT_TRUE(At("C1")->Value().IsEmpty());
    EXPECT_TRUE(At("B2")->Value().IsEmpty());
}

TEST_F(SaveOpenTest, MergingMovesTheFirstValueIntoAnEmptyTopLeftCell) {
    app->SetDisplayAlerts(false);
    At("C2")->SetValue(5.0);
    At("B3")->SetValue("later");
    At("B2:C3")->SetMergeCells(true);
    EXPECT_EQ(At("B2")->Value(), Variant(5.0));
    EXPECT_TRUE(At("C2")->Value().IsEmpty());
    EXPECT_TRUE(At("B3")->Value().IsEmpty());
    auto opened = SaveAndReopen("merged_moved.xlsx");
    auto reopened = opened->Worksheets(1);
    EXPECT_EQ(reopened->Range("B2")->Value(), Variant(5.0));
    EXPECT_TRUE(reopened->Range("C2")->Value().IsEmpty());
    EXPECT_EQ(reopened->Range("C3")->MergeArea()->Address(), "$B$2:$C$3");
}

TEST_F(SaveOpenTest, ClearingContentsBeforeMergingLeavesTheBlockEmpty) {
    At("A1:C1")->SetValue("old");
    At("A1:C1")->ClearContents();
    At("A1:C1")->SetMergeCells(true);
    EXPECT_TRUE(At("A1")->Value().IsEmpty());
    At("A1:C1")->SetValue("new");
    EXPECT_EQ(At("A1")->Value(), Variant("new"));
}

// Excel refuses to clear the contents of only a part of a merged block; the whole block, or a
// range around it, clears.
TEST_F(SaveOpenTest, ClearingContentsOfPartOfAMergedBlockIsRefused) {
    At("A1:C1")->SetMergeCells(true);
    At("A1:C1")->SetValue("kept");
    EXPECT_EQ(ErrorCodeOf([&] { At("A1")->ClearContents(); }), kRefused);
    EXPECT_EQ(ErrorCodeOf([&] { At("B1:D1")->ClearContents(); }), kRefused);
    EXPECT_EQ(At("A1")->Value(), Variant("kept"));
    At("A1")->SetValue(Variant());  // writing Empty to the top-left cell is allowed
    EXPECT_TRUE(At("A1")->Value().IsEmpty());
    At("A1:D2")->ClearContents();
    EXPECT_TRUE(At("C1")->Value().IsEmpty());
    EXPECT_EQ(At("A1:C1")->MergeCells(), Variant(true));
}

TEST_F(SaveOpenTest, CenterAcrossSelectionIsSavedAndReadBack) {
    At("A1:D1")->SetHorizontalAlignment(xlCenterAcrossSelection);
    At("A1")->SetValue("Title");
    EXPECT_EQ(At("A1:D1")->HorizontalAlignment(), Variant(xlCenterAcrossSelection));
    auto opened = SaveAndReopen("center_across.xlsx");
    EXPECT_EQ(opened->Worksheets(1)->Range("A1:D1")->HorizontalAlignment(), Variant(xlCenterAcrossSelection));
}
