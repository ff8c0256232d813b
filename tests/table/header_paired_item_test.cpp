#include "table/header_expectations.hpp"

using HeaderPairedItemTest = HeaderTest;

// Signature A1:A3, top header B1:D3, left header A4:A5.
TEST_F(HeaderPairedItemTest, ThePairFillsTheLastTwoRowsFirstValueAbove) {
    Place(2, 3, 3, 1);
    At("C1")->SetValue("outer");
    table->WriteHeaderPairedItem(VosTopHeader, 2, "Budget", 2024.0);
    EXPECT_EQ(Texts("C1:C3"), (std::vector<std::string>{"outer", "Budget", "2024"}));
    EXPECT_EQ(Value("C2"), excel::Variant("Budget"));
    EXPECT_EQ(Value("C3"), excel::Variant(2024.0));
    EXPECT_EQ(MergeArea("C3"), "C3");
}

TEST_F(HeaderPairedItemTest, WithTwoHeaderRowsThePairFillsTheWholeColumn) {
    Place(2, 3, 2, 0);
    table->WriteHeaderPairedItem(VosTopHeader, 3, "Actual", "USD");
    EXPECT_EQ(Texts("A1:C2"), (std::vector<std::string>{"", "", "Actual", "", "", "USD"}));
}

TEST_F(HeaderPairedItemTest, OneHeaderRowIsNotWideEnough) {
    Place(2, 3, 1, 1);
    table->WriteHeaderItem(VosTopHeader, 1, "kept");
    ExpectRefused([&] { table->WriteHeaderPairedItem(VosTopHeader, 1, "x", "y"); }, NotAllowedNow,
                  "The header is not wide enough to display a paired item.");
}

TEST_F(HeaderPairedItemTest, TheLeftHeaderIsRefusedBeforeTheHeaderRowsAreCounted) {
    Place(2, 3, 1, 2);
    ExpectRefused([&] { table->WriteHeaderPairedItem(VosLeftHeader, 1, "x", "y"); }, InvalidArgument,
                  NotForLeftHeader);
}

TEST_F(HeaderPairedItemTest, APositionOutsideTheTopHeaderIsRefused) {
    Place(2, 3, 3, 1);
    ExpectRefused([&] { table->WriteHeaderPairedItem(VosTopHeader, 0, "x", "y"); }, OutOfRange, "position");
    ExpectRefused([&] { table->WriteHeaderPairedItem(VosTopHeader, 4, "x", "y"); }, OutOfRange, "position");
}
