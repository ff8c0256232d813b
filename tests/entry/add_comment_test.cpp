#include "report_fixture.hpp"
#include "worksheet/report_comment_expectations.hpp"

namespace {

class AddCommentTest : public ReportTest {
protected:
    void SetUp() override {
        ReportTest::SetUp();
        excelSheet = NewWorkbook()->NewReportWorksheet("Report")->ExcelWorksheet();
        cell = excelSheet->Range("C4");
    }

    std::shared_ptr<excel::Worksheet> excelSheet;
    std::shared_ptr<excel::Range> cell;
};

}  // namespace

TEST_F(AddCommentTest, TheCommentIsAHiddenWhiteBoxWithABoldUnderlinedHeader) {
    const auto comment = reporting.AddComment(cell, "Source", "Figures from the 2025 ledger.");
    ExpectReportComment(comment, "Source", "Figures from the 2025 ledger.");
    EXPECT_EQ(comment->Parent()->Address(), "$C$4");
    EXPECT_TRUE(excel::IsSameObject(cell->Comment(), comment));
}

TEST_F(AddCommentTest, BothTextsAreTrimmed) {
    ExpectReportComment(reporting.AddComment(cell, "  Source ", " ledger  "), "Source", "ledger");
}

TEST_F(AddCommentTest, AnExistingCommentIsReplaced) {
    cell->AddComment(excel::Variant("old note"));
    const auto comment = reporting.AddComment(cell, "New", "note");
    ExpectReportComment(comment, "New", "note");
    EXPECT_EQ(cell->Comment()->Text(), "New\nnote");
    EXPECT_EQ(excelSheet->Shapes()->Count(), 1);
}

TEST_F(AddCommentTest, AManyCellRangeGetsTheCommentOnItsFirstCell) {
    reporting.AddComment(excelSheet->Range("B2:D5"), "H", "M");
    ASSERT_NE(excelSheet->Range("B2")->Comment(), nullptr);
    EXPECT_EQ(excelSheet->Range("C3")->Comment(), nullptr);
}

TEST_F(AddCommentTest, AMissingCellIsRefusedFirst) {
    ExpectAutomationError([&] { reporting.AddComment(nullptr, "", ""); }, vos::error_code::MissingObject, "whichCell");
}

TEST_F(AddCommentTest, BlankTextsAreRefusedHeaderFirstAndTheOldCommentStays) {
    cell->AddComment(excel::Variant("old note"));
    ExpectAutomationError([&] { reporting.AddComment(cell, "   ", ""); }, vos::error_code::EmptyArgument, "headerText");
    ExpectAutomationError([&] { reporting.AddComment(cell, "", "Main"); }, vos::error_code::EmptyArgument, "headerText");
    ExpectAutomationError([&] { reporting.AddComment(cell, "Header", "  "); }, vos::error_code::EmptyArgument, "mainText");
    EXPECT_EQ(cell->Comment()->Text(), "old note");
}
