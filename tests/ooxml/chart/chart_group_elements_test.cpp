// Chart groups and their series, checked against the charts Excel 2007 wrote in the corpus
// (charts-xlsxwriter/xw__chart_bar09, _gap01, _line01, _area01, _scatter01..03): Excel's elements
// come in Excel's order with Excel's values, and the writer adds only the defaults Excel 2010 and
// later spell out.

#include "ooxml/chart/chart_group_elements.hpp"
#include "ooxml/chart/chart_element_order.hpp"
#include "ooxml/chart/chart_writer_test_support.hpp"
#include "ooxml/writer_test_support.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace ooxml;
using namespace chart_test;
using ::testing::ElementsAre;

const std::vector<std::string> ThreeColumns{"Sheet1!$A$1:$A$5", "Sheet1!$B$1:$B$5", "Sheet1!$C$1:$C$5"};

void ExpectExcelsChart(const std::string& file, const ChartDocument& chart) {
    auto excel = CorpusPart("charts-xlsxwriter/" + file);
    EXPECT_TRUE(EmbedsWithDefaultsSpelledOut(excel->child("c:chartSpace").child("c:chart"),
                                             WriteChart(chart)->child("c:chartSpace").child("c:chart")))
        << file;
}

std::unique_ptr<pugi::xml_document> WriteGroup(const ChartGroup& group) {
    return writer_test::ParseXml(writer_test::WriteToString([&](XmlWriter& xml) { WriteChartGroup(xml, group); }));
}

// The X and Y value axes of a scatter chart.
std::pair<ChartAxis, ChartAxis> ScatterAxes(uint32_t x, uint32_t y) {
    ChartAxis horizontal = ValueAxis(x, y);
    horizontal.position = "b";
    horizontal.majorGridlines.reset();
    horizontal.crossBetween = "midCat";
    ChartAxis vertical = ValueAxis(y, x);
    vertical.crossBetween = "midCat";
    return {horizontal, vertical};
}

// Scatter series of Sheet1's B and C columns over A, as xlsxwriter's scatter charts have them.
ChartGroup Scatter(uint32_t x, uint32_t y) {
    ChartGroup group = GroupOfColumns("scatterChart", {"Sheet1!$B$1:$B$5", "Sheet1!$C$1:$C$5"}, x, y);
    group.scatterStyle = "lineMarker";
    for (ChartSeries& series : group.series) {
        series.categories = NumberReference("Sheet1!$A$1:$A$5", {"1", "2", "3", "4", "5"});
    }
    return group;
}

TEST(ChartGroupElements, StackedBarsOverlapFullyAsExcelSetsThem) {
    ChartGroup bars = GroupOfColumns("barChart", ThreeColumns, 40274560, 40295040);
    bars.barDirection = "bar";
    bars.grouping = "stacked";
    ChartAxis categories = CategoryAxis(40274560, 40295040);
    categories.position = "l";
    ChartAxis values = ValueAxis(40295040, 40274560);
    values.position = "b";
    ExpectExcelsChart("xw__chart_bar09.xlsx", ChartOf(bars, categories, values));
    auto xml = WriteGroup(bars);
    const pugi::xml_node group = xml->child("c:barChart");
    EXPECT_STREQ(group.child("c:gapWidth").attribute("val").value(), "150");
    EXPECT_STREQ(group.child("c:overlap").attribute("val").value(), "100");
}

TEST(ChartGroupElements, GapWidthAndOverlapAreWrittenAfterTheSeries) {
    ChartGroup columns = GroupOfColumns("barChart", {"Sheet1!$B$1:$B$5", "Sheet1!$C$1:$C$5"}, 45438848, 45470464);
    columns.gapWidth = 157;
    columns.overlap = 5;
    for (ChartSeries& series : columns.series) {
        series.categories = NumberReference("Sheet1!$A$1:$A$5", {"1", "2", "3", "4", "5"});
    }
    ChartAxis categories = CategoryAxis(45438848, 45470464);
    categories.numberFormat = ChartNumberFormat{"General", true};
    ExpectExcelsChart("xw__chart_gap01.xlsx", ChartOf(columns, categories, ValueAxis(45470464, 45438848)));
}

TEST(ChartGroupElements, BarGroupHoldsEveryValueInItsOrder) {
    ChartGroup columns = GroupOfColumns("barChart", {"Sheet1!$A$1:$A$5"}, 1, 2);
    columns.varyColors = true;
    columns.overlap = -300;
    columns.gapWidth = 900;
    auto xml = WriteGroup(columns);
    const pugi::xml_node group = xml->child("c:barChart");
    EXPECT_THAT(ChildNames(group), ElementsAre("c:barDir", "c:grouping", "c:varyColors", "c:ser", "c:gapWidth",
                                               "c:overlap", "c:axId", "c:axId"));
    EXPECT_STREQ(group.child("c:barDir").attribute("val").value(), "col");
    EXPECT_STREQ(group.child("c:grouping").attribute("val").value(), "clustered");
    EXPECT_STREQ(group.child("c:varyColors").attribute("val").value(), "1");
    EXPECT_STREQ(group.child("c:gapWidth").attribute("val").value(), "500");
    EXPECT_STREQ(group.child("c:overlap").attribute("val").value(), "-100");
    EXPECT_THAT(ChildNames(group.child("c:ser")), ElementsAre("c:idx", "c:order", "c:invertIfNegative", "c:val"));
}

TEST(ChartGroupElements, LinesWithoutMarkersAsExcelWritesThem) {
    ChartGroup lines = GroupOfColumns("lineChart", ThreeColumns, 43408000, 43434368);
    for (ChartSeries& series : lines.series) {
        series.marker = ChartMarker{"none", std::nullopt, {}};
    }
    ExpectExcelsChart("xw__chart_line01.xlsx",
                      ChartOf(lines, CategoryAxis(43408000, 43434368), ValueAxis(43434368, 43408000)));
    auto xml = WriteGroup(lines);
    const pugi::xml_node group = xml->child("c:lineChart");
    EXPECT_THAT(ChildNames(group), ElementsAre("c:grouping", "c:varyColors", "c:ser", "c:ser", "c:ser", "c:marker",
                                               "c:smooth", "c:axId", "c:axId"));
    EXPECT_STREQ(group.child("c:marker").attribute("val").value(), "1");
    EXPECT_STREQ(group.child("c:smooth").attribute("val").value(), "0");
    EXPECT_THAT(ChildNames(group.child("c:ser")), ElementsAre("c:idx", "c:order", "c:marker", "c:val", "c:smooth"));
}

TEST(ChartGroupElements, AreasAsExcelWritesThem) {
    ChartGroup areas = GroupOfColumns("areaChart", {"Sheet1!$B$1:$B$5", "Sheet1!$C$1:$C$5"}, 43407616, 43433984);
    for (ChartSeries& series : areas.series) {
        series.categories = NumberReference("Sheet1!$A$1:$A$5", {"1", "2", "3", "4", "5"});
    }
    areas.series[0].values = NumberReference("Sheet1!$B$1:$B$5", {"8", "7", "6", "8", "10"});
    ChartAxis categories = CategoryAxis(43407616, 43433984);
    categories.numberFormat = ChartNumberFormat{"General", true};
    ChartAxis values = ValueAxis(43433984, 43407616);
    values.crossBetween = "midCat";
    ExpectExcelsChart("xw__chart_area01.xlsx", ChartOf(areas, categories, values));
    auto xml = WriteGroup(areas);
    EXPECT_THAT(ChildNames(xml->child("c:areaChart")),
                ElementsAre("c:grouping", "c:varyColors", "c:ser", "c:ser", "c:axId", "c:axId"));
    EXPECT_THAT(ChildNames(xml->child("c:areaChart").child("c:ser")),
                ElementsAre("c:idx", "c:order", "c:cat", "c:val"));
}

TEST(ChartGroupElements, ScatterWithMarkersOnlyHasItsLinesSwitchedOff) {
    ChartGroup scatter = Scatter(40262272, 40260352);
    for (ChartSeries& series : scatter.series) {
        series.shape.line = ChartLine{ChartLine::Kind::None, {}, 28575, ""};
    }
    const auto [x, y] = ScatterAxes(40262272, 40260352);
    ChartDocument chart = ChartOf(scatter, x, y);
    ExpectExcelsChart("xw__chart_scatter01.xlsx", chart);
}

TEST(ChartGroupElements, ScatterWithLinesAndMarkersLeavesBothAutomatic) {
    const auto [x, y] = ScatterAxes(54514816, 45705856);
    ExpectExcelsChart("xw__chart_scatter02.xlsx", ChartOf(Scatter(54514816, 45705856), x, y));
}

TEST(ChartGroupElements, ScatterWithLinesOnlyHasNoMarkerSymbol) {
    ChartGroup scatter = Scatter(54010624, 45705856);
    for (ChartSeries& series : scatter.series) {
        series.marker = ChartMarker{"none", std::nullopt, {}};
    }
    const auto [x, y] = ScatterAxes(54010624, 45705856);
    ExpectExcelsChart("xw__chart_scatter03.xlsx", ChartOf(scatter, x, y));
    auto xml = WriteGroup(scatter);
    const pugi::xml_node group = xml->child("c:scatterChart");
    EXPECT_THAT(ChildNames(group), ElementsAre("c:scatterStyle", "c:varyColors", "c:ser", "c:ser", "c:axId", "c:axId"));
    EXPECT_THAT(ChildNames(group.child("c:ser")),
                ElementsAre("c:idx", "c:order", "c:marker", "c:xVal", "c:yVal", "c:smooth"));
}

TEST(ChartGroupElements, SeriesMarkerHoldsSymbolSizeAndColours) {
    ChartGroup lines = GroupOfColumns("lineChart", {"Sheet1!$A$1:$A$5"}, 1, 2);
    ChartMarker marker{"diamond", 90, {}};
    marker.shape.fill =
        ChartFill{ChartFill::Kind::Solid, Color{Color::Kind::Rgb, 0xFF000080, 0, 0.0}, {}, 0, true, true};
    marker.shape.line = ChartLine{ChartLine::Kind::Solid, Color{Color::Kind::Rgb, 0xFF000080, 0, 0.0}, {}, "solid"};
    lines.series[0].marker = marker;
    lines.series[0].smooth = true;
    auto xml = WriteGroup(lines);
    const pugi::xml_node series = xml->child("c:lineChart").child("c:ser");
    const pugi::xml_node written = series.child("c:marker");
    EXPECT_THAT(ChildNames(written), ElementsAre("c:symbol", "c:size", "c:spPr"));
    EXPECT_STREQ(written.child("c:symbol").attribute("val").value(), "diamond");
    EXPECT_STREQ(written.child("c:size").attribute("val").value(), "72");
    EXPECT_STREQ(written.child("c:spPr").child("a:solidFill").child("a:srgbClr").attribute("val").value(), "000080");
    EXPECT_STREQ(written.child("c:spPr").child("a:ln").child("a:prstDash").attribute("val").value(), "solid");
    EXPECT_STREQ(series.child("c:smooth").attribute("val").value(), "1");
}

TEST(ChartGroupElements, MarkersAndSmoothingBelongOnlyToTheSeriesThatHaveThem) {
    ChartGroup columns = GroupOfColumns("barChart", {"Sheet1!$A$1:$A$5"}, 1, 2);
    columns.series[0].marker = ChartMarker{"circle", 5, {}};
    columns.series[0].smooth = true;
    columns.series[0].invertIfNegative = true;
    auto xml = WriteGroup(columns);
    const pugi::xml_node series = xml->child("c:barChart").child("c:ser");
    EXPECT_FALSE(series.child("c:marker"));
    EXPECT_FALSE(series.child("c:smooth"));
    EXPECT_STREQ(series.child("c:invertIfNegative").attribute("val").value(), "1");
}

TEST(ChartGroupElements, CarriedElementsOfGroupsAndSeriesGoBackInTheirSlots) {
    ChartGroup lines = GroupOfColumns("lineChart", {"Sheet1!$A$1:$A$5"}, 1, 2);
    lines.series[0].nameText = "Name";
    lines.series[0].carried = {{LineSeriesElementOrder.Slot("dPt"), "dPt", "<c:dPt><c:idx val=\"1\"/></c:dPt>"},
                               {LineSeriesElementOrder.Slot("dLbls"), "dLbls", "<c:dLbls/>"},
                               {LineSeriesElementOrder.Slot("trendline"), "trendline", "<c:trendline/>"},
                               {LineSeriesElementOrder.Slot("extLst"), "extLst", "<c:extLst/>"}};
    lines.carried = {{LineChartElementOrder.Slot("dLbls"), "dLbls", "<c:dLbls/>"},
                     {LineChartElementOrder.Slot("dropLines"), "dropLines", "<c:dropLines/>"},
                     {LineChartElementOrder.Slot("hiLowLines"), "hiLowLines", "<c:hiLowLines/>"},
                     {LineChartElementOrder.Slot("smooth"), "smooth", "<c:smooth val=\"1\"/>"}};
    auto xml = WriteGroup(lines);
    const pugi::xml_node group = xml->child("c:lineChart");
    EXPECT_THAT(ChildNames(group), ElementsAre("c:grouping", "c:varyColors", "c:ser", "c:dLbls", "c:dropLines",
                                               "c:hiLowLines", "c:marker", "c:smooth", "c:axId", "c:axId"));
    EXPECT_STREQ(group.child("c:smooth").attribute("val").value(), "1") << "the file's own smoothing stays";
    EXPECT_THAT(ChildNames(group.child("c:ser")), ElementsAre("c:idx", "c:order", "c:tx", "c:dPt", "c:dLbls",
                                                              "c:trendline", "c:val", "c:smooth", "c:extLst"));
}

TEST(ChartGroupElements, OnlyBarLineScatterAndAreaGroupsAreWritable) {
    for (const char* type : {"barChart", "lineChart", "scatterChart", "areaChart"}) {
        EXPECT_TRUE(WritableChartGroup(type)) << type;
    }
    for (const char* type : {"pieChart", "bar3DChart", "radarChart", ""}) {
        EXPECT_FALSE(WritableChartGroup(type)) << type;
    }
}

}  // namespace
