// Titles, text properties and the legend, checked against the charts Excel wrote in the corpus
// (charts-xlsxwriter/xw__chart_font01, _font03, _legend05 by Excel 2007) and the two-run title
// with a line feed Excel 2010 wrote in realworld-excel/poi__57181.xlsm.

#include "ooxml/chart/chart_text_elements.hpp"
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

std::unique_ptr<pugi::xml_document> WriteTitle(const ChartTitle& title, std::string_view language = "en-US") {
    return writer_test::ParseXml(
        writer_test::WriteToString([&](XmlWriter& xml) { WriteChartTitle(xml, title, language); }));
}

ChartTitle Title(std::string text, ChartFont font = {}) {
    ChartTitle title;
    title.runs.push_back(ChartTextRun{std::move(text), font});
    title.paragraphFont = std::move(font);
    return title;
}

ChartFont Font(std::optional<double> size, std::optional<bool> bold, std::optional<bool> italic) {
    ChartFont font;
    font.size = size;
    font.bold = bold;
    font.italic = italic;
    return font;
}

// xlsxwriter's bar chart of three series with titles on the chart and both axes.
ChartDocument TitledBars(uint32_t categoryId, uint32_t valueId, ChartFont titleFont, ChartFont categoryFont,
                         ChartFont valueFont) {
    ChartGroup bars = GroupOfColumns("barChart", ThreeColumns, categoryId, valueId);
    bars.barDirection = "bar";
    ChartAxis categories = CategoryAxis(categoryId, valueId);
    categories.position = "l";
    categories.title = Title("YYY", categoryFont);
    categories.title->rotation = -5400000;
    categories.title->vertical = "horz";
    categories.textProperties.font = Font(9, false, true);
    ChartAxis values = ValueAxis(valueId, categoryId);
    values.position = "b";
    values.title = Title("XXX", valueFont);
    values.textProperties.font = Font(11, true, true);
    ChartDocument chart = ChartOf(bars, categories, values);
    chart.title = Title("Title", titleFont);
    return chart;
}

// The chart's elements Excel wrote, but for the baseline="0" Excel 2007 adds to a font it formats
// (the document keeps no baseline).
void ExpectExcelsChart(const std::string& file, const ChartDocument& chart) {
    auto excel = CorpusPart("charts-xlsxwriter/" + file);
    for (const pugi::xpath_node font : excel->select_nodes("//a:defRPr | //a:rPr")) {
        font.node().remove_attribute("baseline");
    }
    EXPECT_TRUE(EmbedsWithDefaultsSpelledOut(excel->child("c:chartSpace").child("c:chart"),
                                             WriteChart(chart)->child("c:chartSpace").child("c:chart")))
        << file;
}

TEST(ChartTextElements, TitlesAndAxisFontsAsExcelWritesThem) {
    ExpectExcelsChart("xw__chart_font01.xlsx", TitledBars(43945344, 45705856, {}, {}, {}));
    ExpectExcelsChart("xw__chart_font03.xlsx",
                      TitledBars(45704704, 45716224, Font(std::nullopt, false, true), Font(std::nullopt, true, true),
                                 Font(std::nullopt, false, true)));
}

TEST(ChartTextElements, ATitleIsOneParagraphOfRunsWithTheLineFeedInsideItsRun) {
    ChartTitle title;
    title.runs = {{"Calls received", Font(11, true, false)}, {"\n7:00 to 22:00 ", Font(8, false, false)}};
    title.paragraphFont = Font(11, true, std::nullopt);
    auto xml = WriteTitle(title, "de-DE");
    const pugi::xml_node element = xml->child("c:title");
    EXPECT_THAT(ChildNames(element), ElementsAre("c:tx", "c:layout", "c:overlay"));
    EXPECT_STREQ(element.child("c:overlay").attribute("val").value(), "0");
    const pugi::xml_node rich = element.child("c:tx").child("c:rich");
    EXPECT_THAT(ChildNames(rich), ElementsAre("a:bodyPr", "a:lstStyle", "a:p"));
    const pugi::xml_node paragraph = rich.child("a:p");
    EXPECT_THAT(ChildNames(paragraph), ElementsAre("a:pPr", "a:r", "a:r"));
    const pugi::xml_node defaults = paragraph.child("a:pPr").child("a:defRPr");
    EXPECT_STREQ(defaults.attribute("sz").value(), "1100");
    EXPECT_STREQ(defaults.attribute("b").value(), "1");
    EXPECT_FALSE(defaults.attribute("lang"));
    const pugi::xml_node second = paragraph.last_child();
    EXPECT_STREQ(second.child("a:rPr").attribute("lang").value(), "de-DE");
    EXPECT_STREQ(second.child("a:rPr").attribute("sz").value(), "800");
    EXPECT_STREQ(second.child("a:rPr").attribute("b").value(), "0");
    EXPECT_STREQ(second.child("a:rPr").attribute("i").value(), "0");
    EXPECT_STREQ(second.child_value("a:t"), "\n7:00 to 22:00 ");
}

TEST(ChartTextElements, ARunsFontHoldsWhatItSets) {
    ChartFont font;
    font.name = "Arial";
    font.size = 14;
    font.bold = true;
    font.italic = false;
    font.underline = "sng";
    font.strike = true;
    font.color = Color{Color::Kind::Theme, 0, 4, -0.25};
    auto xml = WriteTitle(Title("T", font));
    const pugi::xml_node properties = xml->select_node("//a:r/a:rPr").node();
    EXPECT_STREQ(properties.attribute("lang").value(), "en-US");
    EXPECT_STREQ(properties.attribute("sz").value(), "1400");
    EXPECT_STREQ(properties.attribute("b").value(), "1");
    EXPECT_STREQ(properties.attribute("i").value(), "0");
    EXPECT_STREQ(properties.attribute("u").value(), "sng");
    EXPECT_STREQ(properties.attribute("strike").value(), "sngStrike");
    EXPECT_THAT(ChildNames(properties), ElementsAre("a:solidFill", "a:latin"));
    const pugi::xml_node color = properties.child("a:solidFill").child("a:schemeClr");
    EXPECT_STREQ(color.attribute("val").value(), "accent1");
    EXPECT_STREQ(color.child("a:lumMod").attribute("val").value(), "75000");
    EXPECT_STREQ(properties.child("a:latin").attribute("typeface").value(), "Arial");

    font.strike = false;
    xml = WriteTitle(Title("T", font));
    EXPECT_STREQ(xml->select_node("//a:r/a:rPr").node().attribute("strike").value(), "noStrike");
}

TEST(ChartTextElements, ATitleFromACellIsAStringReference) {
    ChartTitle title;
    title.reference = StringReference("Sheet1!$A$1", {"Sales"});
    auto xml = WriteTitle(title);
    const pugi::xml_node reference = xml->child("c:title").child("c:tx").child("c:strRef");
    EXPECT_STREQ(reference.child_value("c:f"), "Sheet1!$A$1");
    EXPECT_STREQ(reference.child("c:strCache").child("c:ptCount").attribute("val").value(), "1");
    EXPECT_STREQ(reference.child("c:strCache").child("c:pt").child_value("c:v"), "Sales");
}

TEST(ChartTextElements, AnAutomaticTitleHasNoTextButItsProperties) {
    ChartTitle title;
    title.overlay = true;
    title.shape.fill.kind = ChartFill::Kind::None;
    title.textProperties.font.size = 14;
    auto xml = WriteTitle(title);
    const pugi::xml_node element = xml->child("c:title");
    EXPECT_THAT(ChildNames(element), ElementsAre("c:layout", "c:overlay", "c:spPr", "c:txPr"));
    EXPECT_STREQ(element.child("c:overlay").attribute("val").value(), "1");
    EXPECT_STREQ(element.child("c:txPr").select_node("a:p/a:pPr/a:defRPr").node().attribute("sz").value(), "1400");
    EXPECT_STREQ(element.child("c:txPr").select_node("a:p/a:endParaRPr").node().attribute("lang").value(), "en-US");
}

TEST(ChartTextElements, KeptMarkupIsWrittenInsteadOfTheModelledText) {
    ChartTitle title = Title("ignored");
    title.richMarkup =
        "<a:bodyPr/><a:lstStyle/><a:p><a:r><a:t>First</a:t></a:r></a:p><a:p><a:r><a:t>Second</a:t></a:r></a:p>";
    title.textProperties.markup = "<a:bodyPr rot=\"0\"/><a:lstStyle/><a:p><a:endParaRPr/></a:p>";
    title.carried = {{TitleElementOrder.Slot("layout"), "layout", "<c:layout><c:manualLayout/></c:layout>"},
                     {TitleElementOrder.Slot("extLst"), "extLst", "<c:extLst/>"}};
    auto xml = WriteTitle(title);
    const pugi::xml_node element = xml->child("c:title");
    EXPECT_THAT(ChildNames(element), ElementsAre("c:tx", "c:layout", "c:overlay", "c:txPr", "c:extLst"));
    EXPECT_TRUE(element.child("c:layout").child("c:manualLayout"));
    EXPECT_EQ(element.child("c:tx").child("c:rich").select_nodes("a:p").size(), 2u);
    EXPECT_STREQ(element.child("c:txPr").child("a:bodyPr").attribute("rot").value(), "0");
}

TEST(ChartTextElements, TextPropertiesWithNothingSetAreLeftOut) {
    const std::string empty = writer_test::WriteToString(
        [](XmlWriter& xml) { WriteChartTextProperties(xml, ChartTextProperties{}, "en-US"); });
    EXPECT_EQ(empty, "");
}

TEST(ChartTextElements, LegendWithAColouredBorderAsExcelWritesIt) {
    ChartGroup lines = GroupOfColumns("lineChart", ThreeColumns, 79973376, 84140800);
    for (ChartSeries& series : lines.series) {
        series.marker = ChartMarker{"none", std::nullopt, {}};
    }
    ChartDocument chart = ChartOf(lines, CategoryAxis(79973376, 84140800), ValueAxis(84140800, 79973376));
    chart.legend->shape.line.kind = ChartLine::Kind::Solid;
    chart.legend->shape.line.color = Color{Color::Kind::Rgb, 0xFF4F81BD, 0, 0.0};
    ExpectExcelsChart("xw__chart_legend05.xlsx", chart);
}

TEST(ChartTextElements, LegendHoldsEveryValueInItsOrder) {
    ChartDocument chart;
    ChartLegend legend;
    legend.position = "tr";
    legend.overlay = true;
    legend.shape.fill.kind = ChartFill::Kind::None;
    legend.textProperties.font.size = 8;
    legend.carried = {{LegendElementOrder.Slot("legendEntry"), "legendEntry",
                       "<c:legendEntry><c:idx val=\"0\"/><c:delete val=\"1\"/></c:legendEntry>"}};
    chart.legend = legend;
    auto xml = WriteChart(chart);
    const pugi::xml_node element = xml->select_node("//c:legend").node();
    EXPECT_THAT(ChildNames(element),
                ElementsAre("c:legendPos", "c:legendEntry", "c:layout", "c:overlay", "c:spPr", "c:txPr"));
    EXPECT_STREQ(element.child("c:legendPos").attribute("val").value(), "tr");
    EXPECT_STREQ(element.child("c:overlay").attribute("val").value(), "1");
}

}  // namespace
