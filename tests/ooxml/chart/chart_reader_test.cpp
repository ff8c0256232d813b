#include "ooxml/chart/chart_reader.hpp"

#include <gtest/gtest.h>

#include <string>

namespace ooxml {
namespace {

const std::string Declarations = R"(xmlns:c="http://schemas.openxmlformats.org/drawingml/2006/chart" )"
                                 R"(xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main" )"
                                 R"(xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships")";

std::optional<ChartDocument> Read(const std::string& chartSpace, const ChartDrawingLoader& loadDrawing = {}) {
    return ReadChart("<c:chartSpace " + Declarations + ">" + chartSpace + "</c:chartSpace>", loadDrawing);
}

std::string PlotArea(const std::string& content) {
    return "<c:chart><c:plotArea><c:layout/>" + content + "</c:plotArea></c:chart>";
}

const std::string Axes = R"(<c:catAx><c:axId val="1"/><c:scaling><c:orientation val="minMax"/></c:scaling>)"
                         R"(<c:axPos val="b"/><c:crossAx val="2"/></c:catAx><c:valAx><c:axId val="2"/><c:scaling>)"
                         R"(<c:orientation val="minMax"/></c:scaling><c:axPos val="l"/><c:crossAx val="1"/></c:valAx>)";

TEST(ChartReader, ElementsTheDocumentDoesNotModelAreCarriedInTheirSlots) {
    const auto chart = Read(R"(<c:lang val="de-DE"/><c:clrMapOvr bg1="lt1"/><c:chart><c:view3D><c:rotX val="15"/></c:view3D>)"
                            R"(<c:plotArea><c:layout/><c:pie3DChart><c:varyColors val="1"/></c:pie3DChart>)"
                            R"(<c:barChart><c:barDir val="bar"/><c:ser><c:idx val="0"/><c:order val="0"/>)"
                            R"(<c:dLbls><c:showVal val="1"/></c:dLbls><c:val><c:numLit><c:ptCount val="1"/>)"
                            R"(<c:pt idx="0"><c:v>3</c:v></c:pt></c:numLit></c:val></c:ser><c:axId val="1"/><c:axId val="2"/>)"
                            R"(</c:barChart>)" + Axes + R"(<c:dTable/></c:plotArea></c:chart><c:extLst/>)");
    ASSERT_TRUE(chart);
    EXPECT_EQ(chart->language, "de-DE");
    ASSERT_EQ(chart->carried.elements.size(), 2u);
    EXPECT_EQ(chart->carried.elements[0].name, "clrMapOvr");
    EXPECT_EQ(chart->carried.elements[0].slot, 4);
    EXPECT_EQ(chart->carried.elements[0].xml, R"(<c:clrMapOvr bg1="lt1"/>)");
    EXPECT_EQ(chart->carried.elements[1].slot, 13);
    ASSERT_EQ(chart->chartCarried.size(), 1u);
    EXPECT_EQ(chart->chartCarried[0].name, "view3D");
    std::vector<std::string> plotAreaCarried;
    for (const CarriedElement& element : chart->plotArea.carried) {
        plotAreaCarried.push_back(element.name);
    }
    EXPECT_EQ(plotAreaCarried, (std::vector<std::string>{"layout", "pie3DChart", "dTable"}));
    EXPECT_EQ(chart->plotArea.carried[1].xml, R"(<c:pie3DChart><c:varyColors val="1"/></c:pie3DChart>)");
    ASSERT_EQ(chart->plotArea.groups.size(), 1u);
    const ChartSeries& series = chart->plotArea.groups[0].series.at(0);
    ASSERT_EQ(series.carried.size(), 1u);
    EXPECT_EQ(series.carried[0].name, "dLbls");
    EXPECT_EQ(series.carried[0].slot, 7);
    EXPECT_EQ(series.values.kind, ChartData::Kind::NumberLiteral);
    EXPECT_EQ(series.values.points, (std::vector<std::pair<uint32_t, std::string>>{{0, "3"}}));
}

TEST(ChartReader, AValueElementWithoutItsValueTakesTheSchemasDefault) {
    const auto chart = Read(R"(<c:roundedCorners/><c:chart><c:autoTitleDeleted/><c:plotArea><c:lineChart><c:grouping/>)"
                            R"(<c:varyColors/><c:marker/><c:axId val="1"/><c:axId val="2"/></c:lineChart>)" + Axes +
                            R"(</c:plotArea><c:dispBlanksAs/></c:chart>)");
    ASSERT_TRUE(chart);
    EXPECT_TRUE(chart->roundedCorners);
    EXPECT_TRUE(chart->autoTitleDeleted);
    EXPECT_EQ(chart->displayBlanksAs, "zero");
    const ChartGroup& group = chart->plotArea.groups.at(0);
    EXPECT_EQ(group.grouping, "standard");
    EXPECT_TRUE(group.varyColors);
    EXPECT_TRUE(group.showMarkers);
    EXPECT_FALSE(group.gapWidth) << "a line group has no gap";
}

TEST(ChartReader, RichTitleParagraphsBecomeOneTextWithLineFeeds) {
    const auto chart = Read(PlotArea("").insert(9, R"(<c:title><c:tx><c:rich><a:bodyPr rot="-5400000" vert="horz"/><a:lstStyle/>)"
                                                   R"(<a:p><a:pPr><a:defRPr sz="1200" b="1"/></a:pPr><a:r><a:rPr lang="en-US" sz="1200" b="1"/>)"
                                                   R"(<a:t>Sales</a:t></a:r></a:p><a:p><a:r><a:rPr lang="en-US" sz="800" b="0" u="sng">)"
                                                   R"(<a:solidFill><a:schemeClr val="accent2"><a:lumMod val="75000"/></a:schemeClr></a:solidFill>)"
                                                   R"(<a:latin typeface="Arial"/></a:rPr><a:t>2024</a:t></a:r></a:p></c:rich></c:tx>)"
                                                   R"(<c:layout/><c:overlay val="0"/></c:title>)"));
    ASSERT_TRUE(chart);
    ASSERT_TRUE(chart->title);
    const ChartTitle& title = *chart->title;
    ASSERT_EQ(title.runs.size(), 2u);
    EXPECT_EQ(title.runs[0].text, "Sales\n");
    EXPECT_EQ(title.runs[0].font.size, 12.0);
    EXPECT_EQ(title.runs[0].font.bold, true);
    EXPECT_FALSE(title.runs[0].font.italic) << "only what the run sets";
    EXPECT_EQ(title.runs[1].text, "2024");
    EXPECT_EQ(title.runs[1].font.underline, "sng");
    EXPECT_EQ(title.runs[1].font.name, "Arial");
    EXPECT_EQ(title.runs[1].font.color, (Color{Color::Kind::Theme, 0, 5, -0.25}));
    EXPECT_EQ(title.rotation, -5400000);
    EXPECT_EQ(title.vertical, "horz");
    EXPECT_EQ(title.paragraphFont.size, 12.0);
    EXPECT_EQ(title.richMarkup.substr(0, 44), R"(<a:bodyPr rot="-5400000" vert="horz"/><a:lst)");
    ASSERT_EQ(title.carried.size(), 1u);
    EXPECT_EQ(title.carried[0].name, "layout");
}

TEST(ChartReader, ATitleFromACellAndAMultiLevelCategoryReference) {
    const auto chart = Read(PlotArea(R"(<c:barChart><c:ser><c:idx val="0"/><c:order val="0"/><c:tx><c:v>Plan</c:v></c:tx>)"
                                     R"(<c:cat><c:multiLvlStrRef><c:f>S!$A$1:$B$2</c:f></c:multiLvlStrRef></c:cat></c:ser>)"
                                     R"(<c:axId val="1"/><c:axId val="2"/></c:barChart>)" + Axes)
                                .insert(9, R"(<c:title><c:tx><c:strRef><c:f>S!$A$1</c:f><c:strCache><c:ptCount val="1"/>)"
                                           R"(<c:pt idx="0"><c:v>T</c:v></c:pt></c:strCache></c:strRef></c:tx></c:title>)"));
    ASSERT_TRUE(chart);
    EXPECT_EQ(chart->title->reference.kind, ChartData::Kind::StringReference);
    EXPECT_EQ(chart->title->reference.formula, "S!$A$1");
    EXPECT_TRUE(chart->title->runs.empty());
    const ChartSeries& series = chart->plotArea.groups.at(0).series.at(0);
    EXPECT_EQ(series.nameText, "Plan");
    EXPECT_EQ(series.categories.kind, ChartData::Kind::Other);
    EXPECT_EQ(series.categories.markup, "<c:multiLvlStrRef><c:f>S!$A$1:$B$2</c:f></c:multiLvlStrRef>");
    EXPECT_TRUE(series.carried.empty());
}

TEST(ChartReader, ACacheHoldingMoreThanTheDocumentModelsIsKeptWhole) {
    const auto chart = Read(PlotArea(R"(<c:barChart><c:ser><c:idx val="0"/><c:order val="0"/><c:val><c:numRef><c:f>S!$A$1</c:f>)"
                                     R"(<c:numCache><c:formatCode>General</c:formatCode><c:ptCount val="1"/>)"
                                     R"(<c:pt idx="0" formatCode="0%"><c:v>1</c:v></c:pt></c:numCache></c:numRef></c:val>)"
                                     R"(</c:ser><c:axId val="1"/><c:axId val="2"/></c:barChart>)" + Axes));
    ASSERT_TRUE(chart);
    const ChartData& values = chart->plotArea.groups.at(0).series.at(0).values;
    EXPECT_EQ(values.kind, ChartData::Kind::Other);
    EXPECT_NE(values.markup.find(R"(formatCode="0%")"), std::string::npos);
}

TEST(ChartReader, PartsItCannotKeepInPlaceAreNotRead) {
    EXPECT_FALSE(ReadChart("<c:chartSpace " + Declarations + "><c:chart>", {})) << "not well formed";
    EXPECT_FALSE(ReadChart(R"(<chartSpace xmlns="http://schemas.openxmlformats.org/drawingml/2006/chart"/>)", {}));
    EXPECT_FALSE(ReadChart(R"(<c:chartSpace xmlns:c="http://schemas.openxmlformats.org/drawingml/2006/chart" )"
                           R"(xmlns:a="urn:other" xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships"/>)",
                           {}));
    EXPECT_FALSE(Read(PlotArea(R"(<c:valAx><c:axId val="2"/><c:scaling><c:orientation val="minMax"/><c:extLst/></c:scaling>)"
                               R"(</c:valAx>)")))
        << "an axis's scaling is written from the axis";
}

TEST(ChartReader, RootAttributesBeyondTheWrittenPrefixesAreKept) {
    const auto chart = ReadChart("<c:chartSpace " + Declarations +
                                     R"( xmlns:c16r2="http://schemas.microsoft.com/office/drawing/2015/06/chart"/>)",
                                 {});
    ASSERT_TRUE(chart);
    EXPECT_EQ(chart->carried.rootAttributes,
              (std::vector<CarriedAttribute>{{"xmlns:c16r2", "http://schemas.microsoft.com/office/drawing/2015/06/chart"}}));
}

TEST(ChartReader, TheChartDrawingIsReadThroughItsRelationshipOrTheElementIsCarried) {
    std::string asked;
    const auto read = Read(R"(<c:userShapes r:id="rId3"/>)", [&asked](std::string_view id, ChartDocument&) {
        asked = id;
        return true;
    });
    ASSERT_TRUE(read);
    EXPECT_EQ(asked, "rId3");
    EXPECT_TRUE(read->carried.elements.empty());
    const auto carried = Read(R"(<c:userShapes r:id="rId3"/>)", [](std::string_view, ChartDocument&) { return false; });
    ASSERT_TRUE(carried);
    ASSERT_EQ(carried->carried.elements.size(), 1u);
    EXPECT_EQ(carried->carried.elements[0].xml, R"(<c:userShapes r:id="rId3"/>)");
}

}  // namespace
}  // namespace ooxml
