// Makes, in-process, the calls tests/windows/vbscript/report_client.vbs makes on the engine's
// automation object: a header, a formatted table, a comment and a column chart. The two workbooks
// must be the same part by part.
//
// Usage: report_calls_writer OUTPUT.xlsx

#include <excel/embedded.hpp>
#include <excel/excel.hpp>

#include <cstdio>
#include <exception>
#include <string>
#include <vector>

namespace {

using excel::SafeArray;
using excel::Variant;

// VBScript's arrays: one-dimensional, and two-dimensional from 0, of variants.
Variant Row(const std::vector<Variant>& values) {
    SafeArray array(excel::VarType::Variant, {{0, static_cast<uint32_t>(values.size())}});
    for (size_t i = 0; i < values.size(); ++i) {
        array.Set({static_cast<int32_t>(i)}, values[i]);
    }
    return Variant(std::move(array));
}

Variant Block(const std::vector<std::vector<Variant>>& rows) {
    const auto columns = static_cast<uint32_t>(rows.front().size());
    SafeArray array(excel::VarType::Variant, {{0, static_cast<uint32_t>(rows.size())}, {0, columns}});
    for (size_t row = 0; row < rows.size(); ++row) {
        for (size_t column = 0; column < rows[row].size(); ++column) {
            array.Set({static_cast<int32_t>(row), static_cast<int32_t>(column)}, rows[row][column]);
        }
    }
    return Variant(std::move(array));
}

// VBScript's RGB.
int32_t Rgb(int32_t red, int32_t green, int32_t blue) {
    return red + green * 256 + blue * 65536;
}

void WriteReport(const std::string& output) {
    const auto xl = excel::embedded::CreateApplication();
    xl->SetSheetsInNewWorkbook(1);
    xl->SetDisplayAlerts(false);
    const auto wb = xl->Workbooks()->Add();
    const auto ws = wb->Worksheets(1);
    ws->SetName("Risk report");

    ws->Range("A1")->SetValue(Variant("Risk report"));
    ws->Range("A1")->Font()->SetBold(true);
    ws->Range("A1")->Font()->SetSize(14);
    ws->Range("A1:D1")->Merge();
    ws->Range("A1:D1")->SetHorizontalAlignment(excel::xlCenter);
    ws->Range("A2:B3")->SetValue(Block({{"Model", "Catastrophe 7.2"}, {"Runs", int32_t{10000}}}));
    ws->Range("A2:A3")->Font()->SetItalic(true);

    ws->Range("A5:C5")->SetValue(Row({"Region", "Premium", "Loss ratio"}));
    ws->Range("A5:C5")->Font()->SetBold(true);
    ws->Range("A5:C5")->Interior()->SetColor(Rgb(221, 235, 247));
    ws->Range("A5:C5")->Borders(excel::xlEdgeBottom)->SetLineStyle(excel::xlContinuous);
    ws->Range("A5:C5")->Borders(excel::xlEdgeBottom)->SetWeight(excel::xlMedium);
    const std::vector<std::string> regions{"North", "South", "East", "West"};
    const std::vector<Variant> premium{int32_t{1250000}, int32_t{830000}, int32_t{410000}, 96500.5};
    const std::vector<double> lossRatio{0.61, 0.74, 0.58, 0.92};
    std::vector<std::vector<Variant>> data;
    for (size_t row = 0; row < regions.size(); ++row) {
        data.push_back({regions[row], premium[row], lossRatio[row]});
    }
    ws->Range("A6:C9")->SetValue(Block(data));
    ws->Range("B6:B9")->SetNumberFormat("#,##0.00");
    ws->Range("C6:C9")->SetNumberFormat("0.0%");
    ws->Range("B5:C9")->SetHorizontalAlignment(excel::xlRight);
    ws->Range("A5:C9")->BorderAround(Variant(excel::xlContinuous), excel::xlThin);
    ws->Columns(1)->SetColumnWidth(14);
    ws->Columns(2)->SetColumnWidth(16);
    ws->Range("C9")->AddComment(Variant("Above appetite."));

    const auto shape =
        ws->Shapes()->AddChart(excel::xlColumnClustered, ws->Range("E5")->Left(), ws->Range("E5")->Top(), 360, 220);
    const auto chart = shape->Chart();
    const auto series = chart->SeriesCollection()->NewSeries();
    series->SetName("Premium");
    series->SetValues(Variant(ws->Range("B6:B9")));
    series->SetXValues(Variant(ws->Range("A6:A9")));
    chart->SetHasTitle(true);
    chart->ChartTitle()->SetText("Premium by region");
    chart->Axes(excel::xlValue)->SetHasTitle(true);
    chart->Axes(excel::xlValue)->AxisTitle()->SetText("USD");
    chart->Axes(excel::xlCategory)->TickLabels()->Font()->SetSize(9);

    ws->Range("A1")->Select();
    wb->SaveAs(output);
    wb->Close(Variant(false));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: report_calls_writer OUTPUT.xlsx\n", stderr);
        return 2;
    }
    try {
        WriteReport(argv[1]);
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "error: %s\n", error.what());
        return 1;
    }
}
