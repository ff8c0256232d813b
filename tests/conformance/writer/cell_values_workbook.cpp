#include "rgb.hpp"
#include "sample_workbooks.hpp"
#include "workbook_with_sheets.hpp"

#include <string>

namespace conformance {
namespace {

constexpr int32_t kCellErrorBase = static_cast<int32_t>(0x800A0000);

excel::Variant CellError(int32_t xlError) {
    return excel::ErrorValue{kCellErrorBase + xlError};
}

// One value of each kind down column A; the texts follow Excel's entry rules.
void WriteScalars(excel::Worksheet& sheet) {
    sheet.Range("A1")->SetValue("Kind");
    sheet.Range("A2")->SetValue(42);
    sheet.Range("A3")->SetValue(3.25);
    sheet.Range("A4")->SetValue(true);
    sheet.Range("A5")->SetValue(false);
    sheet.Range("A6")->SetValue(CellError(excel::xlErrDiv0));
    sheet.Range("A7")->SetValue(CellError(excel::xlErrNA));
    sheet.Range("A8")->SetFormula("=SUM(A2:A3)");
    sheet.Range("A9")->SetValue("'00123");
    sheet.Range("A10")->SetValue("123.5");
    sheet.Range("A11")->SetValue("=A2*2");
    sheet.Range("A13")->SetValue("Gr\u00f6\u00dfe \u2013 \u2713");
}

void WriteArrayBlock(excel::Worksheet& sheet) {
    auto block = excel::SafeArray::Matrix(excel::VarType::Variant, 3, 3);
    block.Set({1, 1}, "North");
    block.Set({1, 2}, 10.5);
    block.Set({1, 3}, true);
    block.Set({2, 1}, "South");
    block.Set({2, 2}, -3);
    block.Set({2, 3}, false);
    block.Set({3, 1}, "East");
    block.Set({3, 2}, 1e6);
    block.Set({3, 3}, "text");
    sheet.Range("C1:E3")->SetValue(excel::Variant(std::move(block)));
}

// "Bold and red": the first word bold, the last one red.
void WriteRichText(excel::Worksheet& sheet) {
    auto cell = sheet.Range("A12");
    cell->SetValue("Bold and red");
    cell->Characters(1, 4)->Font()->SetBold(true);
    cell->Characters(10, 3)->Font()->SetColor(Rgb(0xC0, 0x00, 0x00));
}

// Content in column A, then a new column A pushes it (values, formats, merges, widths, names) right.
void WriteShiftedSheet(excel::Worksheet& sheet) {
    sheet.Range("A1")->SetValue("first");
    sheet.Range("A1")->Font()->SetBold(true);
    sheet.Range("A2")->SetValue(1);
    sheet.Range("A3")->SetValue(2);
    sheet.Range("B1")->SetValue("second");
    sheet.Range("A5:B5")->SetMergeCells(true);
    sheet.Range("A5")->SetValue("merged");
    sheet.Columns(1)->SetColumnWidth(15);
    sheet.Columns(1)->Insert();
}

void AddNames(excel::Workbook& book, excel::Worksheet& values) {
    auto names = book.Names();
    names->Add("ReportTitle", "=\"Quarterly report\"");
    names->Add("Amounts", "=Values!$A$2:$A$3");
    names->Add("ArrayBlock", values.Range("C1:E3"));
    names->Add("TaxRate", "=0.25", false);
    names->Add("Hidden!HiddenCell", "=Hidden!$A$1");
    names->Add("FirstShifted", "=Shifted!$A$1");
    values.Names()->Add("LocalTotal", "=Values!$A$8");
}

}  // namespace

void WriteCellValuesWorkbook(excel::Application& app, const std::filesystem::path& file) {
    auto book = AddWorkbookWithSheets(app, {"Values", "Hidden", "Shifted"});
    auto values = book->Worksheets("Values");
    auto hidden = book->Worksheets("Hidden");
    auto shifted = book->Worksheets("Shifted");

    WriteScalars(*values);
    WriteArrayBlock(*values);
    WriteRichText(*values);
    hidden->Range("A1")->SetValue("secret");
    hidden->SetVisible(excel::xlSheetHidden);
    AddNames(*book, *values);
    WriteShiftedSheet(*shifted);

    values->Activate();
    book->Protect({}, true);
    book->SaveAs(file.string());
}

}  // namespace conformance
