// Shape properties of chart elements, checked against what Excel 2007 wrote in the corpus
// (charts-xlsxwriter/xw__chart_format32: a line's width alone; _format18: an invisible series;
// _format07: a marker's fill and outline) and the one-colour gradient the chart research note gives.

#include "ooxml/chart/chart_shape_properties.hpp"
#include "ooxml/chart/chart_writer_test_support.hpp"
#include "ooxml/writer_test_support.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace ooxml;
using namespace chart_test;
using ::testing::ElementsAre;

std::string Written(const ChartShapeProperties& properties) {
    return writer_test::WriteToString([&](XmlWriter& xml) { WriteChartShapeProperties(xml, properties); });
}

std::unique_ptr<pugi::xml_document> Write(const ChartShapeProperties& properties) {
    return writer_test::ParseXml(Written(properties));
}

Color Rgb(uint32_t rgb) {
    return Color{Color::Kind::Rgb, 0xFF000000 | rgb, 0, 0.0};
}

// The shape properties of the first series of an xlsxwriter chart of the corpus.
pugi::xml_node ExcelSeriesProperties(const pugi::xml_document& chart, const char* path = "c:spPr") {
    return chart.select_node("//c:ser").node().select_node(path).node();
}

TEST(ChartShapeProperties, AutomaticPropertiesAreLeftOut) {
    EXPECT_EQ(Written(ChartShapeProperties{}), "");
}

TEST(ChartShapeProperties, ALineWidthAloneKeepsTheAutomaticColour) {
    ChartShapeProperties properties;
    properties.line.width = 63500;
    auto excel = CorpusPart("charts-xlsxwriter/xw__chart_format32.xlsx");
    EXPECT_TRUE(SameXml(ExcelSeriesProperties(*excel), Write(properties)->child("c:spPr")));
}

TEST(ChartShapeProperties, NoFillAndNoLineMakeAnInvisibleSeries) {
    ChartShapeProperties properties;
    properties.fill.kind = ChartFill::Kind::None;
    properties.line.kind = ChartLine::Kind::None;
    auto excel = CorpusPart("charts-xlsxwriter/xw__chart_format18.xlsx");
    EXPECT_TRUE(SameXml(ExcelSeriesProperties(*excel), Write(properties)->child("c:spPr")));
}

TEST(ChartShapeProperties, SolidFillWithAnOutlineOfAnotherColour) {
    ChartShapeProperties properties;
    properties.fill = ChartFill{ChartFill::Kind::Solid, Rgb(0xFF0000), {}, 0, true, true};
    properties.line = ChartLine{ChartLine::Kind::Solid, Rgb(0xFFFF00), std::nullopt, ""};
    auto excel = CorpusPart("charts-xlsxwriter/xw__chart_format07.xlsx");
    EXPECT_TRUE(SameXml(ExcelSeriesProperties(*excel, "c:marker/c:spPr"), Write(properties)->child("c:spPr")));
}

TEST(ChartShapeProperties, LineWithWidthColourAndDash) {
    ChartShapeProperties properties;
    properties.line = ChartLine{ChartLine::Kind::Solid, Color{Color::Kind::Theme, 0, 5, 0.4}, 25400, "sysDot"};
    auto xml = Write(properties);
    const pugi::xml_node line = xml->child("c:spPr").child("a:ln");
    EXPECT_STREQ(line.attribute("w").value(), "25400");
    EXPECT_THAT(ChildNames(line), ElementsAre("a:solidFill", "a:prstDash"));
    const pugi::xml_node color = line.child("a:solidFill").child("a:schemeClr");
    EXPECT_STREQ(color.attribute("val").value(), "accent2");
    EXPECT_STREQ(color.child("a:lumMod").attribute("val").value(), "60000");
    EXPECT_STREQ(color.child("a:lumOff").attribute("val").value(), "40000");
    EXPECT_STREQ(line.child("a:prstDash").attribute("val").value(), "sysDot");
}

TEST(ChartShapeProperties, OneColourGradientIsALinearGradientOfTwoStops) {
    ChartShapeProperties properties;
    properties.fill.kind = ChartFill::Kind::Gradient;
    properties.fill.stops = {{0, Rgb(0x333399)}, {100000, Rgb(0x181847)}};
    properties.fill.angle = 8100000;
    auto xml = Write(properties);
    const pugi::xml_node gradient = xml->child("c:spPr").child("a:gradFill");
    EXPECT_STREQ(gradient.attribute("rotWithShape").value(), "1");
    EXPECT_THAT(ChildNames(gradient), ElementsAre("a:gsLst", "a:lin"));
    const pugi::xml_node first = gradient.child("a:gsLst").child("a:gs");
    EXPECT_STREQ(first.attribute("pos").value(), "0");
    EXPECT_STREQ(first.child("a:srgbClr").attribute("val").value(), "333399");
    EXPECT_STREQ(first.next_sibling().attribute("pos").value(), "100000");
    EXPECT_STREQ(first.next_sibling().child("a:srgbClr").attribute("val").value(), "181847");
    EXPECT_STREQ(gradient.child("a:lin").attribute("ang").value(), "8100000");
    EXPECT_STREQ(gradient.child("a:lin").attribute("scaled").value(), "1");
    EXPECT_FALSE(xml->child("c:spPr").child("a:ln"));
}

TEST(ChartShapeProperties, GradientValuesStayInTheirRanges) {
    ChartShapeProperties properties;
    properties.fill.kind = ChartFill::Kind::Gradient;
    properties.fill.stops = {{-5, Rgb(0)}, {250000, Rgb(0xFFFFFF)}};
    properties.fill.angle = -2700000;
    properties.fill.scaled = false;
    properties.fill.rotateWithShape = false;
    auto xml = Write(properties);
    const pugi::xml_node gradient = xml->child("c:spPr").child("a:gradFill");
    EXPECT_STREQ(gradient.attribute("rotWithShape").value(), "0");
    EXPECT_STREQ(gradient.child("a:gsLst").first_child().attribute("pos").value(), "0");
    EXPECT_STREQ(gradient.child("a:gsLst").last_child().attribute("pos").value(), "100000");
    EXPECT_STREQ(gradient.child("a:lin").attribute("ang").value(), "18900000");
    EXPECT_STREQ(gradient.child("a:lin").attribute("scaled").value(), "0");
}

TEST(ChartShapeProperties, KeptMarkupIsWrittenAsTheFileHadIt) {
    ChartShapeProperties properties;
    properties.fill.kind = ChartFill::Kind::Solid;
    properties.markup =
        "<a:pattFill prst=\"narHorz\"><a:fgClr><a:schemeClr val=\"accent1\"/></a:fgClr></a:pattFill>"
        "<a:effectLst/>";
    EXPECT_EQ(Written(properties), "<c:spPr>" + properties.markup + "</c:spPr>");
}

}  // namespace
