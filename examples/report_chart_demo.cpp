// Shows report charts as an analysis tool writes them under its tables. Each sheet of a
// catastrophe-risk analysis has a header block, a table of modelled losses by return period and,
// below it, four charts: the losses by peril in clustered columns (title, two subtitles, a framed
// legend, a "draft" watermark, category and value axes), the exceedance curves gross and net of
// reinsurance as an XY chart on round ticks with upright labels, premium and loss ratio as lines
// with markers on two value axes, and a tornado chart of how twelve model assumptions move the mean
// loss. The report is written in English and in Chinese, each with fixed colours and with the
// workbook's theme colours.
//
// Usage: report_chart_demo [OUTPUT.xlsx]   (default out/report_chart_demo.xlsx)

#include <excel/embedded.hpp>
#include <vos/reporting.hpp>

#include "run_example.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

namespace {

const std::string kApplication = "DemoApp";

// Everything a reader sees in words, in one language.
struct ReportTexts {
    int32_t language;
    std::string sheetTitle;
    std::vector<std::string> headerLines;

    std::string lossTitle;
    std::string corner;
    std::vector<std::string> perils;
    std::vector<std::string> returnPeriods;

    std::string columnTitle;
    std::string columnSubtitle1;
    std::string columnSubtitle2;
    std::string returnPeriodAxis;
    std::string lossAxis;
    std::string watermark;
    std::string watermarkNote;

    std::string curveTitle;
    std::string curveSubtitle;
    std::string gross;
    std::string net;

    std::string trendTitle;
    std::string premium;
    std::string lossRatio;
    std::string yearAxis;
    std::string premiumAxis;
    std::string lossRatioAxis;

    std::string tornadoTitle;
    std::string tornadoSubtitle;
    std::string tornadoAxis;
    std::vector<std::string> assumptions;
};

const ReportTexts kEnglish{
    .language = 9,
    .sheetTitle = "Catastrophe Risk Charts",
    .headerLines = {"Portfolio\tNorth Atlantic property", "Simulations\t10,000 years"},
    .lossTitle = "Modelled loss by return period (USD m)",
    .corner = "Return period",
    .perils = {"Windstorm", "Flood", "Earthquake"},
    .returnPeriods = {"10 years", "25 years", "50 years", "100 years", "250 years", "500 years"},
    .columnTitle = "Loss by peril",
    .columnSubtitle1 = "Gross of reinsurance, USD m",
    .columnSubtitle2 = "10,000 simulated years",
    .returnPeriodAxis = "Return period",
    .lossAxis = "Loss (USD m)",
    .watermark = "DRAFT",
    .watermarkNote = "not for distribution",
    .curveTitle = "Exceedance probability",
    .curveSubtitle = "All perils, gross and net",
    .gross = "Gross",
    .net = "Net",
    .trendTitle = "Premium and loss ratio",
    .premium = "Premium (USD m)",
    .lossRatio = "Loss ratio",
    .yearAxis = "Underwriting year",
    .premiumAxis = "Premium (USD m)",
    .lossRatioAxis = "Loss ratio",
    .tornadoTitle = "Sensitivity of the mean loss",
    .tornadoSubtitle = "Change in USD m when each assumption is at its low and high value",
    .tornadoAxis = "Change in mean loss (USD m)",
    .assumptions = {"Wind speed", "Storm frequency", "Demand surge", "Flood defences", "Soil type", "Building age",
                    "Roof type", "Contents share", "Deductibles", "Business interruption", "Clustering",
                    "Exchange rate"},
};

const ReportTexts kChinese{
    .language = 4,
    .sheetTitle = "巨灾风险图表",
    .headerLines = {"投资组合\t北大西洋财产险", "模拟\t10,000 年"},
    .lossTitle = "按重现期的模拟损失（百万美元）",
    .corner = "重现期",
    .perils = {"风暴", "洪水", "地震"},
    .returnPeriods = {"10 年", "25 年", "50 年", "100 年", "250 年", "500 年"},
    .columnTitle = "按灾害的损失",
    .columnSubtitle1 = "再保险前，百万美元",
    .columnSubtitle2 = "10,000 个模拟年",
    .returnPeriodAxis = "重现期",
    .lossAxis = "损失（百万美元）",
    .watermark = "草稿",
    .watermarkNote = "请勿分发",
    .curveTitle = "超越概率",
    .curveSubtitle = "所有灾害，再保险前后",
    .gross = "毛损失",
    .net = "净损失",
    .trendTitle = "保费与赔付率",
    .premium = "保费（百万美元）",
    .lossRatio = "赔付率",
    .yearAxis = "承保年度",
    .premiumAxis = "保费（百万美元）",
    .lossRatioAxis = "赔付率",
    .tornadoTitle = "平均损失的敏感性",
    .tornadoSubtitle = "各假设取低值和高值时的变化（百万美元）",
    .tornadoAxis = "平均损失变化（百万美元）",
    .assumptions = {"风速", "风暴频率", "需求激增", "防洪设施", "土壤类型", "建筑年代", "屋顶类型", "财产内容比例",
                    "免赔额", "营业中断", "聚集效应", "汇率"},
};

// Losses in USD m by return period (rows) and peril (columns).
const std::array<std::vector<double>, 3> kLossesByPeril{{
    {120, 260, 410, 620, 980, 1340},
    {45, 90, 150, 230, 360, 480},
    {10, 60, 180, 390, 820, 1250},
}};
const std::vector<double> kReturnYears{10, 25, 50, 100, 250, 500};
const std::vector<double> kGrossLoss{175, 410, 740, 1240, 2160, 3070};
const std::vector<double> kNetLoss{175, 330, 420, 560, 1080, 1990};
const std::vector<double> kYears{2019, 2020, 2021, 2022, 2023, 2024, 2025, 2026};
const std::vector<double> kPremium{410, 432, 455, 470, 502, 540, 566, 590};
const std::vector<double> kLossRatio{0.58, 0.71, 0.64, 0.92, 0.61, 0.67, 0.74, 0.63};
// How far the mean loss moves (USD m) with each assumption at its low and its high value.
const std::vector<double> kSensitivityLow{-48, -35, -12, -30, 4, -18, -9, -6, -22, 2, -14, -8};
const std::vector<double> kSensitivityHigh{52, 41, 30, -5, 16, 12, 11, 7, 10, 19, 17, 9};

// Writes the values down a column of cells from the top cell; answers the cells written.
std::shared_ptr<excel::Range> WriteColumn(const std::shared_ptr<excel::Range>& top, const std::vector<double>& values) {
    const auto cells = top->Resize(static_cast<int32_t>(values.size()), 1);
    for (size_t i = 0; i < values.size(); ++i)
        cells->Cells(static_cast<int32_t>(i) + 1, 1)->SetValue(values[i]);
    return cells;
}

std::shared_ptr<excel::Range> WriteLabels(const std::shared_ptr<excel::Range>& top,
                                          const std::vector<std::string>& labels) {
    const auto cells = top->Resize(static_cast<int32_t>(labels.size()), 1);
    for (size_t i = 0; i < labels.size(); ++i)
        cells->Cells(static_cast<int32_t>(i) + 1, 1)->SetValue("'" + labels[i]);
    return cells;
}

void AddLossTable(vos::VosExcelReportWorksheet& sheet, const ReportTexts& texts,
                  std::shared_ptr<vos::VosExcelTable>& table) {
    const auto rows = static_cast<int32_t>(texts.returnPeriods.size());
    const auto perils = static_cast<int32_t>(texts.perils.size());
    table = sheet.AddTable(rows, perils, 1, 1, texts.lossTitle);
    table->SignatureRange()->SetValue("'" + texts.corner);
    table->WriteHeaderArray(vos::VosTopHeader, 1, excel::Variant(texts.perils));
    table->WriteHeaderArray(vos::VosLeftHeader, 1, excel::Variant(texts.returnPeriods));
    for (int32_t peril = 1; peril <= perils; ++peril) {
        table->WriteDataToColumn(peril, excel::Variant(kLossesByPeril[static_cast<size_t>(peril - 1)]));
        table->ConfigureColumn(peril, "", excel::xlRight, excel::xlRight, 12, "#,##0");
    }
}

// Clustered columns of the table's three perils over its return periods.
void AddPerilColumns(vos::VosExcelReportWorksheet& sheet, const ReportTexts& texts, vos::VosExcelTable& table) {
    const auto chart = sheet.AddChart(vos::VosChartColumn);
    const auto interior = table.InteriorRange();
    for (int32_t peril = 1; peril <= interior->Columns()->Count(); ++peril)
        chart->AddColumnData(interior->Columns(peril), texts.perils[static_cast<size_t>(peril - 1)]);
    chart->AddTitle(texts.columnTitle);
    chart->AddSubTitle(texts.columnSubtitle1);
    chart->AddSubTitle(texts.columnSubtitle2);
    chart->AddLegend(true);
    chart->AddCategoryXAxis(texts.returnPeriodAxis, table.LeftHeaderRange());
    chart->AddValueYAxis(texts.lossAxis, 0, 1500.0, 250, "#,##0");
    chart->AddWatermark(texts.watermark, texts.watermarkNote);
}

// Exceedance curves from data kept beside the report, on round ticks.
void AddExceedanceCurves(vos::VosExcelReportWorksheet& sheet, const ReportTexts& texts,
                         const std::shared_ptr<excel::Range>& dataCorner) {
    const auto years = WriteColumn(dataCorner, kReturnYears);
    const auto gross = WriteColumn(dataCorner->Offset(0, 1), kGrossLoss);
    const auto net = WriteColumn(dataCorner->Offset(0, 2), kNetLoss);
    const auto chart = sheet.AddChart(vos::VosChartXYMarkersAndLine);
    chart->AddXYData(years, gross, texts.gross);
    chart->AddXYData(years, net, texts.net);
    chart->AddTitle(texts.curveTitle);
    chart->AddSubTitle(texts.curveSubtitle);
    chart->AddLegend(false);
    // The vertical axis first: upright labels below give the plot area back its height last, with
    // both axes in place.
    chart->AddValueYAxisWithNiceTicks(0, *std::max_element(kGrossLoss.begin(), kGrossLoss.end()), false, true,
                                      texts.lossAxis, "#,##0");
    const auto [lowYear, highYear] = std::minmax_element(kReturnYears.begin(), kReturnYears.end());
    chart->AddValueXAxisWithNiceTicks(*lowYear, *highYear, false, true, texts.returnPeriodAxis, "0", true);
}

// Premium on the left axis, loss ratio on a secondary axis at the right.
void AddPremiumTrend(vos::VosExcelReportWorksheet& sheet, const ReportTexts& texts,
                     const std::shared_ptr<excel::Range>& dataCorner) {
    const auto years = WriteColumn(dataCorner, kYears);
    const auto premium = WriteColumn(dataCorner->Offset(0, 1), kPremium);
    const auto ratio = WriteColumn(dataCorner->Offset(0, 2), kLossRatio);
    const auto chart = sheet.AddChart(vos::VosChartLineWithMarkers, 428, 260);
    chart->AddLineData(premium, texts.premium);
    chart->AddLineData(ratio, texts.lossRatio)->SetAxisGroup(excel::xlSecondary);
    chart->AddTitle(texts.trendTitle);
    chart->AddLegend(true);
    chart->AddCategoryXAxis(texts.yearAxis, years, true);
    chart->AddValueYAxisWithNiceTicks(0, *std::max_element(kPremium.begin(), kPremium.end()), false, true,
                                      texts.premiumAxis, "#,##0");
    chart->AddSecondaryValueYAxis(texts.lossRatioAxis, 0, 1.0, 0.2, "0%");
}

// Twelve bars, each from the mean loss' change at an assumption's low value to its change at the high.
void AddSensitivityTornado(vos::VosExcelReportWorksheet& sheet, const ReportTexts& texts,
                           const std::shared_ptr<excel::Range>& dataCorner) {
    const auto labels = WriteLabels(dataCorner, texts.assumptions);
    const auto bars = static_cast<int16_t>(texts.assumptions.size());
    const auto chart = sheet.AddChart(vos::VosChartTornado, 428, sheet.RecommendedTornadoChartHeight(bars));
    chart->AddTornadoData(bars, excel::SafeArray::Doubles(kSensitivityLow),
                          excel::SafeArray::Doubles(kSensitivityHigh));
    chart->AddTornadoYAxis(labels);
    chart->AddTitle(texts.tornadoTitle);
    chart->AddSubTitle(texts.tornadoSubtitle);
    chart->AddValueXAxis(texts.tornadoAxis, vos::AutomaticAxisScale, vos::AutomaticAxisScale, vos::AutomaticAxisScale,
                         "#,##0", false);
}

void AddReportSheet(vos::VosExcelReportWorkbook& report, const ReportTexts& texts, const std::string& sheetName) {
    const auto sheet = report.NewReportWorksheet(sheetName);
    sheet->AddHeader(texts.sheetTitle, excel::Variant(texts.headerLines));
    sheet->AddSeparatorRows(1);
    std::shared_ptr<vos::VosExcelTable> table;
    AddLossTable(*sheet, texts, table);
    sheet->AddSeparatorRows(1);
    // The charts' own data stand to the right of the report, out of the reader's way.
    const auto data = sheet->ExcelWorksheet()->Range("M2");
    AddPerilColumns(*sheet, texts, *table);
    sheet->AddSeparatorRows(1);
    AddExceedanceCurves(*sheet, texts, data);
    sheet->AddSeparatorRows(1);
    AddPremiumTrend(*sheet, texts, data->Offset(0, 4));
    sheet->AddSeparatorRows(1);
    AddSensitivityTornado(*sheet, texts, data->Offset(0, 8));
}

}  // namespace

int main(int argc, char** argv) {
    return RunExample(argc, argv, "out/report_chart_demo.xlsx", [](const std::filesystem::path& target) {
        const auto app = excel::embedded::CreateApplication();
        vos::VosExcelReporting reporting;
        const auto english = reporting.NewReportWorkbook(app, kApplication, nullptr, false, kEnglish.language);
        AddReportSheet(*english, kEnglish, "English");
        english->SetUseThemes(true);
        AddReportSheet(*english, kEnglish, "English themed");
        // Chinese shares the Excel workbook through a report workbook of its own.
        const auto book = english->ExcelWorkbook();
        const auto chinese = reporting.NewReportWorkbook(app, kApplication, book, false, kChinese.language);
        AddReportSheet(*chinese, kChinese, "Chinese");
        chinese->SetUseThemes(true);
        AddReportSheet(*chinese, kChinese, "Chinese themed");
        english->ActivateFirstWorksheetCreated();
        book->SaveAs(target.string());
        std::cout << "Report charts saved to " << target.string() << '\n';
    });
}
