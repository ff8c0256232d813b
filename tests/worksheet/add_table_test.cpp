#include "table/table_layout_fixture.hpp"
#include "worksheet/report_sheet_fixture.hpp"

#include <vos/theme_property_type.hpp>

#include <limits>

namespace {

constexpr int32_t MostInteriorRows = std::numeric_limits<int32_t>::max();

// A report sheet with something already written where the next table would go.
class AddTableTest : public TableLayoutTest {
protected:
    void SetUp() override {
        TableLayoutTest::SetUp();
        FillWithOldContent("B2:H12");
        sheet->SetCurrentCell(At("B2"));
    }

    // Checks that the placement fails with this code and text, leaving the cursor and the cells
    // around it as they were.
    template <class Call>
    void ExpectNotPlaced(Call&& call, int32_t code, const std::string& text) {
        const std::string cursor = Cursor();
        ExpectRefusedLeaving(At("A1:I13"), call, code, text);
        EXPECT_EQ(Cursor(), cursor);
    }

    void PutCursorAt(int32_t row, int32_t column) { sheet->SetCurrentCell(excelSheet->Cells(row, column)); }
};

}  // namespace

TEST_F(AddTableTest, TenRowsThreeColumnsAndOneHeaderLineEachWayTakeElevenRowsAndFourColumns) {
    const auto table = sheet->AddTable(10, 3, 1, 1);
    EXPECT_EQ(AddressOf(table->TableRange()), "B2:E12");
    EXPECT_EQ(Cursor(), "B13");
}

TEST_F(AddTableTest, BothTitlesAddTwoRows) {
    const auto table = sheet->AddTable(10, 3, 1, 1, "Main", "Sub");
    EXPECT_EQ(AddressOf(table->TableRange()), "B2:E14");
    EXPECT_EQ(Cursor(), "B15");
}

TEST_F(AddTableTest, ASubtitleAloneAddsOneRow) {
    const auto table = sheet->AddTable(10, 3, 1, 1, "", "Sub");
    EXPECT_EQ(AddressOf(table->TableRange()), "B2:E13");
    EXPECT_EQ(Cursor(), "B14");
}

TEST_F(AddTableTest, ATableWithoutHeaderColumnsIsAllowed) {
    const auto table = sheet->AddTable(1, 1, 1, 0);
    EXPECT_EQ(AddressOf(table->TableRange()), "B2:B3");
    EXPECT_EQ(LayoutOf(*table), (TableLayout{"none", "none", "none", "B2", "B3"}));
    EXPECT_EQ(Cursor(), "B4");
}

TEST_F(AddTableTest, FiveHeaderRowsAndFiveHeaderColumnsAreAllowed) {
    const auto table = sheet->AddTable(1, 1, 5, 5);
    EXPECT_EQ(AddressOf(table->TableRange()), "B2:G7");
    EXPECT_EQ(Cursor(), "B8");
}

TEST_F(AddTableTest, InteriorRowsMustBePositive) {
    for (const int32_t rows : {0, -1})
        ExpectNotPlaced([&] { sheet->AddTable(rows, 1, 1, 1); }, vos::error_code::OutOfRange, "numInteriorRows");
}

TEST_F(AddTableTest, InteriorColumnsMustBePositive) {
    for (const int32_t columns : {0, -1})
        ExpectNotPlaced([&] { sheet->AddTable(1, columns, 1, 1); }, vos::error_code::OutOfRange, "numInteriorColumns");
}

TEST_F(AddTableTest, HeaderRowsMustBeOneToFive) {
    for (const int16_t headerRows : {0, 6, -1})
        ExpectNotPlaced([&] { sheet->AddTable(1, 1, headerRows, 0); }, vos::error_code::OutOfRange, "numHeaderRows");
}

TEST_F(AddTableTest, HeaderColumnsMustBeZeroToFive) {
    for (const int16_t headerColumns : {-1, 6})
        ExpectNotPlaced([&] { sheet->AddTable(1, 1, 1, headerColumns); }, vos::error_code::OutOfRange,
                        "numHeaderColumns");
}

TEST_F(AddTableTest, TheArgumentsAreCheckedInOrder) {
    ExpectNotPlaced([&] { sheet->AddTable(0, 0, 0, -1); }, vos::error_code::OutOfRange, "numInteriorRows");
    ExpectNotPlaced([&] { sheet->AddTable(1, 0, 0, -1); }, vos::error_code::OutOfRange, "numInteriorColumns");
    ExpectNotPlaced([&] { sheet->AddTable(1, 1, 0, -1); }, vos::error_code::OutOfRange, "numHeaderRows");
}

TEST_F(AddTableTest, TheArgumentsAreCheckedBeforeTheSpace) {
    sheet->SetCurrentCell(nullptr);
    ExpectNotPlaced([&] { sheet->AddTable(1, 1, 1, 6); }, vos::error_code::OutOfRange, "numHeaderColumns");
}

TEST_F(AddTableTest, WithoutACursorThereIsNoRoom) {
    sheet->SetCurrentCell(nullptr);
    ExpectNotPlaced([&] { sheet->AddTable(1, 1, 1, 1); }, vos::error_code::NotAllowedNow, NoRoomForElement);
}

TEST_F(AddTableTest, ATableMayNotEndOnTheLastSheetRow) {
    PutCursorAt(LastSheetRow - 5, 2);
    const auto block = excelSheet->Range("B1048571:C1048576");
    block->SetValue(excel::Variant("kept"));
    ExpectRefusedLeaving(
        block, [&] { sheet->AddTable(4, 1, 1, 1, "Main"); }, vos::error_code::NotAllowedNow, NoRoomForElement);
    EXPECT_EQ(Cursor(), "B1048571");
}

TEST_F(AddTableTest, ATableEndingOnTheSecondLastRowLeavesTheCursorOnTheLastRow) {
    PutCursorAt(LastSheetRow - 5, 2);
    const auto table = sheet->AddTable(3, 1, 1, 1, "Main");
    EXPECT_EQ(AddressOf(table->TableRange()), "B1048571:C1048575");
    EXPECT_EQ(Cursor(), "B1048576");
    ExpectNotPlaced([&] { sheet->AddTable(1, 1, 1, 0); }, vos::error_code::NotAllowedNow, NoRoomForElement);
}

TEST_F(AddTableTest, ATableMayNotReachTheLastSheetColumn) {
    PutCursorAt(1, LastSheetColumn - 2);
    const auto block = excelSheet->Range("XFB1:XFD3");
    block->SetValue(excel::Variant("kept"));
    ExpectRefusedLeaving(
        block, [&] { sheet->AddTable(1, 2, 1, 1); }, vos::error_code::NotAllowedNow, NoRoomForElement);
    EXPECT_EQ(Cursor(), "XFB1");
    EXPECT_EQ(AddressOf(sheet->AddTable(1, 1, 1, 1)->TableRange()), "XFB1:XFC2");
    EXPECT_EQ(Cursor(), "XFB3");
}

TEST_F(AddTableTest, ASizePastTheIntegerRangeOverflows) {
    ExpectFailureCode([&] { sheet->AddTable(MostInteriorRows, 1, 1, 0); }, excel::hresult::Overflow);
    ExpectFailureCode([&] { sheet->AddTable(1, std::numeric_limits<int32_t>::max(), 1, 1); }, excel::hresult::Overflow);
    EXPECT_EQ(Cursor(), "B2");
}

TEST_F(AddTableTest, TheTableIsFormattedInTheSheetsLanguage) {
    UseLanguage(4);
    ExpectFontSizes(*AddTableWithEveryPart(), 12.0, 10.0);
}

TEST_F(AddTableTest, TheTableIsColouredFromItsWorkbooksTheme) {
    UseThemes();
    const auto title = AddTableWithEveryPart()->TitleRange();
    EXPECT_EQ(title->Interior()->ThemeColor().ToInt(), sheet->ThemeColor(vos::VosTableTitle));
    EXPECT_EQ(title->Font()->ThemeColor().ToInt(), sheet->ThemeColor(vos::VosTableTitleFont));
}

TEST_F(AddTableTest, TablesStackOneBelowTheOther) {
    const auto first = sheet->AddTable(2, 2, 1, 1, "First");
    const auto second = sheet->AddTable(3, 1, 2, 0, "Second");
    EXPECT_EQ(AddressOf(first->TableRange()), "B2:D5");
    EXPECT_EQ(AddressOf(second->TableRange()), "B6:B11");
    EXPECT_EQ(Cursor(), "B12");
    EXPECT_EQ(At("B2")->Value().ToString(), "First");
    EXPECT_EQ(AddressOf(At("B2")->MergeArea()), "B2:D2");
    EXPECT_EQ(first->InteriorRange()->Borders(excel::xlEdgeBottom)->Weight().ToInt(), excel::xlMedium);
    EXPECT_EQ(At("B6")->Value().ToString(), "Second");
}

TEST_F(AddTableTest, TornadoChartsUpToNineBarsAreThreeHundredPointsHigh) {
    for (int16_t bars = 0; bars <= 9; ++bars)
        EXPECT_EQ(sheet->RecommendedTornadoChartHeight(bars), 300.0) << bars << " bars";
}

TEST_F(AddTableTest, TornadoChartsGrowSixteenPointsABarUpToSixteenBars) {
    EXPECT_EQ(sheet->RecommendedTornadoChartHeight(10), 316.0);
    EXPECT_EQ(sheet->RecommendedTornadoChartHeight(11), 332.0);
    EXPECT_EQ(sheet->RecommendedTornadoChartHeight(16), 412.0);
    EXPECT_EQ(sheet->RecommendedTornadoChartHeight(17), 412.0);
    EXPECT_EQ(sheet->RecommendedTornadoChartHeight(40), 412.0);
    EXPECT_EQ(sheet->RecommendedTornadoChartHeight(std::numeric_limits<int16_t>::max()), 412.0);
}

TEST_F(AddTableTest, ANegativeNumberOfBarsIsRefused) {
    ExpectNotPlaced([&] { sheet->RecommendedTornadoChartHeight(-1); }, vos::error_code::OutOfRange, "numBars");
}
