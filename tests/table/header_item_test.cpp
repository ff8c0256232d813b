#include "table/header_expectations.hpp"

namespace {

// Signature A1:B2, top header C1:F2, left header A3:B5, interior C3:F5.
class HeaderItemTest : public HeaderTest {
protected:
    void SetUp() override {
        HeaderTest::SetUp();
        Place(3, 4, 2, 2);
    }
};

}  // namespace

TEST_F(HeaderItemTest, ATopHeaderItemGoesIntoTheInnermostRow) {
    table->WriteHeaderItem(VosTopHeader, 2, "Revenue");
    EXPECT_EQ(Text("D2"), "Revenue");
    EXPECT_EQ(Texts("C1:F2"), (std::vector<std::string>{"", "", "", "", "", "Revenue", "", ""}));
}

TEST_F(HeaderItemTest, ALeftHeaderItemGoesIntoTheInnermostColumn) {
    table->WriteHeaderItem(VosLeftHeader, 3, "Europe");
    EXPECT_EQ(Texts("A3:B5"), (std::vector<std::string>{"", "", "", "", "", "Europe"}));
}

TEST_F(HeaderItemTest, TheFirstAndLastPositionsOfEachHeaderCanBeWritten) {
    table->WriteHeaderItem(VosTopHeader, 1, "first");
    table->WriteHeaderItem(VosTopHeader, 4, "last");
    table->WriteHeaderItem(VosLeftHeader, 1, "top");
    table->WriteHeaderItem(VosLeftHeader, 3, "bottom");
    EXPECT_EQ(Text("C2"), "first");
    EXPECT_EQ(Text("F2"), "last");
    EXPECT_EQ(Text("B3"), "top");
    EXPECT_EQ(Text("B5"), "bottom");
}

TEST_F(HeaderItemTest, ValuesAreStoredAsGiven) {
    table->WriteHeaderItem(VosTopHeader, 1, 2024.5);
    table->WriteHeaderItem(VosTopHeader, 2, "Q1");
    table->WriteHeaderItem(VosLeftHeader, 1, true);
    EXPECT_EQ(Value("C2"), excel::Variant(2024.5));
    EXPECT_EQ(Value("D2"), excel::Variant("Q1"));
    EXPECT_EQ(At("D2")->Formula().ToString(), "Q1");
    EXPECT_EQ(Value("B3"), excel::Variant(true));
}

TEST_F(HeaderItemTest, WritingChangesNoFormatting) {
    const auto formatOf = [&](const std::string& address) {
        const auto cell = At(address);
        return cell->HorizontalAlignment().ToString() + " " + cell->VerticalAlignment().ToString() + " " +
               cell->NumberFormat().ToString() + " " + cell->Font()->Bold().ToString() + " " +
               cell->Font()->Size().ToString() + " " + AddressOf(cell->MergeArea());
    };
    const auto topBefore = formatOf("E2");
    const auto leftBefore = formatOf("B4");
    table->WriteHeaderItem(VosTopHeader, 3, "x");
    table->WriteHeaderItem(VosLeftHeader, 2, 7.0);
    EXPECT_EQ(formatOf("E2"), topBefore);
    EXPECT_EQ(formatOf("B4"), leftBefore);
}

TEST_F(HeaderItemTest, APositionOutsideTheHeaderIsRefused) {
    ExpectRefused([&] { table->WriteHeaderItem(VosTopHeader, 0, "x"); }, OutOfRange, "position");
    ExpectRefused([&] { table->WriteHeaderItem(VosTopHeader, 5, "x"); }, OutOfRange, "position");
    ExpectRefused([&] { table->WriteHeaderItem(VosLeftHeader, 0, "x"); }, OutOfRange, "position");
    ExpectRefused([&] { table->WriteHeaderItem(VosLeftHeader, 4, "x"); }, OutOfRange, "position");
}

TEST_F(HeaderItemTest, PositionsCountFromTheHeadersBelowTheTitleRows) {
    // Titles A6:F7, signature A8:B9, top header C8:F9, left header A10:B12.
    Place(3, 4, 2, 2, "Main", "Sub");
    table->WriteHeaderItem(VosTopHeader, 1, "column");
    table->WriteHeaderItem(VosLeftHeader, 1, "row");
    EXPECT_EQ(Text("C9"), "column");
    EXPECT_EQ(Text("B10"), "row");
}
