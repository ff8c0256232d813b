#include "table/table_layout_fixture.hpp"

#include <excel/areas.hpp>

using TableRangesTest = TableLayoutTest;

namespace {

// A table placed at B2 and the block and ranges it gets.
struct TableShape {
    const char* name;
    int32_t interiorRows;
    int32_t interiorColumns;
    int16_t headerRows;
    int16_t headerColumns;
    const char* mainTitle;
    const char* subTitle;
    const char* block;
    TableLayout layout;
};

void PrintTo(const TableShape& shape, std::ostream* out) {
    *out << shape.name;
}

const TableShape Shapes[] = {
    {"WithoutTitles", 3, 2, 1, 1, "", "", "B2:D5", {"none", "B2", "B3:B5", "C2:D2", "C3:D5"}},
    {"WithAMainTitle", 3, 2, 2, 2, "Main", "", "B2:E7", {"B2:E2", "B3:C4", "B5:C7", "D3:E4", "D5:E7"}},
    {"WithBothTitles", 2, 3, 1, 1, "Main", "Sub", "B2:E6", {"B2:E3", "B4", "B5:B6", "C4:E4", "C5:E6"}},
    {"WithASubtitleAlone", 2, 2, 1, 1, "", "Sub", "B2:D5", {"B2:D2", "B3", "B4:B5", "C3:D3", "C4:D5"}},
    {"WithoutHeaderColumns", 2, 3, 2, 0, "Main", "", "B2:D6", {"B2:D2", "none", "none", "B3:D4", "B5:D6"}},
    {"WithFiveHeaderRowsAndColumns", 1, 1, 5, 5, "", "", "B2:G7", {"none", "B2:F6", "B7:F7", "G2:G6", "G7"}},
};

// The addresses of the range's areas in order.
std::vector<std::string> AreaAddresses(const std::shared_ptr<excel::Range>& range) {
    std::vector<std::string> addresses;
    for (int32_t area = 1; area <= range->Areas()->Count(); ++area)
        addresses.push_back(range->Areas()->Item(area)->Address(false, false));
    return addresses;
}

class TableGeometryTest : public TableLayoutTest, public ::testing::WithParamInterface<TableShape> {};

}  // namespace

TEST_P(TableGeometryTest, TheBlockDividesIntoTitleSignatureHeadersAndInterior) {
    const TableShape& shape = GetParam();
    const auto table = AddTableAt("B2", shape.interiorRows, shape.interiorColumns, shape.headerRows,
                                  shape.headerColumns, shape.mainTitle, shape.subTitle);
    EXPECT_EQ(AddressOf(table->TableRange()), shape.block);
    EXPECT_EQ(LayoutOf(*table), shape.layout);
}

INSTANTIATE_TEST_SUITE_P(Shapes, TableGeometryTest, ::testing::ValuesIn(Shapes),
                         [](const ::testing::TestParamInfo<TableShape>& testCase) {
                             return std::string(testCase.param.name);
                         });

TEST_F(TableRangesTest, TheAnchorCellIsTheTopLeftCellOfTheWholeBlock) {
    const auto table = AddTableAt("C4", 2, 2, 1, 1, "Main", "Sub");
    EXPECT_EQ(AddressOf(table->AnchorCell()), "C4");
    EXPECT_EQ(AddressOf(table->TableRange()), "C4:E8");
    EXPECT_TRUE(excel::IsSameObject(table->TableRange()->Worksheet(), excelSheet));
}

TEST_F(TableRangesTest, TheExtendedHeadersAreTheHeadersJoinedByTheSignatureInThatOrder) {
    const auto table = AddTableAt("B2", 3, 2, 2, 2, "Main");
    EXPECT_EQ(AreaAddresses(table->TopHeaderRange(true)), (std::vector<std::string>{"D3:E4", "B3:C4"}));
    EXPECT_EQ(AreaAddresses(table->LeftHeaderRange(true)), (std::vector<std::string>{"B5:C7", "B3:C4"}));
    EXPECT_EQ(AddressOf(table->TopHeaderRange(true)), "D3:E4,B3:C4");
}

TEST_F(TableRangesTest, WithoutTheFlagTheHeadersComeAlone) {
    const auto table = AddTableAt("B2", 3, 2, 2, 2, "Main");
    EXPECT_EQ(AreaAddresses(table->TopHeaderRange(false)), std::vector<std::string>{"D3:E4"});
    EXPECT_EQ(AreaAddresses(table->LeftHeaderRange(false)), std::vector<std::string>{"B5:C7"});
}

TEST_F(TableRangesTest, WithoutHeaderColumnsTheExtendedTopHeaderIsThePlainOne) {
    const auto table = AddTableAt("B2", 2, 3, 2, 0);
    EXPECT_EQ(AreaAddresses(table->TopHeaderRange(true)), std::vector<std::string>{"B2:D3"});
    EXPECT_EQ(table->LeftHeaderRange(true), nullptr);
}

TEST_F(TableRangesTest, WithoutHeaderRowsTheExtendedLeftHeaderIsThePlainOne) {
    const auto table = InitializeTable(At("B2:D5"), 0, 1);
    EXPECT_EQ(table->TopHeaderRange(true), nullptr);
    EXPECT_EQ(AreaAddresses(table->LeftHeaderRange(true)), std::vector<std::string>{"B2:B5"});
}

TEST_F(TableRangesTest, CountsOfTitleRowsAndHeaderLines) {
    const auto table = InitializeTable(At("B2:G9"), 2, 3, "Main", "Sub");
    EXPECT_EQ(table->TitleRowCount(), 2);
    EXPECT_EQ(table->TopHeaderRowCount(), 2);
    EXPECT_EQ(table->LeftHeaderColumnCount(), 3);
}

TEST_F(TableRangesTest, ASubtitleAloneCountsOneTitleRow) {
    EXPECT_EQ(InitializeTable(At("B2:D5"), 1, 1, "", "Sub")->TitleRowCount(), 1);
    EXPECT_EQ(InitializeTable(At("F2:H5"), 1, 1, "Main")->TitleRowCount(), 1);
}

TEST_F(TableRangesTest, MissingRangesCountZero) {
    const auto untitled = InitializeTable(At("B2:D5"), 1, 0);
    EXPECT_EQ(untitled->TitleRowCount(), 0);
    EXPECT_EQ(untitled->LeftHeaderColumnCount(), 0);
    EXPECT_EQ(InitializeTable(At("F2:H5"), 0, 1)->TopHeaderRowCount(), 0);
}

TEST_F(TableRangesTest, HeaderPositionsRunFromOneToTheHeadersLength) {
    const auto table = InitializeTable(At("B2:F7"), 2, 2, "Main");
    for (const int32_t position : {1, 3})
        EXPECT_NO_THROW(table->ValidateHeaderPosition(vos::VosTopHeader, position, "position"));
    for (const int32_t position : {1, 3})
        EXPECT_NO_THROW(table->ValidateHeaderPosition(vos::VosLeftHeader, position, "position"));
}

TEST_F(TableRangesTest, ATopHeaderPositionOutsideItsColumnsIsRefusedWithTheCallersName) {
    const auto table = InitializeTable(At("B2:F7"), 2, 2, "Main");
    for (const int32_t position : {0, 4, -1}) {
        ExpectRefusedLeaving(
            table->TableRange(), [&] { table->ValidateHeaderPosition(vos::VosTopHeader, position, "position"); },
            vos::error_code::OutOfRange, "position");
    }
    ExpectRefusedLeaving(
        table->TableRange(), [&] { table->ValidateHeaderPosition(vos::VosTopHeader, 4, "startingPosition"); },
        vos::error_code::OutOfRange, "startingPosition");
}

TEST_F(TableRangesTest, ALeftHeaderPositionOutsideItsRowsIsRefusedWithTheCallersName) {
    const auto table = InitializeTable(At("B2:F7"), 2, 2, "Main");
    for (const int32_t position : {0, 4}) {
        ExpectRefusedLeaving(
            table->TableRange(),
            [&] { table->ValidateHeaderPosition(vos::VosLeftHeader, position, "startingPosition"); },
            vos::error_code::OutOfRange, "startingPosition");
    }
}

TEST_F(TableRangesTest, ATableWithoutTopHeaderRefusesEveryTopHeaderPosition) {
    const auto table = InitializeTable(At("B2:D5"), 0, 1);
    for (const int32_t position : {1, 0}) {
        ExpectRefusedLeaving(
            table->TableRange(), [&] { table->ValidateHeaderPosition(vos::VosTopHeader, position, "position"); },
            vos::error_code::NotAllowedNow, "Table has no top header.");
    }
}

TEST_F(TableRangesTest, ATableWithoutLeftHeaderRefusesEveryLeftHeaderPosition) {
    const auto table = AddTableAt("B2", 2, 2, 1, 0);
    auto& internals = dynamic_cast<vos::ReportTable&>(*table);
    for (const int32_t position : {1, 0}) {
        ExpectRefusedLeaving(
            table->TableRange(), [&] { internals.ValidateHeaderPosition(vos::VosLeftHeader, position, "position"); },
            vos::error_code::NotAllowedNow, "Table has no left header.");
    }
}

TEST_F(TableRangesTest, AHeaderTypeOutsideTheEnumerationIsRefusedAsWhichHeader) {
    const auto table = InitializeTable(At("B2:F7"), 2, 2, "Main");
    for (const int32_t whichHeader : {2, -1}) {
        ExpectRefusedLeaving(
            table->TableRange(),
            [&] { table->ValidateHeaderPosition(static_cast<vos::VosTableHeaderType>(whichHeader), 1, "position"); },
            vos::error_code::OutOfRange, "whichHeader");
    }
}
