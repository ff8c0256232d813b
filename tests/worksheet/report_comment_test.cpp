#include "worksheet/report_comment_expectations.hpp"
#include "worksheet/report_sheet_fixture.hpp"

#include "support/cell_comment.hpp"

using ReportCommentTest = ReportSheetTest;

TEST_F(ReportCommentTest, ASheetsCommentLooksLikeTheEntryObjects) {
    const auto comment = sheet->AddComment(excelSheet->Range("E2"), "Method", "Monte Carlo, 1000 runs");
    ExpectReportComment(comment, "Method", "Monte Carlo, 1000 runs");
    EXPECT_TRUE(excel::IsSameObject(excelSheet->Range("E2")->Comment(), comment));
}

TEST_F(ReportCommentTest, ACommentDoesNotMoveTheCursor) {
    sheet->SetCurrentCell(excelSheet->Range("B7"));
    sheet->AddComment(excelSheet->Range("B7"), "H", "M");
    EXPECT_EQ(Cursor(), "$B$7");
}

TEST_F(ReportCommentTest, ACommentMayGoOnAnotherSheet) {
    const auto other = sheet->ExcelWorksheet()->Parent()->Worksheets()->Add();
    ExpectReportComment(sheet->AddComment(other->Range("A1"), "H", "M"), "H", "M");
}

TEST_F(ReportCommentTest, AnExistingCommentIsReplaced) {
    const auto cell = excelSheet->Range("A3");
    sheet->AddComment(cell, "First", "one");
    ExpectReportComment(sheet->AddComment(cell, "Second", "two"), "Second", "two");
    EXPECT_EQ(excelSheet->Shapes()->Count(), 1);
}

TEST_F(ReportCommentTest, FailuresNameTheArgument) {
    ExpectAutomationError([&] { sheet->AddComment(nullptr, "H", "M"); }, vos::error_code::MissingObject, "whichCell");
    ExpectAutomationError([&] { sheet->AddComment(excelSheet->Range("A1"), " ", "M"); }, vos::error_code::EmptyArgument,
                          "headerText");
    ExpectAutomationError([&] { sheet->AddComment(excelSheet->Range("A1"), "H", ""); }, vos::error_code::EmptyArgument,
                          "mainText");
    EXPECT_EQ(excelSheet->Range("A1")->Comment(), nullptr);
}

TEST_F(ReportCommentTest, AThemeOutlineTakesTheThemeColour) {
    const auto comment = vos::CreateCellComment(excelSheet->Range("D4"), "H", "M", true, excel::msoThemeColorAccent2);
    EXPECT_EQ(comment->Shape()->Line()->ForeColor()->ObjectThemeColor(), excel::msoThemeColorAccent2);
    EXPECT_DOUBLE_EQ(comment->Shape()->Line()->Weight(), 2.5);
    EXPECT_FALSE(comment->Visible());
}

TEST_F(ReportCommentTest, TheHeaderRunCountsCharactersNotBytes) {
    const auto comment = sheet->AddComment(excelSheet->Range("A1"), "Méthode", "simulée");
    const auto frame = comment->Shape()->TextFrame();
    EXPECT_TRUE(frame->Characters(1, 7)->Font()->Bold().ToBool());
    EXPECT_FALSE(frame->Characters(8, 8)->Font()->Bold().ToBool());
}
