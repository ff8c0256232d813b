// Builds charts through the engine's object model alone: on "Sales", a clustered column chart (three
// named series, categories, a two-run title, a bordered legend, a gradient, a fixed value scale), a
// stacked bar chart with an invisible series and a reversed category axis, an XY scatter with its
// own markers and scales, and a line chart with a series on a titled secondary axis; on "Plan", a
// chart of literal values and a chart with a text box of its own whose series refer to both sheets.
// Or opens the saved file, checks what the chart model reads back, saves it again and checks the
// second file the same way.
//
// Usage: engine_charts_writer write|check FILE.xlsx
//        (check also writes FILE.resaved.xlsx beside FILE)

#include "chart_expectations.hpp"
#include "report_writer_main.hpp"

#include <excel/embedded.hpp>
#include <excel/excel.hpp>

#include <array>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

namespace {

using excel::Variant;

constexpr int32_t Rgb(int32_t red, int32_t green, int32_t blue) {
    return red | (green << 8) | (blue << 16);
}

constexpr int32_t kSeriesBlue = 10040115;  // 333399, the gradient's first stop
constexpr int32_t kNavy = Rgb(0x33, 0x33, 0x99);
constexpr int32_t kLavender = Rgb(0x99, 0x99, 0xCC);
constexpr int32_t kRed = Rgb(0xFF, 0, 0);
constexpr int32_t kGrey = Rgb(0xC0, 0xC0, 0xC0);
constexpr int32_t kLegendGrey = 15;  // a colour index
constexpr double kGradientDegree = 0.231372549019608;

const std::string kColumnTitle = "Sales by region\nthousands, first half ";
const std::string kColumnHeading = "Sales by region";
const std::string kShareFormat = "0.0\"%\"";
const std::string kTextBox = "Draft figures";

struct Month {
    const char* name;
    double north;
    double south;
    double west;
    double share;
};

constexpr std::array<Month, 6> kMonths{{
    {"Jan", 412.5, 298.0, 251.25, 12.1},
    {"Feb", 438.1, 305.4, 262.0, 12.8},
    {"Mar", 455.9, 287.6, 270.5, 13.5},
    {"Apr", 502.3, 331.2, 288.75, 14.2},
    {"May", 489.3, 345.9, 301.0, 14.0},
    {"Jun", 521.0, 362.4, 315.5, 15.3},
}};

struct Driver {
    const char* name;
    double base;
    double down;
    double up;
};

constexpr std::array<Driver, 5> kDrivers{{
    {"Price", 80, 20, 35},
    {"Volume", 90, 15, 25},
    {"Cost", 95, 10, 12},
    {"Rate", 100, 5, 8},
    {"Tax", 102, 3, 4},
}};

struct Quarter {
    const char* name;
    double variance;
};

constexpr std::array<Quarter, 4> kQuarters{{{"Q1", -12.5}, {"Q2", 8}, {"Q3", -3.25}, {"Q4", 15}}};

// Where each chart stands on its sheet, in points.
struct Frame {
    double left;
    double top;
    double width;
    double height;
};

constexpr Frame kColumnFrame{300, 10, 420, 250};
constexpr Frame kTornadoFrame{300, 270, 420, 220};
constexpr Frame kScatterFrame{10, 500, 340, 240};
constexpr Frame kLineFrame{360, 500, 360, 240};
constexpr Frame kLiteralFrame{200, 10, 360, 220};
constexpr Frame kVarianceFrame{200, 240, 360, 220};
constexpr Frame kTextBoxFrame{90, 80, 180, 30};  // in the variance chart

const std::vector<double> kTargets{120, 135.5, 150, 162.25};
const std::vector<double> kFloors{100, 100, 110, 110};

std::vector<double> Column(double Month::*field) {
    std::vector<double> values;
    for (const auto& month : kMonths) {
        values.push_back(month.*field);
    }
    return values;
}

std::vector<double> Column(double Driver::*field) {
    std::vector<double> values;
    for (const auto& driver : kDrivers) {
        values.push_back(driver.*field);
    }
    return values;
}

// Sales!A1:E7 the months (Month, North, South, West, Share %); Sales!A10:D15 the tornado drivers
// (Driver, Base, Down, Up).
void FillSales(excel::Worksheet& sheet) {
    sheet.Range("A1:E1")->SetValue(Variant(std::vector<std::string>{"Month", "North", "South", "West", "Share %"}));
    for (std::size_t i = 0; i < kMonths.size(); ++i) {
        const auto& month = kMonths[i];
        const int32_t row = static_cast<int32_t>(i) + 2;
        sheet.Cells(row, 1)->SetValue(Variant(month.name));
        sheet.Range(sheet.Cells(row, 2), sheet.Cells(row, 5))
            ->SetValue(Variant(std::vector<double>{month.north, month.south, month.west, month.share}));
    }
    sheet.Range("A10:D10")->SetValue(Variant(std::vector<std::string>{"Driver", "Base", "Down", "Up"}));
    for (std::size_t i = 0; i < kDrivers.size(); ++i) {
        const auto& driver = kDrivers[i];
        const int32_t row = static_cast<int32_t>(i) + 11;
        sheet.Cells(row, 1)->SetValue(Variant(driver.name));
        sheet.Range(sheet.Cells(row, 2), sheet.Cells(row, 4))
            ->SetValue(Variant(std::vector<double>{driver.base, driver.down, driver.up}));
    }
    sheet.Range("A1:E1")->Font()->SetBold(true);
    sheet.Range("A10:D10")->Font()->SetBold(true);
}

// Plan!A1:B5: Quarter, Variance.
void FillPlan(excel::Worksheet& sheet) {
    sheet.Range("A1:B1")->SetValue(Variant(std::vector<std::string>{"Quarter", "Variance"}));
    for (std::size_t i = 0; i < kQuarters.size(); ++i) {
        const int32_t row = static_cast<int32_t>(i) + 2;
        sheet.Cells(row, 1)->SetValue(Variant(kQuarters[i].name));
        sheet.Cells(row, 2)->SetValue(Variant(kQuarters[i].variance));
    }
    sheet.Range("A1:B1")->Font()->SetBold(true);
}

std::shared_ptr<excel::Chart> AddChart(excel::Worksheet& sheet, int32_t type, const Frame& frame) {
    return sheet.Shapes()->AddChart(type, frame.left, frame.top, frame.width, frame.height)->Chart();
}

std::shared_ptr<excel::Series> AddSeries(excel::Chart& chart, const Variant& values, const std::string& name) {
    auto series = chart.SeriesCollection()->NewSeries();
    series->SetValues(values);
    series->SetName(name);
    return series;
}

void ColumnChart(excel::Worksheet& sheet) {
    auto chart = AddChart(sheet, excel::xlColumnClustered, kColumnFrame);
    chart->Parent()->SetPlacement(excel::xlMove);
    auto north = AddSeries(*chart, "=Sales!$B$2:$B$7", "=Sales!$B$1");
    AddSeries(*chart, "=Sales!$C$2:$C$7", "=Sales!$C$1");
    AddSeries(*chart, "=Sales!$D$2:$D$7", "=Sales!$D$1");
    north->Interior()->SetColor(kSeriesBlue);
    north->Fill()->OneColorGradient(excel::msoGradientDiagonalDown, 1, kGradientDegree);
    chart->ChartGroups(1)->SetGapWidth(75);
    chart->ChartGroups(1)->SetOverlap(10);
    chart->Axes(excel::xlCategory)->SetCategoryNames(Variant(sheet.Range("A2:A7")));
    auto value = chart->Axes(excel::xlValue);
    value->SetMinimumScale(0);
    value->SetMaximumScale(600);
    value->SetMajorUnit(100);
    value->TickLabels()->SetNumberFormat("#,##0");

    chart->SetHasTitle(true);
    auto title = chart->ChartTitle();
    title->Characters()->SetText(kColumnHeading + " ");
    title->Font()->SetSize(12);
    title->Font()->SetBold(true);
    const int32_t last = title->Characters()->Count();
    title->Characters(last)->Insert("\nthousands, first half ");
    title->Characters(last)->Font()->SetBold(false);
    title->Characters(last)->Font()->SetSize(8);

    auto legend = chart->Legend()->Border();
    legend->SetLineStyle(excel::xlContinuous);
    legend->SetWeight(excel::xlThin);
    legend->SetColorIndex(kLegendGrey);
}

// A tornado: the base series is invisible, so the two visible ones float; the drivers read top to
// bottom, and the value axis stays below them by crossing the reversed axis at its maximum.
void TornadoChart(excel::Worksheet& sheet) {
    auto chart = AddChart(sheet, excel::xlBarStacked, kTornadoFrame);
    auto base = AddSeries(*chart, "=Sales!$B$11:$B$15", "=Sales!$B$10");
    AddSeries(*chart, "=Sales!$C$11:$C$15", "=Sales!$C$10")->Interior()->SetColor(kNavy);
    AddSeries(*chart, "=Sales!$D$11:$D$15", "=Sales!$D$10")->Interior()->SetColor(kLavender);
    base->Interior()->SetColorIndex(excel::xlColorIndexNone);
    base->Border()->SetLineStyle(excel::xlLineStyleNone);
    chart->ChartGroups(1)->SetGapWidth(40);
    auto category = chart->Axes(excel::xlCategory);
    category->SetCategoryNames(Variant(sheet.Range("A11:A15")));
    category->SetReversePlotOrder(true);
    category->SetCrosses(excel::xlAxisCrossesMaximum);
    category->SetTickLabelPosition(excel::xlTickLabelPositionLow);
    auto value = chart->Axes(excel::xlValue);
    value->SetMinimumScale(50);
    value->SetMaximumScale(150);
    value->SetMajorUnit(25);
    chart->SetHasLegend(false);
}

// A series of North against the values, drawn as markers of the style and size with an outline.
std::shared_ptr<excel::Series> AddPoints(excel::Chart& chart, excel::Worksheet& sheet, const char* values,
                                         const std::string& name, int32_t style, int32_t size, int32_t outline) {
    auto series = AddSeries(chart, Variant(sheet.Range(values)), name);
    series->SetXValues(Variant(sheet.Range("B2:B7")));
    series->SetMarkerStyle(style);
    series->SetMarkerSize(size);
    series->SetMarkerForegroundColor(outline);
    return series;
}

void ScatterChart(excel::Worksheet& sheet) {
    auto chart = AddChart(sheet, excel::xlXYScatter, kScatterFrame);
    AddPoints(*chart, sheet, "C2:C7", "South against North", excel::xlMarkerStyleDiamond, 7, kNavy)
        ->SetMarkerBackgroundColor(kLavender);
    AddPoints(*chart, sheet, "D2:D7", "=Sales!$D$1", excel::xlMarkerStyleStar, 9, kRed)
        ->SetMarkerBackgroundColorIndex(excel::xlColorIndexNone);
    auto x = chart->Axes(excel::xlCategory);
    x->SetMinimumScale(400);
    x->SetMaximumScale(550);
    x->SetMajorUnit(50);
    x->TickLabels()->SetOrientation(excel::xlTickLabelOrientationUpward);
    auto y = chart->Axes(excel::xlValue);
    y->SetMinimumScale(200);
    y->SetMaximumScale(400);
    y->SetMajorUnit(50);
}

void LineChart(excel::Worksheet& sheet) {
    auto chart = AddChart(sheet, excel::xlLineMarkers, kLineFrame);
    AddSeries(*chart, "=Sales!$B$2:$B$7", "=Sales!$B$1");
    auto share = AddSeries(*chart, "=Sales!$E$2:$E$7", "=Sales!$E$1");
    // Categories first: they go to the series of the axis group they are set on.
    chart->Axes(excel::xlCategory)->SetCategoryNames(Variant(sheet.Range("A2:A7")));
    share->SetAxisGroup(excel::xlSecondary);
    auto right = chart->Axes(excel::xlValue, excel::xlSecondary);
    right->SetMinimumScale(10);
    right->SetMaximumScale(16);
    right->TickLabels()->SetNumberFormat(kShareFormat);
    right->SetHasTitle(true);
    right->AxisTitle()->Characters()->SetText("Share");
    chart->Legend()->SetPosition(excel::xlLegendPositionBottom);
}

void LiteralChart(excel::Worksheet& sheet) {
    auto chart = AddChart(sheet, excel::xlColumnClustered, kLiteralFrame);
    AddSeries(*chart, Variant(kTargets), "Target");
    AddSeries(*chart, "={100,100,110,110}", "Floor");
    chart->Axes(excel::xlCategory)->SetCategoryNames(Variant(std::vector<std::string>{"Q1", "Q2", "Q3", "Q4"}));
    chart->SetHasTitle(true);
    chart->ChartTitle()->SetText("Targets");
}

// The variance bars hang from the bottom of the plot: the category axis crosses the value axis
// below any value, so it is drawn at the value axis' minimum.
void VarianceChart(excel::Worksheet& sheet) {
    auto chart = AddChart(sheet, excel::xlColumnClustered, kVarianceFrame);
    AddSeries(*chart, "=Plan!$B$2:$B$5", "=Plan!$B$1");
    AddSeries(*chart, "=Sales!$E$2:$E$5", "=Sales!$E$1");
    chart->Axes(excel::xlCategory)->SetCategoryNames(Variant(sheet.Range("A2:A5")));
    chart->Axes(excel::xlValue)->SetCrossesAt(-1E+300);
    auto box = chart->Shapes()->AddTextbox(excel::msoTextOrientationHorizontal, kTextBoxFrame.left, kTextBoxFrame.top,
                                           kTextBoxFrame.width, kTextBoxFrame.height);
    box->TextFrame()->Characters()->SetText(kTextBox);
    box->TextFrame()->Characters()->Font()->SetColor(kGrey);
    box->TextFrame()->Characters()->Font()->SetSize(14);
    box->TextFrame()->SetHorizontalAlignment(excel::xlHAlignCenter);
}

void WriteChartWorkbook(vos::VosExcelReporting&, const std::shared_ptr<excel::Application>& app,
                        const std::filesystem::path& file) {
    auto book = app->Workbooks()->Add();
    auto sales = book->Worksheets(1);
    sales->SetName("Sales");
    FillSales(*sales);
    ColumnChart(*sales);
    TornadoChart(*sales);
    ScatterChart(*sales);
    LineChart(*sales);
    auto plan = book->Worksheets()->Add(Variant(), sales);
    plan->SetName("Plan");
    FillPlan(*plan);
    LiteralChart(*plan);
    VarianceChart(*plan);
    book->SaveAs(file.string());
    book->Close(false);
}

// "" when the object stands in the frame, else what was expected and found.
template <class Placed>
std::string Misplaced(const Frame& frame, Placed& object) {
    const std::vector<double> found{object.Left(), object.Top(), object.Width(), object.Height()};
    const std::vector<double> expected{frame.left, frame.top, frame.width, frame.height};
    for (std::size_t i = 0; i < found.size(); ++i) {
        if (std::abs(found[i] - expected[i]) >= 0.01)
            return "placed at " + conformance::NumbersText(expected) + ", found " + conformance::NumbersText(found);
    }
    return "";
}

// What one chart reads back, each expectation named after the chart, and where it stands.
class ChartCheck : public conformance::ChartExpectations {
public:
    ChartCheck(conformance::Failures& failures, excel::Worksheet& sheet, int32_t index, int32_t type,
               const Frame& frame)
        : ChartExpectations(failures, sheet, index, type) {
        if (!*this)
            return;
        const std::string misplaced = Misplaced(frame, *object_);
        Expect(misplaced.empty(), misplaced);
    }

    void Scale(int32_t type, int32_t group, double minimum, double maximum, double major) {
        auto axis = chart_->Axes(type, group);
        const std::string where = "axis " + std::to_string(type) + "/" + std::to_string(group);
        Expect(!axis->MinimumScaleIsAuto() && !axis->MaximumScaleIsAuto(), where + " fixed minimum and maximum");
        Expect(axis->MinimumScale() == minimum && axis->MaximumScale() == maximum,
               where + " from " + conformance::NumbersText({minimum, maximum}) + ", found " +
                   conformance::NumbersText({axis->MinimumScale(), axis->MaximumScale()}));
        if (major > 0) {
            Expect(!axis->MajorUnitIsAuto() && axis->MajorUnit() == major,
                   where + " major unit " + conformance::NumbersText({major}) + ", found " +
                       conformance::NumbersText({axis->MajorUnit()}));
        }
    }

    void Title(const std::string& text) {
        Expect(chart_->HasTitle(), "has a title");
        if (chart_->HasTitle()) {
            const std::string found = chart_->ChartTitle()->Text();
            Expect(found == text, "title '" + text + "', found '" + found + "'");
        }
    }

    // The characters from start on have this size and boldness.
    void TitleFont(int32_t start, int32_t length, double size, bool bold) {
        auto font = chart_->ChartTitle()->Characters(start, length)->Font();
        Expect(font->Size().ToDouble() == size && font->Bold().ToBool() == bold,
               "title characters " + std::to_string(start) + ".. " + conformance::NumbersText({size}) + " points" +
                   (bold ? ", bold" : ", not bold"));
    }
};

void CheckColumnChart(conformance::Failures& failures, excel::Worksheet& sheet) {
    ChartCheck check(failures, sheet, 1, excel::xlColumnClustered, kColumnFrame);
    if (!check)
        return;
    check.Expect(check.Object().Placement() == excel::xlMove, "moves with cells but is not sized");
    auto north =
        check.Series(1, "=SERIES(Sales!$B$1,Sales!$A$2:$A$7,Sales!$B$2:$B$7,1)", "North", Column(&Month::north));
    check.Series(2, "=SERIES(Sales!$C$1,Sales!$A$2:$A$7,Sales!$C$2:$C$7,2)", "South", Column(&Month::south));
    check.Series(3, "=SERIES(Sales!$D$1,Sales!$A$2:$A$7,Sales!$D$2:$D$7,3)", "West", Column(&Month::west));
    if (north) {
        auto fill = north->Fill();
        // The file holds the gradient's direction and both of its colours, not the degree that made
        // the second one.
        check.Expect(fill->Type() == excel::msoFillGradient, "North filled with a gradient");
        check.Expect(fill->GradientStyle() == excel::msoGradientDiagonalDown,
                     "North gradient diagonal down, found style " + std::to_string(fill->GradientStyle()));
        check.Expect(north->Interior()->Color().ToInt() == kSeriesBlue, "North gradient from 333399");
    }
    auto group = check.Chart().ChartGroups(1);
    check.Expect(group->GapWidth() == 75 && group->Overlap() == 10, "gap width 75, overlap 10");
    auto names = check.Chart().Axes(excel::xlCategory)->CategoryNames().Array().Elements();
    check.Expect(
        names.size() == kMonths.size() && names.front().ToString() == "Jan" && names.back().ToString() == "Jun",
        "categories Jan..Jun");
    check.Scale(excel::xlValue, excel::xlPrimary, 0, 600, 100);
    check.Expect(check.Chart().Axes(excel::xlValue)->TickLabels()->NumberFormat() == "#,##0", "value labels #,##0");
    check.Title(kColumnTitle);
    if (check.Chart().HasTitle()) {
        check.TitleFont(1, static_cast<int32_t>(kColumnHeading.size()), 12, true);
        check.TitleFont(static_cast<int32_t>(kColumnHeading.size()) + 1, -1, 8, false);
    }
    check.Expect(check.Chart().HasLegend(), "has a legend");
    if (check.Chart().HasLegend()) {
        auto legend = check.Chart().Legend();
        check.Expect(legend->Position() == excel::xlLegendPositionRight, "legend at the right");
        auto border = legend->Border();
        check.Expect(border->LineStyle().ToInt() == excel::xlContinuous && border->Weight().ToInt() == excel::xlThin &&
                         border->ColorIndex().ToInt() == kLegendGrey,
                     "legend border continuous, thin, colour index 15");
    }
}

void CheckTornadoChart(conformance::Failures& failures, excel::Worksheet& sheet) {
    ChartCheck check(failures, sheet, 2, excel::xlBarStacked, kTornadoFrame);
    if (!check)
        return;
    auto base =
        check.Series(1, "=SERIES(Sales!$B$10,Sales!$A$11:$A$15,Sales!$B$11:$B$15,1)", "Base", Column(&Driver::base));
    auto down =
        check.Series(2, "=SERIES(Sales!$C$10,Sales!$A$11:$A$15,Sales!$C$11:$C$15,2)", "Down", Column(&Driver::down));
    check.Series(3, "=SERIES(Sales!$D$10,Sales!$A$11:$A$15,Sales!$D$11:$D$15,3)", "Up", Column(&Driver::up));
    if (base) {
        check.Expect(base->Interior()->ColorIndex().ToInt() == excel::xlColorIndexNone &&
                         base->Fill()->Visible() == excel::msoFalse,
                     "Base series without fill");
        check.Expect(base->Border()->LineStyle().ToInt() == excel::xlLineStyleNone, "Base series without border");
    }
    if (down) {
        check.Expect(down->Interior()->Color().ToInt() == kNavy, "Down series navy");
    }
    check.Expect(check.Chart().ChartGroups(1)->GapWidth() == 40, "gap width 40");
    auto category = check.Chart().Axes(excel::xlCategory);
    check.Expect(category->ReversePlotOrder(), "categories in reverse order");
    check.Expect(category->Crosses() == excel::xlAxisCrossesMaximum,
                 "value axis crosses the categories at their maximum");
    check.Expect(category->TickLabelPosition() == excel::xlTickLabelPositionLow, "category labels low");
    check.Expect(check.Chart().Axes(excel::xlValue)->Crosses() == excel::xlAxisCrossesAutomatic,
                 "category axis crosses the values automatically");
    check.Scale(excel::xlValue, excel::xlPrimary, 50, 150, 25);
    check.Expect(!check.Chart().HasLegend(), "has no legend");
    check.Expect(!check.Chart().HasTitle(), "has no title");
}

void CheckScatterChart(conformance::Failures& failures, excel::Worksheet& sheet) {
    ChartCheck check(failures, sheet, 3, excel::xlXYScatter, kScatterFrame);
    if (!check)
        return;
    auto south = check.Series(1, "=SERIES(\"South against North\",Sales!$B$2:$B$7,Sales!$C$2:$C$7,1)",
                              "South against North", Column(&Month::south));
    auto west = check.Series(2, "=SERIES(Sales!$D$1,Sales!$B$2:$B$7,Sales!$D$2:$D$7,2)", "West", Column(&Month::west));
    if (south) {
        check.Expect(conformance::NumberElements(south->XValues()) == Column(&Month::north),
                     "South's X values are North's");
        check.Expect(south->MarkerStyle() == excel::xlMarkerStyleDiamond && south->MarkerSize() == 7,
                     "South diamonds of 7 points");
        check.Expect(south->MarkerForegroundColor() == kNavy && south->MarkerBackgroundColor() == kLavender,
                     "South markers navy on lavender");
    }
    if (west) {
        check.Expect(west->MarkerStyle() == excel::xlMarkerStyleStar && west->MarkerSize() == 9,
                     "West stars of 9 points");
        check.Expect(
            west->MarkerBackgroundColorIndex() == excel::xlColorIndexNone && west->MarkerForegroundColor() == kRed,
            "West stars red, without fill");
    }
    check.Scale(excel::xlCategory, excel::xlPrimary, 400, 550, 50);
    check.Scale(excel::xlValue, excel::xlPrimary, 200, 400, 50);
    check.Expect(
        check.Chart().Axes(excel::xlCategory)->TickLabels()->Orientation() == excel::xlTickLabelOrientationUpward,
        "X labels read upward");
}

void CheckLineChart(conformance::Failures& failures, excel::Worksheet& sheet) {
    ChartCheck check(failures, sheet, 4, excel::xlLineMarkers, kLineFrame);
    if (!check)
        return;
    auto north =
        check.Series(1, "=SERIES(Sales!$B$1,Sales!$A$2:$A$7,Sales!$B$2:$B$7,1)", "North", Column(&Month::north));
    auto share =
        check.Series(2, "=SERIES(Sales!$E$1,Sales!$A$2:$A$7,Sales!$E$2:$E$7,2)", "Share %", Column(&Month::share));
    if (north && share) {
        check.Expect(north->AxisGroup() == excel::xlPrimary && share->AxisGroup() == excel::xlSecondary,
                     "North on the primary axes, Share % on the secondary");
        check.Expect(share->MarkerStyle() == excel::xlMarkerStyleAutomatic, "Share % automatic markers");
    }
    check.Expect(check.Chart().ChartGroups()->Count() == 2, "two chart groups");
    check.Expect(check.Chart().HasAxis(excel::xlValue, excel::xlSecondary), "a secondary value axis");
    if (!check.Chart().HasAxis(excel::xlValue, excel::xlSecondary))
        return;
    auto right = check.Chart().Axes(excel::xlValue, excel::xlSecondary);
    check.Scale(excel::xlValue, excel::xlSecondary, 10, 16, 0);
    check.Expect(right->TickLabels()->NumberFormat() == kShareFormat, "secondary labels " + kShareFormat);
    check.Expect(right->HasTitle() && right->AxisTitle()->Text() == "Share", "secondary value axis titled Share");
    check.Expect(check.Chart().Axes(excel::xlValue)->MaximumScaleIsAuto(), "primary value axis automatic");
    check.Expect(check.Chart().HasLegend() && check.Chart().Legend()->Position() == excel::xlLegendPositionBottom,
                 "legend at the bottom");
}

void CheckLiteralChart(conformance::Failures& failures, excel::Worksheet& sheet) {
    ChartCheck check(failures, sheet, 1, excel::xlColumnClustered, kLiteralFrame);
    if (!check)
        return;
    check.Series(1, "=SERIES(\"Target\",{\"Q1\",\"Q2\",\"Q3\",\"Q4\"},{120,135.5,150,162.25},1)", "Target", kTargets);
    check.Series(2, "=SERIES(\"Floor\",{\"Q1\",\"Q2\",\"Q3\",\"Q4\"},{100,100,110,110},2)", "Floor", kFloors);
    check.Title("Targets");
}

void CheckVarianceChart(conformance::Failures& failures, excel::Worksheet& sheet) {
    ChartCheck check(failures, sheet, 2, excel::xlColumnClustered, kVarianceFrame);
    if (!check)
        return;
    std::vector<double> variances;
    for (const auto& quarter : kQuarters) {
        variances.push_back(quarter.variance);
    }
    std::vector<double> shares = Column(&Month::share);
    shares.resize(kQuarters.size());
    check.Series(1, "=SERIES(Plan!$B$1,Plan!$A$2:$A$5,Plan!$B$2:$B$5,1)", "Variance", variances);
    check.Series(2, "=SERIES(Sales!$E$1,Plan!$A$2:$A$5,Sales!$E$2:$E$5,2)", "Share %", shares);
    auto value = check.Chart().Axes(excel::xlValue);
    check.Expect(value->Crosses() == excel::xlAxisCrossesCustom && value->CrossesAt() == -1E+300,
                 "category axis crosses the values at -1E+300");
    auto shapes = check.Chart().Shapes();
    check.Expect(shapes->Count() == 1, "one text box of its own");
    if (shapes->Count() != 1)
        return;
    auto box = shapes->Item(Variant(1));
    check.Expect(box->TextFrame()->Characters()->Text() == kTextBox, "text box reads '" + kTextBox + "'");
    auto font = box->TextFrame()->Characters()->Font();
    check.Expect(font->Color().ToInt() == kGrey && font->Size().ToDouble() == 14, "text box text grey, 14 points");
    check.Expect(box->TextFrame()->HorizontalAlignment() == excel::xlHAlignCenter, "text box centred");
    const std::string misplaced = Misplaced(kTextBoxFrame, *box);
    check.Expect(misplaced.empty(), "text box " + misplaced);
}

void CheckWorkbook(conformance::Failures& failures, excel::Workbook& book) {
    failures.Expect(book.Worksheets()->Count() == 2, "two sheets");
    auto sales = book.Worksheets("Sales");
    failures.Expect(sales->ChartObjects()->Count() == 4, "Sales has four charts");
    CheckColumnChart(failures, *sales);
    CheckTornadoChart(failures, *sales);
    CheckScatterChart(failures, *sales);
    CheckLineChart(failures, *sales);
    auto plan = book.Worksheets("Plan");
    failures.Expect(plan->ChartObjects()->Count() == 2, "Plan has two charts");
    CheckLiteralChart(failures, *plan);
    CheckVarianceChart(failures, *plan);
}

void CheckAfterReopening(vos::VosExcelReporting&, excel::Application& app, const std::filesystem::path& file) {
    conformance::CheckReopenedAndResaved(app, file, CheckWorkbook);
}

}  // namespace

int main(int argc, char** argv) {
    return conformance::RunReportWriter(argc, argv, WriteChartWorkbook, CheckAfterReopening);
}
