// Shows report tables as an analysis tool writes them: each sheet of a catastrophe-risk analysis has
// a header block and three tables, the summary statistics of four model runs (no titles, run numbers
// along the top), the losses by return period (titles, a summary over paired captions, divider
// lines) and the exposure by region and line of business (two header columns, comments, a wrapped
// notes column, a custom double line over the totals). The report is written in English and in
// Chinese, each with fixed colours and with the workbook's theme colours.
//
// Usage: report_table_demo [OUTPUT.xlsx]   (default out/report_table_demo.xlsx)

#include <excel/embedded.hpp>
#include <vos/reporting.hpp>

#include "run_example.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

namespace {

const std::string kApplication = "DemoApp";
const std::string kMoneyFormat = "#,##0";
const std::string kShareFormat = "0.0%";
// Premiums per policy are shown with cents in the reader's own number format.
const std::string kPremiumFormat = "[LOCAL]#,##0.00";

struct Note {
    std::string header;
    std::string text;
};

// A remark on one exposure row, shown in the wrapped notes column.
struct RowNote {
    size_t row;
    std::string text;
};

// Everything a reader sees in words, in one language.
struct ReportTexts {
    int32_t language;
    std::string sheetTitle;
    std::vector<std::string> headerLines;

    std::string statisticsCorner;
    std::string runPrefix;
    std::vector<std::string> statistics;

    std::string lossTitle;
    std::string lossSubtitle;
    std::string lossSummary;
    std::string lossCorner;
    std::vector<std::string> lossCaptions;
    std::vector<std::string> lossUnits;
    std::vector<std::string> returnPeriods;

    std::string exposureTitle;
    std::string exposureSubtitle;
    std::string regionCaption;
    std::string lineCaption;
    std::vector<std::string> exposureCaptions;
    std::vector<std::string> regions;
    std::vector<std::string> lines;
    std::string allRegions;
    std::string allLines;
    std::vector<RowNote> notes;
    Note reviewNote;
    Note definitionNote;
    Note sourceNote;

    // Column widths in characters grow with the larger type of Chinese reports.
    double widthScale;
};

// Rows of the exposure table: regions in blocks of one row per line of business.
constexpr size_t kRegionCount = 6;
constexpr size_t kLineCount = 4;
constexpr size_t kExposureRows = kRegionCount * kLineCount;
constexpr size_t kGulfCoastHospitality = 2 * kLineCount + 3;
constexpr size_t kSoutheastIndustrial = 1 * kLineCount + 2;
constexpr size_t kMidwestRetail = 3 * kLineCount + 1;
constexpr size_t kPacificOffice = 5 * kLineCount + 0;

const ReportTexts kEnglish{
    .language = 9,
    .sheetTitle = "Catastrophe Risk Analysis",
    .headerLines = {"Portfolio\tCommercial property, North America", "Model\tCatastrophe model 7.2",
                    "Simulations\t10,000 years", "Runs\t1 base, 2 demand surge, 3 storm surge, 4 both"},
    .statisticsCorner = "Annual gross loss, USD",
    .runPrefix = "Run ",
    .statistics = {"Mean annual loss", "Standard deviation", "1-in-10 year loss", "1-in-100 year loss",
                   "1-in-250 year loss", "1-in-1,000 year loss", "Largest simulated loss"},
    .lossTitle = "Occurrence loss by return period",
    .lossSubtitle = "Run 1, before and after the catastrophe excess of loss programme of USD 500m xs USD 150m",
    .lossSummary = "Largest loss of a year, 10,000 simulated years",
    .lossCorner = "Return period",
    .lossCaptions = {"Gross loss", "Net loss", "Recoveries", "Recovered"},
    .lossUnits = {"USD", "USD", "USD", "share of gross"},
    .returnPeriods = {"2 years", "5 years", "10 years", "25 years", "50 years", "100 years", "200 years", "250 years",
                      "500 years", "1,000 years"},
    .exposureTitle = "Exposure and loss by region and line of business",
    .exposureSubtitle = "Run 1; amounts in USD, insured values in USD thousands",
    .regionCaption = "Region",
    .lineCaption = "Line of business",
    .exposureCaptions = {"Policies", "Insured value", "Mean annual loss", "Loss ratio", "Premium per policy",
                         "Underwriting note"},
    .regions = {"Northeast", "Southeast", "Gulf Coast", "Midwest", "Mountain", "Pacific"},
    .lines = {"Office", "Retail", "Industrial", "Hospitality"},
    .allRegions = "All regions",
    .allLines = "Total",
    .notes = {{kGulfCoastHospitality,
               "Beachfront hotels hold 40% of the insured value and storm surge drives most "
               "of the mean loss; review the deductibles at renewal."},
              {kSoutheastIndustrial,
               "Two large warehouses hold a quarter of the value; their flood defences were "
               "surveyed in March."},
              {kMidwestRetail, "Severe convective storm only; hail losses are limited by the roof-age clause."},
              {kPacificOffice,
               "Earthquake losses include fire following; older concrete frames carry a "
               "loading."}},
    .reviewNote = {"Review", "Above the 25% loss-ratio appetite; storm surge is two thirds of the mean loss."},
    .definitionNote = {"Definition", "Mean annual loss divided by the written premium."},
    .sourceNote = {"Source", "Exposure as of 1 January; losses of run 1 (base)."},
    .widthScale = 1.0,
};

const ReportTexts kChinese{
    .language = 4,
    .sheetTitle = "\u5de8\u707e\u98ce\u9669\u5206\u6790",
    .headerLines = {"\u6295\u8d44\u7ec4\u5408\t\u5317\u7f8e\u5546\u4e1a\u8d22\u4ea7",
                    "\u6a21\u578b\tCatastrophe model 7.2", "\u6a21\u62df\t10,000 \u5e74",
                    "\u65b9\u6848\t1 \u57fa\u51c6\uff0c2 \u9700\u6c42\u6fc0\u589e\uff0c3 \u98ce\u66b4\u6f6e\uff0c4 "
                    "\u4e24\u8005\u517c\u6709"},
    .statisticsCorner = "\u5e74\u5ea6\u6bdb\u635f\u5931\uff08\u7f8e\u5143\uff09",
    .runPrefix = "\u65b9\u6848 ",
    .statistics = {"\u5e73\u5747\u5e74\u635f\u5931", "\u6807\u51c6\u5dee", "10 \u5e74\u4e00\u9047\u635f\u5931",
                   "100 \u5e74\u4e00\u9047\u635f\u5931", "250 \u5e74\u4e00\u9047\u635f\u5931",
                   "1,000 \u5e74\u4e00\u9047\u635f\u5931", "\u6700\u5927\u6a21\u62df\u635f\u5931"},
    .lossTitle = "\u5404\u91cd\u73b0\u671f\u5355\u6b21\u4e8b\u4ef6\u635f\u5931",
    .lossSubtitle =
        "\u65b9\u6848 1\uff0c\u5de8\u707e\u8d85\u8d54\u518d\u4fdd\u9669\uff08\u8d77\u8d54\u70b9 1.5 "
        "\u4ebf\u7f8e\u5143\uff0c\u9650\u989d 5 \u4ebf\u7f8e\u5143\uff09\u524d\u540e",
    .lossSummary = "\u5e74\u5ea6\u6700\u5927\u635f\u5931\uff0c10,000 \u4e2a\u6a21\u62df\u5e74",
    .lossCorner = "\u91cd\u73b0\u671f",
    .lossCaptions = {"\u6bdb\u635f\u5931", "\u51c0\u635f\u5931", "\u644a\u56de", "\u644a\u56de\u6bd4\u4f8b"},
    .lossUnits = {"\u7f8e\u5143", "\u7f8e\u5143", "\u7f8e\u5143", "\u5360\u6bdb\u635f\u5931"},
    .returnPeriods = {"2 \u5e74", "5 \u5e74", "10 \u5e74", "25 \u5e74", "50 \u5e74", "100 \u5e74", "200 \u5e74",
                      "250 \u5e74", "500 \u5e74", "1,000 \u5e74"},
    .exposureTitle =
        "\u6309\u5730\u533a\u548c\u4e1a\u52a1\u7ebf\u5212\u5206\u7684\u98ce\u9669\u66b4\u9732\u4e0e\u635f\u5931",
    .exposureSubtitle =
        "\u65b9\u6848 "
        "1\uff1b\u91d1\u989d\u5355\u4f4d\u4e3a\u7f8e\u5143\uff0c\u4fdd\u9669\u4ef7\u503c\u5355\u4f4d\u4e3a\u5343\u7f8e"
        "\u5143",
    .regionCaption = "\u5730\u533a",
    .lineCaption = "\u4e1a\u52a1\u7ebf",
    .exposureCaptions = {"\u4fdd\u5355\u6570", "\u4fdd\u9669\u4ef7\u503c", "\u5e73\u5747\u5e74\u635f\u5931",
                         "\u635f\u5931\u7387", "\u6bcf\u5f20\u4fdd\u5355\u4fdd\u8d39", "\u6838\u4fdd\u8bf4\u660e"},
    .regions = {"\u4e1c\u5317\u90e8", "\u4e1c\u5357\u90e8", "\u58a8\u897f\u54e5\u6e7e\u6cbf\u5cb8",
                "\u4e2d\u897f\u90e8", "\u5c71\u5730", "\u592a\u5e73\u6d0b\u6cbf\u5cb8"},
    .lines = {"\u529e\u516c", "\u96f6\u552e", "\u5de5\u4e1a", "\u9152\u5e97"},
    .allRegions = "\u6240\u6709\u5730\u533a",
    .allLines = "\u5408\u8ba1",
    .notes = {{kGulfCoastHospitality,
               "\u6d77\u6ee8\u9152\u5e97\u5360\u4fdd\u9669\u4ef7\u503c\u7684 "
               "40%"
               "\uff0c\u98ce\u66b4\u6f6e\u9020\u6210\u4e86\u5927\u90e8\u5206\u5e73\u5747\u635f\u5931\uff1b\u7eed\u4fdd"
               "\u65f6\u9700\u590d\u6838\u514d\u8d54\u989d\u3002"},
              {kSoutheastIndustrial,
               "\u4e24\u5ea7\u5927\u578b\u4ed3\u5e93\u5360\u4ef7\u503c\u7684\u56db\u5206\u4e4b\u4e00\uff1b\u5176\u9632"
               "\u6d2a\u8bbe\u65bd\u5df2\u4e8e\u4e09\u6708\u52d8\u5bdf\u3002"},
              {kMidwestRetail,
               "\u4ec5\u542b\u5f3a\u5bf9\u6d41\u98ce\u66b4\uff1b\u51b0\u96f9\u635f\u5931\u53d7\u5c4b\u9876\u5e74\u9650"
               "\u6761\u6b3e\u9650\u5236\u3002"},
              {kPacificOffice,
               "\u5730\u9707\u635f\u5931\u5305\u62ec\u9707\u540e\u706b\u707e\uff1b\u8f83\u65e7\u7684\u6df7\u51dd\u571f"
               "\u6846\u67b6\u5efa\u7b51\u6709\u9644\u52a0\u8d39\u7387\u3002"}},
    .reviewNote = {"\u590d\u6838",
                   "\u635f\u5931\u7387\u9ad8\u4e8e 25% "
                   "\u7684\u98ce\u9669\u504f\u597d\uff1b\u98ce\u66b4\u6f6e\u5360\u5e73\u5747\u635f\u5931\u7684\u4e09"
                   "\u5206\u4e4b\u4e8c\u3002"},
    .definitionNote = {"\u5b9a\u4e49", "\u5e73\u5747\u5e74\u635f\u5931\u9664\u4ee5\u5df2\u7b7e\u4fdd\u8d39\u3002"},
    .sourceNote = {"\u6765\u6e90",
                   "\u98ce\u9669\u66b4\u9732\u622a\u81f3 1 \u6708 1 \u65e5\uff1b\u635f\u5931\u6765\u81ea\u65b9\u6848 "
                   "1\uff08\u57fa\u51c6\uff09\u3002"},
    .widthScale = 1.25,
};

// Annual gross loss statistics of the four model runs, in the order of ReportTexts::statistics.
const std::array<std::vector<double>, 4> kRunStatistics{{
    {61240000, 118300000, 171500000, 538200000, 735600000, 1079900000, 1498200000},
    {66850000, 129100000, 186400000, 585900000, 802300000, 1178600000, 1636500000},
    {70120000, 137600000, 191200000, 616700000, 841900000, 1232400000, 1702300000},
    {76430000, 150200000, 208500000, 671300000, 917600000, 1346100000, 1861000000},
}};

// Gross occurrence losses of run 1 at the return periods of ReportTexts::returnPeriods.
const std::vector<double> kGrossByReturnPeriod{38500000,  96200000,  162800000, 281400000, 392700000,
                                               524900000, 671300000, 721800000, 884600000, 1062400000};
constexpr double kRetention = 150000000;
constexpr double kLimit = 500000000;

struct Region {
    double policies;
    double valueFactor;  // insured values against the portfolio's average per line
    double hazard;       // mean annual loss per unit of insured value
    double rate;         // premium per unit of insured value
};

struct BusinessLine {
    double policyShare;
    double averageValue;  // USD per policy
    double vulnerability;
};

constexpr std::array<Region, kRegionCount> kRegions{{
    {1850, 1.18, 0.00018, 0.00095},
    {2420, 0.92, 0.00062, 0.00210},
    {1310, 0.87, 0.00094, 0.00260},
    {2760, 0.81, 0.00031, 0.00120},
    {940, 0.74, 0.00012, 0.00070},
    {2130, 1.26, 0.00055, 0.00190},
}};

constexpr std::array<BusinessLine, kLineCount> kLines{{
    {0.34, 6200000, 0.8},
    {0.28, 3100000, 1.0},
    {0.25, 9800000, 1.2},
    {0.13, 12500000, 1.5},
}};

// The columns of the exposure table, one row per region and line, and the total row last.
struct ExposureColumns {
    std::vector<double> policies;
    std::vector<double> insuredValue;  // USD thousands
    std::vector<double> meanLoss;
    std::vector<double> lossRatio;
    std::vector<double> premiumPerPolicy;
};

double RoundTo(double value, double unit) {
    return std::round(value / unit) * unit;
}

ExposureColumns Exposure() {
    ExposureColumns columns;
    double totalPolicies = 0, totalValue = 0, totalLoss = 0, totalPremium = 0;
    for (const auto& region : kRegions) {
        for (const auto& line : kLines) {
            const double policies = std::round(region.policies * line.policyShare);
            const double value = policies * line.averageValue * region.valueFactor;
            const double loss = RoundTo(value * region.hazard * line.vulnerability, 100);
            const double premiumPerPolicy = RoundTo(value / policies * region.rate, 0.01);
            const double premium = premiumPerPolicy * policies;
            columns.policies.push_back(policies);
            columns.insuredValue.push_back(RoundTo(value / 1000, 1));
            columns.meanLoss.push_back(loss);
            columns.lossRatio.push_back(loss / premium);
            columns.premiumPerPolicy.push_back(premiumPerPolicy);
            totalPolicies += policies;
            totalValue += columns.insuredValue.back();
            totalLoss += loss;
            totalPremium += premium;
        }
    }
    columns.policies.push_back(totalPolicies);
    columns.insuredValue.push_back(totalValue);
    columns.meanLoss.push_back(totalLoss);
    columns.lossRatio.push_back(totalLoss / totalPremium);
    columns.premiumPerPolicy.push_back(RoundTo(totalPremium / totalPolicies, 0.01));
    return columns;
}

void Step(const std::string& message) {
    std::cout << "- " << message << '\n';
}

std::string AddressOf(const std::shared_ptr<excel::Range>& range) {
    return range->Address(false, false);
}

// A right-aligned number column; its innermost header cell is aligned as the caller asks.
void ConfigureNumberColumn(vos::VosExcelTable& table, int32_t position, const std::string& caption,
                           int32_t headerAlignment, double width, const std::string& format) {
    table.ConfigureColumn(position, caption, excel::xlRight, headerAlignment, width, format);
}

// Header columns are not interior columns, so their widths are set on the sheet's columns.
void SetHeaderColumnWidth(vos::VosExcelTable& table, int32_t headerColumn, double width) {
    table.LeftHeaderRange()->Columns(headerColumn)->EntireColumn()->SetColumnWidth(width);
}

// Summary statistics of the model runs: run numbers along the top, statistics down the side.
std::shared_ptr<vos::VosExcelTable> AddStatisticsTable(vos::VosExcelReportWorksheet& sheet, const ReportTexts& texts) {
    const auto runs = static_cast<int32_t>(kRunStatistics.size());
    auto table = sheet.AddTable(static_cast<int32_t>(texts.statistics.size()), runs, 1, 1);
    table->SignatureRange()->SetValue(texts.statisticsCorner);
    table->WriteHeaderIndexNumbers(vos::VosTopHeader, 1, 0, texts.runPrefix);
    table->WriteHeaderArray(vos::VosLeftHeader, 1, excel::Variant(texts.statistics));
    SetHeaderColumnWidth(*table, 1, 24 * texts.widthScale);
    for (int32_t run = 1; run <= runs; ++run) {
        table->WriteDataToColumn(run, excel::Variant(kRunStatistics[static_cast<size_t>(run - 1)]));
        ConfigureNumberColumn(*table, run, "", excel::xlRight, 15 * texts.widthScale, kMoneyFormat);
    }
    return table;
}

// Gross and net losses by return period under an excess of loss programme.
std::shared_ptr<vos::VosExcelTable> AddReturnPeriodTable(vos::VosExcelReportWorksheet& sheet,
                                                         const ReportTexts& texts) {
    const auto rows = static_cast<int32_t>(kGrossByReturnPeriod.size());
    auto table = sheet.AddTable(rows, 4, 3, 1, texts.lossTitle, texts.lossSubtitle);
    // Three header rows: the summary across the first, each caption over its unit below it.
    table->WriteHeaderSummary(vos::VosTopHeader, texts.lossSummary);
    for (int32_t column = 1; column <= 4; ++column) {
        const auto caption = static_cast<size_t>(column - 1);
        table->WriteHeaderPairedItem(vos::VosTopHeader, column, texts.lossCaptions[caption], texts.lossUnits[caption]);
    }
    table->SignatureRange()->Cells(3, 1)->SetValue(texts.lossCorner);
    table->WriteHeaderArray(vos::VosLeftHeader, 1, excel::Variant(texts.returnPeriods));

    std::vector<double> net, recoveries, recovered;
    for (const double gross : kGrossByReturnPeriod) {
        const double recovery = std::clamp(gross - kRetention, 0.0, kLimit);
        net.push_back(gross - recovery);
        recoveries.push_back(recovery);
        recovered.push_back(recovery / gross);
    }
    const std::array<std::vector<double>, 4> columns{kGrossByReturnPeriod, net, recoveries, recovered};
    for (int32_t column = 1; column <= 4; ++column) {
        table->WriteDataToColumn(column, excel::Variant(columns[static_cast<size_t>(column - 1)]));
        ConfigureNumberColumn(*table, column, "", excel::xlCenter, 15 * texts.widthScale,
                              column == 4 ? kShareFormat : kMoneyFormat);
    }
    // The programme's layers: gross and net apart from the recoveries, the 1-in-100 year loss
    // apart from the rarer ones.
    table->AddColumnDividerLine(2, true);
    table->AddRowDividerLine(6, true);
    return table;
}

// Exposure and loss by region and line of business, with a total row and remarks.
std::shared_ptr<vos::VosExcelTable> AddExposureTable(vos::VosExcelReportWorksheet& sheet, const ReportTexts& texts) {
    const ExposureColumns data = Exposure();
    const auto rows = static_cast<int32_t>(kExposureRows + 1);
    auto table = sheet.AddTable(rows, 6, 1, 2, texts.exposureTitle, texts.exposureSubtitle);
    const auto corner = table->SignatureRange();
    corner->Cells(1, 1)->SetValue(texts.regionCaption);
    corner->Cells(1, 2)->SetValue(texts.lineCaption);
    SetHeaderColumnWidth(*table, 2, 15 * texts.widthScale);

    // The region stands on the first row of its block; the lines of business run down beside it.
    const auto regionColumn = table->LeftHeaderRange()->Columns(1);
    std::vector<std::string> lines;
    for (size_t region = 0; region < kRegionCount; ++region) {
        regionColumn->Cells(static_cast<int32_t>(region * kLineCount + 1))->SetValue(texts.regions[region]);
        lines.insert(lines.end(), texts.lines.begin(), texts.lines.end());
    }
    regionColumn->Cells(rows)->SetValue(texts.allRegions);
    lines.push_back(texts.allLines);
    table->WriteHeaderArray(vos::VosLeftHeader, 1, excel::Variant(lines));

    const double width = 15 * texts.widthScale;
    const auto& captions = texts.exposureCaptions;
    ConfigureNumberColumn(*table, 1, captions[0], excel::xlRight, width, kMoneyFormat);
    ConfigureNumberColumn(*table, 2, captions[1], excel::xlRight, width, kMoneyFormat);
    ConfigureNumberColumn(*table, 3, captions[2], excel::xlRight, width, kMoneyFormat);
    ConfigureNumberColumn(*table, 4, captions[3], excel::xlRight, width, kShareFormat);
    ConfigureNumberColumn(*table, 5, captions[4], excel::xlRight, width, kPremiumFormat);
    table->ConfigureColumn(6, captions[5], excel::xlLeft, excel::xlLeft, 40, "", true);
    // The notes start a step away from the figures beside them.
    table->InteriorRange()->Columns(6)->SetIndentLevel(1);
    table->TopHeaderRange()->Columns(6)->SetIndentLevel(1);
    table->WriteDataToColumn(1, excel::Variant(data.policies));
    table->WriteDataToColumn(2, excel::Variant(data.insuredValue));
    table->WriteDataToColumn(3, excel::Variant(data.meanLoss));
    table->WriteDataToColumn(4, excel::Variant(data.lossRatio));
    table->WriteDataToColumn(5, excel::Variant(data.premiumPerPolicy));

    // The sheet has no automatic row heights: a wrapped note gets two lines.
    const auto interior = table->InteriorRange();
    const double lineHeight = interior->Font()->Size().ToDouble() * 1.5;
    for (const auto& note : texts.notes) {
        const auto row = static_cast<int32_t>(note.row + 1);
        interior->Cells(row, 6)->SetValue(note.text);
        interior->Rows(row)->SetRowHeight(2 * lineHeight);
    }

    for (size_t region = 1; region < kRegionCount; ++region)
        table->AddRowDividerLine(static_cast<int32_t>(region * kLineCount), true);
    // A double line over the totals, across the header columns too.
    const auto totalRow = table->TableRange()->Rows(table->TableRange()->Rows()->Count());
    table->AddCustomDivider(totalRow->Borders(excel::xlEdgeTop), excel::xlDouble, excel::xlThick,
                            static_cast<int16_t>(excel::xlColorIndexAutomatic));
    interior->Rows(rows)->Font()->SetBold(true);

    const auto lossRatioColumn = 4;
    table->AddComment(static_cast<int32_t>(kGulfCoastHospitality + 1), lossRatioColumn, texts.reviewNote.header,
                      texts.reviewNote.text);
    table->AddComment(0, lossRatioColumn, texts.definitionNote.header, texts.definitionNote.text);
    table->AddComment(0, 0, texts.sourceNote.header, texts.sourceNote.text);
    return table;
}

// The header block and the three tables, two separator rows apart.
void AddAnalysisSheet(vos::VosExcelReportWorkbook& report, const std::string& sheetName, const ReportTexts& texts) {
    auto sheet = report.NewReportWorksheet(sheetName);
    auto header = sheet->AddHeaderRange(texts.sheetTitle, excel::Variant(texts.headerLines));
    sheet->AddSeparatorRows(2);
    auto statistics = AddStatisticsTable(*sheet, texts);
    sheet->AddSeparatorRows(2);
    auto returnPeriods = AddReturnPeriodTable(*sheet, texts);
    sheet->AddSeparatorRows(2);
    auto exposure = AddExposureTable(*sheet, texts);
    Step("sheet '" + sheet->ExcelWorksheet()->Name() + "': header " + AddressOf(header) + ", statistics " +
         AddressOf(statistics->TableRange()) + ", return periods " + AddressOf(returnPeriods->TableRange()) +
         ", exposure " + AddressOf(exposure->TableRange()) +
         (report.UseThemes() ? ", theme colours" : ", fixed colours"));
}

void Run(const std::filesystem::path& target) {
    vos::VosExcelReporting reporting;
    auto app = excel::embedded::CreateApplication();

    auto english = reporting.NewReportWorkbook(app, kApplication, nullptr, false, kEnglish.language);
    AddAnalysisSheet(*english, "English", kEnglish);
    english->SetUseThemes(true);
    AddAnalysisSheet(*english, "English themed", kEnglish);

    // Chinese shares the Excel workbook through a report workbook of its own.
    auto book = english->ExcelWorkbook();
    auto chinese = reporting.NewReportWorkbook(app, kApplication, book, false, kChinese.language);
    AddAnalysisSheet(*chinese, "Chinese", kChinese);
    chinese->SetUseThemes(true);
    AddAnalysisSheet(*chinese, "Chinese themed", kChinese);

    english->ActivateFirstWorksheetCreated();
    book->SaveAs(target.string());
    Step("saved as " + target.string());
}

}  // namespace

int main(int argc, char** argv) {
    return RunExample(argc, argv, "out/report_table_demo.xlsx", Run);
}
