#include "table/table_layout_fixture.hpp"

#include <excel/areas.hpp>

using TableRangesTest = TableLayoutTest;

TEST_F(TableRangesTest, WithoutTitlesTheHeadersStartOnTheFirstRow) {
    const auto table = AddTableAt("B2", 3, 2, 1, 1);
    EXPECT_EQ(AddressOf(table->TableRange()), "B2:D5");
    EXPECT_EQ(LayoutOf(*table), (TableLayout{"none", "B2", "B3:B5", "C2:D2", "C3:D5"}));
}

TEST_F(TableRangesTest, AMainTitleTakesOneRowAcrossTheWholeWidth) {
    const auto table = AddTableAt("B2", 3, 2, 2, 2, "Main");
    EXPECT_EQ(AddressOf(table->TableRange()), "B2:E7");
    EXPECT_EQ(LayoutOf(*table), (TableLayout{"B2:E2", "B3:C4", "B5:C7", "D3:E4", "D5:E7"}));
}

TEST_F(TableRangesTest, AMainTitleAndASubtitleTakeTwoRows) {
    const auto table = AddTableAt("B2", 2, 3, 1, 1, "Main", "Sub");
    EXPECT_EQ(AddressOf(table->TableRange()), "B2:E6");
    EXPECT_EQ(LayoutOf(*table), (TableLayout{"B2:E3", "B4", "B5:B6", "C4:E4", "C5:E6"}));
}

TEST_F(TableRangesTest, ASubtitleAloneTakesOneTitleRow) {
    const auto table = AddTableAt("B2", 2, 2, 1, 1, "", "Sub");
    EXPECT_EQ(AddressOf(table->TableRange()), "B2:D5");
    EXPECT_EQ(LayoutOf(*table), (TableLayout{"B2:D2", "B3", "B4:B5", "C3:D3", "C4:D5"}));
}

TEST_F(TableRangesTest, WithoutHeaderColumnsThereIsNoSignatureOrLeftHeader) {
    const auto table = AddTableAt("B2", 2, 3, 2, 0, "Main");
    EXPECT_EQ(AddressOf(table->TableRange()), "B2:D6");
    EXPECT_EQ(LayoutOf(*table), (TableLayout{"B2:D2", "none", "none", "B3:D4", "B5:D6"}));
}

TEST_F(TableRangesTest, FiveHeaderRowsAndColumnsSurroundAOneCellInterior) {
    const auto table = AddTableAt("B2", 1, 1, 5, 5);
    EXPECT_EQ(AddressOf(table->TableRange()), "B2:G7");
    EXPECT_EQ(LayoutOf(*table), (TableLayout{"none", "B2:F6", "B7:F7", "G2:G6", "G7"}));
}

TEST_F(TableRangesTest, TheAnchorCellIsTheTopLeftCellOfTheWholeBlock) {
    const auto table = AddTableAt("C4", 2, 2, 1, 1, "Main", "Sub");
    EXPECT_EQ(AddressOf(table->AnchorCell()), "C4");
    EXPECT_EQ(AddressOf(table->TableRange()), "C4:E8");
    EXPECT_TRUE(excel::IsSameObject(table->TableRange()->Worksheet(), excelSheet));
}

TEST_F(TableRangesTest, TheExtendedTopHeaderIsTheTopHeaderJoinedByTheSignature) {
    const auto table = AddTableAt("B2", 3, 2, 2, 2, "Main");
    const auto extended = table->TopHeaderRange(true);
    ASSERT_EQ(extended->Areas()->Count(), 2);
    EXPECT_EQ(AddressOf(extended->Areas()->Item(1)), "D3:E4");
    EXPECT_EQ(AddressOf(extended->Areas()->Item(2)), "B3:C4");
    EXPECT_EQ(AddressOf(extended), "D3:E4,B3:C4");
}

TEST_F(TableRangesTest, TheExtendedLeftHeaderIsTheLeftHeaderJoinedByTheSignature) {
    const auto table = AddTableAt("B2", 3, 2, 2, 2, "Main");
    const auto extended = table->LeftHeaderRange(true);
    ASSERT_EQ(extended->Areas()->Count(), 2);
    EXPECT_EQ(AddressOf(extended->Areas()->Item(1)), "B5:C7");
    EXPECT_EQ(AddressOf(extended->Areas()->Item(2)), "B3:C4");
}

TEST_F(TableRangesTest, WithoutTheFlagTheHeadersComeAlone) {
    const auto table = AddTableAt("B2", 3, 2, 2, 2, "Main");
    EXPECT_EQ(table->TopHeaderRange(false)->Areas()->Count(), 1);
    EXPECT_EQ(table->LeftHeaderRange(false)->Areas()->Count(), 1);
}

TEST_F(TableRangesTest, WithoutHeaderColumnsTheExtendedTopHeaderIsThePlainOne) {
    const auto table = AddTableAt("B2", 2, 3, 2, 0);
    const auto extended = table->TopHeaderRange(true);
    EXPECT_EQ(extended->Areas()->Count(), 1);
    EXPECT_EQ(AddressOf(extended), "B2:D3");
    EXPECT_EQ(table->LeftHeaderRange(true), nullptr);
}

TEST_F(TableRangesTest, WithoutHeaderRowsTheExtendedLeftHeaderIsThePlainOne) {
    const auto table = InitializeTable(At("B2:D5"), 0, 1);
    EXPECT_EQ(table->TopHeaderRange(true), nullptr);
    const auto extended = table->LeftHeaderRange(true);
    EXPECT_EQ(extended->Areas()->Count(), 1);
    EXPECT_EQ(AddressOf(extended), "B2:B5");
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
        table->TableRange(),
        [&] { table->ValidateHeaderPosition(vos::VosTopHeader, 4, "startingPosition"); },
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
            [&] {
                table->ValidateHeaderPosition(static_cast<vos::VosTableHeaderType>(whichHeader), 1, "position");
            },
            vos::error_code::OutOfRange, "whichHeader");
    }
}
