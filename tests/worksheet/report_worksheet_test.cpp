#include "report_fixture.hpp"

#include "worksheet/report_worksheet.hpp"

#include <limits>

namespace {

constexpr int32_t LastRow = 1048576;
constexpr int32_t LastColumn = 16384;
constexpr const char* NoRoom = "Requested report element can not fit in available space.";

class ReportWorksheetTest : public ReportTest {
protected:
    void SetUp() override {
        ReportTest::SetUp();
        report = NewWorkbook();
        sheet = report->NewReportWorksheet("Report");
        excelSheet = sheet->ExcelWorksheet();
    }

    vos::ReportWorksheet& Internals() { return dynamic_cast<vos::ReportWorksheet&>(*sheet); }
    void PutCursorAt(int32_t row, int32_t column) { sheet->SetCurrentCell(excelSheet->Cells(row, column)); }
    std::string Cursor() { return sheet->CurrentCell() ? sheet->CurrentCell()->Address() : "none"; }

    std::shared_ptr<vos::VosExcelReportWorkbook> report;
    std::shared_ptr<vos::VosExcelReportWorksheet> sheet;
    std::shared_ptr<excel::Worksheet> excelSheet;
};

}  // namespace

TEST_F(ReportWorksheetTest, AFreshSheetHasItsCursorAtA1InsideTheWholeSheet) {
    EXPECT_EQ(Cursor(), "$A$1");
    EXPECT_EQ(sheet->LimitingRange()->Address(), "$1:$1048576");
    EXPECT_TRUE(excel::IsSameObject(sheet->LimitingRange()->Worksheet(), excelSheet));
    EXPECT_TRUE(sheet->RoundToRowBoundaries());
    EXPECT_EQ(sheet->DefaultLanguage(), 9);
}

TEST_F(ReportWorksheetTest, AFreshSheetHasNoGridlinesNarrowColumnsAndNoPageBreaks) {
    EXPECT_FALSE(report->ExcelWorkbook()->Windows(1)->DisplayGridlines());
    EXPECT_FALSE(excelSheet->PageSetup()->PrintGridlines());
    EXPECT_DOUBLE_EQ(excelSheet->Cells()->ColumnWidth().ToDouble(), 8.45);
    EXPECT_FALSE(excelSheet->DisplayPageBreaks());
    EXPECT_TRUE(reporting.WorksheetHasCreationTag(excelSheet, "MyApp"));
}

TEST_F(ReportWorksheetTest, RowRoundingCannotBeSwitchedOff) {
    sheet->SetRoundToRowBoundaries(false);
    EXPECT_TRUE(sheet->RoundToRowBoundaries());
    sheet->SetRoundToRowBoundaries(true);
    EXPECT_TRUE(sheet->RoundToRowBoundaries());
}

TEST_F(ReportWorksheetTest, TheCursorCanBeMovedToAnyCellOfTheSheet) {
    sheet->SetCurrentCell(excelSheet->Range("D7"));
    EXPECT_EQ(Cursor(), "$D$7");
    sheet->SetCurrentCell(excelSheet->Cells(LastRow, LastColumn));
    EXPECT_EQ(Cursor(), "$XFD$1048576");
}

TEST_F(ReportWorksheetTest, TheCursorCanBeEmptied) {
    sheet->SetCurrentCell(nullptr);
    EXPECT_EQ(sheet->CurrentCell(), nullptr);
}

TEST_F(ReportWorksheetTest, TheCursorMustBeASingleCell) {
    ExpectAutomationError([&] { sheet->SetCurrentCell(excelSheet->Range("A1:A2")); }, vos::error_code::InvalidArgument,
                          "CurrentCell must be a single cell.");
    ExpectAutomationError([&] { sheet->SetCurrentCell(excelSheet->Cells()); }, vos::error_code::InvalidArgument,
                          "CurrentCell must be a single cell.");
    EXPECT_EQ(Cursor(), "$A$1");
}

TEST_F(ReportWorksheetTest, TheCursorMustBeOnTheReportSheet) {
    auto other = report->NewReportWorksheet("Other")->ExcelWorksheet();
    ExpectAutomationError([&] { sheet->SetCurrentCell(other->Range("B2")); }, vos::error_code::InvalidArgument,
                          "CurrentCell must be on the report worksheet.");
    EXPECT_EQ(Cursor(), "$A$1");
}

TEST_F(ReportWorksheetTest, TheSingleCellCheckComesBeforeTheSheetCheck) {
    auto other = report->NewReportWorksheet("Other")->ExcelWorksheet();
    ExpectAutomationError([&] { sheet->SetCurrentCell(other->Range("B2:C2")); }, vos::error_code::InvalidArgument,
                          "CurrentCell must be a single cell.");
}

TEST_F(ReportWorksheetTest, SpaceCountsMustBePositive) {
    ExpectAutomationError([&] { sheet->HasAvailableSpace(0, 1); }, vos::error_code::OutOfRange, "numRows");
    ExpectAutomationError([&] { sheet->HasAvailableSpace(1, 0); }, vos::error_code::OutOfRange, "numColumns");
    ExpectAutomationError([&] { sheet->HasAvailableSpace(0, 0); }, vos::error_code::OutOfRange, "numRows");
    ExpectAutomationError([&] { sheet->HasAvailableSpace(-5, 1); }, vos::error_code::OutOfRange, "numRows");
}

TEST_F(ReportWorksheetTest, AnEmptyCursorHasNoSpace) {
    sheet->SetCurrentCell(nullptr);
    EXPECT_FALSE(sheet->HasAvailableSpace(1, 1));
    ExpectAutomationError([&] { sheet->HasAvailableSpace(0, 1); }, vos::error_code::OutOfRange, "numRows");
}

TEST_F(ReportWorksheetTest, AnElementMustLeaveTheCursorARowBelowIt) {
    PutCursorAt(LastRow - 1, 1);
    EXPECT_TRUE(sheet->HasAvailableSpace(1, 1));
    EXPECT_FALSE(sheet->HasAvailableSpace(2, 1));
    PutCursorAt(LastRow, 1);
    EXPECT_FALSE(sheet->HasAvailableSpace(1, 1));
}

TEST_F(ReportWorksheetTest, AnElementMustLeaveTheCursorAColumnRightOfIt) {
    PutCursorAt(1, LastColumn - 3);
    EXPECT_TRUE(sheet->HasAvailableSpace(1, 3));
    EXPECT_FALSE(sheet->HasAvailableSpace(1, 4));
    PutCursorAt(1, LastColumn);
    EXPECT_FALSE(sheet->HasAvailableSpace(1, 1));
}

TEST_F(ReportWorksheetTest, ASpaceTestPastTheIntegerRangeOverflows) {
    PutCursorAt(2, 1);
    try {
        sheet->HasAvailableSpace(std::numeric_limits<int32_t>::max(), 1);
        ADD_FAILURE() << "expected Overflow";
    } catch (const excel::AutomationError& error) {
        EXPECT_EQ(error.code(), excel::hresult::Overflow);
    }
}

TEST_F(ReportWorksheetTest, SeparatorRowsMoveTheCursorDown) {
    sheet->AddSeparatorRows(3);
    EXPECT_EQ(Cursor(), "$A$4");
    PutCursorAt(10, 5);
    sheet->AddSeparatorRows(1);
    EXPECT_EQ(Cursor(), "$E$11");
}

TEST_F(ReportWorksheetTest, SeparatorRowsUpToTheLastRowThenNoFurther) {
    PutCursorAt(LastRow - 1, 2);
    sheet->AddSeparatorRows(1);
    EXPECT_EQ(Cursor(), "$B$1048576");
    ExpectAutomationError([&] { sheet->AddSeparatorRows(1); }, vos::error_code::NotAllowedNow, NoRoom);
    EXPECT_EQ(Cursor(), "$B$1048576");
}

TEST_F(ReportWorksheetTest, SeparatorRowsNeedAPositiveCount) {
    ExpectAutomationError([&] { sheet->AddSeparatorRows(0); }, vos::error_code::OutOfRange, "numRows");
    ExpectAutomationError([&] { sheet->AddSeparatorRows(-1); }, vos::error_code::OutOfRange, "numRows");
    EXPECT_EQ(Cursor(), "$A$1");
}

TEST_F(ReportWorksheetTest, SeparatorRowsWithAnEmptyCursorDoNotFit) {
    sheet->SetCurrentCell(nullptr);
    ExpectAutomationError([&] { sheet->AddSeparatorRows(1); }, vos::error_code::NotAllowedNow, NoRoom);
}

TEST_F(ReportWorksheetTest, SeparatorRowsInTheLastColumnDoNotFit) {
    PutCursorAt(5, LastColumn);
    ExpectAutomationError([&] { sheet->AddSeparatorRows(1); }, vos::error_code::NotAllowedNow, NoRoom);
}

TEST_F(ReportWorksheetTest, AdvancingMovesDownAndRightAndAllowsZero) {
    Internals().AdvanceCurrentCell(2, 3);
    EXPECT_EQ(Cursor(), "$D$3");
    Internals().AdvanceCurrentCell(0, 0);
    EXPECT_EQ(Cursor(), "$D$3");
}

TEST_F(ReportWorksheetTest, AdvancingPastTheLimitingRangeEmptiesTheCursor) {
    PutCursorAt(LastRow - 2, 1);
    Internals().AdvanceCurrentCell(3, 0);
    EXPECT_EQ(sheet->CurrentCell(), nullptr);
    EXPECT_FALSE(sheet->HasAvailableSpace(1, 1));
    PutCursorAt(1, LastColumn);
    Internals().AdvanceCurrentCell(0, 1);
    EXPECT_EQ(sheet->CurrentCell(), nullptr);
}

TEST_F(ReportWorksheetTest, AdvancingRefusesNegativeCountsAndAnEmptyCursor) {
    ExpectAutomationError([&] { Internals().AdvanceCurrentCell(-1, 0); }, vos::error_code::OutOfRange, "numRows");
    ExpectAutomationError([&] { Internals().AdvanceCurrentCell(0, -1); }, vos::error_code::OutOfRange, "numColumns");
    sheet->SetCurrentCell(nullptr);
    ExpectAutomationError([&] { Internals().AdvanceCurrentCell(1, 0); }, vos::error_code::PropertyNotSet,
                          "CurrentCell");
    ExpectAutomationError([&] { Internals().AdvanceCurrentCell(-1, 0); }, vos::error_code::OutOfRange, "numRows");
}

TEST_F(ReportWorksheetTest, RequiringSpaceRaisesWhenTheElementDoesNotFit) {
    EXPECT_NO_THROW(Internals().RequireAvailableSpace(10, 10));
    PutCursorAt(LastRow - 5, 1);
    ExpectAutomationError([&] { Internals().RequireAvailableSpace(6, 1); }, vos::error_code::NotAllowedNow, NoRoom);
}

TEST_F(ReportWorksheetTest, TwoSpacingColumnsAreInsertedAtTheLeft) {
    excelSheet->Range("A1")->SetValue("first");
    excelSheet->Range("B1")->SetValue("second");
    sheet->AddSpacingColumn();
    sheet->AddSpacingColumn();
    EXPECT_DOUBLE_EQ(excelSheet->Columns(1)->ColumnWidth().ToDouble(), 0.17);
    EXPECT_DOUBLE_EQ(excelSheet->Columns(2)->ColumnWidth().ToDouble(), 0.17);
    EXPECT_DOUBLE_EQ(excelSheet->Columns(3)->ColumnWidth().ToDouble(), 8.45);
    EXPECT_EQ(excelSheet->Range("C1")->Value().ToString(), "first");
    EXPECT_EQ(excelSheet->Range("D1")->Value().ToString(), "second");
    EXPECT_TRUE(excelSheet->Range("A1")->Value().IsEmpty());
}

TEST_F(ReportWorksheetTest, TheCursorStaysOnItsCellWhenASpacingColumnIsInserted) {
    sheet->AddSeparatorRows(2);
    sheet->AddSpacingColumn();
    EXPECT_EQ(Cursor(), "$B$3");
    EXPECT_EQ(sheet->LimitingRange()->Address(), "$1:$1048576");
}

TEST_F(ReportWorksheetTest, TheInitializerRefusesAMissingWorksheet) {
    vos::ReportWorksheet fresh;
    ExpectAutomationError(
        [&] { fresh.InitializeReportWorksheet(nullptr, nullptr, "MyApp", 9); }, vos::error_code::MissingObject,
        "p_ExcelWorksheet");
}
