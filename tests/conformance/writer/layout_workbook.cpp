#include "rgb.hpp"
#include "sample_workbooks.hpp"
#include "workbook_with_sheets.hpp"

namespace conformance {
namespace {

// Every column at 8.45 characters, merged blocks, and no gridlines on screen.
void LayOutGrid(excel::Workbook& book, excel::Worksheet& sheet) {
    sheet.Activate();
    sheet.Cells()->SetColumnWidth(8.45);
    sheet.Range("A1")->SetValue("Merged title");
    sheet.Range("A1:D1")->SetMergeCells(true);
    sheet.Range("A1")->SetHorizontalAlignment(excel::xlCenter);
    sheet.Range("B3")->SetValue("Block");
    sheet.Range("B3:C5")->Merge();
    sheet.Range("A7")->SetValue("Across 1");
    sheet.Range("A8")->SetValue("Across 2");
    sheet.Range("A7:C8")->Merge(true);
    book.Windows(1)->SetDisplayGridlines(false);
}

// Single column widths, a formatted whole column, and gridlines on the printout.
void LayOutColumns(excel::Worksheet& sheet) {
    sheet.Range("A1")->SetValue("Wide column");
    sheet.Range("C1")->SetValue("Narrower");
    sheet.Range("E2")->SetValue(3.14159);
    sheet.Columns(1)->SetColumnWidth(20);
    sheet.Columns(3)->SetColumnWidth(12);
    sheet.Columns(5)->SetNumberFormat("0.00");
    sheet.Range("E1")->EntireColumn()->Font()->SetItalic(true);
    sheet.PageSetup()->SetPrintGridlines(true);
}

// Row heights and formatted whole rows.
void LayOutRows(excel::Worksheet& sheet) {
    sheet.Range("A2")->SetValue("Tall row");
    sheet.Rows(2)->SetRowHeight(30);
    sheet.Rows(4)->SetRowHeight(24.75);
    sheet.Range("A6")->SetValue("Shaded row");
    sheet.Rows(6)->Interior()->SetColor(Rgb(0xD9, 0xE1, 0xF2));
    sheet.Range("B8")->EntireRow()->Font()->SetBold(true);
    sheet.Range("C8")->SetValue("Bold row");
}

}  // namespace

void WriteLayoutWorkbook(excel::Application& app, const std::filesystem::path& file) {
    auto book = AddWorkbookWithSheets(app, {"Grid", "Columns", "Rows"});
    LayOutColumns(*book->Worksheets("Columns"));
    LayOutRows(*book->Worksheets("Rows"));
    LayOutGrid(*book, *book->Worksheets("Grid"));
    book->SaveAs(file.string());
}

}  // namespace conformance
