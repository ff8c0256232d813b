// Writes one report workbook with every kind of report element: header blocks in cells and in a
// text box, tables with headers, data, column settings, comments and dividers, the four kinds of
// chart, and cell comments, in two languages, with fixed and theme colours. Unit-testing mode
// fixes the user, date and time, so builds for different systems must write the same workbook.
//
// Usage: report_parity_writer [--through-automation] [--no-tornado] OUTPUT.xlsx
//   --through-automation (Windows): the report library drives the engine's automation object through
//   the object model over IDispatch, rather than the engine in-process.
//   --no-tornado: without the tornado charts, which take arrays of doubles: the report a VBScript
//   client builds (vbscript/report_client.vbs), as VBScript makes no such arrays.

#include <excel/com.hpp>
#include <excel/embedded.hpp>
#include <excel/excel.hpp>
#include <vos/reporting.hpp>

#include <cstdio>
#include <exception>
#include <string>
#include <vector>

namespace {

const std::vector<std::string> kRegions{"North", "South", "East", "West"};
const std::vector<double> kPremium{1250000, 830000, 410000, 96500.5};
const std::vector<double> kLossRatio{0.61, 0.74, 0.58, 0.92};
const std::vector<double> kYears{10, 25, 50, 100, 250};
const std::vector<double> kLosses{175, 410, 740, 1240, 2160};

void AddSheet(vos::VosExcelReportWorkbook& report, const std::string& name, const std::string& title,
              bool withTornado) {
    const auto sheet = report.NewReportWorksheet(name);
    sheet->AddHeader(title, excel::Variant(std::vector<std::string>{"Model\tCatastrophe 7.2", "Runs\t10,000"}));
    sheet->AddSeparatorRows(1);
    sheet->AddHeaderRange(title, excel::Variant(std::vector<std::string>{"Portfolio\tProperty"}));
    sheet->AddSeparatorRows(1);

    const auto table = sheet->AddTable(4, 2, 1, 1, "Premium and loss ratio", "By region");
    table->WriteHeaderArray(vos::VosLeftHeader, 1, excel::Variant(kRegions));
    table->WriteDataToColumn(1, excel::Variant(kPremium));
    table->WriteDataToColumn(2, excel::Variant(kLossRatio));
    table->ConfigureColumn(1, "Premium", excel::xlRight, excel::xlRight, 14, "#,##0.00");
    table->ConfigureColumn(2, "Loss ratio", excel::xlRight, excel::xlRight, 12, "0.0%");
    table->AddRowDividerLine(2, true);
    table->AddColumnDividerLine(1, true);
    table->AddComment(4, 2, "Review", "Above appetite.");
    sheet->AddComment(table->AnchorCell(), "Source", "Modelled losses, gross.");
    sheet->AddSeparatorRows(1);

    const auto columns = sheet->AddChart(vos::VosChartColumn);
    columns->AddColumnData(table->InteriorRange()->Columns(1), "Premium");
    columns->AddTitle("Premium by region");
    columns->AddSubTitle("USD");
    columns->AddLegend(true);
    columns->AddCategoryXAxis("Region", table->LeftHeaderRange());
    columns->AddValueYAxisWithNiceTicks(0, 1250000, false, true, "Premium", "#,##0");
    sheet->AddSeparatorRows(1);

    const auto data = sheet->ExcelWorksheet()->Range("M2");
    for (size_t i = 0; i < kYears.size(); ++i) {
        data->Offset(static_cast<int32_t>(i), 0)->SetValue(kYears[i]);
        data->Offset(static_cast<int32_t>(i), 1)->SetValue(kLosses[i]);
    }
    const auto curve = sheet->AddChart(vos::VosChartXYMarkersAndLine, 400, 250);
    curve->AddXYData(data->Resize(5, 1), data->Offset(0, 1)->Resize(5, 1), "Gross");
    curve->AddTitle("Exceedance");
    curve->AddValueYAxisWithNiceTicks(0, 2160, false, true, "Loss", "#,##0");
    curve->AddValueXAxisWithNiceTicks(10, 250, false, true, "Return period", "0", true);
    sheet->AddSeparatorRows(1);

    const auto trend = sheet->AddChart(vos::VosChartLineWithMarkers, 400, 220);
    trend->AddLineData(table->InteriorRange()->Columns(1), "Premium");
    trend->AddLineData(table->InteriorRange()->Columns(2), "Loss ratio")->SetAxisGroup(excel::xlSecondary);
    trend->AddLegend(false);
    trend->AddCategoryXAxis("", table->LeftHeaderRange(), true);
    trend->AddValueYAxis("Premium");
    trend->AddSecondaryValueYAxis("Loss ratio", 0, 1.0, 0.25, "0%");
    sheet->AddSeparatorRows(1);

    if (!withTornado) {
        return;
    }
    const auto tornado = sheet->AddChart(vos::VosChartTornado, 400, sheet->RecommendedTornadoChartHeight(4));
    tornado->AddTornadoData(4, excel::SafeArray::Doubles(std::vector<double>{-48, -12.5, 4, -30}),
                            excel::SafeArray::Doubles(std::vector<double>{52, 30, 16, -5}));
    tornado->AddTornadoYAxis(table->LeftHeaderRange());
    tornado->AddTitle("Sensitivity");
    tornado->AddValueXAxis("Change", vos::AutomaticAxisScale, vos::AutomaticAxisScale, vos::AutomaticAxisScale, "#,##0",
                           false);
}

}  // namespace

int main(int argc, char** argv) {
    bool throughAutomation = false;
    bool withTornado = true;
    bool understood = argc >= 2;
    for (int i = 1; i + 1 < argc; ++i) {
        const std::string option = argv[i];
        throughAutomation = throughAutomation || option == "--through-automation";
        withTornado = withTornado && option != "--no-tornado";
        understood = understood && (option == "--through-automation" || option == "--no-tornado");
    }
    if (!understood) {
        std::fputs("usage: report_parity_writer [--through-automation] [--no-tornado] OUTPUT.xlsx\n", stderr);
        return 2;
    }
    const char* output = argv[argc - 1];
    try {
#ifdef _WIN32
        const auto app = throughAutomation ? excel::com::CreateApplication("VosExcelEngine.Application")
                                           : excel::embedded::CreateApplication();
#else
        if (throughAutomation) {
            std::fputs("error: automation needs the Windows build\n", stderr);
            return 2;
        }
        const auto app = excel::embedded::CreateApplication();
#endif
        vos::VosExcelReporting reporting;
        reporting.SetUnitTestingMode(true);
        const auto english = reporting.NewReportWorkbook(app, "ParityApp");
        AddSheet(*english, "English", "Risk report", withTornado);
        english->SetUseThemes(true);
        AddSheet(*english, "English themed", "Risk report", withTornado);
        const auto book = english->ExcelWorkbook();
        const auto chinese = reporting.NewReportWorkbook(app, "ParityApp", book, false, 4);
        AddSheet(*chinese, "中文", "风险报告", withTornado);
        english->ActivateFirstWorksheetCreated();
        book->SaveAs(output);
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "error: %s\n", error.what());
        return 1;
    }
}
