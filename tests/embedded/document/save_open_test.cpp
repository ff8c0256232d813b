#include "save_open_fixture.hpp"

#include <cstdio>
#include <filesystem>
#include <string>

using namespace excel;

TEST_F(SaveOpenTest, SaveAsNamesTheWorkbookAfterTheFile) {
    book->SaveAs(PathOf("report.xlsx"));
    EXPECT_EQ(book->Name(), "report.xlsx");
    EXPECT_EQ(book->FullName(), PathOf("report.xlsx"));
    EXPECT_EQ(book->Path(), folder.string());
    EXPECT_TRUE(book->Saved());
    EXPECT_TRUE(std::filesystem::exists(PathOf("report.xlsx")));
    book->Save();
}

TEST_F(SaveOpenTest, SavingIntoAMissingFolderIsRefused) {
    EXPECT_EQ(ErrorCodeOf([&] { book->SaveAs(PathOf("missing/report.xlsx")); }), kRefused);
    EXPECT_EQ(book->Name(), "Book1");
}

TEST_F(SaveOpenTest, OpeningAMissingFileIsRefused) {
    EXPECT_EQ(ErrorCodeOf([&] { app->Workbooks()->Open(PathOf("none.xlsx")); }), kRefused);
    EXPECT_EQ(app->Workbooks()->Count(), 1);
}

TEST_F(SaveOpenTest, OpeningAnOpenFileAnswersTheOpenWorkbook) {
    book->SaveAs(PathOf("same.xlsx"));
    auto again = app->Workbooks()->Open(PathOf("same.xlsx"));
    EXPECT_EQ(app->Workbooks()->Count(), 1);
    again->Worksheets(1)->Range("A1")->SetValue(3.0);
    EXPECT_EQ(sheet->Range("A1")->Value(), Variant(3.0));
}

TEST_F(SaveOpenTest, ValuesRoundTrip) {
    At("A1")->SetValue(1.5);
    At("A2")->SetValue("text");
    At("A3")->SetValue(true);
    At("A4")->SetValue("#N/A");
    At("A5")->SetValue("=SUM(A1:A1)");
    At("A6")->SetValue("'0042");
    At("B1")->SetValue(Date{45000.5});
    auto opened = SaveAndReopen("values.xlsx");
    auto s = opened->Worksheets(1);
    EXPECT_EQ(opened->Name(), "values.xlsx");
    EXPECT_EQ(s->Range("A1")->Value(), Variant(1.5));
    EXPECT_EQ(s->Range("A2")->Value(), Variant("text"));
    EXPECT_EQ(s->Range("A3")->Value(), Variant(true));
    EXPECT_EQ(s->Range("A4")->Value(), Variant(ErrorValue{static_cast<int32_t>(0x800A0000 + xlErrNA)}));
    EXPECT_EQ(s->Range("A5")->Formula(), Variant("=SUM(A1:A1)"));
    EXPECT_EQ(s->Range("A6")->Value(), Variant("0042"));
    EXPECT_EQ(s->Range("B1")->Value(), Variant(Date{45000.5}));
}

TEST_F(SaveOpenTest, FormatsMergesSizesNamesAndViewRoundTrip) {
    At("A1")->Font()->SetBold(true);
    At("A1")->Interior()->SetColor(0x00FFFF);
    At("B2:C3")->Borders()->SetLineStyle(xlContinuous);
    At("B2")->SetNumberFormat("0.00%");
    sheet->Columns(2)->SetColumnWidth(20);
    sheet->Rows(4)->SetRowHeight(30);
    sheet->Rows(5)->Font()->SetItalic(true);
    At("D1:E2")->Merge();
    book->Names()->Add("Total", "=Sheet1!$A$1");
    sheet->Names()->Add("Local", "=\"x\"");
    book->Windows(1)->SetDisplayGridlines(false);
    sheet->PageSetup()->SetPrintGridlines(true);
    book->SetColors(5, static_cast<int32_t>(0x123456));
    At("F1")->SetValue("Rich text");
    At("F1")->Characters(1, 4)->Font()->SetBold(true);
    auto opened = SaveAndReopen("formats.xlsx");
    auto s = opened->Worksheets(1);
    EXPECT_EQ(s->Range("A1")->Font()->Bold(), Variant(true));
    EXPECT_EQ(s->Range("A1")->Interior()->Color(), Variant(static_cast<double>(0x00FFFF)));
    EXPECT_EQ(s->Range("B2:C3")->Borders(xlInsideVertical)->LineStyle(), Variant(xlContinuous));
    EXPECT_EQ(s->Range("B2")->NumberFormat(), Variant("0.00%"));
    EXPECT_EQ(s->Range("B1")->ColumnWidth(), Variant(20.0));
    EXPECT_EQ(s->Range("A4")->RowHeight(), Variant(30.0));
    EXPECT_EQ(s->Range("Z5")->Font()->Italic(), Variant(true));
    EXPECT_EQ(s->Range("E2")->MergeArea()->Address(), "$D$1:$E$2");
    EXPECT_EQ(opened->Names()->Item("Total")->RefersTo(), "=Sheet1!$A$1");
    EXPECT_EQ(s->Names()->Item("Local")->RefersTo(), "=\"x\"");
    EXPECT_FALSE(opened->Windows(1)->DisplayGridlines());
    EXPECT_TRUE(s->PageSetup()->PrintGridlines());
    EXPECT_EQ(opened->Colors(5), Variant(static_cast<int32_t>(0x123456)));
    EXPECT_EQ(s->Range("F1")->Characters(1, 4)->Font()->Bold(), Variant(true));
    EXPECT_EQ(s->Range("F1")->Characters(6, 4)->Font()->Bold(), Variant(false));
}

TEST_F(SaveOpenTest, SheetsAndProtectionRoundTrip) {
    auto second = book->Worksheets()->Add(Variant(), sheet);
    second->SetName("Data");
    sheet->SetVisible(xlSheetHidden);
    book->Protect();
    auto opened = SaveAndReopen("sheets.xlsx");
    EXPECT_EQ(opened->Worksheets()->Count(), 2);
    EXPECT_EQ(opened->Worksheets(2)->Name(), "Data");
    EXPECT_EQ(opened->Worksheets(1)->Visible(), xlSheetHidden);
    EXPECT_EQ(opened->ActiveSheet()->Name(), "Data");
    EXPECT_TRUE(opened->ProtectStructure());
}

TEST_F(SaveOpenTest, SavedWorkbookPassesTheConformanceTools) {
    At("A1:C1")->SetValue(Variant(std::vector<std::string>{"Name", "Value", "Share"}));
    At("A1:C1")->Font()->SetBold(true);
    At("A1:C1")->Interior()->SetThemeColor(xlThemeColorAccent1);
    At("A2:C10")->Borders()->SetLineStyle(xlContinuous);
    At("A2:A10")->SetValue("item");
    At("B2:B10")->SetValue(12.5);
    At("C2:C10")->SetValue("25%");
    At("E1:G1")->Merge();
    sheet->Columns(1)->SetColumnWidth(25);
    book->Names()->Add("Data", At("A1:C10"));
    // Everything else the engine stores, so each piece reaches the file once.
    At("A12")->SetValue("=SUM(B2:B10)");
    At("A13")->SetValue(false);
    At("A14")->SetValue("#DIV/0!");
    At("A15")->SetValue("'=not a formula");
    At("A16")->SetValue(Date{45000.25});
    At("A17")->SetValue(Currency{10000});
    At("B12")->Font()->SetColorIndex(xlColorIndexAutomatic);
    At("B13")->Font()->SetUnderline(xlUnderlineStyleSingleAccounting);
    At("B14")->Font()->SetSuperscript(true);
    At("B15")->Font()->SetStrikethrough(true);
    At("C12")->Interior()->SetPattern(xlPatternCrissCross);
    At("C12")->Interior()->SetPatternColorIndex(5);
    At("C13")->Borders(xlDiagonalUp)->SetLineStyle(xlSlantDashDot);
    At("C14")->SetOrientation(xlUpward);
    At("C15")->SetIndentLevel(3);
    At("C16")->SetWrapText(true);
    At("D12")->SetValue("Größe");
    At("D12")->Characters(2, 3)->Font()->SetColor(0x0000FF);
    sheet->Rows(20)->SetHidden(true);
    sheet->Columns(8)->SetHidden(true);
    sheet->Rows(21)->Interior()->SetColorIndex(6);
    sheet->Columns(9)->Font()->SetName("Arial");
    sheet->Names()->Add("Local", 3.0, false);
    book->SetColors(10, static_cast<int32_t>(0x00AA00));
    auto hidden = book->Worksheets()->Add(Variant(), sheet);
    hidden->SetVisible(xlSheetVeryHidden);
    book->Protect();
    const std::string path = PathOf("conformance.xlsx");
    book->SaveAs(path);
    EXPECT_EQ(RunTool("validate-xlsx", path), 0);
    EXPECT_EQ(RunTool("check-xlsx", path), 0);
}

TEST_F(SaveOpenTest, SavedTracksChangesSinceTheLastSave) {
    EXPECT_TRUE(book->Saved());
    At("A1")->SetValue(1.0);
    EXPECT_FALSE(book->Saved());
    book->SaveAs(PathOf("saved.xlsx"));
    EXPECT_TRUE(book->Saved());
    At("A1")->Font()->SetBold(true);
    EXPECT_FALSE(book->Saved());
    book->Save();
    EXPECT_TRUE(book->Saved());
}
