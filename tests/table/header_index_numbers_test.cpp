#include "table/header_expectations.hpp"

namespace {

// Signature A1:A2, top header B1:F2, left header A3:A6, interior B3:F6.
class HeaderIndexNumbersTest : public HeaderTest {
protected:
    void SetUp() override {
        HeaderTest::SetUp();
        Place(4, 5, 2, 1);
    }
};

}  // namespace

TEST_F(HeaderIndexNumbersTest, ByDefaultEveryTopHeaderPositionIsNumbered) {
    table->WriteHeaderIndexNumbers(VosTopHeader);
    EXPECT_EQ(Texts("B2:F2"), (std::vector<std::string>{"#1", "#2", "#3", "#4", "#5"}));
    EXPECT_EQ(Value("F2"), excel::Variant("#5"));
    EXPECT_EQ(Texts("B1:F1"), (std::vector<std::string>(5, "")));
}

TEST_F(HeaderIndexNumbersTest, ByDefaultEveryLeftHeaderPositionIsNumbered) {
    table->WriteHeaderIndexNumbers(VosLeftHeader);
    EXPECT_EQ(Texts("A3:A6"), (std::vector<std::string>{"#1", "#2", "#3", "#4"}));
}

TEST_F(HeaderIndexNumbersTest, FromALaterStartTheNumbersStillBeginAtOne) {
    table->WriteHeaderIndexNumbers(VosTopHeader, 3);
    EXPECT_EQ(Texts("B2:G2"), (std::vector<std::string>{"", "", "#1", "#2", "#3", ""}));
    table->WriteHeaderIndexNumbers(VosLeftHeader, 3, 0);
    EXPECT_EQ(Texts("A3:A7"), (std::vector<std::string>{"", "", "#1", "#2", ""}));
}

TEST_F(HeaderIndexNumbersTest, AGivenCountNumbersThatManyPositions) {
    table->WriteHeaderIndexNumbers(VosTopHeader, 2, 2, "Run ");
    EXPECT_EQ(Texts("B2:F2"), (std::vector<std::string>{"", "Run 1", "Run 2", "", ""}));
}

TEST_F(HeaderIndexNumbersTest, ACountOfTheWholeLengthFromTheFirstPositionFillsTheHeader) {
    table->WriteHeaderIndexNumbers(VosLeftHeader, 1, 4);
    EXPECT_EQ(Texts("A3:A7"), (std::vector<std::string>{"#1", "#2", "#3", "#4", ""}));
}

// The count is checked against the header's length, not the room after the start, so the labels
// run on past the header's end into the cells beyond the table.
TEST_F(HeaderIndexNumbersTest, FromALateStartAGivenCountRunsPastTheHeadersEnd) {
    table->WriteHeaderIndexNumbers(VosTopHeader, 4, 4);
    EXPECT_EQ(Texts("B2:I2"), (std::vector<std::string>{"", "", "", "#1", "#2", "#3", "#4", ""}));
    table->WriteHeaderIndexNumbers(VosLeftHeader, 4, 3);
    EXPECT_EQ(Texts("A6:A9"), (std::vector<std::string>{"#1", "#2", "#3", ""}));
}

TEST_F(HeaderIndexNumbersTest, AnEmptyPrefixWritesBareNumbers) {
    table->WriteHeaderIndexNumbers(VosTopHeader, 1, 0, "");
    EXPECT_EQ(Texts("B2:F2"), (std::vector<std::string>{"1", "2", "3", "4", "5"}));
    // Excel turns numeric texts written as values into numbers.
    EXPECT_EQ(Value("B2"), excel::Variant(1.0));
    EXPECT_EQ(Value("F2"), excel::Variant(5.0));
}

TEST_F(HeaderIndexNumbersTest, TheLabelsChangeNoFormatting) {
    table->WriteHeaderIndexNumbers(VosTopHeader);
    EXPECT_TRUE(At("C2")->Font()->Bold().ToBool());
    EXPECT_EQ(At("C2")->HorizontalAlignment().ToInt(), excel::xlCenter);
    EXPECT_EQ(At("C2")->NumberFormat().ToString(), "General");
}

TEST_F(HeaderIndexNumbersTest, ACountBelowZeroOrAboveTheLengthIsRefused) {
    ExpectRefused([&] { table->WriteHeaderIndexNumbers(VosTopHeader, 1, -1); }, OutOfRange, "numIndices");
    ExpectRefused([&] { table->WriteHeaderIndexNumbers(VosTopHeader, 1, 6); }, OutOfRange, "numIndices");
    ExpectRefused([&] { table->WriteHeaderIndexNumbers(VosLeftHeader, 2, 5); }, OutOfRange, "numIndices");
}

TEST_F(HeaderIndexNumbersTest, AStartOutsideTheHeaderIsNamedStartingPosition) {
    ExpectRefused([&] { table->WriteHeaderIndexNumbers(VosTopHeader, 0); }, OutOfRange, "startingPosition");
    ExpectRefused([&] { table->WriteHeaderIndexNumbers(VosTopHeader, 6); }, OutOfRange, "startingPosition");
    ExpectRefused([&] { table->WriteHeaderIndexNumbers(VosLeftHeader, 5); }, OutOfRange, "startingPosition");
}

TEST_F(HeaderIndexNumbersTest, TheStartIsCheckedBeforeTheCount) {
    ExpectRefused([&] { table->WriteHeaderIndexNumbers(VosLeftHeader, 0, -1); }, OutOfRange, "startingPosition");
}
