// Writes the fuzz targets' seed workbooks: small files of the library's own, each with a few of the
// things a package holds (values and formulas, shared and rich strings, styles, merges, names,
// comments, text boxes, charts), so that the fuzzer starts inside every part reader.
//
// Usage: fuzz_seed_writer FOLDER

#include <excel/embedded.hpp>
#include <excel/excel.hpp>

#include <cstdint>
#include <exception>
#include <filesystem>
#include <functional>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

namespace {

using Writer = std::function<void(excel::Workbook&)>;

void Values(excel::Workbook& book) {
    auto sheet = book.Worksheets(1);
    sheet->Range("A1")->SetValue("Text");
    sheet->Range("B1")->SetValue(42.5);
    sheet->Range("C1")->SetValue(true);
    sheet->Range("D1")->SetValue(-7);
    sheet->Range("A2")->SetValue("Text");  // shared with A1
    sheet->Range("B2")->SetFormula("=B1*2");
    sheet->Range("C2")->SetFormula("=SUM(B1:B2)&\" units\"");
    sheet->Range("D2")->SetFormula("=1/0");
    sheet->Range("B3:D3")->SetFormula("=B1+1");
    sheet->Range("A4")->SetValue("Bold and plain");
    sheet->Range("A4")->Characters(1, 4)->Font()->SetBold(true);
    sheet->Range("A5")->SetValue("Ünïcödé 中文 text");
    sheet->Range("XFD1048576")->SetValue(1);
}

void Styles(excel::Workbook& book) {
    auto sheet = book.Worksheets(1);
    auto header = sheet->Range("A1:D1");
    header->SetValue(excel::Variant(std::vector<std::string>{"Region", "Q1", "Q2", "Share"}));
    header->Font()->SetBold(true);
    header->Font()->SetName("Arial");
    header->Font()->SetUnderline(excel::xlUnderlineStyleSingle);
    header->Interior()->SetColor(0x79'4E'1F);
    header->Font()->SetColor(0xFF'FF'FF);
    header->SetHorizontalAlignment(excel::xlCenter);
    auto figures = sheet->Range("B2:C3");
    figures->SetValue(excel::Variant(std::vector<double>{412.5, 298.25}));
    figures->SetNumberFormat("#,##0.00;[Red]-#,##0.00");
    sheet->Range("D2:D3")->SetNumberFormat("0.0%");
    sheet->Range("D2:D3")->SetValue(0.125);
    sheet->Range("A2")->SetValue("North, a long label");
    sheet->Range("A2")->SetWrapText(true);
    sheet->Range("A3")->SetOrientation(45);
    sheet->Range("A3")->SetIndentLevel(2);
    sheet->Range("A1:D3")->Borders()->SetLineStyle(excel::xlContinuous);
    sheet->Range("A3:D3")->Borders(excel::xlEdgeBottom)->SetWeight(excel::xlMedium);
    sheet->Columns(1)->SetColumnWidth(22);
    sheet->Rows(1)->SetRowHeight(28);
    sheet->Rows(5)->SetHidden(true);
    sheet->Columns(6)->SetHidden(true);
    book.Windows(1)->SetDisplayGridlines(false);
}

void MergesAndNames(excel::Workbook& book) {
    auto first = book.Worksheets(1);
    first->SetName("Summary");
    first->Range("A1:C1")->SetMergeCells(true);
    first->Range("A1")->SetValue("Merged title");
    first->Range("A3:B4")->Merge();
    auto second = book.Worksheets()->Add(excel::Variant(), excel::Variant(first));
    second->SetName("Data 'q' sheet");
    second->Range("A1:A3")->SetValue(excel::Variant(std::vector<double>{1, 2, 3}));
    book.Names()->Add("DataColumn", "='Data ''q'' sheet'!$A$1:$A$3");
    book.Names()->Add("Constant", "=\"a text\"");
    book.Names()->Add("Hidden", "=Summary!$A$1", false);
    first->Names()->Add("LocalName", "=Summary!$B$2");
    first->Range("D1")->SetFormula("=SUM(DataColumn)");
}

void Comments(excel::Workbook& book) {
    auto sheet = book.Worksheets(1);
    sheet->Range("A1")->SetValue("Reviewed");
    sheet->Range("A1")->AddComment("Checked against the ledger.");
    auto shown = sheet->Range("C3")->AddComment("A note that stays visible\non two lines");
    shown->SetVisible(true);
}

void Drawings(excel::Workbook& book) {
    auto sheet = book.Worksheets(1);
    sheet->Range("A1:C1")->SetValue(excel::Variant(std::vector<std::string>{"Month", "North", "South"}));
    sheet->Range("A2:A4")->SetValue(excel::Variant(std::vector<std::string>{"Jan", "Feb", "Mar"}));
    sheet->Range("B2:B4")->SetValue(excel::Variant(std::vector<double>{412.5, 438.1, 455.9}));
    sheet->Range("C2:C4")->SetValue(excel::Variant(std::vector<double>{298.0, 305.4, 287.6}));
    auto box = sheet->Shapes()->AddTextbox(excel::msoTextOrientationHorizontal, 200, 10, 150, 40);
    box->TextFrame()->Characters()->SetText("A text box");
    box->TextFrame()->Characters(1, 1)->Font()->SetBold(true);

    auto column = sheet->Shapes()->AddChart(excel::xlColumnClustered, 10, 80, 300, 200)->Chart();
    auto north = column->SeriesCollection()->NewSeries();
    north->SetValues(excel::Variant(sheet->Range("B2:B4")));
    north->SetName("=Sheet1!$B$1");
    column->Axes(excel::xlCategory)->SetCategoryNames(excel::Variant(sheet->Range("A2:A4")));
    column->SetHasTitle(true);
    column->ChartTitle()->Characters()->SetText("Sales");
    column->SetHasLegend(true);

    auto scatter = sheet->Shapes()->AddChart(excel::xlXYScatter, 320, 80, 250, 200)->Chart();
    auto points = scatter->SeriesCollection()->NewSeries();
    points->SetXValues(excel::Variant(sheet->Range("B2:B4")));
    points->SetValues(excel::Variant(sheet->Range("C2:C4")));
    scatter->SetHasLegend(false);

    auto line = sheet->Shapes()->AddChart(excel::xlLineMarkers, 10, 300, 300, 200)->Chart();
    line->SeriesCollection()->NewSeries()->SetValues(excel::Variant(sheet->Range("B2:B4")));
    auto south = line->SeriesCollection()->NewSeries();
    south->SetValues(excel::Variant(sheet->Range("C2:C4")));
    south->SetAxisGroup(excel::xlSecondary);
    auto right = line->Axes(excel::xlValue, excel::xlSecondary);
    right->SetHasTitle(true);
    right->AxisTitle()->Characters()->SetText("South");
    line->Shapes()
        ->AddTextbox(excel::msoTextOrientationHorizontal, 20, 20, 120, 24)
        ->TextFrame()
        ->Characters()
        ->SetText("In a chart");
}

void Protected(excel::Workbook& book) {
    book.SetDate1904(true);
    book.Worksheets(1)->Range("A1")->SetValue(1000.5);
    book.Worksheets(1)->Range("A1")->SetNumberFormat("yyyy-mm-dd hh:mm");
    book.Protect("secret", true);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: fuzz_seed_writer FOLDER\n";
        return 2;
    }
    const std::filesystem::path folder = std::filesystem::absolute(argv[1]);
    const std::vector<std::pair<std::string, Writer>> seeds{
        {"empty", [](excel::Workbook&) {}}, {"values", Values},     {"styles", Styles},
        {"merges_names", MergesAndNames},   {"comments", Comments}, {"drawings", Drawings},
        {"protected", Protected},
    };
    try {
        std::filesystem::create_directories(folder);
        auto app = excel::embedded::CreateApplication();
        app->SetDisplayAlerts(false);
        for (const auto& [name, write] : seeds) {
            auto book = app->Workbooks()->Add();
            write(*book);
            book->SaveAs((folder / (name + ".xlsx")).string());
            book->Close(false);
        }
    } catch (const excel::AutomationError& error) {
        std::cerr << "automation error 0x" << std::hex << static_cast<uint32_t>(error.code()) << ": " << error.what()
                  << '\n';
        return 1;
    } catch (const std::exception& error) {
        std::cerr << "error: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
