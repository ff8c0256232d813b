// Charts of the corpus that Excel wrote, built again through the object model and saved: our
// chart part must read as Excel's, but for the differences listed with each chart and their reason.

#include "embedded/document/chart_part_comparison.hpp"
#include "embedded/document/save_open_fixture.hpp"

#include <algorithm>
#include <initializer_list>

using namespace excel;
using chart_comparison::AllowedAddition;

namespace {

// Elements and attributes Excel 2007 leaves out when they hold Excel's default, which the engine
// writes out (as Excel 2010 and later do) so that readers who take the schema's defaults, which
// are not always Excel's, see Excel's chart.
constexpr AllowedAddition AllowedAdditions[] = {
    {"c:date1904", "0", "dates count from 1900"},
    {"c:roundedCorners", "0", "square corners; the schema's default is rounded"},
    {"c:style", "2", "Excel's default chart style"},
    {"c:chart/c:autoTitleDeleted", "0", "a chart with a title of its own"},
    {"c:varyColors", "0", "one colour per series, not per point"},
    {"c:invertIfNegative", "0", "negative bars keep their fill"},
    {"c:gapWidth", "150", "Excel's default gap between clusters"},
    {"c:overlap", "0", "bars of a cluster side by side"},
    {"c:smooth", "0", "straight lines between points"},
    {"c:delete", "0", "a shown axis"},
    {"c:majorTickMark", "out", "Excel's default tick marks; the schema's default is cross"},
    {"c:minorTickMark", "none", "Excel's default minor tick marks; the schema's default is cross"},
    {"c:noMultiLvlLbl", "0", "category labels of several levels allowed"},
    {"c:catAx/c:numFmt", "formatCode=General sourceLinked=1", "labels in the categories' own format"},
    {"c:overlay", "0", "a title or legend beside the plot, not over it"},
    {"c:dispBlanksAs", "gap", "empty cells leave gaps; the schema's default is zero"},
    {"c:showDLblsOverMax", "0", "no data labels beyond the axis maximum"},
    {"a:ln/a:prstDash", "solid", "the dash of a continuous line, named with every line the engine writes"},
    {"c:chart/c:title/c:tx/c:rich/a:p/*/*@sz", "1800", "Excel 2007's chart title is 18 pt"},
    {"c:plotArea/*/c:title/c:tx/c:rich/a:p/*/*@sz", "1000", "Excel 2007's axis titles are 10 pt"},
    {"c:title/c:tx/c:rich/a:p/*/*@b", "1", "titles are bold"},
    {"a:p/*/*@i", "0", "text is upright"},
};

// A known difference from Excel's chart part, as ChartPartDifferences words it.
struct ExpectedDifference {
    std::string_view difference;
    std::string_view reason;
};

using Differences = std::initializer_list<ExpectedDifference>;

// Differences that several charts have.
constexpr ExpectedDifference AutomaticTitleOff{
    "c:chart/c:autoTitleDeleted: added '1'",
    "the engine turns the automatic title off on every chart without a title, so that Excel shows none even "
    "for a single series; Excel 2007 marks it off only once a title was deleted"};
constexpr ExpectedDifference DeletedAxisLabels{
    "c:chart/c:plotArea/c:catAx[2]/c:tickLblPos: @val Excel 'none', ours 'nextTo'",
    "the deleted secondary category axis shows no labels either way; the engine keeps their position"};
// The switched-off line of the first or second XY series.
constexpr ExpectedDifference InvisibleLine(int series) {
    return {series == 1 ? "c:chart/c:plotArea/c:scatterChart/c:ser[1]/c:spPr/a:ln: @w Excel '28575', ours '-'"
                        : "c:chart/c:plotArea/c:scatterChart/c:ser[2]/c:spPr/a:ln: @w Excel '28575', ours '-'",
            "Excel names the width of a line it switched off, which shows nowhere"};
}
constexpr std::string_view NoBaseline =
    "Excel writes baseline 0 (neither raised nor lowered) with every font it was given; absent, it is 0 too";

class ChartFidelityTest : public SaveOpenTest {
protected:
    // Cells as the corpus file's first sheet holds them, then a chart on them.
    std::shared_ptr<Chart> ChartLike(const std::string& file, int32_t type) {
        auto source = app->Workbooks()->Open(CorpusPath(file));
        const auto used = source->Worksheets(1)->UsedRange();
        sheet->Range(used->Address())->SetValue(used->Value());
        source->Close(false);
        file_ = file;
        return sheet->Shapes()->AddChart(type, 200, 20, 360, 216)->Chart();
    }

    // The chart's series of the columns of A1:C5, as most of the corpus' charts have them.
    std::shared_ptr<Chart> ChartOfThreeColumns(const std::string& file, int32_t type) {
        auto chart = ChartLike(file, type);
        for (const char* values : {"A1:A5", "B1:B5", "C1:C5"}) {
            chart->SeriesCollection()->NewSeries()->SetValues(Variant(At(values)));
        }
        return chart;
    }

    // The series of B1:B5 and C1:C5 over the categories A1:A5.
    std::shared_ptr<Chart> ChartOfCategories(const std::string& file, int32_t type) {
        auto chart = ChartLike(file, type);
        for (const char* values : {"B1:B5", "C1:C5"}) {
            chart->SeriesCollection()->NewSeries()->SetValues(Variant(At(values)));
        }
        chart->Axes(xlCategory)->SetCategoryNames(Variant(At("A1:A5")));
        return chart;
    }

    // The series of A1:A5, and of B1:B5 on the secondary axes.
    void ChartOnTwoAxes(const std::string& file, int32_t type) {
        auto chart = ChartLike(file, type);
        chart->SeriesCollection()->NewSeries()->SetValues(Variant(At("A1:A5")));
        chart->SeriesCollection()->NewSeries()->SetValues(Variant(At("B1:B5")));
        chart->SeriesCollection(2)->SetAxisGroup(xlSecondary);
    }

    // A column chart whose axes label in these number formats, the value axis' left as it is when null.
    std::shared_ptr<Chart> ChartOfNumberFormats(const std::string& file, const char* category, const char* value) {
        auto chart = ChartOfThreeColumns(file, xlColumnClustered);
        chart->Axes(xlCategory)->TickLabels()->SetNumberFormat(category);
        if (value != nullptr) {
            chart->Axes(xlValue)->TickLabels()->SetNumberFormat(value);
        }
        return chart;
    }

    // An XY chart of A1:A5 against B1:B5 and against C1:C5.
    std::shared_ptr<Chart> ScatterLike(const std::string& file, int32_t type) {
        auto chart = ChartLike(file, type);
        for (const char* values : {"B1:B5", "C1:C5"}) {
            auto series = chart->SeriesCollection()->NewSeries();
            series->SetXValues(Variant(At("A1:A5")));
            series->SetValues(Variant(At(values)));
        }
        return chart;
    }

    // Saves the workbook, which must pass the checkers, and compares its chart with Excel's.
    void ExpectExcelsChart(Differences expected) {
        const std::string path = PathOf("chart.xlsx");
        book->SaveAs(path);
        EXPECT_EQ(RunTool("validate-xlsx", path), 0);
        EXPECT_EQ(RunTool("check-xlsx", path), 0);
        const std::string part = "xl/charts/chart1.xml";
        const auto ours = ooxml_test::ReadPackageParts(path);
        const auto excels = ooxml_test::ReadPackageParts(CorpusPath(file_));
        ASSERT_TRUE(ours.contains(part) && excels.contains(part));
        const auto found = chart_comparison::ChartPartDifferences(excels.at(part), ours.at(part), AllowedAdditions);
        for (const std::string& difference : found) {
            EXPECT_TRUE(std::any_of(expected.begin(), expected.end(),
                                    [&](const ExpectedDifference& known) { return known.difference == difference; }))
                << file_ << ": a difference not in the table: " << difference;
        }
        for (const ExpectedDifference& known : expected) {
            EXPECT_TRUE(std::find(found.begin(), found.end(), known.difference) != found.end())
                << file_ << ": a listed difference no longer occurs: " << known.difference;
        }
    }

private:
    std::string file_;
};

TEST_F(ChartFidelityTest, ClusteredColumn) {
    ChartOfThreeColumns("charts-xlsxwriter/xw__chart_column01.xlsx", xlColumnClustered);
    ExpectExcelsChart({AutomaticTitleOff});
}

TEST_F(ChartFidelityTest, ColumnsWithCategoriesGapAndOverlap) {
    auto chart = ChartOfCategories("charts-xlsxwriter/xw__chart_gap01.xlsx", xlColumnClustered);
    chart->ChartGroups(1)->SetGapWidth(157);
    chart->ChartGroups(1)->SetOverlap(5);
    ExpectExcelsChart({AutomaticTitleOff});
}

TEST_F(ChartFidelityTest, StackedBar) {
    ChartOfThreeColumns("charts-xlsxwriter/xw__chart_bar09.xlsx", xlBarStacked);
    ExpectExcelsChart({AutomaticTitleOff});
}

TEST_F(ChartFidelityTest, ScatterMarkersOnly) {
    ScatterLike("charts-xlsxwriter/xw__chart_scatter01.xlsx", xlXYScatter);
    ExpectExcelsChart({AutomaticTitleOff, InvisibleLine(1), InvisibleLine(2)});
}

TEST_F(ChartFidelityTest, ScatterLinesAndMarkers) {
    ScatterLike("charts-xlsxwriter/xw__chart_scatter02.xlsx", xlXYScatterLines);
    ExpectExcelsChart({AutomaticTitleOff});
}

TEST_F(ChartFidelityTest, ScatterLinesOnly) {
    ScatterLike("charts-xlsxwriter/xw__chart_scatter03.xlsx", xlXYScatterLinesNoMarkers);
    ExpectExcelsChart({AutomaticTitleOff});
}

TEST_F(ChartFidelityTest, Line) {
    ChartOfThreeColumns("charts-xlsxwriter/xw__chart_line01.xlsx", xlLine);
    ExpectExcelsChart({AutomaticTitleOff});
}

TEST_F(ChartFidelityTest, LineWithMarkersAndOneWithout) {
    auto chart = ChartOfCategories("charts-xlsxwriter/xw__chart_format05.xlsx", xlLineMarkers);
    chart->SeriesCollection(2)->SetMarkerStyle(xlMarkerStyleNone);
    ExpectExcelsChart({AutomaticTitleOff});
}

TEST_F(ChartFidelityTest, ColumnOnSecondaryAxis) {
    ChartOnTwoAxes("charts-xlsxwriter/xw__chart_column04.xlsx", xlColumnClustered);
    ExpectExcelsChart({AutomaticTitleOff, DeletedAxisLabels});
}

TEST_F(ChartFidelityTest, BarOnSecondaryAxis) {
    ChartOnTwoAxes("charts-xlsxwriter/xw__chart_bar24.xlsx", xlBarClustered);
    ExpectExcelsChart({AutomaticTitleOff, DeletedAxisLabels,
                       {"c:chart/c:plotArea/c:catAx[2]/c:crosses: added 'autoZero'",
                        "Excel says nothing of where its deleted secondary category axis crosses the value axis"}});
}

TEST_F(ChartFidelityTest, LineOnSecondaryAxis) {
    ChartOnTwoAxes("charts-xlsxwriter/xw__chart_line02.xlsx", xlLine);
    ExpectExcelsChart({AutomaticTitleOff, DeletedAxisLabels});
}

TEST_F(ChartFidelityTest, FixedScale) {
    auto chart = ChartOfThreeColumns("charts-xlsxwriter/xw__chart_axis12.xlsx", xlColumnClustered);
    chart->Axes(xlValue)->SetMinimumScale(0);
    chart->Axes(xlValue)->SetMaximumScale(16);
    ExpectExcelsChart({AutomaticTitleOff});
}

TEST_F(ChartFidelityTest, MajorAndMinorUnit) {
    auto chart = ChartOfThreeColumns("charts-xlsxwriter/xw__chart_axis15.xlsx", xlColumnClustered);
    chart->Axes(xlValue)->SetMajorUnit(2);
    chart->Axes(xlValue)->SetMinorUnit(0.4);
    ExpectExcelsChart({AutomaticTitleOff});
}

TEST_F(ChartFidelityTest, CategoryNumberFormat) {
    ChartOfNumberFormats("charts-xlsxwriter/xw__chart_axis22.xlsx", "#,##0.00", nullptr);
    ExpectExcelsChart({AutomaticTitleOff});
}

TEST_F(ChartFidelityTest, DateAndPercentNumberFormats) {
    ChartOfNumberFormats("charts-xlsxwriter/xw__chart_axis23.xlsx", "dd/mm/yyyy", "0.00%");
    ExpectExcelsChart({AutomaticTitleOff});
}

TEST_F(ChartFidelityTest, NumberFormatLinkedToTheSource) {
    auto chart = ChartOfNumberFormats("charts-xlsxwriter/xw__chart_axis24.xlsx", "dd/mm/yyyy", "0.00%");
    chart->Axes(xlCategory)->TickLabels()->SetNumberFormatLinked(true);
    ExpectExcelsChart({AutomaticTitleOff});
}

TEST_F(ChartFidelityTest, CurrencyNumberFormat) {
    ChartOfNumberFormats("charts-xlsxwriter/xw__chart_axis25.xlsx", "[$\u00a5-411]#,##0.00", "0.00%");
    ExpectExcelsChart({AutomaticTitleOff});
}

TEST_F(ChartFidelityTest, CategoryAxisAtTheTop) {
    auto chart = ChartOfThreeColumns("charts-xlsxwriter/xw__chart_crossing01.xlsx", xlColumnClustered);
    chart->Axes(xlValue)->SetCrosses(xlAxisCrossesMaximum);
    ExpectExcelsChart({AutomaticTitleOff});
}

TEST_F(ChartFidelityTest, ScatterAxesCrossingAtTheirMaximum) {
    auto chart = ScatterLike("charts-xlsxwriter/xw__chart_crossing03.xlsx", xlXYScatter);
    chart->Axes(xlValue)->SetCrosses(xlAxisCrossesMaximum);
    chart->Axes(xlCategory)->SetCrosses(xlAxisCrossesMaximum);
    ExpectExcelsChart({AutomaticTitleOff, InvisibleLine(1), InvisibleLine(2)});
}

TEST_F(ChartFidelityTest, ReversedCategories) {
    auto chart = ChartOfThreeColumns("charts-xlsxwriter/xw__chart_axis09.xlsx", xlColumnClustered);
    chart->Axes(xlCategory)->SetReversePlotOrder(true);
    ExpectExcelsChart({AutomaticTitleOff});
}

TEST_F(ChartFidelityTest, AxesCrossingAtValues) {
    auto chart = ChartOfThreeColumns("charts-xlsxwriter/xw__chart_crossing02.xlsx", xlColumnClustered);
    chart->Axes(xlValue)->SetCrossesAt(8);
    chart->Axes(xlCategory)->SetCrossesAt(3);
    ExpectExcelsChart({AutomaticTitleOff});
}

TEST_F(ChartFidelityTest, UpwardCategoryLabels) {
    auto chart = ChartOfThreeColumns("charts-xlsxwriter/xw__chart_axis29.xlsx", xlLine);
    chart->Axes(xlCategory)->TickLabels()->SetOrientation(xlTickLabelOrientationUpward);
    ExpectExcelsChart({AutomaticTitleOff});
}

TEST_F(ChartFidelityTest, TickLabelsHighAndLow) {
    auto chart = ChartOfThreeColumns("charts-xlsxwriter/xw__chart_axis19.xlsx", xlColumnClustered);
    chart->Axes(xlCategory)->SetTickLabelPosition(xlTickLabelPositionHigh);
    chart->Axes(xlValue)->SetTickLabelPosition(xlTickLabelPositionLow);
    ExpectExcelsChart({AutomaticTitleOff});
}

TEST_F(ChartFidelityTest, NoLegend) {
    auto chart = ChartOfThreeColumns("charts-xlsxwriter/xw__chart_legend01.xlsx", xlColumnClustered);
    chart->SetHasLegend(false);
    ExpectExcelsChart({AutomaticTitleOff});
}

TEST_F(ChartFidelityTest, LegendInTheCorner) {
    auto chart = ChartOfThreeColumns("charts-xlsxwriter/xw__chart_legend03.xlsx", xlLine);
    chart->Legend()->SetPosition(xlLegendPositionCorner);
    ExpectExcelsChart({AutomaticTitleOff});
}

TEST_F(ChartFidelityTest, LegendOverThePlot) {
    auto chart = ChartOfThreeColumns("charts-xlsxwriter/xw__chart_legend04.xlsx", xlLine);
    chart->Legend()->SetPosition(xlLegendPositionCorner);
    chart->Legend()->SetIncludeInLayout(false);
    ExpectExcelsChart({AutomaticTitleOff});
}

TEST_F(ChartFidelityTest, LegendBorderColor) {
    auto chart = ChartOfThreeColumns("charts-xlsxwriter/xw__chart_legend05.xlsx", xlLine);
    chart->Legend()->Border()->SetColor(0xBD814F);  // 4F81BD
    ExpectExcelsChart({AutomaticTitleOff});
}

TEST_F(ChartFidelityTest, NoTitleForOneNamedSeries) {
    auto chart = ChartLike("charts-xlsxwriter/xw__chart_title01.xlsx", xlColumnClustered);
    auto series = chart->SeriesCollection()->NewSeries();
    series->SetValues(Variant(At("A1:A5")));
    series->SetName("Foo");
    chart->SetHasTitle(false);
    ExpectExcelsChart({});
}

TEST_F(ChartFidelityTest, TitleNotBold) {
    auto chart = ChartLike("charts-xlsxwriter/xw__chart_title03.xlsx", xlColumnClustered);
    chart->SeriesCollection()->NewSeries()->SetValues(Variant(At("A1:A5")));
    chart->SetHasTitle(true);
    chart->ChartTitle()->SetText("Title!");
    chart->ChartTitle()->Font()->SetBold(false);
    ExpectExcelsChart({});
}

// Titles of the chart and its axes, and fonts of the tick labels.
void TitleAndAxisFonts(Chart& chart) {
    chart.SetHasTitle(true);
    chart.ChartTitle()->SetText("Title");
    for (const auto& [type, title] : {std::pair{xlValue, "XXX"}, std::pair{xlCategory, "YYY"}}) {
        chart.Axes(type)->SetHasTitle(true);
        chart.Axes(type)->AxisTitle()->SetText(title);
    }
    auto categories = chart.Axes(xlCategory)->TickLabels()->Font();
    categories->SetSize(9);
    categories->SetBold(false);
    categories->SetItalic(true);
    auto values = chart.Axes(xlValue)->TickLabels()->Font();
    values->SetSize(11);
    values->SetBold(true);
    values->SetItalic(true);
}

TEST_F(ChartFidelityTest, TitlesAndTickLabelFonts) {
    auto chart = ChartOfThreeColumns("charts-xlsxwriter/xw__chart_font01.xlsx", xlBarClustered);
    TitleAndAxisFonts(*chart);
    ExpectExcelsChart({
        {"c:chart/c:plotArea/c:catAx/c:txPr/a:p/a:pPr/a:defRPr: @baseline Excel '0', ours '-'", NoBaseline},
        {"c:chart/c:plotArea/c:valAx/c:txPr/a:p/a:pPr/a:defRPr: @baseline Excel '0', ours '-'", NoBaseline},
    });
}

TEST_F(ChartFidelityTest, TitleFonts) {
    auto chart = ChartOfThreeColumns("charts-xlsxwriter/xw__chart_font03.xlsx", xlBarClustered);
    TitleAndAxisFonts(*chart);
    chart->ChartTitle()->Font()->SetBold(false);
    chart->ChartTitle()->Font()->SetItalic(true);
    chart->Axes(xlCategory)->AxisTitle()->Font()->SetBold(true);
    chart->Axes(xlCategory)->AxisTitle()->Font()->SetItalic(true);
    chart->Axes(xlValue)->AxisTitle()->Font()->SetBold(false);
    chart->Axes(xlValue)->AxisTitle()->Font()->SetItalic(true);
    ExpectExcelsChart({
        {"c:chart/c:title/c:tx/c:rich/a:p/a:pPr/a:defRPr: @baseline Excel '0', ours '-'", NoBaseline},
        {"c:chart/c:title/c:tx/c:rich/a:p/a:r/a:rPr: @baseline Excel '0', ours '-'", NoBaseline},
        {"c:chart/c:plotArea/c:catAx/c:title/c:tx/c:rich/a:p/a:pPr/a:defRPr: @baseline Excel '0', ours '-'", NoBaseline},
        {"c:chart/c:plotArea/c:catAx/c:title/c:tx/c:rich/a:p/a:r/a:rPr: @baseline Excel '0', ours '-'", NoBaseline},
        {"c:chart/c:plotArea/c:catAx/c:txPr/a:p/a:pPr/a:defRPr: @baseline Excel '0', ours '-'", NoBaseline},
        {"c:chart/c:plotArea/c:valAx/c:title/c:tx/c:rich/a:p/a:pPr/a:defRPr: @baseline Excel '0', ours '-'", NoBaseline},
        {"c:chart/c:plotArea/c:valAx/c:title/c:tx/c:rich/a:p/a:r/a:rPr: @baseline Excel '0', ours '-'", NoBaseline},
        {"c:chart/c:plotArea/c:valAx/c:txPr/a:p/a:pPr/a:defRPr: @baseline Excel '0', ours '-'", NoBaseline},
    });
}

}  // namespace
