#include "table/header_expectations.hpp"

using HeaderSummaryTest = HeaderTest;

// Signature A1:A2, top header B1:E2, left header A3:A4.
TEST_F(HeaderSummaryTest, TheSummaryIsCentredOnceAcrossTheMergedOutermostRow) {
    Place(2, 4, 2, 1);
    At("C1")->SetValue("old");
    table->WriteHeaderItem(VosTopHeader, 2, "inner");
    table->WriteHeaderSummary(VosTopHeader, "All regions");
    EXPECT_EQ(MergeArea("B1"), "B1:E1");
    EXPECT_TRUE(At("B1:E1")->MergeCells().ToBool());
    EXPECT_EQ(At("B1")->HorizontalAlignment().ToInt(), excel::xlCenterAcrossSelection);
    EXPECT_EQ(Value("B1"), excel::Variant("All regions"));
    EXPECT_EQ(Text("C2"), "inner");
    EXPECT_EQ(MergeArea("A1"), "A1");
}

TEST_F(HeaderSummaryTest, ASecondSummaryReplacesTheFirst) {
    Place(2, 4, 2, 1);
    table->WriteHeaderSummary(VosTopHeader, "first");
    table->WriteHeaderSummary(VosTopHeader, "second");
    EXPECT_EQ(MergeArea("E1"), "B1:E1");
    EXPECT_EQ(Value("B1"), excel::Variant("second"));
}

TEST_F(HeaderSummaryTest, WithOneHeaderRowTheSummaryTakesThatRow) {
    Place(2, 3, 1, 0);
    table->WriteHeaderSummary(VosTopHeader, 2024.0);
    EXPECT_EQ(MergeArea("A1"), "A1:C1");
    EXPECT_EQ(Value("A1"), excel::Variant(2024.0));
}

TEST_F(HeaderSummaryTest, AOneColumnTopHeaderIsWrittenWithoutMerging) {
    Place(2, 1, 2, 1);
    table->WriteHeaderSummary(VosTopHeader, "Total");
    EXPECT_EQ(Text("B1"), "Total");
    EXPECT_FALSE(At("B1")->MergeCells().ToBool());
    EXPECT_EQ(At("B1")->HorizontalAlignment().ToInt(), excel::xlCenter);
}

TEST_F(HeaderSummaryTest, TheLeftHeaderIsRefused) {
    Place(2, 4, 2, 1);
    table->WriteHeaderItem(VosTopHeader, 1, "kept");
    ExpectRefused([&] { table->WriteHeaderSummary(VosLeftHeader, "x"); }, InvalidArgument, NotForLeftHeader);
}
