#include "rgb.hpp"
#include "sample_workbooks.hpp"
#include "workbook_with_sheets.hpp"

namespace conformance {
namespace {

constexpr int32_t kChangedPaletteIndex = 20;

// Column A, one font feature per row.
void FormatFonts(excel::Worksheet& sheet) {
    for (int32_t row = 1; row <= 12; ++row) {
        sheet.Cells(row, 1)->SetValue("Sample text");
    }
    auto font = [&](int32_t row) { return sheet.Cells(row, 1)->Font(); };
    font(1)->SetName("Arial");
    font(1)->SetSize(14);
    font(2)->SetBold(true);
    font(3)->SetItalic(true);
    font(4)->SetUnderline(excel::xlUnderlineStyleSingle);
    font(5)->SetUnderline(excel::xlUnderlineStyleDouble);
    font(6)->SetUnderline(excel::xlUnderlineStyleSingleAccounting);
    font(7)->SetUnderline(excel::xlUnderlineStyleDoubleAccounting);
    font(8)->SetStrikethrough(true);
    font(9)->SetColor(Rgb(0x1F, 0x4E, 0x79));
    font(10)->SetColorIndex(3);
    font(11)->SetThemeColor(excel::xlThemeColorAccent1);
    font(11)->SetTintAndShade(0.4);
    font(12)->SetThemeColor(excel::xlThemeColorDark2);
    font(12)->SetTintAndShade(-0.25);
}

void FormatFills(excel::Workbook& book, excel::Worksheet& sheet) {
    for (int32_t row = 1; row <= 5; ++row) {
        sheet.Cells(row, 1)->SetValue(row);
    }
    sheet.Range("A1")->Interior()->SetColor(Rgb(0xFF, 0xF2, 0xCC));
    sheet.Range("A2")->Interior()->SetColorIndex(6);
    sheet.Range("A3")->Interior()->SetThemeColor(excel::xlThemeColorAccent6);
    sheet.Range("A3")->Interior()->SetTintAndShade(0.6);
    auto patterned = sheet.Range("A4")->Interior();
    patterned->SetColor(Rgb(0xDD, 0xEE, 0xFF));
    patterned->SetPattern(excel::xlPatternGray50);
    patterned->SetPatternColor(Rgb(0x00, 0x00, 0x80));
    book.SetColors(kChangedPaletteIndex, Rgb(0x33, 0x66, 0x99));
    sheet.Range("A5")->Interior()->SetColorIndex(kChangedPaletteIndex);
}

// A bordered block B2:D4 and single cells in column F with the other line styles.
void FormatBorders(excel::Worksheet& sheet) {
    auto block = sheet.Range("B2:D4");
    block->SetValue(0);
    block->BorderAround(excel::xlContinuous, excel::xlMedium, excel::xlColorIndexAutomatic, Rgb(0x1F, 0x38, 0x64));
    auto horizontal = block->Borders(excel::xlInsideHorizontal);
    horizontal->SetLineStyle(excel::xlDash);
    horizontal->SetWeight(excel::xlThin);
    horizontal->SetColorIndex(16);
    auto vertical = block->Borders(excel::xlInsideVertical);
    vertical->SetLineStyle(excel::xlDot);
    vertical->SetThemeColor(excel::xlThemeColorAccent2);

    auto bottom = sheet.Range("F2")->Borders(excel::xlEdgeBottom);
    bottom->SetLineStyle(excel::xlDouble);
    bottom->SetColor(Rgb(0xFF, 0x00, 0x00));
    sheet.Range("F4")->Borders(excel::xlEdgeLeft)->SetWeight(excel::xlThick);
    sheet.Range("F6")->Borders(excel::xlEdgeTop)->SetWeight(excel::xlHairline);
    auto dashDot = sheet.Range("F8")->Borders(excel::xlEdgeRight);
    dashDot->SetLineStyle(excel::xlDashDot);
    dashDot->SetWeight(excel::xlMedium);
    sheet.Range("H2:I3")->Borders()->SetLineStyle(excel::xlContinuous);
}

void FormatAlignment(excel::Worksheet& sheet) {
    for (int32_t row = 1; row <= 9; ++row) {
        sheet.Cells(row, 1)->SetValue("Aligned text in a cell");
    }
    sheet.Range("A1")->SetHorizontalAlignment(excel::xlCenter);
    sheet.Range("A2")->SetHorizontalAlignment(excel::xlRight);
    sheet.Range("A3")->SetHorizontalAlignment(excel::xlLeft);
    sheet.Range("A3")->SetIndentLevel(2);
    sheet.Range("A4:C4")->SetHorizontalAlignment(excel::xlCenterAcrossSelection);
    sheet.Range("A5")->SetVerticalAlignment(excel::xlTop);
    sheet.Range("A6")->SetVerticalAlignment(excel::xlCenter);
    sheet.Range("A7")->SetWrapText(true);
    sheet.Range("A8")->SetHorizontalAlignment(excel::xlJustify);
    sheet.Range("A9")->SetHorizontalAlignment(excel::xlDistributed);
}

void FormatNumbers(excel::Worksheet& sheet) {
    sheet.Range("A1")->SetValue(1234.5);
    sheet.Range("A1")->SetNumberFormat("#,##0.00");
    sheet.Range("A2")->SetValue(0.256);
    sheet.Range("A2")->SetNumberFormat("0.0%");
    sheet.Range("A3")->SetValue(45000);
    sheet.Range("A3")->SetNumberFormat("yyyy-mm-dd");
    sheet.Range("A4")->SetValue(-12);
    sheet.Range("A4")->SetNumberFormat("\"$\"#,##0;[Red]-\"$\"#,##0");
    sheet.Range("A5")->SetValue(0.000123);
    sheet.Range("A5")->SetNumberFormat("0.00E+00");
    sheet.Range("A6")->SetNumberFormat("@");
    sheet.Range("A6")->SetValue("007");
}

}  // namespace

void WriteFormattingWorkbook(excel::Application& app, const std::filesystem::path& file) {
    auto book = AddWorkbookWithSheets(app, {"Fonts", "Fills", "Borders", "Alignment", "Numbers"});
    FormatFonts(*book->Worksheets("Fonts"));
    FormatFills(*book, *book->Worksheets("Fills"));
    FormatBorders(*book->Worksheets("Borders"));
    FormatAlignment(*book->Worksheets("Alignment"));
    FormatNumbers(*book->Worksheets("Numbers"));
    book->SaveAs(file.string());
}

}  // namespace conformance
