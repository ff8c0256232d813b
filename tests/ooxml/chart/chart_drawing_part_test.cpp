// The chart drawing part: a chart's text boxes in anchors sized by fractions of the chart, as the
// Excel 2007 template with text boxes in a chart that the chart research note quotes has them.

#include "ooxml/chart/chart_drawing_part.hpp"
#include "ooxml/carried/carried_attributes.hpp"
#include "ooxml/drawing/drawing_part.hpp"
#include "ooxml/writer_test_support.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace ooxml;
using ::testing::ElementsAre;
using writer_test::ParseXml;
using writer_test::WriteToString;

std::unique_ptr<pugi::xml_document> Write(const ChartDocument& chart) {
    return ParseXml(WriteToString([&](XmlWriter& xml) { WriteChartDrawingPart(xml, chart); }));
}

ChartShape TextBox(std::string text) {
    ChartShape shape;
    shape.fromX = 0.71296;
    shape.fromY = 0.23061;
    shape.toX = 0.81173;
    shape.toY = 0.2935;
    shape.shape.id = 3;
    shape.shape.name = "TextBox 2";
    shape.shape.x = 6600826;
    shape.shape.y = 1047752;
    shape.shape.width = 914400;
    shape.shape.height = 285750;
    shape.shape.wrap = false;
    shape.shape.fill.reset();
    shape.shape.line.reset();
    shape.shape.text.text = std::move(text);
    return shape;
}

std::vector<std::string> Names(pugi::xml_node element) {
    std::vector<std::string> names;
    for (const pugi::xml_node child : element.children()) {
        names.emplace_back(child.name());
    }
    return names;
}

// The same element under another prefix: "xdr:sp" and "cdr:sp" are the same shape.
std::string Unprefixed(pugi::xml_node element) {
    std::string markup = ElementMarkup(element);
    for (const std::string prefix : {"xdr:", "cdr:"}) {
        for (std::size_t at = markup.find(prefix); at != std::string::npos; at = markup.find(prefix, at)) {
            markup.erase(at, prefix.size());
        }
    }
    return markup;
}

TEST(ChartDrawingPart, TextBoxIsAShapeInAnAnchorSizedWithTheChart) {
    ChartDocument chart;
    chart.shapes.push_back(TextBox("Worker 1"));
    auto xml = Write(chart);
    const pugi::xml_node root = xml->child("c:userShapes");
    ASSERT_TRUE(root);
    EXPECT_STREQ(root.attribute("xmlns:c").value(), "http://schemas.openxmlformats.org/drawingml/2006/chart");
    EXPECT_STREQ(root.attribute("xmlns:a").value(), "http://schemas.openxmlformats.org/drawingml/2006/main");
    EXPECT_STREQ(root.attribute("xmlns:cdr").value(), "http://schemas.openxmlformats.org/drawingml/2006/chartDrawing");

    const pugi::xml_node anchor = root.child("cdr:relSizeAnchor");
    EXPECT_THAT(Names(anchor), ElementsAre("cdr:from", "cdr:to", "cdr:sp"));
    EXPECT_STREQ(anchor.child("cdr:from").child_value("cdr:x"), "0.71296");
    EXPECT_STREQ(anchor.child("cdr:from").child_value("cdr:y"), "0.23061");
    EXPECT_STREQ(anchor.child("cdr:to").child_value("cdr:x"), "0.81173");
    EXPECT_STREQ(anchor.child("cdr:to").child_value("cdr:y"), "0.2935");

    const pugi::xml_node shape = anchor.child("cdr:sp");
    EXPECT_STREQ(shape.attribute("macro").value(), "");
    EXPECT_STREQ(shape.attribute("textlink").value(), "");
    EXPECT_THAT(Names(shape), ElementsAre("cdr:nvSpPr", "cdr:spPr", "cdr:txBody"));
    EXPECT_STREQ(shape.child("cdr:nvSpPr").child("cdr:cNvPr").attribute("id").value(), "3");
    EXPECT_STREQ(shape.child("cdr:nvSpPr").child("cdr:cNvPr").attribute("name").value(), "TextBox 2");
    EXPECT_STREQ(shape.child("cdr:nvSpPr").child("cdr:cNvSpPr").attribute("txBox").value(), "1");
    const pugi::xml_node properties = shape.child("cdr:spPr");
    EXPECT_THAT(Names(properties), ElementsAre("a:xfrm", "a:prstGeom")) << "no fill, no line unless set";
    EXPECT_STREQ(properties.child("a:xfrm").child("a:off").attribute("x").value(), "6600826");
    EXPECT_STREQ(properties.child("a:xfrm").child("a:ext").attribute("cy").value(), "285750");
    const pugi::xml_node body = shape.child("cdr:txBody");
    EXPECT_STREQ(body.child("a:bodyPr").attribute("wrap").value(), "none");
    EXPECT_STREQ(body.child("a:bodyPr").attribute("rtlCol").value(), "0");
    EXPECT_STREQ(body.child("a:p").child("a:r").child("a:rPr").attribute("sz").value(), "1100");
    EXPECT_STREQ(body.child("a:p").child("a:r").child_value("a:t"), "Worker 1");
}

TEST(ChartDrawingPart, AFillOrLineSetIsWritten) {
    ChartShape box = TextBox("Watermark");
    box.shape.fill = Color{Color::Kind::Rgb, 0xFFC0C0C0, 0, 0.0};
    box.shape.line = Color{Color::Kind::Theme, 0, 1, 0.0};
    ChartDocument chart;
    chart.shapes.push_back(box);
    auto xml = Write(chart);
    const pugi::xml_node properties = xml->select_node("//cdr:spPr").node();
    EXPECT_THAT(Names(properties), ElementsAre("a:xfrm", "a:prstGeom", "a:solidFill", "a:ln"));
    EXPECT_STREQ(properties.child("a:solidFill").child("a:srgbClr").attribute("val").value(), "C0C0C0");
    EXPECT_STREQ(properties.child("a:ln").child("a:solidFill").child("a:schemeClr").attribute("val").value(), "dk1");
    EXPECT_FALSE(xml->select_node("//cdr:style"));
}

TEST(ChartDrawingPart, ShapeIsTheSheetDrawingsTextBoxButForItsStyle) {
    ChartShape box = TextBox("Two\nparagraphs");
    box.shape.fill = Color{Color::Kind::Rgb, 0xFFFFFF00, 0, 0.0};
    box.shape.line = Color{Color::Kind::Rgb, 0xFF000000, 0, 0.0};
    box.shape.macro = "[0]!objClick";
    box.shape.alignment = "ctr";
    box.shape.verticalAnchor = "ctr";
    ChartDocument chart;
    chart.shapes.push_back(box);
    auto chartXml = Write(chart);
    SheetDocument sheet;
    sheet.shapes.push_back(box.shape);
    auto sheetXml = ParseXml(WriteToString([&](XmlWriter& xml) { WriteDrawingPart(xml, sheet, {}); }));
    pugi::xml_node sheetShape = sheetXml->select_node("//xdr:sp").node();
    sheetShape.remove_child("xdr:style");
    EXPECT_EQ(Unprefixed(chartXml->select_node("//cdr:sp").node()), Unprefixed(sheetShape));
}

TEST(ChartDrawingPart, TextBoxesKeepTheirOrderAndCarriedAnchorsTheirPlaceAmongThem) {
    ChartDocument chart;
    chart.shapes = {TextBox("first"), TextBox("second")};
    chart.drawingCarried.rootAttributes = {
        {"xmlns:r", "http://schemas.openxmlformats.org/officeDocument/2006/relationships"}};
    chart.drawingCarried.elements = {{1, "absSizeAnchor", "<cdr:absSizeAnchor><cdr:pic/></cdr:absSizeAnchor>"},
                                     {2, "relSizeAnchor", "<cdr:relSizeAnchor><cdr:grpSp/></cdr:relSizeAnchor>"}};
    auto xml = Write(chart);
    const pugi::xml_node root = xml->child("c:userShapes");
    EXPECT_STREQ(root.attribute("xmlns:r").value(),
                 "http://schemas.openxmlformats.org/officeDocument/2006/relationships");
    EXPECT_THAT(Names(root),
                ElementsAre("cdr:relSizeAnchor", "cdr:absSizeAnchor", "cdr:relSizeAnchor", "cdr:relSizeAnchor"));
    const pugi::xml_node second = root.first_child().next_sibling().next_sibling();
    EXPECT_STREQ(second.select_node(".//a:t").node().child_value(), "second");
    EXPECT_TRUE(root.last_child().child("cdr:grpSp"));
}

TEST(ChartDrawingPart, FractionsStayWithinTheChart) {
    ChartShape box = TextBox("a");
    box.fromX = -0.5;
    box.toY = 1.5;
    ChartDocument chart;
    chart.shapes.push_back(box);
    auto xml = Write(chart);
    EXPECT_STREQ(xml->select_node("//cdr:from/cdr:x").node().child_value(), "0");
    EXPECT_STREQ(xml->select_node("//cdr:to/cdr:y").node().child_value(), "1");
}

TEST(ChartDrawingPart, AChartHasADrawingWhenItHasTextBoxesOrCarriedAnchors) {
    ChartDocument chart;
    EXPECT_FALSE(HasChartDrawing(chart));
    chart.drawingCarried.elements = {{0, "absSizeAnchor", "<cdr:absSizeAnchor/>"}};
    EXPECT_TRUE(HasChartDrawing(chart));
    chart.drawingCarried.elements.clear();
    chart.shapes.push_back(TextBox("a"));
    EXPECT_TRUE(HasChartDrawing(chart));
}

}  // namespace
