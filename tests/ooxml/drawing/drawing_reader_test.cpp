#include "ooxml/drawing/drawing_reader.hpp"

#include <gtest/gtest.h>

#include <string>

namespace ooxml {
namespace {

// A text box named name in the given anchor element; the anchor's own children come first.
std::string Anchored(const std::string& anchor, const std::string& corners, const std::string& name) {
    return "<xdr:" + anchor + ">" + corners + R"(<xdr:sp macro="" textlink=""><xdr:nvSpPr><xdr:cNvPr id="3" name=")" +
           name + R"("/><xdr:cNvSpPr txBox="1"/></xdr:nvSpPr><xdr:spPr><a:xfrm><a:off x="12700" y="25400"/>)"
           R"(<a:ext cx="635000" cy="254000"/></a:xfrm><a:prstGeom prst="rect"><a:avLst/></a:prstGeom></xdr:spPr>)"
           R"(<xdr:txBody><a:bodyPr/><a:lstStyle/><a:p><a:r><a:t>)" + name +
           "</a:t></a:r></a:p></xdr:txBody></xdr:sp><xdr:clientData/></xdr:" + anchor + ">";
}

std::vector<DrawingShape> Read(const std::string& anchors) {
    std::string xml = R"(<xdr:wsDr xmlns:xdr="http://schemas.openxmlformats.org/drawingml/2006/spreadsheetDrawing" )"
                      R"(xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main">)" +
                      anchors + "</xdr:wsDr>";
    CarriedWorksheet carried;
    return ReadDrawing(xml, "xl/drawings/drawing1.xml", carried);
}

const std::string From = "<xdr:from><xdr:col>1</xdr:col><xdr:colOff>0</xdr:colOff><xdr:row>2</xdr:row>"
                         "<xdr:rowOff>0</xdr:rowOff></xdr:from>";

TEST(DrawingReader, TextBoxesOfEveryAnchorKindAreReadWithTheirPlacement) {
    const auto boxes = Read(Anchored("oneCellAnchor", From + R"(<xdr:ext cx="635000" cy="254000"/>)", "one") +
                            Anchored("absoluteAnchor", R"(<xdr:pos x="12700" y="25400"/><xdr:ext cx="635000" cy="254000"/>)",
                                     "absolute") +
                            Anchored("twoCellAnchor", From + From, "two"));
    ASSERT_EQ(boxes.size(), 3u);
    EXPECT_EQ(boxes[0].editAs, "oneCell");
    EXPECT_EQ(boxes[0].from, (CellAnchor{1, 0, 2, 0}));
    EXPECT_EQ(boxes[1].editAs, "absolute");
    EXPECT_EQ(boxes[2].editAs, "twoCell");
    for (const DrawingShape& box : boxes) {
        EXPECT_EQ(box.text.text, box.name);
        EXPECT_EQ(box.x, 12700);
        EXPECT_EQ(box.y, 25400);
        EXPECT_EQ(box.width, 635000);
        EXPECT_EQ(box.height, 254000);
    }
}

TEST(DrawingReader, ElementsThatAreNotAnchorsArePassedOver) {
    const auto boxes = Read("<xdr:unknown>" + Anchored("twoCellAnchor", From + From, "nested") + "</xdr:unknown>");
    EXPECT_TRUE(boxes.empty());
}

}  // namespace
}  // namespace ooxml
