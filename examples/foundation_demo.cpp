// Builds a small formatted sales summary through the Excel object model and saves it as .xlsx.
//
// Usage: foundation_demo [OUTPUT.xlsx]   (default out/foundation_demo.xlsx)

#include <excel/embedded.hpp>
#include <excel/excel.hpp>

#include "run_example.hpp"

#include <array>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>

namespace {

constexpr int32_t Rgb(int32_t red, int32_t green, int32_t blue) {
    return red | (green << 8) | (blue << 16);
}

constexpr int32_t kTitleBlue = Rgb(0x1F, 0x4E, 0x79);
constexpr int32_t kHeaderBlue = Rgb(0xDD, 0xEB, 0xF7);
constexpr int32_t kTotalGrey = Rgb(0xF2, 0xF2, 0xF2);
constexpr int32_t kNoteGrey = Rgb(0x59, 0x59, 0x59);
constexpr int32_t kLineGrey = Rgb(0xBF, 0xBF, 0xBF);

struct Region {
    const char* name;
    const char* manager;
    std::array<double, 4> quarters;
};

constexpr std::array<Region, 6> kRegions{{
    {"North", "A. Lindqvist", {412.5, 438.1, 455.9, 502.3}},
    {"South", "M. Okafor", {298.0, 305.4, 287.6, 331.2}},
    {"East", "J. Moreau", {355.7, 362.0, 371.8, 389.5}},
    {"West", "S. Tanaka", {489.3, 476.9, 512.4, 538.0}},
    {"Central", "R. Alvarez", {221.4, 234.8, 240.1, 256.7}},
    {"Overseas", "K. Novak", {178.2, 190.6, 205.3, 219.9}},
}};

constexpr int32_t kHeaderRow = 4;
constexpr int32_t kFirstDataRow = kHeaderRow + 1;
constexpr int32_t kLastDataRow = kHeaderRow + static_cast<int32_t>(kRegions.size());
constexpr int32_t kTotalRow = kLastDataRow + 1;

// "B5:E10" from column letters and row numbers.
std::string Block(char firstColumn, int32_t firstRow, char lastColumn, int32_t lastRow) {
    return firstColumn + std::to_string(firstRow) + ":" + lastColumn + std::to_string(lastRow);
}

void HideGridlines(excel::Workbook& book, excel::Worksheet& sheet) {
    sheet.Activate();
    book.Windows(1)->SetDisplayGridlines(false);
}

void WriteTitle(excel::Worksheet& sheet) {
    auto title = sheet.Range("A1:F1");
    title->SetMergeCells(true);
    title->Cells(1, 1)->SetValue("Quarterly Sales Summary");
    title->Font()->SetSize(16);
    title->Font()->SetBold(true);
    title->Font()->SetColor(Rgb(0xFF, 0xFF, 0xFF));
    title->Interior()->SetColor(kTitleBlue);
    title->SetHorizontalAlignment(excel::xlCenter);
    title->SetVerticalAlignment(excel::xlCenter);
    title->SetRowHeight(30);

    auto note = sheet.Range("A2:F2");
    note->SetMergeCells(true);
    note->Cells(1, 1)->SetValue("Fiscal year 2024, in thousands");
    note->Font()->SetItalic(true);
    note->Font()->SetColor(kNoteGrey);
    note->SetHorizontalAlignment(excel::xlCenter);
}

void WriteHeader(excel::Worksheet& sheet) {
    auto header = sheet.Range("A4:F4");
    auto labels = excel::SafeArray::Matrix(excel::VarType::Variant, 1, 6);
    const std::array<const char*, 6> texts{"Region", "Q1", "Q2", "Q3", "Q4", "Total"};
    for (int32_t column = 1; column <= 6; ++column) {
        labels.Set({1, column}, texts[column - 1]);
    }
    header->SetValue(excel::Variant(std::move(labels)));
    header->Font()->SetBold(true);
    header->Interior()->SetColor(kHeaderBlue);
    // Labels line up with the column below them: region names left, figures right.
    header->SetHorizontalAlignment(excel::xlRight);
    header->Cells(1, 1)->SetHorizontalAlignment(excel::xlLeft);
    header->Cells(1, 1)->SetIndentLevel(1);
    header->SetRowHeight(20);
    header->SetVerticalAlignment(excel::xlCenter);
    header->Borders()->SetLineStyle(excel::xlContinuous);
    header->Borders()->SetColor(kLineGrey);
    header->Borders(excel::xlEdgeBottom)->SetWeight(excel::xlMedium);
    header->Borders(excel::xlEdgeBottom)->SetColor(kTitleBlue);
}

void WriteFigures(excel::Worksheet& sheet) {
    auto block = sheet.Range(Block('A', kFirstDataRow, 'E', kLastDataRow));
    auto figures = excel::SafeArray::Matrix(excel::VarType::Variant, kRegions.size(), 5);
    for (int32_t row = 1; row <= static_cast<int32_t>(kRegions.size()); ++row) {
        const Region& region = kRegions[row - 1];
        figures.Set({row, 1}, region.name);
        for (int32_t quarter = 1; quarter <= 4; ++quarter) {
            figures.Set({row, quarter + 1}, region.quarters[quarter - 1]);
        }
        const int32_t sheetRow = kHeaderRow + row;
        sheet.Cells(sheetRow, 6)->SetFormula("=SUM(" + Block('B', sheetRow, 'E', sheetRow) + ")");
    }
    block->SetValue(excel::Variant(std::move(figures)));

    auto table = sheet.Range(Block('A', kFirstDataRow, 'F', kLastDataRow));
    table->Borders(excel::xlInsideHorizontal)->SetLineStyle(excel::xlContinuous);
    table->Borders(excel::xlInsideHorizontal)->SetColor(kLineGrey);
    table->Borders(excel::xlEdgeLeft)->SetLineStyle(excel::xlContinuous);
    table->Borders(excel::xlEdgeLeft)->SetColor(kLineGrey);
    table->Borders(excel::xlEdgeRight)->SetLineStyle(excel::xlContinuous);
    table->Borders(excel::xlEdgeRight)->SetColor(kLineGrey);
    sheet.Range(Block('B', kFirstDataRow, 'F', kTotalRow))->SetNumberFormat("#,##0.0");
    sheet.Range(Block('A', kFirstDataRow, 'A', kLastDataRow))->SetIndentLevel(1);
}

void WriteTotals(excel::Worksheet& sheet) {
    auto totals = sheet.Range(Block('A', kTotalRow, 'F', kTotalRow));
    sheet.Cells(kTotalRow, 1)->SetValue("Total");
    for (int32_t column = 2; column <= 6; ++column) {
        const char letter = static_cast<char>('A' + column - 1);
        sheet.Cells(kTotalRow, column)->SetFormula("=SUM(" + Block(letter, kFirstDataRow, letter, kLastDataRow) + ")");
    }
    totals->Font()->SetBold(true);
    totals->Interior()->SetColor(kTotalGrey);
    totals->BorderAround(excel::xlContinuous, excel::xlThin, excel::xlColorIndexAutomatic, kLineGrey);
    totals->Borders(excel::xlEdgeTop)->SetLineStyle(excel::xlDouble);
    totals->Borders(excel::xlEdgeTop)->SetColor(kTitleBlue);
}

void WriteSalesSheet(excel::Workbook& book, excel::Worksheet& sheet) {
    sheet.SetName("Sales");
    sheet.Columns(1)->SetColumnWidth(14);
    sheet.Range("B1:F1")->EntireColumn()->SetColumnWidth(10);
    WriteTitle(sheet);
    WriteHeader(sheet);
    WriteFigures(sheet);
    WriteTotals(sheet);
    HideGridlines(book, sheet);
}

void WriteRegionsSheet(excel::Workbook& book, excel::Worksheet& sheet) {
    sheet.SetName("Regions");
    const int32_t lastRow = static_cast<int32_t>(kRegions.size()) + 1;
    sheet.Columns(1)->SetColumnWidth(14);
    sheet.Columns(2)->SetColumnWidth(18);
    auto header = sheet.Range("A1:B1");
    sheet.Range("A1")->SetValue("Region");
    sheet.Range("B1")->SetValue("Manager");
    header->Font()->SetBold(true);
    header->Font()->SetColor(Rgb(0xFF, 0xFF, 0xFF));
    header->Interior()->SetColor(kTitleBlue);
    for (int32_t row = 2; row <= lastRow; ++row) {
        sheet.Cells(row, 1)->SetValue(kRegions[row - 2].name);
        sheet.Cells(row, 2)->SetValue(kRegions[row - 2].manager);
    }
    auto list = sheet.Range(Block('A', 1, 'B', lastRow));
    list->Borders(excel::xlInsideHorizontal)->SetLineStyle(excel::xlContinuous);
    list->Borders(excel::xlInsideHorizontal)->SetColor(kLineGrey);
    list->BorderAround(excel::xlContinuous, excel::xlThin, excel::xlColorIndexAutomatic, kLineGrey);

    auto names = book.Names();
    names->Add("RegionList", "=Regions!$A$2:$A$" + std::to_string(lastRow));
    names->Add("SalesFigures", "=Sales!$B$" + std::to_string(kFirstDataRow) + ":$E$" + std::to_string(kLastDataRow));
    names->Add("ReportTitle", "=\"Quarterly Sales Summary\"");
    HideGridlines(book, sheet);
}

}  // namespace

int main(int argc, char** argv) {
    return RunExample(argc, argv, "out/foundation_demo.xlsx", [](const std::filesystem::path& target) {
        auto app = excel::embedded::CreateApplication();
        app->SetSheetsInNewWorkbook(2);
        auto book = app->Workbooks()->Add();
        WriteRegionsSheet(*book, *book->Worksheets(2));
        WriteSalesSheet(*book, *book->Worksheets(1));
        book->SaveAs(target.string());
        std::cout << "wrote " << target.string() << '\n';
    });
}
