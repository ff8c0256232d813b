#include "ooxml/chart/chart_drawing_reader.hpp"

#include <gtest/gtest.h>

#include <string>

namespace ooxml {
namespace {

// A text box as Excel 2007 writes one into a chart: the prefixes declared on the anchor itself.
std::string RelativeTextBox(const std::string& name, const std::string& from) {
    return R"(<cdr:relSizeAnchor xmlns:cdr="http://schemas.openxmlformats.org/drawingml/2006/chartDrawing">)"
           "<cdr:from><cdr:x>" + from + "</cdr:x><cdr:y>0.23061</cdr:y></cdr:from>"
           R"(<cdr:to><cdr:x>0.81173</cdr:x><cdr:y>0.2935</cdr:y></cdr:to><cdr:sp macro="[0]!objClick" textlink="">)"
           R"(<cdr:nvSpPr><cdr:cNvPr id="3" name=")" + name + R"("/><cdr:cNvSpPr txBox="1"/></cdr:nvSpPr>)"
           R"(<cdr:spPr><a:xfrm xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main"><a:off x="6600826" y="1047752"/>)"
           R"(<a:ext cx="914400" cy="285750"/></a:xfrm></cdr:spPr>)"
           R"(<cdr:txBody><a:bodyPr xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main" wrap="none"/>)"
           R"(<a:p xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main"><a:pPr algn="ctr"/><a:r><a:rPr lang="en-US" sz="1400"/>)"
           "<a:t>" + name + "</a:t></a:r></a:p></cdr:txBody></cdr:sp></cdr:relSizeAnchor>";
}

const std::string AbsoluteAnchor =
    R"(<cdr:absSizeAnchor xmlns:cdr="http://schemas.openxmlformats.org/drawingml/2006/chartDrawing"><cdr:from>)"
    R"(<cdr:x>0.1</cdr:x><cdr:y>0.1</cdr:y></cdr:from><cdr:ext cx="10" cy="10"/></cdr:absSizeAnchor>)";

TEST(ChartDrawingReader, TextBoxesInRelativeAnchorsAreShapesAndTheOtherAnchorsKeepTheirPlace) {
    ChartDocument chart;
    ASSERT_TRUE(ReadChartDrawing(R"(<c:userShapes xmlns:c="http://schemas.openxmlformats.org/drawingml/2006/chart">)" +
                                     RelativeTextBox("Worker 1", "0.71296") + AbsoluteAnchor +
                                     RelativeTextBox("Worker 2", "0.5") + "</c:userShapes>",
                                 chart));
    ASSERT_EQ(chart.shapes.size(), 2u);
    const ChartShape& first = chart.shapes[0];
    EXPECT_EQ(first.fromX, 0.71296);
    EXPECT_EQ(first.fromY, 0.23061);
    EXPECT_EQ(first.toX, 0.81173);
    EXPECT_EQ(first.toY, 0.2935);
    EXPECT_EQ(first.shape.id, 3u);
    EXPECT_EQ(first.shape.name, "Worker 1");
    EXPECT_EQ(first.shape.macro, "[0]!objClick");
    EXPECT_EQ(first.shape.x, 6600826);
    EXPECT_EQ(first.shape.width, 914400);
    EXPECT_FALSE(first.shape.wrap);
    EXPECT_EQ(first.shape.alignment, "ctr");
    EXPECT_FALSE(first.shape.fill) << "Excel's chart text boxes are transparent";
    EXPECT_EQ(first.shape.text.text, "Worker 1");
    EXPECT_EQ(chart.shapes[1].fromX, 0.5);
    ASSERT_EQ(chart.drawingCarried.elements.size(), 1u);
    EXPECT_EQ(chart.drawingCarried.elements[0].slot, 1);
    EXPECT_EQ(chart.drawingCarried.elements[0].name, "absSizeAnchor");
    EXPECT_EQ(chart.drawingCarried.elements[0].xml, AbsoluteAnchor);
    EXPECT_TRUE(chart.drawingCarried.rootAttributes.empty());
}

TEST(ChartDrawingReader, ADrawingItCannotKeepInPlaceLeavesTheChartAsItWas) {
    ChartDocument chart;
    EXPECT_FALSE(ReadChartDrawing("<c:userShapes", chart));
    EXPECT_FALSE(ReadChartDrawing(R"(<c:userShapes xmlns:c="http://schemas.openxmlformats.org/drawingml/2006/chart" )"
                                  R"(xmlns:cdr="urn:other"/>)",
                                  chart));
    EXPECT_TRUE(chart.shapes.empty());
    EXPECT_TRUE(chart.drawingCarried.Empty());
}

}  // namespace
}  // namespace ooxml
