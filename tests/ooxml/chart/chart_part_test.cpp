// The chart part: the chart space and chart elements, written in Excel 2010's profile and checked
// against the chart parts Excel wrote in the corpus (charts-xlsxwriter/xw__chart_column01.xlsx by
// Excel 2007; realworld-excel/poi__chartTitle_noTitle.xlsx and poi__57362.xlsx by Excel 2013).

#include "ooxml/chart/chart_part.hpp"
#include "ooxml/carried/carried_attributes.hpp"
#include "ooxml/chart/chart_element_order.hpp"
#include "ooxml/chart/chart_values.hpp"
#include "ooxml/chart/chart_writer_test_support.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace ooxml;
using namespace chart_test;
using ::testing::ElementsAre;

ChartDocument Column01() {
    return ChartOf(
        GroupOfColumns("barChart", {"Sheet1!$A$1:$A$5", "Sheet1!$B$1:$B$5", "Sheet1!$C$1:$C$5"}, 43424000, 43434368),
        CategoryAxis(43424000, 43434368), ValueAxis(43434368, 43424000));
}

// An element of a parsed part kept as a carried element of the order's slot.
CarriedElement Carried(ElementOrder order, pugi::xml_node element) {
    const std::string_view name = element.name();
    const std::string local(name.substr(name.find(':') + 1));
    return CarriedElement{order.Slot(local), local, ElementMarkup(element)};
}

ChartShapeProperties Markup(pugi::xml_node properties) {
    ChartShapeProperties shape;
    shape.markup = ChildrenMarkup(properties);
    return shape;
}

ChartTextProperties TextMarkup(pugi::xml_node properties) {
    ChartTextProperties text;
    text.markup = ChildrenMarkup(properties);
    return text;
}

// An axis as an Excel 2013 chart has it: every formatting element kept as the file wrote it.
ChartAxis AxisAsWritten(pugi::xml_node element) {
    ChartAxis axis;
    axis.type = std::string_view(element.name()).substr(2);
    axis.id = element.child("c:axId").attribute("val").as_uint();
    axis.deleted = element.child("c:delete").attribute("val").as_bool();
    axis.position = element.child("c:axPos").attribute("val").value();
    if (pugi::xml_node gridlines = element.child("c:majorGridlines")) {
        axis.majorGridlines = Markup(gridlines.child("c:spPr"));
    }
    if (pugi::xml_node format = element.child("c:numFmt")) {
        axis.numberFormat =
            ChartNumberFormat{format.attribute("formatCode").value(), format.attribute("sourceLinked").as_bool()};
    }
    axis.majorTickMark = element.child("c:majorTickMark").attribute("val").value();
    axis.minorTickMark = element.child("c:minorTickMark").attribute("val").value();
    axis.shape = element.child("c:spPr") ? Markup(element.child("c:spPr")) : ChartShapeProperties{};
    axis.textProperties = element.child("c:txPr") ? TextMarkup(element.child("c:txPr")) : ChartTextProperties{};
    axis.crossAxisId = element.child("c:crossAx").attribute("val").as_uint();
    axis.crosses = element.child("c:crosses").attribute("val").value();
    axis.crossBetween = element.child("c:crossBetween").attribute("val").value();
    return axis;
}

// The chart space's parts Excel 2013 writes around the chart.
void ChartSpaceAsWritten(ChartDocument& chart, pugi::xml_node chartSpace) {
    chart.plotArea.shape = Markup(chartSpace.child("c:chart").child("c:plotArea").child("c:spPr"));
    chart.chartArea = Markup(chartSpace.child("c:spPr"));
    chart.textProperties = TextMarkup(chartSpace.child("c:txPr"));
}

TEST(ChartPart, ChartSpaceHoldsExcel2007sElementsInItsOrderWithTheDefaultsSpelledOut) {
    auto excel = CorpusPart("charts-xlsxwriter/xw__chart_column01.xlsx");
    EXPECT_TRUE(
        EmbedsWithDefaultsSpelledOut(excel->child("c:chartSpace"), WriteChart(Column01())->child("c:chartSpace")));
}

TEST(ChartPart, ChartSpaceStartsAsExcel2010WritesIt) {
    ChartDocument chart = Column01();
    chart.style = 26;
    chart.roundedCorners = true;
    chart.date1904 = true;
    chart.language = "de-DE";
    auto xml = WriteChart(chart);
    const pugi::xml_node chartSpace = xml->child("c:chartSpace");
    EXPECT_STREQ(chartSpace.attribute("xmlns:c").value(), "http://schemas.openxmlformats.org/drawingml/2006/chart");
    EXPECT_STREQ(chartSpace.attribute("xmlns:a").value(), "http://schemas.openxmlformats.org/drawingml/2006/main");
    EXPECT_STREQ(chartSpace.attribute("xmlns:r").value(),
                 "http://schemas.openxmlformats.org/officeDocument/2006/relationships");
    EXPECT_THAT(ChildNames(chartSpace), ElementsAre("c:date1904", "c:lang", "c:roundedCorners", "mc:AlternateContent",
                                                    "c:chart", "c:printSettings"));
    EXPECT_STREQ(chartSpace.child("c:date1904").attribute("val").value(), "1");
    EXPECT_STREQ(chartSpace.child("c:lang").attribute("val").value(), "de-DE");
    EXPECT_STREQ(chartSpace.child("c:roundedCorners").attribute("val").value(), "1");
    const pugi::xml_node style = chartSpace.child("mc:AlternateContent");
    EXPECT_STREQ(style.attribute("xmlns:mc").value(), "http://schemas.openxmlformats.org/markup-compatibility/2006");
    const pugi::xml_node choice = style.child("mc:Choice");
    EXPECT_STREQ(choice.attribute("Requires").value(), "c14");
    EXPECT_STREQ(choice.attribute("xmlns:c14").value(), "http://schemas.microsoft.com/office/drawing/2007/8/2/chart");
    EXPECT_STREQ(choice.child("c14:style").attribute("val").value(), "126");
    EXPECT_STREQ(style.child("mc:Fallback").child("c:style").attribute("val").value(), "26");
}

TEST(ChartPart, AnEmbeddedChartHasExcelsDefaultPrintSettings) {
    auto excel = CorpusPart("charts-xlsxwriter/xw__chart_column01.xlsx");
    auto ours = WriteChart(Column01());
    EXPECT_TRUE(SameXml(excel->child("c:chartSpace").child("c:printSettings"),
                        ours->child("c:chartSpace").child("c:printSettings")));
}

TEST(ChartPart, ChartElementHoldsEveryValue) {
    ChartDocument chart = Column01();
    chart.autoTitleDeleted = true;
    chart.plotVisibleOnly = false;
    chart.displayBlanksAs = "zero";
    auto xml = WriteChart(chart);
    const pugi::xml_node element = xml->child("c:chartSpace").child("c:chart");
    EXPECT_THAT(ChildNames(element), ElementsAre("c:autoTitleDeleted", "c:plotArea", "c:legend", "c:plotVisOnly",
                                                 "c:dispBlanksAs", "c:showDLblsOverMax"));
    EXPECT_STREQ(element.child("c:autoTitleDeleted").attribute("val").value(), "1");
    EXPECT_STREQ(element.child("c:plotVisOnly").attribute("val").value(), "0");
    EXPECT_STREQ(element.child("c:dispBlanksAs").attribute("val").value(), "zero");
    EXPECT_STREQ(element.child("c:showDLblsOverMax").attribute("val").value(), "0");
    EXPECT_THAT(ChildNames(element.child("c:plotArea")), ElementsAre("c:layout", "c:barChart", "c:catAx", "c:valAx"));
}

TEST(ChartPart, ChartAreaShapeAndTextFollowTheChartAndTheDrawingComesLast) {
    ChartDocument chart = Column01();
    chart.chartArea.line.width = 25400;
    chart.textProperties.font.size = 8.0;
    auto xml = WriteChart(chart, "rId3");
    const pugi::xml_node chartSpace = xml->child("c:chartSpace");
    EXPECT_THAT(ChildNames(chartSpace), ElementsAre("c:date1904", "c:lang", "c:roundedCorners", "mc:AlternateContent",
                                                    "c:chart", "c:spPr", "c:txPr", "c:printSettings", "c:userShapes"));
    EXPECT_STREQ(chartSpace.child("c:spPr").child("a:ln").attribute("w").value(), "25400");
    EXPECT_STREQ(chartSpace.child("c:txPr").select_node("a:p/a:pPr/a:defRPr").node().attribute("sz").value(), "800");
    EXPECT_STREQ(chartSpace.child("c:userShapes").attribute("r:id").value(), "rId3");
}

TEST(ChartPart, ScatterChartOfExcel2013IsWrittenAsExcelWroteIt) {
    auto excel = CorpusPart("realworld-excel/poi__chartTitle_noTitle.xlsx");
    const pugi::xml_node chartSpace = excel->child("c:chartSpace");
    const pugi::xml_node plotArea = chartSpace.child("c:chart").child("c:plotArea");
    const pugi::xml_node group = plotArea.child("c:scatterChart");
    const pugi::xml_node element = group.child("c:ser");

    ChartDocument chart;
    chart.autoTitleDeleted = true;
    ChartSpaceAsWritten(chart, chartSpace);
    ChartSeries series;
    series.shape = Markup(element.child("c:spPr"));
    series.marker = ChartMarker{"circle", 5, Markup(element.child("c:marker").child("c:spPr"))};
    series.categories = NumberReference("Sheet1!$A$1:$A$4", {"1", "2", "3", "5"});
    series.values = NumberReference("Sheet1!$B$1:$B$4", {"7.2", "1.9", "3.4", "3.1"});
    ChartGroup scatter;
    scatter.type = "scatterChart";
    scatter.scatterStyle = "lineMarker";
    scatter.series.push_back(series);
    scatter.carried.push_back(Carried(ScatterChartElementOrder, group.child("c:dLbls")));
    scatter.axisIds = {327141000, 327140608};
    chart.plotArea.groups.push_back(scatter);
    for (const pugi::xml_node axis : plotArea.children("c:valAx")) {
        chart.plotArea.axes.push_back(AxisAsWritten(axis));
    }
    EXPECT_TRUE(SameXml(chartSpace, WriteChart(chart)->child("c:chartSpace")));
}

TEST(ChartPart, ColumnsWithALineOnSecondaryAxesAreWrittenAsExcel2013WroteThem) {
    auto excel = CorpusPart("realworld-excel/poi__57362.xlsx");
    const pugi::xml_node chartSpace = excel->child("c:chartSpace");
    const pugi::xml_node chartElement = chartSpace.child("c:chart");
    const pugi::xml_node plotArea = chartElement.child("c:plotArea");

    ChartDocument chart;
    ChartSpaceAsWritten(chart, chartSpace);
    ChartTitle title;
    title.shape = Markup(chartElement.child("c:title").child("c:spPr"));
    title.textProperties = TextMarkup(chartElement.child("c:title").child("c:txPr"));
    chart.title = title;
    const ChartData categories = StringReference("Sheet1!$A$1:$B$1", {"Column1", "Column 2"});

    ChartGroup columns;
    columns.type = "barChart";
    columns.barDirection = "col";
    columns.grouping = "clustered";
    ChartSeries column;
    column.shape = Markup(plotArea.child("c:barChart").child("c:ser").child("c:spPr"));
    column.categories = categories;
    column.values = NumberReference("Sheet1!$A$2:$B$2", {"12", "1"});
    columns.series.push_back(column);
    columns.carried.push_back(Carried(BarChartElementOrder, plotArea.child("c:barChart").child("c:dLbls")));
    columns.gapWidth = 219;
    columns.overlap = -27;
    columns.axisIds = {214214464, 214213288};

    ChartGroup lines;
    lines.type = "lineChart";
    lines.grouping = "standard";
    ChartSeries line;
    line.index = line.order = 1;
    line.shape = Markup(plotArea.child("c:lineChart").child("c:ser").child("c:spPr"));
    line.marker = ChartMarker{"none", std::nullopt, {}};
    line.categories = categories;
    line.values = NumberReference("Sheet1!$A$3:$B$3", {"13", "3"});
    lines.series.push_back(line);
    lines.carried.push_back(Carried(LineChartElementOrder, plotArea.child("c:lineChart").child("c:dLbls")));
    lines.axisIds = {332153616, 332150872};
    chart.plotArea.groups = {columns, lines};

    for (const pugi::xml_node element : plotArea.children()) {
        const std::string_view name = element.name();
        if (name == "c:catAx" || name == "c:valAx") {
            ChartAxis axis = AxisAsWritten(element);
            if (pugi::xml_node axisTitle = element.child("c:title")) {
                axis.title = ChartTitle{};
                axis.title->shape = Markup(axisTitle.child("c:spPr"));
                axis.title->textProperties = TextMarkup(axisTitle.child("c:txPr"));
            }
            chart.plotArea.axes.push_back(axis);
        }
    }
    ChartLegend legend;
    legend.position = "b";
    legend.shape = Markup(chartElement.child("c:legend").child("c:spPr"));
    legend.textProperties = TextMarkup(chartElement.child("c:legend").child("c:txPr"));
    chart.legend = legend;

    EXPECT_TRUE(SameXml(chartSpace, WriteChart(chart)->child("c:chartSpace")));
}

// The file's style choice is not kept: the writer writes the document's style in its place.
TEST(ChartPart, CarriedElementsGoBackInTheirSlots) {
    ChartDocument chart = Column01();
    chart.carried.rootAttributes = {{"xmlns:c16r2", "http://schemas.microsoft.com/office/drawing/2015/06/chart"}};
    chart.carried.elements = {
        {ChartSpaceElementOrder.Slot("roundedCorners"), "AlternateContent", "<mc:AlternateContent/>"},
        {ChartSpaceElementOrder.Slot("style"), "clrMapOvr", "<c:clrMapOvr bg1=\"lt1\"/>"},
        {ChartSpaceElementOrder.Slot("txPr"), "externalData", "<c:externalData r:id=\"rId1\"/>"},
        {ChartSpaceElementOrder.Slot("userShapes"), "extLst", "<c:extLst/>"},
    };
    chart.chartCarried = {{ChartElementOrder.Slot("autoTitleDeleted"), "view3D", "<c:view3D/>"},
                          {ChartElementOrder.Slot("autoTitleDeleted"), "floor", "<c:floor/>"}};
    chart.plotArea.carried = {{PlotAreaElementOrder.Slot("extLst"), "extLst", "<c:extLst/>"}};
    auto xml = WriteChart(chart, "rId2");
    const pugi::xml_node chartSpace = xml->child("c:chartSpace");
    EXPECT_STREQ(chartSpace.attribute("xmlns:c16r2").value(),
                 "http://schemas.microsoft.com/office/drawing/2015/06/chart");
    EXPECT_THAT(ChildNames(chartSpace),
                ElementsAre("c:date1904", "c:lang", "c:roundedCorners", "mc:AlternateContent", "c:clrMapOvr", "c:chart",
                            "c:externalData", "c:printSettings", "c:userShapes", "c:extLst"));
    EXPECT_THAT(ChildNames(chartSpace.child("c:chart")),
                ElementsAre("c:autoTitleDeleted", "c:view3D", "c:floor", "c:plotArea", "c:legend", "c:plotVisOnly",
                            "c:dispBlanksAs", "c:showDLblsOverMax"));
    EXPECT_STREQ(chartSpace.child("c:chart").child("c:plotArea").last_child().name(), "c:extLst");
}

TEST(ChartPart, CarriedLayoutAndPrintSettingsReplaceTheWritersOwn) {
    ChartDocument chart = Column01();
    chart.carried.elements = {{ChartSpaceElementOrder.Slot("printSettings"), "printSettings",
                               "<c:printSettings><c:pageSetup orientation=\"landscape\"/></c:printSettings>"}};
    chart.plotArea.carried = {{PlotAreaElementOrder.Slot("layout"), "layout",
                               "<c:layout><c:manualLayout><c:x val=\"0.1\"/></c:manualLayout></c:layout>"}};
    chart.chartCarried = {
        {ChartElementOrder.Slot("showDLblsOverMax"), "showDLblsOverMax", "<c:showDLblsOverMax val=\"1\"/>"}};
    auto xml = WriteChart(chart);
    const pugi::xml_node chartSpace = xml->child("c:chartSpace");
    EXPECT_EQ(
        std::distance(chartSpace.children("c:printSettings").begin(), chartSpace.children("c:printSettings").end()), 1);
    EXPECT_STREQ(chartSpace.child("c:printSettings").child("c:pageSetup").attribute("orientation").value(),
                 "landscape");
    const pugi::xml_node plotArea = chartSpace.child("c:chart").child("c:plotArea");
    EXPECT_EQ(std::distance(plotArea.children("c:layout").begin(), plotArea.children("c:layout").end()), 1);
    EXPECT_TRUE(plotArea.first_child().child("c:manualLayout")) << "the kept layout comes first";
    EXPECT_STREQ(chartSpace.child("c:chart").child("c:showDLblsOverMax").attribute("val").value(), "1");
    EXPECT_STREQ(chartSpace.child("c:chart").last_child().name(), "c:showDLblsOverMax");
}

TEST(ChartPart, OnlyKnownGroupsAndAxesAreWritable) {
    ChartDocument chart = Column01();
    EXPECT_TRUE(WritableChart(chart));
    chart.plotArea.groups[0].type = "pieChart";
    EXPECT_FALSE(WritableChart(chart));
    chart = Column01();
    chart.plotArea.axes[0].type = "zAx";
    EXPECT_FALSE(WritableChart(chart));
}

}  // namespace
