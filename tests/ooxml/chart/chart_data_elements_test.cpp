// Where series take their names, categories and values from: references with their caches, as
// Excel 2010 wrote them in realworld-excel/oxsdk__OFCAT__00D4EE78301DA16F3BF92631CA9B68E6.xlsx, and
// literal values as the chart research note quotes Excel 2010's.

#include "ooxml/chart/chart_data_elements.hpp"
#include "ooxml/chart/chart_element_order.hpp"
#include "ooxml/chart/chart_series_elements.hpp"
#include "ooxml/chart/chart_writer_test_support.hpp"
#include "ooxml/writer_test_support.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace ooxml;
using namespace chart_test;
using ::testing::ElementsAre;

std::string Written(std::string_view element, const ChartData& data) {
    return writer_test::WriteToString([&](XmlWriter& xml) { WriteChartData(xml, element, data); });
}

std::unique_ptr<pugi::xml_document> WriteSeries(const ChartSeries& series) {
    return writer_test::ParseXml(
        writer_test::WriteToString([&](XmlWriter& xml) { WriteChartSeries(xml, series, BarSeriesElementOrder); }));
}

const char* Ofcat = "realworld-excel/oxsdk__OFCAT__00D4EE78301DA16F3BF92631CA9B68E6.xlsx";

TEST(ChartDataElements, ReferencesCarryEveryCachedPointAsExcelWritesThem) {
    auto excel = CorpusPart(Ofcat);
    const pugi::xml_node series = excel->select_node("//c:ser").node();
    ChartSeries ours;
    ours.nameReference = StringReference("Sheet1!$B$2", {"2005"});
    ours.categories = StringReference("Sheet1!$A$3:$A$8", {"Canada", "U.S.", "Russia", "Japan", "Germany", "Mexico"});
    ours.values =
        NumberReference("Sheet1!$B$3:$B$8", {"427.9", "339.9", "202.9", "175.6", "138.69999999999999", "123"});
    auto xml = WriteSeries(ours);
    const pugi::xml_node written = xml->child("c:ser");
    for (const char* element : {"c:tx", "c:cat", "c:val"}) {
        EXPECT_TRUE(SameXml(series.child(element), written.child(element))) << element;
    }
}

TEST(ChartDataElements, ASeriesNamedByTextHoldsTheText) {
    ChartSeries series;
    series.nameText = "Calls & <totals>";
    series.nameReference = StringReference("Sheet1!$A$1", {"ignored"});
    auto xml = WriteSeries(series);
    const pugi::xml_node name = xml->child("c:ser").child("c:tx");
    EXPECT_THAT(ChildNames(name), ElementsAre("c:v"));
    EXPECT_STREQ(name.child_value("c:v"), "Calls & <totals>");
}

TEST(ChartDataElements, ASeriesWithoutANameHasNoText) {
    auto xml = WriteSeries(ChartSeries{});
    EXPECT_THAT(ChildNames(xml->child("c:ser")), ElementsAre("c:idx", "c:order", "c:invertIfNegative"));
}

TEST(ChartDataElements, LiteralValuesAsExcelWritesThem) {
    ChartData numbers;
    numbers.kind = ChartData::Kind::NumberLiteral;
    numbers.formatCode = "General";
    numbers.pointCount = 1;
    numbers.points = {{0, "246.235253149996"}};
    EXPECT_EQ(Written("c:val", numbers),
              "<c:val><c:numLit><c:formatCode>General</c:formatCode><c:ptCount val=\"1\"/>"
              "<c:pt idx=\"0\"><c:v>246.235253149996</c:v></c:pt></c:numLit></c:val>");
    ChartData texts;
    texts.kind = ChartData::Kind::StringLiteral;
    texts.pointCount = 1;
    texts.points = {{0, "1991"}};
    EXPECT_EQ(Written("c:cat", texts),
              "<c:cat><c:strLit><c:ptCount val=\"1\"/><c:pt idx=\"0\"><c:v>1991</c:v></c:pt></c:strLit></c:cat>");
}

TEST(ChartDataElements, MissingPointsAreLeftOutOfTheCount) {
    ChartData values = NumberReference("Sheet1!$A$1:$A$4", {}, "0.0%");
    values.pointCount = 4;
    values.points = {{0, "0.5"}, {3, "1E+300"}};
    auto xml = writer_test::ParseXml(Written("c:val", values));
    const pugi::xml_node cache = xml->child("c:val").child("c:numRef").child("c:numCache");
    EXPECT_STREQ(cache.child_value("c:formatCode"), "0.0%");
    EXPECT_STREQ(cache.child("c:ptCount").attribute("val").value(), "4");
    EXPECT_EQ(cache.select_nodes("c:pt").size(), 2u);
    EXPECT_STREQ(cache.last_child().attribute("idx").value(), "3");
    EXPECT_STREQ(cache.last_child().child_value("c:v"), "1E+300");
}

TEST(ChartDataElements, ANumberCacheWithoutAFormatCodeIsGeneral) {
    auto xml = writer_test::ParseXml(Written("c:val", NumberReference("Sheet1!$A$1", {"1"}, "")));
    EXPECT_STREQ(xml->select_node("//c:formatCode").node().child_value(), "General");
}

TEST(ChartDataElements, KeptMarkupIsWrittenAsTheFileHadIt) {
    ChartData levels;
    levels.kind = ChartData::Kind::Other;
    levels.markup = "<c:multiLvlStrRef><c:f>Sheet1!$A$2:$B$5</c:f></c:multiLvlStrRef>";
    EXPECT_EQ(Written("c:cat", levels), "<c:cat>" + levels.markup + "</c:cat>");
}

TEST(ChartDataElements, NoDataWritesNothing) {
    EXPECT_EQ(Written("c:cat", ChartData{}), "");
}

}  // namespace
