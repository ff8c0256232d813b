// Axes, checked against the charts Excel 2007 wrote in the corpus (charts-xlsxwriter/
// xw__chart_axis12, _axis15, _axis19, _axis29, _crossing01, _crossing02): Excel's elements in
// Excel's order with Excel's values, and only the defaults Excel 2010 and later spell out beyond.

#include "ooxml/chart/chart_axis_elements.hpp"
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

// The axes as Excel wrote them for xlsxwriter's column chart of three series on axes with those ids.
void ExpectExcelsAxes(const std::string& file, const ChartAxis& categories, const ChartAxis& values) {
    auto excel = CorpusPart("charts-xlsxwriter/" + file);
    const ChartDocument chart =
        ChartOf(GroupOfColumns("barChart", ThreeColumns, categories.id, values.id), categories, values);
    auto ours = WriteChart(chart);
    const pugi::xml_node excelPlotArea = excel->child("c:chartSpace").child("c:chart").child("c:plotArea");
    const pugi::xml_node ourPlotArea = ours->child("c:chartSpace").child("c:chart").child("c:plotArea");
    for (const char* axis : {"c:catAx", "c:valAx"}) {
        EXPECT_TRUE(EmbedsWithDefaultsSpelledOut(excelPlotArea.child(axis), ourPlotArea.child(axis))) << file;
    }
}

std::unique_ptr<pugi::xml_document> WriteAxis(const ChartAxis& axis) {
    return writer_test::ParseXml(
        writer_test::WriteToString([&](XmlWriter& xml) { WriteChartAxis(xml, axis, "en-US"); }));
}

TEST(ChartAxisElements, FixedScaleWritesTheMaximumBeforeTheMinimum) {
    ChartAxis values = ValueAxis(54517760, 45705088);
    values.maximum = 16;
    values.minimum = 0;
    ExpectExcelsAxes("xw__chart_axis12.xlsx", CategoryAxis(45705088, 54517760), values);
}

TEST(ChartAxisElements, UnitsFollowTheCrossing) {
    ChartAxis values = ValueAxis(54518528, 45705856);
    values.majorUnit = 2;
    values.minorUnit = 0.4;
    ExpectExcelsAxes("xw__chart_axis15.xlsx", CategoryAxis(45705856, 54518528), values);
}

TEST(ChartAxisElements, TickLabelPositions) {
    ChartAxis categories = CategoryAxis(43813504, 45705472);
    categories.tickLabelPosition = "high";
    ChartAxis values = ValueAxis(45705472, 43813504);
    values.tickLabelPosition = "low";
    ExpectExcelsAxes("xw__chart_axis19.xlsx", categories, values);
}

TEST(ChartAxisElements, RotatedLabelsAreTheTextPropertiesBodyRotation) {
    ChartAxis categories = CategoryAxis(145169024, 145176448);
    categories.textProperties.rotation = -5400000;
    categories.textProperties.vertical = "horz";
    auto excel = CorpusPart("charts-xlsxwriter/xw__chart_axis29.xlsx");
    auto ours = WriteAxis(categories);
    EXPECT_TRUE(SameXml(excel->select_node("//c:catAx/c:txPr").node(), ours->select_node("//c:txPr").node()));
}

TEST(ChartAxisElements, TheCrossingIsOnTheAxisThatIsCrossed) {
    ChartAxis categories = CategoryAxis(43812352, 43814272);
    categories.position = "t";
    categories.crosses = "max";
    ExpectExcelsAxes("xw__chart_crossing01.xlsx", categories, ValueAxis(43814272, 43812352));

    categories = CategoryAxis(43812352, 43814272);
    categories.crossesAt = 8;
    ChartAxis values = ValueAxis(43814272, 43812352);
    values.crossesAt = 3;
    ExpectExcelsAxes("xw__chart_crossing02.xlsx", categories, values);
}

TEST(ChartAxisElements, DoublesAreWrittenToReadBackTheSame) {
    ChartAxis values = ValueAxis(1, 2);
    values.crossesAt = -1e300;
    values.maximum = 5.2192066805845511E-2;
    values.minimum = -0.1;
    values.logBase = 10;
    auto xml = WriteAxis(values);
    const pugi::xml_node axis = xml->child("c:valAx");
    EXPECT_EQ(axis.child("c:crossesAt").attribute("val").as_double(), -1e300);
    EXPECT_FALSE(axis.child("c:crosses"));
    const pugi::xml_node scaling = axis.child("c:scaling");
    EXPECT_THAT(ChildNames(scaling), ElementsAre("c:logBase", "c:orientation", "c:max", "c:min"));
    EXPECT_EQ(scaling.child("c:max").attribute("val").as_double(), 5.2192066805845511E-2);
    EXPECT_STREQ(scaling.child("c:min").attribute("val").value(), "-0.1");
    EXPECT_STREQ(scaling.child("c:logBase").attribute("val").value(), "10");
}

TEST(ChartAxisElements, CategoryAxisHoldsEveryValueInItsOrder) {
    ChartAxis categories = CategoryAxis(7, 8);
    categories.orientation = "maxMin";
    categories.deleted = true;
    categories.position = "l";
    categories.majorGridlines = ChartShapeProperties{};
    categories.minorGridlines = ChartShapeProperties{};
    categories.minorGridlines->line.width = 3175;
    categories.title = ChartTitle{};
    categories.numberFormat = ChartNumberFormat{"0.00%", false};
    categories.majorTickMark = "none";
    categories.minorTickMark = "cross";
    categories.shape.line.kind = ChartLine::Kind::None;
    categories.textProperties.font.size = 8;
    categories.automatic = false;
    categories.labelAlignment = "l";
    categories.labelOffset = 5000;
    categories.noMultiLevelLabels = true;
    categories.crossBetween = "midCat";
    categories.majorUnit = 3;
    auto xml = WriteAxis(categories);
    const pugi::xml_node axis = xml->child("c:catAx");
    EXPECT_THAT(ChildNames(axis), ElementsAre("c:axId", "c:scaling", "c:delete", "c:axPos", "c:majorGridlines",
                                              "c:minorGridlines", "c:title", "c:numFmt", "c:majorTickMark",
                                              "c:minorTickMark", "c:tickLblPos", "c:spPr", "c:txPr", "c:crossAx",
                                              "c:crosses", "c:auto", "c:lblAlgn", "c:lblOffset", "c:noMultiLvlLbl"));
    EXPECT_STREQ(axis.child("c:axId").attribute("val").value(), "7");
    EXPECT_STREQ(axis.child("c:scaling").child("c:orientation").attribute("val").value(), "maxMin");
    EXPECT_STREQ(axis.child("c:delete").attribute("val").value(), "1");
    EXPECT_FALSE(axis.child("c:majorGridlines").first_child());
    EXPECT_STREQ(axis.child("c:minorGridlines").child("c:spPr").child("a:ln").attribute("w").value(), "3175");
    EXPECT_STREQ(axis.child("c:numFmt").attribute("formatCode").value(), "0.00%");
    EXPECT_STREQ(axis.child("c:numFmt").attribute("sourceLinked").value(), "0");
    EXPECT_STREQ(axis.child("c:minorTickMark").attribute("val").value(), "cross");
    EXPECT_STREQ(axis.child("c:crossAx").attribute("val").value(), "8");
    EXPECT_STREQ(axis.child("c:auto").attribute("val").value(), "0");
    EXPECT_STREQ(axis.child("c:lblAlgn").attribute("val").value(), "l");
    EXPECT_STREQ(axis.child("c:lblOffset").attribute("val").value(), "1000");
    EXPECT_STREQ(axis.child("c:noMultiLvlLbl").attribute("val").value(), "1");
}

TEST(ChartAxisElements, ValueAxisEndsWithItsCrossBetweenAndUnits) {
    ChartAxis values = ValueAxis(8, 7);
    values.majorUnit = 60;
    auto xml = WriteAxis(values);
    EXPECT_THAT(
        ChildNames(xml->child("c:valAx")),
        ElementsAre("c:axId", "c:scaling", "c:delete", "c:axPos", "c:majorGridlines", "c:numFmt", "c:majorTickMark",
                    "c:minorTickMark", "c:tickLblPos", "c:crossAx", "c:crosses", "c:crossBetween", "c:majorUnit"));
}

TEST(ChartAxisElements, DateAndSeriesAxesHoldWhatTheirKindHas) {
    ChartAxis dates = CategoryAxis(1, 2);
    dates.type = "dateAx";
    dates.majorUnit = 1;
    dates.carried = {
        {DateAxisElementOrder.Slot("baseTimeUnit"), "baseTimeUnit", "<c:baseTimeUnit val=\"days\"/>"},
        {DateAxisElementOrder.Slot("majorTimeUnit"), "majorTimeUnit", "<c:majorTimeUnit val=\"months\"/>"}};
    auto xml = WriteAxis(dates);
    EXPECT_THAT(ChildNames(xml->child("c:dateAx")),
                ElementsAre("c:axId", "c:scaling", "c:delete", "c:axPos", "c:majorTickMark", "c:minorTickMark",
                            "c:tickLblPos", "c:crossAx", "c:crosses", "c:auto", "c:lblOffset", "c:baseTimeUnit",
                            "c:majorUnit", "c:majorTimeUnit"));

    ChartAxis series = CategoryAxis(3, 2);
    series.type = "serAx";
    series.carried = {{SeriesAxisElementOrder.Slot("tickLblSkip"), "tickLblSkip", "<c:tickLblSkip val=\"2\"/>"}};
    xml = WriteAxis(series);
    EXPECT_THAT(ChildNames(xml->child("c:serAx")),
                ElementsAre("c:axId", "c:scaling", "c:delete", "c:axPos", "c:majorTickMark", "c:minorTickMark",
                            "c:tickLblPos", "c:crossAx", "c:crosses", "c:tickLblSkip"));
}

TEST(ChartAxisElements, CarriedChildrenGoBackInTheirSlots) {
    ChartAxis values = ValueAxis(8, 7);
    values.carried = {{ValueAxisElementOrder.Slot("dispUnits"), "dispUnits",
                       "<c:dispUnits><c:builtInUnit val=\"thousands\"/></c:dispUnits>"},
                      {ValueAxisElementOrder.Slot("extLst"), "extLst", "<c:extLst/>"}};
    auto xml = WriteAxis(values);
    const std::vector<std::string> names = ChildNames(xml->child("c:valAx"));
    EXPECT_THAT(std::vector<std::string>(names.end() - 3, names.end()),
                ElementsAre("c:crossBetween", "c:dispUnits", "c:extLst"));
}

TEST(ChartAxisElements, OnlyTheFourKindsOfAxisAreWritable) {
    for (const char* type : {"catAx", "valAx", "dateAx", "serAx"}) {
        EXPECT_TRUE(WritableChartAxis(type)) << type;
    }
    EXPECT_FALSE(WritableChartAxis("zAx"));
}

}  // namespace
