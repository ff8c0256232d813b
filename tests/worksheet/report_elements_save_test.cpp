#include "worksheet/report_sheet_fixture.hpp"

#include <filesystem>
#include <unistd.h>

using ReportElementsSaveTest = ReportHeaderTest;

TEST_F(ReportElementsSaveTest, HeadersAndCommentsSurviveSavingAndOpening) {
    const auto folder = std::filesystem::temp_directory_path() / ("report_elements_" + std::to_string(::getpid()));
    std::filesystem::create_directories(folder);
    const std::string path = (folder / "header.xlsx").string();

    sheet->AddHeader("Quarterly Risk", ModelAndRuns);
    const int32_t blockRow = sheet->CurrentCell()->Row();
    const auto block = sheet->AddHeaderRange("Details", excel::Variant());
    reporting.AddComment(block->Cells(1, 1), "Source", "ledger");
    report->ExcelWorkbook()->SaveAs(path);
    report->ExcelWorkbook()->Close();

    const auto reopened = app->Workbooks()->Open(path)->Worksheets("Report");
    ASSERT_EQ(reopened->Shapes()->Count(), 2);
    const auto box = reopened->Shapes()->Item(1);
    EXPECT_EQ(box->Type(), excel::msoTextBox);
    EXPECT_EQ(box->TextFrame()->Characters()->Text(),
              "Quarterly Risk\n Performed By: UnitTester\n Date: <<Date>> <<Time>>\n Model Risk A\n Runs 1000 ");
    EXPECT_DOUBLE_EQ(box->Width(), 428.0);
    EXPECT_TRUE(box->TextFrame()->Characters(1, 14)->Font()->Bold().ToBool());
    EXPECT_EQ(box->TextFrame()->Characters(1, 14)->Font()->Underline().ToInt(), excel::xlUnderlineStyleSingle);
    const auto titleCell = reopened->Cells(blockRow, 1);
    EXPECT_EQ(titleCell->Value().ToString(), "Details");
    EXPECT_EQ(reopened->Cells(blockRow + 1, 1)->Value().ToString(), "Performed By: UnitTester");
    const auto comment = titleCell->Comment();
    ASSERT_NE(comment, nullptr);
    EXPECT_EQ(comment->Text(), "Source\nledger");
    EXPECT_FALSE(comment->Visible());
    EXPECT_EQ(comment->Shape()->Line()->ForeColor()->RGB(), 0x800000);
    std::filesystem::remove_all(folder);
}
