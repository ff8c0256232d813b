#include "table/header_expectations.hpp"

using HeaderMergedItemTest = HeaderTest;

// Signature A1:A3, top header B1:E3, left header A4:A5.
TEST_F(HeaderMergedItemTest, TheItemIsMergedOverEveryHeaderRowAndCentredVertically) {
    Place(2, 4, 3, 1);
    At("C1")->SetValue("old top");
    table->WriteHeaderItem(VosTopHeader, 2, "old inner");
    table->WriteHeaderMergedItem(VosTopHeader, 2, "Total");
    EXPECT_EQ(MergeArea("C2"), "C1:C3");
    EXPECT_TRUE(At("C1:C3")->MergeCells().ToBool());
    EXPECT_EQ(At("C1")->VerticalAlignment().ToInt(), excel::xlCenter);
    EXPECT_EQ(Value("C1"), excel::Variant("Total"));
}

TEST_F(HeaderMergedItemTest, ASecondItemAtThePositionReplacesTheFirst) {
    Place(2, 4, 3, 1);
    table->WriteHeaderMergedItem(VosTopHeader, 4, "first");
    table->WriteHeaderMergedItem(VosTopHeader, 4, "second");
    EXPECT_EQ(MergeArea("E1"), "E1:E3");
    EXPECT_EQ(Value("E1"), excel::Variant("second"));
}

TEST_F(HeaderMergedItemTest, ClearingKeepsTheHeaderFormatting) {
    Place(2, 4, 3, 1);
    table->WriteHeaderMergedItem(VosTopHeader, 1, 12.0);
    EXPECT_EQ(Value("B1"), excel::Variant(12.0));
    EXPECT_TRUE(At("B1")->Font()->Bold().ToBool());
    EXPECT_EQ(At("B1")->HorizontalAlignment().ToInt(), excel::xlCenter);
}

TEST_F(HeaderMergedItemTest, NeighbouringPositionsAreLeftAlone) {
    Place(2, 4, 3, 1);
    table->WriteHeaderItem(VosTopHeader, 1, "left");
    table->WriteHeaderItem(VosTopHeader, 3, "right");
    table->WriteHeaderMergedItem(VosTopHeader, 2, "middle");
    EXPECT_EQ(Text("B3"), "left");
    EXPECT_EQ(Text("D3"), "right");
    EXPECT_EQ(MergeArea("B3"), "B3");
    EXPECT_EQ(MergeArea("D3"), "D3");
    EXPECT_EQ(MergeArea("A1"), "A1");
}

TEST_F(HeaderMergedItemTest, WithOneHeaderRowOneCellIsWrittenUnmerged) {
    Place(2, 3, 1, 1);
    table->WriteHeaderMergedItem(VosTopHeader, 3, "Only");
    EXPECT_EQ(Text("D1"), "Only");
    EXPECT_FALSE(At("D1")->MergeCells().ToBool());
    EXPECT_EQ(MergeArea("D1"), "D1");
    EXPECT_EQ(At("D1")->VerticalAlignment().ToInt(), excel::xlCenter);
    EXPECT_EQ(Text("D2"), "");
}

TEST_F(HeaderMergedItemTest, TheLeftHeaderIsRefused) {
    Place(2, 4, 3, 1);
    table->WriteHeaderItem(VosLeftHeader, 1, "kept");
    ExpectRefused([&] { table->WriteHeaderMergedItem(VosLeftHeader, 1, "x"); }, InvalidArgument, NotForLeftHeader);
}

TEST_F(HeaderMergedItemTest, ThePositionIsCheckedBeforeTheLeftHeaderIsRefused) {
    Place(2, 4, 3, 1);
    ExpectRefused([&] { table->WriteHeaderMergedItem(VosLeftHeader, 3, "x"); }, OutOfRange, "position");
}

TEST_F(HeaderMergedItemTest, APositionOutsideTheTopHeaderIsRefused) {
    Place(2, 4, 3, 1);
    table->WriteHeaderItem(VosTopHeader, 4, "kept");
    ExpectRefused([&] { table->WriteHeaderMergedItem(VosTopHeader, 0, "x"); }, OutOfRange, "position");
    ExpectRefused([&] { table->WriteHeaderMergedItem(VosTopHeader, 5, "x"); }, OutOfRange, "position");
}

// The summary's merged row would be cut by the item's column; the spreadsheet refuses to clear
// part of a merged block, and that refusal reaches the caller before anything is written.
TEST_F(HeaderMergedItemTest, UnderASummaryTheSpreadsheetRefusesTheItem) {
    Place(2, 4, 3, 1);
    table->WriteHeaderSummary(VosTopHeader, "All");
    ExpectRefused([&] { table->WriteHeaderMergedItem(VosTopHeader, 2, "x"); }, static_cast<int32_t>(0x800A03EC),
                  "We can't do that to a merged cell.");
}
