// Builds a table of monthly figures and three charts of it through the Excel object model (a
// clustered column chart, an XY scatter with markers, and a line chart with a secondary value
// axis and a text box of its own), and saves them as .xlsx.
//
// Usage: chart_demo [OUTPUT.xlsx]   (default out/chart_demo.xlsx)

#include <excel/embedded.hpp>
#include <excel/excel.hpp>

#include "run_example.hpp"

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>

namespace {

constexpr int32_t Rgb(int32_t red, int32_t green, int32_t blue) {
    return red | (green << 8) | (blue << 16);
}

struct Month {
    const char* name;
    double north;
    double south;
    double share;  // of the market, percent
};

constexpr std::array<Month, 6> kMonths{{
    {"Jan", 412.5, 298.0, 12.1},
    {"Feb", 438.1, 305.4, 12.8},
    {"Mar", 455.9, 287.6, 13.5},
    {"Apr", 502.3, 331.2, 14.2},
    {"May", 489.3, 345.9, 14.0},
    {"Jun", 521.0, 362.4, 15.3},
}};

void FillTable(excel::Worksheet& sheet) {
    sheet.Range("A1:D1")->SetValue(excel::Variant(std::vector<std::string>{"Month", "North", "South", "Share %"}));
    sheet.Range("A1:D1")->Font()->SetBold(true);
    for (std::size_t i = 0; i < kMonths.size(); ++i) {
        const int32_t row = static_cast<int32_t>(i) + 2;
        sheet.Cells(row, 1)->SetValue(excel::Variant(kMonths[i].name));
        sheet.Cells(row, 2)->SetValue(excel::Variant(kMonths[i].north));
        sheet.Cells(row, 3)->SetValue(excel::Variant(kMonths[i].south));
        sheet.Cells(row, 4)->SetValue(excel::Variant(kMonths[i].share));
    }
}

std::shared_ptr<excel::Series> AddSeries(excel::Chart& chart, const std::shared_ptr<excel::Range>& values,
                                         const std::string& nameCell) {
    auto series = chart.SeriesCollection()->NewSeries();
    series->SetValues(excel::Variant(values));
    series->SetName("=Sheet1!" + nameCell);
    return series;
}

void ColumnChart(excel::Worksheet& sheet) {
    auto chart = sheet.Shapes()->AddChart(excel::xlColumnClustered, 260, 10, 400, 230)->Chart();
    chart->Parent()->SetPlacement(excel::xlMove);
    chart->ChartArea()->Border()->SetWeight(excel::xlMedium);
    AddSeries(*chart, sheet.Range("B2:B7"), "$B$1")->Fill()->OneColorGradient(excel::msoGradientDiagonalDown, 1, 0.23);
    AddSeries(*chart, sheet.Range("C2:C7"), "$C$1");
    chart->ChartGroups(1)->SetGapWidth(75);
    chart->ChartGroups(1)->SetOverlap(10);
    chart->Axes(excel::xlCategory)->SetCategoryNames(excel::Variant(sheet.Range("A2:A7")));
    chart->SetHasTitle(true);
    auto title = chart->ChartTitle();
    title->Characters()->SetText("Sales by month ");
    title->Font()->SetSize(12);
    const int32_t last = title->Characters()->Count();
    title->Characters(last)->Insert("\nNorth and South, in thousands ");
    title->Characters(last)->Font()->SetBold(false);
    title->Characters(last)->Font()->SetSize(8);
    auto legend = chart->Legend();
    legend->Border()->SetLineStyle(excel::xlContinuous);
    legend->Border()->SetColorIndex(15);
}

void ScatterChart(excel::Worksheet& sheet) {
    auto chart = sheet.Shapes()->AddChart(excel::xlXYScatter, 10, 250, 320, 220)->Chart();
    auto series = chart->SeriesCollection()->NewSeries();
    series->SetXValues(excel::Variant(sheet.Range("B2:B7")));
    series->SetValues(excel::Variant(sheet.Range("C2:C7")));
    series->SetName("South against North");
    series->SetMarkerStyle(excel::xlMarkerStyleDiamond);
    series->SetMarkerSize(7);
    series->SetMarkerForegroundColor(Rgb(0x33, 0x33, 0x99));
    series->SetMarkerBackgroundColor(Rgb(0x99, 0x99, 0xCC));
    auto x = chart->Axes(excel::xlCategory);
    x->SetMinimumScale(400);
    x->SetMaximumScale(550);
    x->SetMajorUnit(50);
    x->TickLabels()->SetOrientation(excel::xlTickLabelOrientationUpward);
    chart->SetHasLegend(false);
}

void LineChart(excel::Worksheet& sheet) {
    auto chart = sheet.Shapes()->AddChart(excel::xlLineMarkers, 340, 250, 320, 220)->Chart();
    AddSeries(*chart, sheet.Range("B2:B7"), "$B$1");
    auto share = AddSeries(*chart, sheet.Range("D2:D7"), "$D$1");
    share->SetAxisGroup(excel::xlSecondary);
    auto right = chart->Axes(excel::xlValue, excel::xlSecondary);
    right->TickLabels()->SetNumberFormat("0.0\"%\"");
    right->SetHasTitle(true);
    right->AxisTitle()->Characters()->SetText("Share");
    chart->Legend()->SetPosition(excel::xlLegendPositionBottom);
    auto note = chart->Shapes()->AddTextbox(excel::msoTextOrientationHorizontal, 60, 20, 200, 24);
    note->TextFrame()->Characters()->SetText("Preliminary");
    note->TextFrame()->Characters()->Font()->SetColor(Rgb(0xC0, 0xC0, 0xC0));
    note->TextFrame()->SetHorizontalAlignment(excel::xlHAlignCenter);
}

}  // namespace

int main(int argc, char** argv) {
    return RunExample(argc, argv, "out/chart_demo.xlsx", [](const std::filesystem::path& target) {
        auto app = excel::embedded::CreateApplication();
        auto book = app->Workbooks()->Add();
        auto sheet = book->Worksheets(1);
        FillTable(*sheet);
        ColumnChart(*sheet);
        ScatterChart(*sheet);
        LineChart(*sheet);
        book->SaveAs(target.string());
    });
}
