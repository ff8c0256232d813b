// The drawing part: text boxes written as Excel writes the text boxes it inserts
// (cells-drawings-xlsxwriter/xw__textbox*.xlsx of the corpus), and the frames of charts as Excel
// 2010 and later write them (realworld-excel/poi__StructuredRefs-lots-with-lookups.xlsx).

#include "ooxml/document/chart_document.hpp"
#include "ooxml/drawing/drawing_part.hpp"
#include "ooxml/writer_test_support.hpp"

#include <gtest/gtest.h>

namespace {

using namespace ooxml;
using writer_test::ParseXml;
using writer_test::WriteToString;

std::unique_ptr<pugi::xml_document> Write(const std::vector<DrawingShape>& shapes,
                                          const std::vector<std::string>& chartIds = {}) {
    SheetDocument sheet;
    sheet.shapes = shapes;
    return ParseXml(WriteToString([&](XmlWriter& xml) { WriteDrawingPart(xml, sheet, chartIds); }));
}

DrawingShape Box(std::string text) {
    DrawingShape box;
    box.name = "TextBox 1";
    box.text.text = std::move(text);
    return box;
}

pugi::xml_node Anchor(const pugi::xml_document& xml, std::size_t index = 0) {
    pugi::xml_node anchor = xml.child("xdr:wsDr").child("xdr:twoCellAnchor");
    for (std::size_t i = 0; i < index; ++i) {
        anchor = anchor.next_sibling("xdr:twoCellAnchor");
    }
    return anchor;
}

pugi::xml_node Shape(const pugi::xml_document& xml, std::size_t index = 0) {
    return Anchor(xml, index).child("xdr:sp");
}

pugi::xml_node Body(const pugi::xml_document& xml) {
    return Shape(xml).child("xdr:txBody");
}

// The colour element inside <a:solidFill>.
pugi::xml_node FillColor(pugi::xml_node holder) {
    return holder.child("a:solidFill").first_child();
}

TEST(DrawingPart, TextBoxIsAShapeInATwoCellAnchorAsExcelWritesIt) {
    DrawingShape box = Box("This is some text");
    box.id = 2;
    box.from = CellAnchor{4, 12700, 8, 25400};
    box.to = CellAnchor{7, 0, 14, 0};
    box.x = 2438400;
    box.y = 1524000;
    box.width = 1828800;
    box.height = 1143000;
    box.fill = Color{Color::Kind::Theme, 0, 0, 0.0};
    box.line = Color{Color::Kind::Rgb, 0xFF808080, 0, 0.0};
    auto xml = Write({box});
    const pugi::xml_node anchor = Anchor(*xml);
    EXPECT_FALSE(anchor.attribute("editAs"));
    EXPECT_STREQ(anchor.child("xdr:from").child_value("xdr:col"), "4");
    EXPECT_STREQ(anchor.child("xdr:from").child_value("xdr:colOff"), "12700");
    EXPECT_STREQ(anchor.child("xdr:from").child_value("xdr:row"), "8");
    EXPECT_STREQ(anchor.child("xdr:from").child_value("xdr:rowOff"), "25400");
    EXPECT_STREQ(anchor.child("xdr:to").child_value("xdr:col"), "7");
    EXPECT_STREQ(anchor.child("xdr:to").child_value("xdr:row"), "14");
    EXPECT_TRUE(anchor.child("xdr:clientData"));
    EXPECT_EQ(std::string(anchor.last_child().name()), "xdr:clientData");

    const pugi::xml_node shape = Shape(*xml);
    EXPECT_STREQ(shape.attribute("macro").value(), "");
    EXPECT_STREQ(shape.attribute("textlink").value(), "");
    const pugi::xml_node names = shape.child("xdr:nvSpPr");
    EXPECT_EQ(names.child("xdr:cNvPr").attribute("id").as_int(), 2);
    EXPECT_STREQ(names.child("xdr:cNvPr").attribute("name").value(), "TextBox 1");
    EXPECT_FALSE(names.child("xdr:cNvPr").attribute("hidden"));
    EXPECT_STREQ(names.child("xdr:cNvSpPr").attribute("txBox").value(), "1");

    const pugi::xml_node properties = shape.child("xdr:spPr");
    EXPECT_STREQ(properties.child("a:xfrm").child("a:off").attribute("x").value(), "2438400");
    EXPECT_STREQ(properties.child("a:xfrm").child("a:off").attribute("y").value(), "1524000");
    EXPECT_STREQ(properties.child("a:xfrm").child("a:ext").attribute("cx").value(), "1828800");
    EXPECT_STREQ(properties.child("a:xfrm").child("a:ext").attribute("cy").value(), "1143000");
    EXPECT_STREQ(properties.child("a:prstGeom").attribute("prst").value(), "rect");
    EXPECT_TRUE(properties.child("a:prstGeom").child("a:avLst"));
    EXPECT_STREQ(FillColor(properties).name(), "a:schemeClr");
    EXPECT_STREQ(FillColor(properties).attribute("val").value(), "lt1");
    EXPECT_STREQ(properties.child("a:ln").attribute("w").value(), "9525");
    EXPECT_STREQ(FillColor(properties.child("a:ln")).name(), "a:srgbClr");
    EXPECT_STREQ(FillColor(properties.child("a:ln")).attribute("val").value(), "808080");

    const pugi::xml_node style = shape.child("xdr:style");
    for (const char* reference : {"a:lnRef", "a:fillRef", "a:effectRef"}) {
        EXPECT_STREQ(style.child(reference).attribute("idx").value(), "0") << reference;
        EXPECT_TRUE(style.child(reference).child("a:scrgbClr")) << reference;
    }
    EXPECT_STREQ(style.child("a:fontRef").attribute("idx").value(), "minor");
    EXPECT_STREQ(style.child("a:fontRef").child("a:schemeClr").attribute("val").value(), "dk1");

    const pugi::xml_node body = Body(*xml);
    const pugi::xml_node bodyProperties = body.child("a:bodyPr");
    EXPECT_STREQ(bodyProperties.attribute("wrap").value(), "square");
    EXPECT_STREQ(bodyProperties.attribute("rtlCol").value(), "0");
    EXPECT_STREQ(bodyProperties.attribute("anchor").value(), "t");
    EXPECT_FALSE(bodyProperties.attribute("lIns"));
    EXPECT_FALSE(bodyProperties.child("a:spAutoFit"));
    EXPECT_TRUE(body.child("a:lstStyle"));
    const pugi::xml_node run = body.child("a:p").child("a:r");
    EXPECT_FALSE(body.child("a:p").child("a:pPr"));
    EXPECT_STREQ(run.child("a:rPr").attribute("lang").value(), "en-US");
    EXPECT_STREQ(run.child("a:rPr").attribute("sz").value(), "1100");
    EXPECT_STREQ(run.child_value("a:t"), "This is some text");
}

TEST(DrawingPart, EditAsIsWrittenOnlyWhenTheBoxDoesNotMoveAndSizeWithCells) {
    DrawingShape moves = Box("a"), fixed = Box("b"), unknown = Box("c");
    moves.editAs = "oneCell";
    fixed.editAs = "absolute";
    unknown.editAs = "sideways";
    auto xml = Write({Box("d"), moves, fixed, unknown});
    EXPECT_FALSE(Anchor(*xml, 0).attribute("editAs"));
    EXPECT_STREQ(Anchor(*xml, 1).attribute("editAs").value(), "oneCell");
    EXPECT_STREQ(Anchor(*xml, 2).attribute("editAs").value(), "absolute");
    EXPECT_FALSE(Anchor(*xml, 3).attribute("editAs"));
}

TEST(DrawingPart, NoFillAndNoLineAreWrittenAsNoFill) {
    DrawingShape box = Box("a");
    box.fill.reset();
    box.line.reset();
    auto xml = Write({box});
    const pugi::xml_node properties = Shape(*xml).child("xdr:spPr");
    EXPECT_TRUE(properties.child("a:noFill"));
    EXPECT_FALSE(properties.child("a:solidFill"));
    EXPECT_TRUE(properties.child("a:ln").child("a:noFill"));
}

TEST(DrawingPart, ThemeColoursAreNamedAfterTheirThemeIndex) {
    const char* names[] = {"lt1",     "dk1",     "lt2",     "dk2",     "accent1", "accent2",
                           "accent3", "accent4", "accent5", "accent6", "hlink",   "folHlink"};
    std::vector<DrawingShape> boxes;
    for (int32_t index = 0; index < 12; ++index) {
        DrawingShape box = Box("a");
        box.fill = Color{Color::Kind::Theme, 0, index, 0.0};
        boxes.push_back(box);
    }
    auto xml = Write(boxes);
    for (std::size_t index = 0; index < 12; ++index) {
        EXPECT_STREQ(FillColor(Shape(*xml, index).child("xdr:spPr")).attribute("val").value(), names[index]);
    }
}

TEST(DrawingPart, TintsBecomeLuminanceModulationAndOffset) {
    DrawingShape box = Box("a");
    box.fill = Color{Color::Kind::Theme, 0, 4, 0.4};      // lighter 40%
    box.line = Color{Color::Kind::Theme, 0, 1, -0.25};    // darker 25%
    auto xml = Write({box});
    const pugi::xml_node properties = Shape(*xml).child("xdr:spPr");
    const pugi::xml_node lighter = FillColor(properties);
    EXPECT_STREQ(lighter.attribute("val").value(), "accent1");
    EXPECT_STREQ(lighter.child("a:lumMod").attribute("val").value(), "60000");
    EXPECT_STREQ(lighter.child("a:lumOff").attribute("val").value(), "40000");
    const pugi::xml_node darker = FillColor(properties.child("a:ln"));
    EXPECT_STREQ(darker.attribute("val").value(), "dk1");
    EXPECT_STREQ(darker.child("a:lumMod").attribute("val").value(), "75000");
    EXPECT_FALSE(darker.child("a:lumOff"));
}

TEST(DrawingPart, AFillsTransparencyIsItsColoursAlpha) {
    DrawingShape box = Box("a");
    box.fill = Color{Color::Kind::Rgb, 0xFF4472C4, 0, 0.0};
    box.fillTransparency = 0.3;
    auto xml = Write({box});
    const pugi::xml_node properties = Shape(*xml).child("xdr:spPr");
    EXPECT_STREQ(FillColor(properties).child("a:alpha").attribute("val").value(), "70000");
    EXPECT_FALSE(FillColor(properties.child("a:ln")).child("a:alpha"));
}

TEST(DrawingPart, ColoursWithoutRgbAreWrittenBlack) {
    DrawingShape box = Box("a");
    box.fill = Color{Color::Kind::Indexed, 0, 10, 0.0};
    box.line = Color{Color::Kind::Auto, 0, 0, 0.0};
    auto xml = Write({box});
    const pugi::xml_node properties = Shape(*xml).child("xdr:spPr");
    EXPECT_STREQ(FillColor(properties).attribute("val").value(), "000000");
    EXPECT_STREQ(FillColor(properties.child("a:ln")).attribute("val").value(), "000000");
}

TEST(DrawingPart, BodyPropertiesCarryWrapInsetsAnchorAndAutoFit) {
    DrawingShape box = Box("a");
    box.wrap = false;
    box.autoFit = true;
    box.insetLeft = 0;
    box.insetTop = 12700;
    box.insetRight = 25400;
    box.insetBottom = 38100;
    box.verticalAnchor = "ctr";
    auto xml = Write({box});
    const pugi::xml_node properties = Body(*xml).child("a:bodyPr");
    EXPECT_STREQ(properties.attribute("wrap").value(), "none");
    EXPECT_STREQ(properties.attribute("lIns").value(), "0");
    EXPECT_STREQ(properties.attribute("tIns").value(), "12700");
    EXPECT_STREQ(properties.attribute("rIns").value(), "25400");
    EXPECT_STREQ(properties.attribute("bIns").value(), "38100");
    EXPECT_STREQ(properties.attribute("anchor").value(), "ctr");
    EXPECT_TRUE(properties.child("a:spAutoFit"));
}

TEST(DrawingPart, LineFeedsSeparateParagraphsAndAnEmptyOneKeepsItsFont) {
    DrawingShape box = Box("This\nis\n\nsome long text");
    box.alignment = "r";
    auto xml = Write({box});
    std::vector<std::string> texts;
    for (const pugi::xml_node paragraph : Body(*xml).children("a:p")) {
        EXPECT_STREQ(paragraph.child("a:pPr").attribute("algn").value(), "r");
        if (paragraph.child("a:r")) {
            texts.emplace_back(paragraph.child("a:r").child_value("a:t"));
            EXPECT_FALSE(paragraph.child("a:endParaRPr"));
        } else {
            texts.emplace_back("(empty)");
            EXPECT_STREQ(paragraph.child("a:endParaRPr").attribute("sz").value(), "1100");
        }
    }
    EXPECT_EQ(texts, (std::vector<std::string>{"This", "is", "(empty)", "some long text"}));
}

TEST(DrawingPart, RunsCarryTheirFontsAsCharacterProperties) {
    Font font;
    font.name = "Arial";
    font.scheme = "";
    font.family = 2;
    font.size = 11.5;
    font.bold = true;
    font.italic = true;
    font.underline = "double";
    font.strike = true;
    font.vertAlign = "subscript";
    font.color = Color{Color::Kind::Rgb, 0xFFFF0000, 0, 0.0};
    Font major;
    major.scheme = "major";
    major.vertAlign = "superscript";
    DrawingShape box = Box("");
    box.text.runs = {TextRun{"plain ", std::nullopt}, TextRun{"styled", font}, TextRun{" heading", major}};
    auto xml = Write({box});
    const pugi::xml_node plain = Body(*xml).child("a:p").child("a:r");
    EXPECT_STREQ(plain.child_value("a:t"), "plain ");
    EXPECT_FALSE(plain.child("a:rPr").attribute("b"));
    EXPECT_FALSE(plain.child("a:rPr").first_child());

    const pugi::xml_node styled = plain.next_sibling("a:r").child("a:rPr");
    EXPECT_STREQ(styled.attribute("sz").value(), "1150");
    EXPECT_STREQ(styled.attribute("b").value(), "1");
    EXPECT_STREQ(styled.attribute("i").value(), "1");
    EXPECT_STREQ(styled.attribute("u").value(), "dbl");
    EXPECT_STREQ(styled.attribute("strike").value(), "sngStrike");
    EXPECT_STREQ(styled.attribute("baseline").value(), "-25000");
    EXPECT_STREQ(FillColor(styled).attribute("val").value(), "FF0000");
    EXPECT_STREQ(styled.child("a:latin").attribute("typeface").value(), "Arial");
    EXPECT_STREQ(styled.child("a:latin").attribute("pitchFamily").value(), "32");
    EXPECT_STREQ(styled.child("a:cs").attribute("typeface").value(), "Arial");

    const pugi::xml_node heading = plain.next_sibling("a:r").next_sibling("a:r").child("a:rPr");
    EXPECT_STREQ(heading.attribute("baseline").value(), "30000");
    EXPECT_FALSE(heading.child("a:solidFill")) << "Text 1 is the shape's own font colour";
    EXPECT_STREQ(heading.child("a:latin").attribute("typeface").value(), "+mj-lt");
    EXPECT_STREQ(heading.child("a:cs").attribute("typeface").value(), "+mj-cs");
}

TEST(DrawingPart, HiddenBoxesAndMacrosAreMarked) {
    DrawingShape box = Box("a");
    box.hidden = true;
    box.macro = "Module1.Click";
    auto xml = Write({box});
    EXPECT_STREQ(Shape(*xml).child("xdr:nvSpPr").child("xdr:cNvPr").attribute("hidden").value(), "1");
    EXPECT_STREQ(Shape(*xml).attribute("macro").value(), "Module1.Click");
}

DrawingShape ChartFrame(std::string name) {
    DrawingShape frame;
    frame.name = std::move(name);
    frame.chart = std::make_shared<ChartDocument>();
    return frame;
}

TEST(DrawingPart, ChartIsAGraphicFrameAsExcelWritesIt) {
    DrawingShape frame = ChartFrame("Chart 1");
    frame.id = 2;
    frame.editAs = "oneCell";
    frame.from = CellAnchor{4, 47624, 21, 99059};
    frame.to = CellAnchor{9, 504824, 36, 175259};
    auto xml = Write({frame}, {"rId1"});
    const pugi::xml_node anchor = Anchor(*xml);
    EXPECT_STREQ(anchor.attribute("editAs").value(), "oneCell");
    EXPECT_STREQ(anchor.child("xdr:from").child_value("xdr:colOff"), "47624");
    EXPECT_STREQ(anchor.child("xdr:to").child_value("xdr:row"), "36");
    EXPECT_FALSE(anchor.child("xdr:sp"));
    const pugi::xml_node graphicFrame = anchor.child("xdr:graphicFrame");
    ASSERT_TRUE(graphicFrame);
    EXPECT_EQ(graphicFrame.previous_sibling(), anchor.child("xdr:to"));
    EXPECT_EQ(graphicFrame.next_sibling(), anchor.child("xdr:clientData"));
    EXPECT_STREQ(graphicFrame.attribute("macro").value(), "");

    const pugi::xml_node names = graphicFrame.first_child();
    EXPECT_STREQ(names.name(), "xdr:nvGraphicFramePr");
    EXPECT_EQ(names.child("xdr:cNvPr").attribute("id").as_int(), 2);
    EXPECT_STREQ(names.child("xdr:cNvPr").attribute("name").value(), "Chart 1");
    EXPECT_FALSE(names.child("xdr:cNvPr").attribute("hidden"));
    EXPECT_TRUE(names.child("xdr:cNvGraphicFramePr").child("a:graphicFrameLocks"));

    const pugi::xml_node transform = names.next_sibling();
    EXPECT_STREQ(transform.name(), "xdr:xfrm");
    for (const char* attribute : {"x", "y"}) {
        EXPECT_STREQ(transform.child("a:off").attribute(attribute).value(), "0") << attribute;
    }
    for (const char* attribute : {"cx", "cy"}) {
        EXPECT_STREQ(transform.child("a:ext").attribute(attribute).value(), "0") << attribute;
    }

    const pugi::xml_node data = transform.next_sibling();
    EXPECT_STREQ(data.name(), "a:graphic");
    EXPECT_STREQ(data.child("a:graphicData").attribute("uri").value(),
                 "http://schemas.openxmlformats.org/drawingml/2006/chart");
    const pugi::xml_node chart = data.child("a:graphicData").child("c:chart");
    EXPECT_STREQ(chart.attribute("xmlns:c").value(), "http://schemas.openxmlformats.org/drawingml/2006/chart");
    EXPECT_STREQ(chart.attribute("xmlns:r").value(),
                 "http://schemas.openxmlformats.org/officeDocument/2006/relationships");
    EXPECT_STREQ(chart.attribute("r:id").value(), "rId1");
}

TEST(DrawingPart, ChartsAndTextBoxesKeepTheirZOrderAndEachChartItsRelationship) {
    auto xml = Write({Box("under"), ChartFrame("Chart 1"), Box("between"), ChartFrame("Chart 2")}, {"rId3", "rId4"});
    EXPECT_STREQ(Shape(*xml, 0).child("xdr:txBody").child("a:p").child("a:r").child_value("a:t"), "under");
    EXPECT_STREQ(Anchor(*xml, 1).child("xdr:graphicFrame").child("xdr:nvGraphicFramePr").child("xdr:cNvPr")
                     .attribute("name").value(),
                 "Chart 1");
    EXPECT_STREQ(Anchor(*xml, 1).select_node(".//c:chart").node().attribute("r:id").value(), "rId3");
    EXPECT_STREQ(Shape(*xml, 2).child("xdr:txBody").child("a:p").child("a:r").child_value("a:t"), "between");
    EXPECT_STREQ(Anchor(*xml, 3).select_node(".//c:chart").node().attribute("r:id").value(), "rId4");
}

TEST(DrawingPart, HiddenChartsAndTheirMacrosAreMarked) {
    DrawingShape frame = ChartFrame("Chart 1");
    frame.hidden = true;
    frame.macro = "[0]!ChartClick";
    auto xml = Write({frame}, {"rId1"});
    const pugi::xml_node graphicFrame = Anchor(*xml).child("xdr:graphicFrame");
    EXPECT_STREQ(graphicFrame.attribute("macro").value(), "[0]!ChartClick");
    EXPECT_STREQ(graphicFrame.child("xdr:nvGraphicFramePr").child("xdr:cNvPr").attribute("hidden").value(), "1");
}

}  // namespace
