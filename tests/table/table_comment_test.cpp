#include "table/interior_fixture.hpp"
#include "worksheet/report_comment_expectations.hpp"

#include <vos/error_code.hpp>
#include <vos/theme_property_type.hpp>

using TableCommentTest = InteriorTest;

namespace {

// The cell the comment was put on, as "D4".
std::string CellOf(const std::shared_ptr<excel::Comment>& comment) {
    return comment->Parent()->Address(false, false);
}

}  // namespace

TEST_F(TableCommentTest, AnInteriorCellGetsAHiddenNavyOutlinedComment) {
    const auto table = PlaceTable();
    const auto comment = table->AddComment(2, 3, "Source", "ledger");
    ExpectReportComment(comment, "Source", "ledger");
    EXPECT_TRUE(excel::IsSameObject(At("F5")->Comment(), comment));
    EXPECT_EQ(excelSheet->Shapes()->Count(), 1);
}

TEST_F(TableCommentTest, RowZeroIsTheInnermostTopHeaderCellAboveTheColumn) {
    const auto table = PlaceTable();
    EXPECT_EQ(CellOf(table->AddComment(0, 2, "Units", "thousands")), "E3");
    EXPECT_EQ(At("E2")->Comment(), nullptr);
}

TEST_F(TableCommentTest, ColumnZeroWithOneHeaderColumnIsTheHeaderCellOfThatRow) {
    // Left header B4:B7 beside the interior C4:E7.
    const auto table = PlaceTable(4, 3, 2, 1);
    EXPECT_EQ(CellOf(table->AddComment(1, 0, "Region", "north")), "B4");
    EXPECT_EQ(CellOf(table->AddComment(3, 0, "Region", "south")), "B6");
}

TEST_F(TableCommentTest, ColumnZeroWithTwoHeaderColumnsCountsAlongTheSecondHeaderRow) {
    // Left header B4:C7: its second row is B5:C5, and the cells after C5 continue on the next row.
    const auto table = PlaceTable();
    EXPECT_EQ(CellOf(table->AddComment(1, 0, "H", "first")), "B5");
    EXPECT_EQ(CellOf(table->AddComment(2, 0, "H", "second")), "C5");
    EXPECT_EQ(CellOf(table->AddComment(3, 0, "H", "third")), "B6");
    EXPECT_EQ(CellOf(table->AddComment(4, 0, "H", "fourth")), "C6");
}

TEST_F(TableCommentTest, BothZeroIsTheSignatureBlocksBottomRightCell) {
    const auto table = PlaceTable();
    const auto comment = table->AddComment(0, 0, "Table", "all figures in USD");
    EXPECT_EQ(CellOf(comment), "C3");
    ExpectReportComment(comment, "Table", "all figures in USD");
}

TEST_F(TableCommentTest, AnExistingCommentIsReplaced) {
    const auto table = PlaceTable();
    table->AddComment(1, 1, "First", "one");
    ExpectReportComment(table->AddComment(1, 1, "Second", "two"), "Second", "two");
    EXPECT_EQ(excelSheet->Shapes()->Count(), 1);
}

TEST_F(TableCommentTest, TextsAreTrimmed) {
    const auto table = PlaceTable();
    ExpectReportComment(table->AddComment(1, 1, "  Source ", " ledger  "), "Source", "ledger");
}

TEST_F(TableCommentTest, ColumnZeroWithoutLeftHeaderIsRefused) {
    const auto table = PlaceTable(4, 3, 2, 0);
    ExpectRefusalLeavesCells(table->TableRange(), [&] { table->AddComment(1, 0, "H", "M"); },
                             vos::error_code::NotAllowedNow, "This table has no left-header range.");
    EXPECT_EQ(excelSheet->Shapes()->Count(), 0);
}

TEST_F(TableCommentTest, RowZeroWithoutTopHeaderIsRefused) {
    const auto table = PlaceTableWithoutTopHeader();
    ExpectRefusalLeavesCells(table->TableRange(), [&] { table->AddComment(0, 1, "H", "M"); },
                             vos::error_code::NotAllowedNow, "This table has no top-header range.");
    EXPECT_EQ(excelSheet->Shapes()->Count(), 0);
}

TEST_F(TableCommentTest, BothZeroWithoutSignatureBlockFailsInTheSpreadsheet) {
    const auto withoutLeftHeader = PlaceTable(4, 3, 2, 0);
    EXPECT_THROW(withoutLeftHeader->AddComment(0, 0, "H", "M"), excel::AutomationError);
    const auto withoutTopHeader = PlaceTableWithoutTopHeader();
    EXPECT_THROW(withoutTopHeader->AddComment(0, 0, "H", "M"), excel::AutomationError);
    EXPECT_EQ(excelSheet->Shapes()->Count(), 0);
}

TEST_F(TableCommentTest, PositionsOutsideTheInteriorAreRefused) {
    const auto table = PlaceTable();
    for (const int32_t row : {-1, 5})
        ExpectRefusalLeavesCells(table->TableRange(), [&] { table->AddComment(row, 1, "H", "M"); },
                                 vos::error_code::OutOfRange, "interiorRowPosition");
    for (const int32_t column : {-1, 4})
        ExpectRefusalLeavesCells(table->TableRange(), [&] { table->AddComment(1, column, "H", "M"); },
                                 vos::error_code::OutOfRange, "interiorColumnPosition");
    EXPECT_EQ(excelSheet->Shapes()->Count(), 0);
}

TEST_F(TableCommentTest, BlankTextsAreRefusedAndNoCommentIsMade) {
    const auto table = PlaceTable();
    const auto before = CellStatesOf(table->TableRange());
    ExpectAutomationError([&] { table->AddComment(1, 1, "   ", "M"); }, vos::error_code::EmptyArgument, "headerText");
    ExpectAutomationError([&] { table->AddComment(1, 1, "H", "  "); }, vos::error_code::EmptyArgument, "mainText");
    ExpectAutomationError([&] { table->AddComment(1, 1, "H", ""); }, vos::error_code::EmptyArgument, "mainText");
    EXPECT_EQ(CellStatesOf(table->TableRange()), before);
    EXPECT_EQ(excelSheet->Shapes()->Count(), 0);
}

TEST_F(TableCommentTest, PositionsAreCheckedBeforeTextsAndTextsBeforeTheHeaders) {
    const auto table = PlaceTable(4, 3, 2, 0);
    ExpectAutomationError([&] { table->AddComment(5, 4, " ", " "); }, vos::error_code::OutOfRange,
                          "interiorRowPosition");
    ExpectAutomationError([&] { table->AddComment(1, 4, " ", " "); }, vos::error_code::OutOfRange,
                          "interiorColumnPosition");
    ExpectAutomationError([&] { table->AddComment(1, 0, " ", "M"); }, vos::error_code::EmptyArgument, "headerText");
    EXPECT_EQ(excelSheet->Shapes()->Count(), 0);
}

TEST_F(TableCommentTest, WithThemesTheOutlineTakesTheCommentThemeColour) {
    UseThemes();
    const auto table = PlaceTable();
    const auto comment = table->AddComment(0, 1, "Units", "thousands");
    const int32_t themeColor = ReportWorkbookBehind()->ThemeColorFor(vos::VosCommentFont, true);
    ASSERT_NE(themeColor, excel::msoNotThemeColor);
    EXPECT_EQ(comment->Shape()->Line()->ForeColor()->ObjectThemeColor(), themeColor);
    EXPECT_DOUBLE_EQ(comment->Shape()->Line()->Weight(), 2.5);
    EXPECT_EQ(comment->Text(), "Units\nthousands");
    EXPECT_FALSE(comment->Visible());
    EXPECT_EQ(CellOf(comment), "D3");
}
