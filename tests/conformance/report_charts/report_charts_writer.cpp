// Writes report charts through the library on two report sheets of one workbook. "Charts" (English,
// fixed colours): clustered columns with two subtitles, a framed legend, a watermark and fixed
// axes; an XY chart of lines and markers on round ticks; a line chart with a secondary percent axis
// in the user's format; a tornado of twelve bars; and ten XY series of markers alone, whose colours
// and marker shapes run through their cycle. "图表" (Chinese, theme colours): sixteen column series
// that use every colour and start over, a line chart with a secondary percent axis, and a tornado
// of three bars. Or opens the saved file, checks what the chart model reads back, saves it again and
// checks that file the same way.
//
// Usage: report_charts_writer write|check FILE.xlsx
//        (check also writes FILE.resaved.xlsx beside FILE)

#include "chart_expectations.hpp"
#include "report_writer_main.hpp"

#include <excel/embedded.hpp>
#include <excel/excel.hpp>
#include <vos/reporting.hpp>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace {

using excel::Variant;
using Numbers = std::vector<double>;
using Texts = std::vector<std::string>;
using conformance::NumberElements;
using conformance::NumbersText;

const std::string kApplication = "MyApp";
constexpr int32_t kChinese = 4;
const std::string kEnglishSheet = "Charts";
const std::string kChineseSheet = "\u56fe\u8868";  // 图表

constexpr int32_t Rgb(int32_t red, int32_t green, int32_t blue) {
    return red | (green << 8) | (blue << 16);
}

// The colour of series n is entry (n - 1) mod 15, its marker entry (n - 1) mod 5.
constexpr int32_t kSeriesColours[15]{
    Rgb(0x33, 0x33, 0x99), Rgb(0x99, 0x33, 0x66), Rgb(0x33, 0x99, 0x66), Rgb(0xFF, 0xCC, 0x00), Rgb(0x00, 0x00, 0xFF),
    Rgb(0x99, 0xCC, 0x00), Rgb(0x00, 0x66, 0xCC), Rgb(0x80, 0x80, 0x80), Rgb(0x00, 0x00, 0x00), Rgb(0x80, 0x80, 0x00),
    Rgb(0xFF, 0x00, 0x00), Rgb(0x99, 0xCC, 0xFF), Rgb(0x80, 0x00, 0x80), Rgb(0x00, 0x80, 0x80), Rgb(0xFF, 0x00, 0xFF)};
constexpr int32_t kMarkers[5]{excel::xlMarkerStyleDiamond, excel::xlMarkerStyleTriangle, excel::xlMarkerStyleSquare,
                              excel::xlMarkerStyleCircle, excel::xlMarkerStyleStar};
constexpr int32_t kWatermarkGrey = Rgb(0xC0, 0xC0, 0xC0);
constexpr int32_t kLegendFrameIndex = 15;
constexpr double kFarLowEnd = -1E+300;

int32_t SeriesColour(int series) {
    return kSeriesColours[(series - 1) % 15];
}

// Every sheet keeps its chart data to the right of the charts, from column K down.
const Texts kMonths{"Jan", "Feb", "Mar", "Apr", "May", "Jun"};
const Texts kRegions{"North", "South", "West"};
const std::vector<Numbers> kSales{{412.5, 438.1, 455.9, 502.3, 489.3, 521.0},
                                  {298, 305.4, 287.6, 331.2, 345.9, 362.4},
                                  {251.25, 262, 270.5, 288.75, 301, 315.5}};
const Numbers kReturnYears{10, 25, 50, 100, 250, 500};
const Numbers kGrossLoss{175, 410, 740, 1240, 2160, 3070};
const Numbers kNetLoss{175, 330, 420, 560, 1080, 1990};
const Numbers kYears{2019, 2020, 2021, 2022, 2023, 2024, 2025, 2026};
const Numbers kPremium{410, 432, 455, 470, 502, 540, 566, 590};
const Numbers kLossRatio{0.58, 0.71, 0.64, 0.92, 0.61, 0.67, 0.74, 0.63};
const Numbers kRunX{1, 2, 3, 4, 5};
constexpr int kRuns = 10;
const Texts kCategories{"\u7532", "\u4e59", "\u4e19"};  // 甲 乙 丙
constexpr int kColourSeries = 16;

const std::string kColumnTitle = "Sales by region";
const std::string kColumnSubtitle1 = "Thousands of units";
const std::string kColumnSubtitle2 = "First half year";
const std::string kWatermark = "DRAFT";
const std::string kWatermarkNote = "not for distribution";
const std::string kCurveTitle = "Exceedance curves";
const std::string kCurveSubtitle = "Gross and net of reinsurance";
const std::string kRunsTitle = "Ten runs";
const std::string kColoursTitle = "\u5404\u7cfb\u5217\u989c\u8272";     // 各系列颜色
const std::string kColoursSubtitle = "\u5341\u516d\u4e2a\u7cfb\u5217";  // 十六个系列
const std::string kChineseWatermark = "\u8349\u7a3f";                   // 草稿
const std::string kChineseWatermarkNote = "\u8bf7\u52ff\u5206\u53d1";   // 请勿分发

// A line chart of premium on the left axis and the loss ratio on a secondary axis at the right.
struct Trend {
    std::string topCell;
    std::string title;
    std::string premium;
    std::string ratio;
    std::string yearAxis;
    std::string premiumAxis;  // the ratio's axis is titled with its name
    std::string ratioFormat;  // "[LOCAL]" and a format in the user's locale, the engine's English
    bool verticalYears;
};

const Trend kEnglishTrend{
    "K29", "Premium and loss ratio", "Premium", "Loss ratio", "Underwriting year", "Premium (USD m)", "[LOCAL]0.0%",
    true};
const Trend kChineseTrend{"K17",          "\u4fdd\u8d39\u4e0e\u8d54\u4ed8\u7387",
                          "\u4fdd\u8d39", "\u8d54\u4ed8\u7387",
                          "\u5e74\u5ea6", "\u4fdd\u8d39",
                          "0%",           false};

// A tornado: bar i runs from low[i] to high[i]; its value axis is scaled from them.
struct Tornado {
    std::string labelCell;
    Texts labels;
    Numbers low;
    Numbers high;
    std::string title;
    std::string subtitle;
    std::string axisTitle;
    Numbers scale;  // minimum, maximum and unit: round, over the bars
    int32_t gapWidth;
};

const Tornado kEnglishTornado{
    "K39",
    {"Wind speed", "Storm frequency", "Demand surge", "Flood defences", "Soil type", "Building age", "Roof type",
     "Contents share", "Deductibles", "Interruption", "Clustering", "Exchange rate"},
    {-48, -35, -12, -30, 4, -18, -9, -6, -22, 2, -14, -8},
    {52, 41, 30, -5, 16, 12, 11, 7, 10, 19, 17, 9},
    "Sensitivity of the mean loss",
    "",
    "Change (USD m)",
    {-60, 60, 20},
    20};
const Tornado kChineseTornado{"K27",
                              {"\u98ce\u901f", "\u6c47\u7387", "\u514d\u8d54\u989d"},
                              {-20, 5, -15},
                              {35, 25, -3},
                              "\u654f\u611f\u6027",
                              "\u767e\u4e07\u7f8e\u5143",
                              "\u53d8\u5316",
                              {-30, 40, 10},
                              50};

std::shared_ptr<excel::Range> WriteNumbers(const std::shared_ptr<excel::Range>& top, const Numbers& values) {
    const auto cells = top->Resize(static_cast<int32_t>(values.size()), 1);
    for (size_t i = 0; i < values.size(); ++i)
        cells->Cells(static_cast<int32_t>(i) + 1, 1)->SetValue(values[i]);
    return cells;
}

std::shared_ptr<excel::Range> WriteTexts(const std::shared_ptr<excel::Range>& top, const Texts& texts) {
    const auto cells = top->Resize(static_cast<int32_t>(texts.size()), 1);
    for (size_t i = 0; i < texts.size(); ++i)
        cells->Cells(static_cast<int32_t>(i) + 1, 1)->SetValue(texts[i]);
    return cells;
}

Numbers RunValues(int run) {
    Numbers values;
    for (double x : kRunX)
        values.push_back(run * 10 + x * 2);
    return values;
}

Numbers ColourValues(int series) {
    Numbers values;
    for (size_t category = 1; category <= kCategories.size(); ++category)
        values.push_back(series + static_cast<double>(category) * 0.5);
    return values;
}

std::string RunName(int run) {
    return "Run " + std::to_string(run);
}

std::string ColourName(int series) {
    return "\u7cfb\u5217" + std::to_string(series);  // 系列n
}

// Columns K:N rows 11-16: three regions' sales over six months, each series named by text. The
// second subtitle comes padded with blanks, which the library trims.
void AddSalesColumns(vos::VosExcelReportWorksheet& sheet) {
    const auto cells = sheet.ExcelWorksheet();
    const auto months = WriteTexts(cells->Range("K11"), kMonths);
    auto chart = sheet.AddChart(vos::VosChartColumn);
    for (size_t region = 0; region < kRegions.size(); ++region) {
        const auto top = cells->Range("L11")->Offset(0, static_cast<int32_t>(region));
        chart->AddColumnData(WriteNumbers(top, kSales[region]), kRegions[region]);
    }
    chart->AddTitle(kColumnTitle);
    chart->AddSubTitle(kColumnSubtitle1);
    chart->AddSubTitle("  " + kColumnSubtitle2 + " ");
    chart->AddLegend(true);
    chart->AddWatermark(kWatermark, kWatermarkNote);
    chart->AddCategoryXAxis("Month", months);
    chart->AddValueYAxis("Units", 0, 600.0, 100, "#,##0");
    sheet.AddSeparatorRows(1);
}

// Columns K:M rows 20-25: loss by return period, gross and net, on round ticks with upright labels.
void AddExceedanceCurves(vos::VosExcelReportWorksheet& sheet) {
    const auto cells = sheet.ExcelWorksheet();
    const auto years = WriteNumbers(cells->Range("K20"), kReturnYears);
    auto chart = sheet.AddChart(vos::VosChartXYMarkersAndLine, 428, 260);
    chart->AddXYData(years, WriteNumbers(cells->Range("L20"), kGrossLoss), "Gross");
    chart->AddXYData(years, WriteNumbers(cells->Range("M20"), kNetLoss), "Net");
    chart->AddTitle(kCurveTitle);
    chart->AddSubTitle(kCurveSubtitle);
    chart->AddLegend(false);
    // The vertical axis first: upright labels below give the plot area back its height last, with
    // both axes in place.
    chart->AddValueYAxisWithNiceTicks(0, 3070, false, true, "Loss (USD m)", "#,##0");
    chart->AddValueXAxisWithNiceTicks(10, 500, false, true, "Return period (years)", "0", true);
    sheet.AddSeparatorRows(1);
}

void AddPremiumTrend(vos::VosExcelReportWorksheet& sheet, const Trend& trend) {
    const auto top = sheet.ExcelWorksheet()->Range(trend.topCell);
    const auto years = WriteNumbers(top, kYears);
    auto chart = sheet.AddChart(vos::VosChartLineWithMarkers, 428, 260);
    chart->AddLineData(WriteNumbers(top->Offset(0, 1), kPremium), trend.premium);
    chart->AddLineData(WriteNumbers(top->Offset(0, 2), kLossRatio), trend.ratio)->SetAxisGroup(excel::xlSecondary);
    chart->AddTitle(trend.title);
    chart->AddLegend(true);
    chart->AddCategoryXAxis(trend.yearAxis, years, trend.verticalYears);
    chart->AddValueYAxisWithNiceTicks(0, 590, false, true, trend.premiumAxis, "#,##0");
    chart->AddSecondaryValueYAxis(trend.ratio, 0, 1.0, 0.25, trend.ratioFormat);
    sheet.AddSeparatorRows(1);
}

void AddTornado(vos::VosExcelReportWorksheet& sheet, const Tornado& tornado) {
    const auto labels = WriteTexts(sheet.ExcelWorksheet()->Range(tornado.labelCell), tornado.labels);
    const auto bars = static_cast<int16_t>(tornado.labels.size());
    auto chart = sheet.AddChart(vos::VosChartTornado, 428, sheet.RecommendedTornadoChartHeight(bars));
    chart->AddTornadoData(bars, excel::SafeArray::Doubles(tornado.low), excel::SafeArray::Doubles(tornado.high));
    chart->AddTornadoYAxis(labels);
    chart->AddTitle(tornado.title);
    if (!tornado.subtitle.empty())
        chart->AddSubTitle(tornado.subtitle);
    chart->AddValueXAxis(tornado.axisTitle, vos::AutomaticAxisScale, vos::AutomaticAxisScale, vos::AutomaticAxisScale,
                         "#,##0", false);
    sheet.AddSeparatorRows(1);
}

// Columns K:U rows 54-58: ten runs of markers alone over the same x values.
void AddRunMarkers(vos::VosExcelReportWorksheet& sheet) {
    const auto top = sheet.ExcelWorksheet()->Range("K54");
    const auto x = WriteNumbers(top, kRunX);
    auto chart = sheet.AddChart(vos::VosChartXYMarkers);
    for (int run = 1; run <= kRuns; ++run)
        chart->AddXYData(x, WriteNumbers(top->Offset(0, run), RunValues(run)), RunName(run));
    chart->AddTitle(kRunsTitle);
    chart->AddLegend(true);
    chart->AddValueXAxis("", 0, 6, 1, "0", false);
    chart->AddValueYAxis();
    sheet.AddSeparatorRows(1);
}

// Columns K:AA rows 11-13: sixteen series of three categories; series 16 takes series 1's colour.
void AddColourColumns(vos::VosExcelReportWorksheet& sheet) {
    const auto top = sheet.ExcelWorksheet()->Range("K11");
    const auto categories = WriteTexts(top, kCategories);
    auto chart = sheet.AddChart(vos::VosChartColumn, 500, 300);
    for (int series = 1; series <= kColourSeries; ++series)
        chart->AddColumnData(WriteNumbers(top->Offset(0, series), ColourValues(series)), ColourName(series));
    chart->AddTitle(kColoursTitle);
    chart->AddSubTitle(kColoursSubtitle);
    chart->AddLegend(false);
    // No secondary text: the line feed splits the primary text into both lines.
    chart->AddWatermark(kChineseWatermark + "\n" + kChineseWatermarkNote);
    chart->AddCategoryXAxis("", categories);
    chart->AddValueYAxis("", 0, 20.0, 5, "0");
    sheet.AddSeparatorRows(1);
}

void WriteChartWorkbook(vos::VosExcelReporting& reporting, const std::shared_ptr<excel::Application>& app,
                        const std::filesystem::path& file) {
    reporting.SetUnitTestingMode(true);
    auto english = reporting.NewReportWorkbook(app, kApplication);
    auto sheet = english->NewReportWorksheet(kEnglishSheet);
    sheet->AddHeaderRange("Report charts", Variant(Texts{"Portfolio\tNorth Atlantic"}));
    sheet->AddSeparatorRows(1);
    AddSalesColumns(*sheet);
    AddExceedanceCurves(*sheet);
    AddPremiumTrend(*sheet, kEnglishTrend);
    AddTornado(*sheet, kEnglishTornado);
    AddRunMarkers(*sheet);

    // Chinese shares the Excel workbook through a report workbook of its own, with theme colours.
    auto book = english->ExcelWorkbook();
    auto chinese = reporting.NewReportWorkbook(app, kApplication, book, false, kChinese);
    chinese->SetUseThemes(true);
    sheet = chinese->NewReportWorksheet(kChineseSheet);
    sheet->AddHeaderRange(kColoursTitle, Variant(Texts{}));
    sheet->AddSeparatorRows(1);
    AddColourColumns(*sheet);
    AddPremiumTrend(*sheet, kChineseTrend);
    AddTornado(*sheet, kChineseTornado);

    english->ActivateFirstWorksheetCreated();
    book->SaveAs(file.string());
    book->Close(false);
}

// ---- Reading the file back ----

Texts Strings(const Variant& values) {
    Texts texts;
    if (!values.IsArray())
        return texts;
    for (const Variant& element : values.Array().Elements())
        texts.push_back(element.ToString());
    return texts;
}

std::string SeriesFormula(const std::string& name, const std::string& categories, const std::string& values,
                          int order) {
    return "=SERIES(\"" + name + "\"," + categories + "," + values + "," + std::to_string(order) + ")";
}

// The four stacked pieces of a tornado: zero, the invisible base, the negative and positive parts.
std::vector<Numbers> TornadoPieces(const Tornado& tornado) {
    std::vector<Numbers> pieces(4, Numbers(tornado.low.size(), 0.0));
    for (size_t i = 0; i < tornado.low.size(); ++i) {
        const double low = tornado.low[i];
        const double high = tornado.high[i];
        if (low < 0 && high < 0) {
            pieces[1][i] = high;
            pieces[2][i] = low - high;
        } else if (low <= 0) {
            pieces[2][i] = low;
            pieces[3][i] = high;
        } else {
            pieces[1][i] = low;
            pieces[3][i] = high - low;
        }
    }
    return pieces;
}

std::string Reference(const std::string& sheet, const std::string& address) {
    return sheet + "!" + address;
}

// What one chart reads back, each expectation named after the chart.
class ChartCheck : public conformance::ChartExpectations {
public:
    ChartCheck(conformance::Failures& failures, excel::Worksheet& sheet, int32_t index, int32_t type, double width,
               bool chinese)
        : ChartExpectations(failures, sheet, index, type), chinese_(chinese) {
        if (!*this)
            return;
        Expect(object_->Placement() == excel::xlMove, "moves with cells but is not sized");
        Expect(object_->Left() == 0 && object_->Width() == width, "at the left edge, " + NumbersText({width}) +
                                                                      " points wide, found " +
                                                                      NumbersText({object_->Left(), object_->Width()}));
        const auto bottom = object_->BottomRightCell();
        Expect(object_->Top() + object_->Height() == bottom->Top() + bottom->Height() - 0.5,
               "ends half a point above its last row's bottom");
    }

    double Size(double english, double chinese) const { return chinese_ ? chinese : english; }

    // Markers of the series' number: shape, 5 points, its colour inside, outlined in it (black for
    // 6 to 9), and no fill in a star.
    void Markers(excel::Series& series, int number) {
        const std::string where = "series " + std::to_string(number) + " markers";
        const int32_t style = kMarkers[(number - 1) % 5];
        const int32_t colour = SeriesColour(number);
        Expect(series.MarkerStyle() == style && series.MarkerSize() == 5,
               where + " style " + std::to_string(style) + " of 5 points, found " +
                   std::to_string(series.MarkerStyle()) + " of " + std::to_string(series.MarkerSize()));
        const int32_t outline = number >= 6 && number <= 9 ? 0 : colour;
        Expect(series.MarkerForegroundColor() == outline, where + " outline " + std::to_string(outline));
        if (style == excel::xlMarkerStyleStar)
            Expect(series.MarkerBackgroundColorIndex() == excel::xlColorIndexNone, where + " without fill");
        else
            Expect(series.MarkerBackgroundColor() == colour, where + " filled " + std::to_string(colour));
    }

    // A line of the series' colour and medium weight, or none.
    void Line(excel::Series& series, int number, bool drawn) {
        const auto border = series.Border();
        const std::string where = "series " + std::to_string(number) + " line";
        if (!drawn) {
            Expect(border->LineStyle().ToInt() == excel::xlLineStyleNone, where + " not drawn");
            return;
        }
        Expect(border->Color().ToInt() == SeriesColour(number) && border->Weight().ToInt() == excel::xlMedium &&
                   border->LineStyle().ToInt() == excel::xlContinuous,
               where + " continuous, medium, of its colour");
    }

    // Columns of the series' colour shading along the diagonal.
    void Gradient(excel::Series& series, int number) {
        const std::string where = "series " + std::to_string(number) + " fill";
        const auto fill = series.Fill();
        Expect(fill->Type() == excel::msoFillGradient && fill->GradientStyle() == excel::msoGradientDiagonalDown,
               where + " a diagonal-down gradient, found type " + std::to_string(fill->Type()));
        Expect(series.Interior()->Color().ToInt() == SeriesColour(number),
               where + " from colour " + std::to_string(SeriesColour(number)) + ", found " +
                   std::to_string(series.Interior()->Color().ToInt()));
    }

    void Title(const std::string& head, const std::string& subtitles) {
        Expect(chart_->HasTitle(), "has a title");
        if (!chart_->HasTitle())
            return;
        const auto title = chart_->ChartTitle();
        const std::string text = head + subtitles + " ";
        Expect(title->Text() == text, "title '" + text + "', found '" + title->Text() + "'");
        const int32_t headLength = CountOf(head);
        const auto headFont = title->Characters(1, headLength)->Font();
        Expect(headFont->Size().ToDouble() == Size(12, 14) && headFont->Bold().ToBool(),
               "title " + NumbersText({Size(12, 14)}) + " points, bold");
        if (subtitles.empty())
            return;
        const auto subFont = title->Characters(headLength + 1, -1)->Font();
        Expect(subFont->Size().ToDouble() == Size(8, 10) && !subFont->Bold().ToBool(),
               "subtitles " + NumbersText({Size(8, 10)}) + " points, not bold");
    }

    void Legend(bool framed) {
        Expect(chart_->HasLegend(), "has a legend");
        if (!chart_->HasLegend())
            return;
        const auto legend = chart_->Legend();
        Expect(legend->Position() == excel::xlLegendPositionRight, "legend at the right");
        Expect(legend->Font()->Size().ToDouble() == Size(8, 10), "legend " + NumbersText({Size(8, 10)}) + " points");
        const auto border = legend->Border();
        if (framed)
            Expect(border->LineStyle().ToInt() == excel::xlContinuous && border->Weight().ToInt() == excel::xlThin &&
                       border->ColorIndex().ToInt() == kLegendFrameIndex,
                   "legend framed thin, colour index 15");
        else
            Expect(border->LineStyle().ToInt() == excel::xlLineStyleNone, "legend without a frame");
    }

    // An axis title in the axis font, or none.
    void AxisTitle(excel::Axis& axis, const std::string& where, const std::string& title) {
        Expect(axis.HasTitle() == !title.empty(), where + (title.empty() ? " without title" : " titled"));
        if (!axis.HasTitle() || title.empty())
            return;
        const auto found = axis.AxisTitle();
        const auto font = found->Font();
        Expect(found->Text() == title && font->Size().ToDouble() == Size(8, 10) && !font->Bold().ToBool(),
               where + " title '" + title + "' not bold, found '" + found->Text() + "'");
    }

    // Labels in the axis font, at that orientation.
    void Labels(excel::Axis& axis, const std::string& where, int32_t orientation) {
        const auto labels = axis.TickLabels();
        Expect(labels->Font()->Size().ToDouble() == Size(8, 10),
               where + " labels " + NumbersText({Size(8, 10)}) + " points");
        Expect(labels->Orientation() == orientation, where + " labels at orientation " + std::to_string(orientation) +
                                                         ", found " + std::to_string(labels->Orientation()));
    }

    // A value axis of the library's: its title, tick marks out, a fixed or automatic scale (minimum
    // > maximum), crossed at its far low end, the labels' format and orientation.
    void ValueAxis(int32_t kind, int32_t group, const std::string& title, double minimum, double maximum, double unit,
                   const std::string& format, int32_t orientation = excel::xlTickLabelOrientationAutomatic) {
        const std::string where = "axis " + std::to_string(kind) + "/" + std::to_string(group);
        Expect(chart_->HasAxis(kind, group), where + " exists");
        if (!chart_->HasAxis(kind, group))
            return;
        const auto axis = chart_->Axes(kind, group);
        AxisTitle(*axis, where, title);
        Expect(axis->MajorTickMark() == excel::xlTickMarkOutside && axis->MinorTickMark() == excel::xlTickMarkNone,
               where + " major ticks outside, no minor ones");
        if (minimum > maximum) {
            Expect(axis->MinimumScaleIsAuto() && axis->MaximumScaleIsAuto() && axis->MajorUnitIsAuto(),
                   where + " scale automatic");
        } else {
            const Numbers found{axis->MinimumScale(), axis->MaximumScale(), axis->MajorUnit()};
            Expect(!axis->MinimumScaleIsAuto() && !axis->MaximumScaleIsAuto() && !axis->MajorUnitIsAuto() &&
                       found == Numbers{minimum, maximum, unit},
                   where + " scale " + NumbersText({minimum, maximum, unit}) + ", found " + NumbersText(found));
        }
        Expect(axis->Crosses() == excel::xlAxisCrossesCustom && axis->CrossesAt() == kFarLowEnd,
               where + " crossed at -1E+300, found " + NumbersText({axis->CrossesAt()}));
        Expect(axis->ScaleType() == excel::xlScaleLinear, where + " linear");
        const std::string shown = axis->TickLabels()->NumberFormat();
        Expect(shown == format, where + " labels " + format + ", found " + shown);
        Expect(!axis->TickLabels()->Font()->Bold().ToBool(), where + " labels not bold");
        Labels(*axis, where, orientation);
    }

    // The category axis of a column or line chart: no tick marks, names, labels low.
    void CategoryAxis(const std::string& title, const Texts& names, int32_t orientation) {
        Expect(chart_->HasAxis(excel::xlCategory), "category axis exists");
        if (!chart_->HasAxis(excel::xlCategory))
            return;
        const auto axis = chart_->Axes(excel::xlCategory);
        AxisTitle(*axis, "category axis", title);
        Expect(axis->MajorTickMark() == excel::xlTickMarkNone && axis->MinorTickMark() == excel::xlTickMarkNone,
               "category axis without tick marks");
        Expect(Strings(axis->CategoryNames()) == names, "category names");
        Expect(axis->TickLabelPosition() == excel::xlTickLabelPositionLow, "category labels low");
        Labels(*axis, "category axis", orientation);
    }

    // Five text boxes on one spot, named alike but for 10 down to 6 trailing blanks, grey Arial,
    // the second line smaller, centred, clicking runs objClick.
    void Watermark(const std::string& primary, const std::string& secondary) {
        const auto shapes = chart_->Shapes();
        Expect(shapes->Count() == 5, "five watermark boxes, found " + std::to_string(shapes->Count()));
        if (shapes->Count() != 5)
            return;
        const std::string base = shapes->Item(Variant(1))->Name().substr(0, shapes->Item(Variant(1))->Name().find(' '));
        const int number = base.rfind("gwm_", 0) == 0 ? std::atoi(base.c_str() + 4) : 0;
        Expect(number >= 100 && number <= 32767, "watermark named gwm_ and a number, found '" + base + "'");
        const double width = chart_->ChartArea()->Width();
        const double height = chart_->ChartArea()->Height();
        for (int32_t box = 1; box <= 5; ++box) {
            const auto shape = shapes->Item(Variant(box));
            const std::string where = "watermark box " + std::to_string(box);
            Expect(shape->Name() == base + std::string(static_cast<size_t>(11 - box), ' '),
                   where + " named '" + base + "' and " + std::to_string(11 - box) + " blanks, found '" +
                       shape->Name() + "'");
            const auto frame = shape->TextFrame();
            Expect(frame->Characters()->Text() == primary + "\n" + secondary,
                   where + " text, found '" + frame->Characters()->Text() + "'");
            const auto font = frame->Characters()->Font();
            Expect(font->Name().ToString() == "Arial" && font->Color().ToInt() == kWatermarkGrey,
                   where + " grey Arial");
            Expect(frame->Characters(1, CountOf(primary))->Font()->Size().ToDouble() == 14 &&
                       frame->Characters(CountOf(primary) + 2, CountOf(secondary))->Font()->Size().ToDouble() == 10,
                   where + " 14 points, the second line 10");
            Expect(frame->HorizontalAlignment() == excel::xlHAlignCenter &&
                       frame->VerticalAlignment() == excel::xlVAlignCenter && !frame->AutoSize(),
                   where + " centred, not sized to its text");
            Expect(shape->OnAction() == "objClick" && shape->Placement() == excel::xlMoveAndSize,
                   where + " runs objClick, moves and sizes with the chart");
            const Numbers place{shape->Left(), shape->Top(), shape->Width(), shape->Height()};
            const Numbers expected{20, height * 0.5 - 25, width - 40, 50};
            const auto near = [](double found, double wanted) { return std::abs(found - wanted) < 0.01; };
            Expect(std::equal(place.begin(), place.end(), expected.begin(), near),
                   where + " placed at " + NumbersText(expected) + ", found " + NumbersText(place));
        }
    }

    static int32_t CountOf(const std::string& text) {
        int32_t count = 0;
        for (unsigned char c : text)
            count += (c & 0xC0) != 0x80;
        return count;
    }

private:
    bool chinese_;
};

void CheckSalesColumns(conformance::Failures& failures, excel::Worksheet& sheet) {
    ChartCheck check(failures, sheet, 1, excel::xlColumnClustered, 428, false);
    const std::string months = Reference(kEnglishSheet, "$K$11:$K$16");
    const Texts columns{"$L$11:$L$16", "$M$11:$M$16", "$N$11:$N$16"};
    for (int region = 1; region <= 3; ++region) {
        const auto& name = kRegions[region - 1];
        const auto series =
            check.Series(region, SeriesFormula(name, months, Reference(kEnglishSheet, columns[region - 1]), region),
                         name, kSales[region - 1]);
        if (series)
            check.Gradient(*series, region);
    }
    const auto group = check.Chart().ChartGroups(1);
    check.Expect(group->GapWidth() == 75 && group->Overlap() == 10, "gap width 75, overlap 10");
    check.Title(kColumnTitle, "\n" + kColumnSubtitle1 + "\n" + kColumnSubtitle2);
    check.Legend(true);
    check.Watermark(kWatermark, kWatermarkNote);
    check.CategoryAxis("Month", kMonths, excel::xlTickLabelOrientationAutomatic);
    check.ValueAxis(excel::xlValue, excel::xlPrimary, "Units", 0, 600, 100, "#,##0");
    check.Expect(!check.Chart().HasAxis(excel::xlValue, excel::xlSecondary), "no secondary value axis");
}

void CheckExceedanceCurves(conformance::Failures& failures, excel::Worksheet& sheet) {
    ChartCheck check(failures, sheet, 2, excel::xlXYScatterLines, 428, false);
    const std::string years = Reference(kEnglishSheet, "$K$20:$K$25");
    const Texts names{"Gross", "Net"};
    const Texts columns{"$L$20:$L$25", "$M$20:$M$25"};
    const std::vector<Numbers> values{kGrossLoss, kNetLoss};
    for (int number = 1; number <= 2; ++number) {
        const auto series = check.Series(
            number, SeriesFormula(names[number - 1], years, Reference(kEnglishSheet, columns[number - 1]), number),
            names[number - 1], values[number - 1]);
        if (!series)
            continue;
        check.Expect(NumberElements(series->XValues()) == kReturnYears,
                     "series " + std::to_string(number) + " x values");
        check.Markers(*series, number);
        check.Line(*series, number, true);
    }
    check.Title(kCurveTitle, "\n" + kCurveSubtitle);
    check.Legend(false);
    // Round ticks: 10 to 500 with room above on 0 to 600, 0 to 3,070 on 0 to 3,500.
    check.ValueAxis(excel::xlCategory, excel::xlPrimary, "Return period (years)", 0, 600, 100, "0",
                    excel::xlTickLabelOrientationUpward);
    check.ValueAxis(excel::xlValue, excel::xlPrimary, "Loss (USD m)", 0, 3500, 500, "#,##0");
}

void CheckPremiumTrend(conformance::Failures& failures, excel::Worksheet& sheet, int32_t index, const Trend& trend,
                       bool chinese) {
    ChartCheck check(failures, sheet, index, excel::xlLineMarkers, 428, chinese);
    const std::string sheetName = sheet.Name();
    const auto top = sheet.Range(trend.topCell);
    const auto column = [&](int offset) {
        return Reference(sheetName, top->Offset(0, offset)->Resize(static_cast<int32_t>(kYears.size()), 1)->Address());
    };
    const auto premium =
        check.Series(1, SeriesFormula(trend.premium, column(0), column(1), 1), trend.premium, kPremium);
    // The categories went to the primary axis after the ratio had moved to the secondary one.
    const auto ratio = check.Series(2, SeriesFormula(trend.ratio, "", column(2), 2), trend.ratio, kLossRatio);
    for (const auto& [series, number] : {std::pair{premium, 1}, std::pair{ratio, 2}}) {
        if (!series)
            continue;
        check.Markers(*series, number);
        check.Line(*series, number, true);
        check.Expect(series->AxisGroup() == (number == 1 ? excel::xlPrimary : excel::xlSecondary),
                     "series " + std::to_string(number) + " axis group");
    }
    check.Expect(check.Chart().ChartGroups()->Count() == 2, "two chart groups");
    check.Title(trend.title, "");
    check.Legend(true);
    check.CategoryAxis(
        trend.yearAxis, Strings(Variant(kYears)),
        trend.verticalYears ? excel::xlTickLabelOrientationUpward : excel::xlTickLabelOrientationAutomatic);
    check.ValueAxis(excel::xlValue, excel::xlPrimary, trend.premiumAxis, 0, 600, 100, "#,##0");
    const std::string local = "[LOCAL]";
    const std::string shown =
        trend.ratioFormat.rfind(local, 0) == 0 ? trend.ratioFormat.substr(local.size()) : trend.ratioFormat;
    check.ValueAxis(excel::xlValue, excel::xlSecondary, trend.ratio, 0, 1, 0.25, shown);
}

void CheckTornado(conformance::Failures& failures, excel::Worksheet& sheet, int32_t index, const Tornado& tornado,
                  bool chinese) {
    const auto bars = static_cast<int32_t>(tornado.labels.size());
    ChartCheck check(failures, sheet, index, excel::xlBarStacked, 428, chinese);
    const double height = bars <= 9 ? 300 : 300 + 16 * (std::min(bars, 16) - 9);
    check.Expect(check.Object().Height() >= height && check.Object().Height() < height + 16,
                 "about " + NumbersText({height}) + " points tall, found " + NumbersText({check.Object().Height()}));
    const auto labels = sheet.Range(tornado.labelCell)->Resize(bars, 1)->Address();
    const auto pieces = TornadoPieces(tornado);
    for (int piece = 1; piece <= 4; ++piece) {
        const auto& values = pieces[piece - 1];
        const std::string formula = "=SERIES(," + Reference(sheet.Name(), labels) + "," + NumbersText(values) + "," +
                                    std::to_string(piece) + ")";
        const auto series = check.Series(piece, formula, "Series" + std::to_string(piece), values);
        if (!series)
            continue;
        const std::string where = "series " + std::to_string(piece);
        check.Expect(series->Border()->LineStyle().ToInt() == excel::xlLineStyleNone, where + " without border");
        if (piece <= 2)
            check.Expect(series->Interior()->ColorIndex().ToInt() == excel::xlColorIndexNone, where + " invisible");
        else
            check.Expect(series->Interior()->Color().ToInt() == SeriesColour(1), where + " in the first colour");
    }
    check.Expect(check.Chart().ChartGroups(1)->GapWidth() == tornado.gapWidth,
                 "gap width " + std::to_string(tornado.gapWidth) + " for " + std::to_string(bars) + " bars");
    check.Expect(check.Chart().HasAxis(excel::xlCategory), "bar label axis exists");
    if (check.Chart().HasAxis(excel::xlCategory)) {
        const auto axis = check.Chart().Axes(excel::xlCategory);
        check.Expect(axis->ReversePlotOrder(), "bar 1 at the top");
        check.Expect(axis->Crosses() == excel::xlAxisCrossesMaximum, "value axis below the bars");
        check.Expect(axis->MajorTickMark() == excel::xlTickMarkNone && axis->MinorTickMark() == excel::xlTickMarkNone,
                     "bar labels without tick marks");
        check.Expect(Strings(axis->CategoryNames()) == tornado.labels, "bar labels");
        check.Expect(axis->TickLabelPosition() == excel::xlTickLabelPositionLow, "bar labels low");
        check.Labels(*axis, "bar label axis", excel::xlTickLabelOrientationHorizontal);
    }
    check.ValueAxis(excel::xlValue, excel::xlPrimary, tornado.axisTitle, tornado.scale[0], tornado.scale[1],
                    tornado.scale[2], "#,##0");
    check.Title(tornado.title, tornado.subtitle.empty() ? "" : "\n" + tornado.subtitle);
    check.Expect(!check.Chart().HasLegend(), "no legend");
}

void CheckRunMarkers(conformance::Failures& failures, excel::Worksheet& sheet) {
    ChartCheck check(failures, sheet, 5, excel::xlXYScatter, 428, false);
    const auto top = sheet.Range("K54");
    const auto x = Reference(kEnglishSheet, top->Resize(5, 1)->Address());
    for (int run = 1; run <= kRuns; ++run) {
        const auto y = Reference(kEnglishSheet, top->Offset(0, run)->Resize(5, 1)->Address());
        const auto series = check.Series(run, SeriesFormula(RunName(run), x, y, run), RunName(run), RunValues(run));
        if (!series)
            continue;
        check.Markers(*series, run);
        check.Line(*series, run, false);
    }
    check.Title(kRunsTitle, "");
    check.Legend(true);
    check.ValueAxis(excel::xlCategory, excel::xlPrimary, "", 0, 6, 1, "0");
    check.ValueAxis(excel::xlValue, excel::xlPrimary, "", 1, 0, 0, "General");
}

void CheckColourColumns(conformance::Failures& failures, excel::Worksheet& sheet) {
    ChartCheck check(failures, sheet, 1, excel::xlColumnClustered, 500, true);
    const auto top = sheet.Range("K11");
    const auto categories = Reference(kChineseSheet, top->Resize(3, 1)->Address());
    for (int number = 1; number <= kColourSeries; ++number) {
        const auto values = Reference(kChineseSheet, top->Offset(0, number)->Resize(3, 1)->Address());
        const auto series = check.Series(number, SeriesFormula(ColourName(number), categories, values, number),
                                         ColourName(number), ColourValues(number));
        if (series)
            check.Gradient(*series, number);
    }
    check.Title(kColoursTitle, "\n" + kColoursSubtitle);
    check.Legend(false);
    check.Watermark(kChineseWatermark, kChineseWatermarkNote);
    check.CategoryAxis("", kCategories, excel::xlTickLabelOrientationAutomatic);
    check.ValueAxis(excel::xlValue, excel::xlPrimary, "", 0, 20, 5, "0");
}

// Each chart starts one separator row below the one before it, the first below the header.
void CheckLayout(conformance::Failures& failures, excel::Worksheet& sheet, int32_t firstRow) {
    int32_t row = firstRow;
    for (int32_t index = 1; index <= sheet.ChartObjects()->Count(); ++index) {
        const auto object = sheet.ChartObjects(Variant(index));
        const auto corner = object->TopLeftCell();
        failures.Expect(corner->Row() == row && corner->Column() == 1,
                        sheet.Name() + " chart " + std::to_string(index) + " at A" + std::to_string(row) + ", found " +
                            corner->Address(false, false));
        row = object->BottomRightCell()->Row() + 2;
    }
}

void CheckWorkbook(conformance::Failures& failures, excel::Workbook& book) {
    failures.Expect(book.Worksheets()->Count() == 2, "two sheets");
    auto english = book.Worksheets(kEnglishSheet);
    failures.Expect(english->ChartObjects()->Count() == 5, "Charts has five charts");
    if (english->ChartObjects()->Count() != 5)
        return;
    CheckLayout(failures, *english, 6);
    CheckSalesColumns(failures, *english);
    CheckExceedanceCurves(failures, *english);
    CheckPremiumTrend(failures, *english, 3, kEnglishTrend, false);
    CheckTornado(failures, *english, 4, kEnglishTornado, false);
    CheckRunMarkers(failures, *english);
    auto chinese = book.Worksheets(kChineseSheet);
    failures.Expect(chinese->ChartObjects()->Count() == 3, "图表 has three charts");
    if (chinese->ChartObjects()->Count() != 3)
        return;
    CheckLayout(failures, *chinese, 5);
    CheckColourColumns(failures, *chinese);
    CheckPremiumTrend(failures, *chinese, 2, kChineseTrend, true);
    CheckTornado(failures, *chinese, 3, kChineseTornado, true);
}

void CheckAfterReopening(vos::VosExcelReporting&, excel::Application& app, const std::filesystem::path& file) {
    conformance::CheckReopenedAndResaved(app, file, CheckWorkbook);
}

}  // namespace

int main(int argc, char** argv) {
    return conformance::RunReportWriter(argc, argv, WriteChartWorkbook, CheckAfterReopening);
}
