#include "save_open_fixture.hpp"

#include "ooxml/zip/zip_archive_reader.hpp"

#include <string>

// A workbook in the 1904 date system stays in it when saved and opened again, so its dates do not
// move; one in the 1900 system writes no workbook properties for it.

using namespace excel;

namespace {

const std::string Excel1904Workbook = std::string(VOS_SHARED_DIR) + "/excel-corpus/realworld-excel/poi__47813.xlsx";

std::string WorkbookPartOf(const std::string& path) {
    return ooxml::ZipArchiveReader(path).Read("xl/workbook.xml").value_or("");
}

bool Contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

}  // namespace

TEST_F(SaveOpenTest, DatesIn1904SystemAreTheSameAfterSavingAndOpening) {
    book->SetDate1904(true);
    At("A1")->SetValue(Date{45000.0});
    At("A2")->SetNumberFormat("yyyy-mm-dd");
    At("A2")->SetValue2(0.0);
    book->SaveAs(PathOf("dates.xlsx"));
    EXPECT_TRUE(Contains(WorkbookPartOf(PathOf("dates.xlsx")), R"(<workbookPr date1904="1"/>)"));
    EXPECT_EQ(RunTool("validate-xlsx", PathOf("dates.xlsx")), 0);
    book->Close();

    auto reopened = app->Workbooks()->Open(PathOf("dates.xlsx"));
    EXPECT_TRUE(reopened->Date1904());
    auto cells = reopened->Worksheets(1);
    EXPECT_EQ(cells->Range("A1")->Value(), Variant(Date{45000.0}));
    EXPECT_EQ(cells->Range("A1")->Value2(), Variant(43538.0));
    EXPECT_EQ(cells->Range("A1")->Text(), Variant("3/15/2023"));
    EXPECT_EQ(cells->Range("A2")->Text(), Variant("1904-01-01"));
}

TEST_F(SaveOpenTest, WorkbookIn1900SystemWritesNoDateSystem) {
    At("A1")->SetValue(Date{45000.0});
    auto reopened = SaveAndReopen("dates.xlsx");
    EXPECT_FALSE(reopened->Date1904());
    EXPECT_FALSE(Contains(WorkbookPartOf(PathOf("dates.xlsx")), "date1904"));
    EXPECT_EQ(reopened->Worksheets(1)->Range("A1")->Value(), Variant(Date{45000.0}));
}

TEST_F(SaveOpenTest, ExcelWorkbookIn1904SystemKeepsItWhenSavedAgain) {
    ASSERT_TRUE(Contains(WorkbookPartOf(Excel1904Workbook), R"(date1904="1")"));
    auto opened = app->Workbooks()->Open(Excel1904Workbook);
    EXPECT_TRUE(opened->Date1904());
    const Variant values = opened->Worksheets(1)->UsedRange()->Value2();
    opened->SaveAs(PathOf("resaved.xlsx"));
    opened->Close();
    EXPECT_TRUE(Contains(WorkbookPartOf(PathOf("resaved.xlsx")), R"(<workbookPr date1904="1")"));

    auto reopened = app->Workbooks()->Open(PathOf("resaved.xlsx"));
    EXPECT_TRUE(reopened->Date1904());
    EXPECT_EQ(reopened->Worksheets(1)->UsedRange()->Value2(), values);
}
