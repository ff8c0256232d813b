// The legacy VML drawing of a sheet's comments, written as Excel writes it
// (cells-drawings-xlsxwriter/xw__comment02.xlsx, realworld-excel/poi__commentTest.xlsx).

#include "ooxml/comments/vml_drawing_part.hpp"
#include "ooxml/writer_test_support.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace ooxml;
using writer_test::ParseXml;
using writer_test::WriteToString;
using ::testing::HasSubstr;

std::string WriteText(const std::vector<CellComment>& comments, const std::vector<uint32_t>& noteIdBlocks = {1},
                      std::shared_ptr<const CarriedWorksheet> carried = nullptr) {
    SheetDocument sheet;
    sheet.comments = comments;
    sheet.carried = std::move(carried);
    return WriteToString([&](XmlWriter& xml) { WriteVmlDrawingPart(xml, sheet, noteIdBlocks); });
}

std::unique_ptr<pugi::xml_document> Write(const std::vector<CellComment>& comments,
                                          const std::vector<uint32_t>& noteIdBlocks = {1},
                                          std::shared_ptr<const CarriedWorksheet> carried = nullptr) {
    return ParseXml(WriteText(comments, noteIdBlocks, std::move(carried)));
}

CellComment Note(uint32_t row, uint32_t column) {
    CellComment comment;
    comment.row = row;
    comment.column = column;
    return comment;
}

std::vector<pugi::xml_node> Shapes(const pugi::xml_document& xml) {
    std::vector<pugi::xml_node> shapes;
    for (const pugi::xml_node shape : xml.child("xml").children("v:shape")) {
        shapes.push_back(shape);
    }
    return shapes;
}

TEST(VmlDrawingPart, ANoteIsADrawingShapeWithExcelsClientData) {
    CellComment note = Note(2, 2);
    note.left = 107.25;
    note.top = 7.5;
    note.anchor = LegacyAnchor{2, 15, 0, 10, 4, 15, 4, 4};
    auto xml = Write({note});
    const pugi::xml_node root = xml->child("xml");
    EXPECT_STREQ(root.attribute("xmlns:v").value(), "urn:schemas-microsoft-com:vml");
    EXPECT_STREQ(root.attribute("xmlns:o").value(), "urn:schemas-microsoft-com:office:office");
    EXPECT_STREQ(root.attribute("xmlns:x").value(), "urn:schemas-microsoft-com:office:excel");
    EXPECT_STREQ(root.child("o:shapelayout").child("o:idmap").attribute("data").value(), "1");
    const pugi::xml_node type = root.child("v:shapetype");
    EXPECT_STREQ(type.attribute("id").value(), "_x0000_t202");
    EXPECT_STREQ(type.attribute("o:spt").value(), "202");

    const pugi::xml_node shape = root.child("v:shape");
    EXPECT_STREQ(shape.attribute("id").value(), "_x0000_s1025");
    EXPECT_STREQ(shape.attribute("type").value(), "#_x0000_t202");
    EXPECT_STREQ(shape.attribute("style").value(),
                 "position:absolute;margin-left:107.25pt;margin-top:7.5pt;width:96pt;height:55.5pt;z-index:1;"
                 "visibility:hidden");
    EXPECT_STREQ(shape.attribute("fillcolor").value(), "#ffffe1");
    EXPECT_FALSE(shape.attribute("strokecolor"));
    EXPECT_FALSE(shape.attribute("strokeweight"));
    EXPECT_STREQ(shape.attribute("o:insetmode").value(), "auto");
    EXPECT_STREQ(shape.child("v:fill").attribute("color2").value(), "#ffffe1");
    EXPECT_STREQ(shape.child("v:shadow").attribute("on").value(), "t");
    EXPECT_STREQ(shape.child("v:path").attribute("o:connecttype").value(), "none");
    EXPECT_FALSE(shape.child("v:textbox").attribute("inset"));

    const pugi::xml_node data = shape.child("x:ClientData");
    EXPECT_STREQ(data.attribute("ObjectType").value(), "Note");
    EXPECT_STREQ(data.child_value("x:Anchor"), "2, 15, 0, 10, 4, 15, 4, 4");
    EXPECT_STREQ(data.child_value("x:AutoFill"), "False");
    EXPECT_STREQ(data.child_value("x:Row"), "1");
    EXPECT_STREQ(data.child_value("x:Column"), "1");
    EXPECT_FALSE(data.child("x:Visible"));
}

TEST(VmlDrawingPart, TheTextBoxDivHasAStartAndAnEndTag) {
    EXPECT_THAT(WriteText({Note(1, 1)}), HasSubstr("<div style=\"text-align:left\"></div>"));
}

// Excel reads the two flags the other way round: present, the note does not move or size.
TEST(VmlDrawingPart, MoveAndSizeFlagsArePresentWhenTheNoteStaysPut) {
    CellComment staysPut = Note(1, 1);
    staysPut.moveWithCells = false;
    staysPut.sizeWithCells = false;
    CellComment movesOnly = Note(2, 1);
    movesOnly.sizeWithCells = false;
    auto xml = Write({staysPut, movesOnly, Note(3, 1)});
    const std::vector<pugi::xml_node> shapes = Shapes(*xml);
    ASSERT_EQ(shapes.size(), 3u);
    EXPECT_TRUE(shapes[0].child("x:ClientData").child("x:MoveWithCells"));
    EXPECT_TRUE(shapes[0].child("x:ClientData").child("x:SizeWithCells"));
    EXPECT_FALSE(shapes[1].child("x:ClientData").child("x:MoveWithCells"));
    EXPECT_TRUE(shapes[1].child("x:ClientData").child("x:SizeWithCells"));
    EXPECT_FALSE(shapes[2].child("x:ClientData").child("x:MoveWithCells"));
    EXPECT_FALSE(shapes[2].child("x:ClientData").child("x:SizeWithCells"));
}

TEST(VmlDrawingPart, VisibleNoteWithItsOwnColoursLineAndInsets) {
    CellComment note = Note(17, 4);
    note.visible = true;
    note.fillRgb = 0xCCFFCC;
    note.lineRgb = 0x336699;
    note.lineWeight = 1.5;
    note.insets = std::array<double, 4>{1.8, 3.6, 7.2, 0.9};
    auto xml = Write({note});
    const pugi::xml_node shape = xml->child("xml").child("v:shape");
    EXPECT_THAT(shape.attribute("style").value(), HasSubstr("visibility:visible"));
    EXPECT_STREQ(shape.attribute("fillcolor").value(), "#ccffcc");
    EXPECT_STREQ(shape.child("v:fill").attribute("color2").value(), "#ccffcc");
    EXPECT_STREQ(shape.attribute("strokecolor").value(), "#336699");
    EXPECT_STREQ(shape.attribute("strokeweight").value(), "1.5pt");
    EXPECT_STREQ(shape.attribute("o:insetmode").value(), "custom");
    EXPECT_STREQ(shape.child("v:textbox").attribute("inset").value(), "1.8pt,3.6pt,7.2pt,0.9pt");
    EXPECT_TRUE(shape.child("x:ClientData").child("x:Visible"));
    EXPECT_STREQ(shape.child("x:ClientData").child_value("x:Row"), "16");
    EXPECT_STREQ(shape.child("x:ClientData").child_value("x:Column"), "3");
}

TEST(VmlDrawingPart, ShapesAreNumberedInTheirIdBlocksWithRisingZOrder) {
    auto xml = Write({Note(1, 1), Note(1, 2)}, {3});
    EXPECT_STREQ(xml->child("xml").child("o:shapelayout").child("o:idmap").attribute("data").value(), "3");
    const std::vector<pugi::xml_node> shapes = Shapes(*xml);
    ASSERT_EQ(shapes.size(), 2u);
    EXPECT_STREQ(shapes[0].attribute("id").value(), "_x0000_s3073");
    EXPECT_STREQ(shapes[1].attribute("id").value(), "_x0000_s3074");
    EXPECT_THAT(shapes[1].attribute("style").value(), HasSubstr("z-index:2;"));
}

TEST(VmlDrawingPart, ManyNotesTakeMoreIdBlocks) {
    std::vector<CellComment> notes;
    for (uint32_t row = 1; row <= 1024; ++row) {
        notes.push_back(Note(row, 1));
    }
    auto xml = Write(notes, {2, 3});
    EXPECT_STREQ(xml->child("xml").child("o:shapelayout").child("o:idmap").attribute("data").value(), "2,3");
    EXPECT_STREQ(Shapes(*xml).back().attribute("id").value(), "_x0000_s3072");
}

// A checkbox and the shape type it uses, as an opened drawing carries them.
std::shared_ptr<const CarriedWorksheet> CarriedCheckbox() {
    auto carried = std::make_shared<CarriedWorksheet>();
    carried->legacyDrawing.rootAttributes = {{"xmlns:w", "urn:schemas-microsoft-com:office:word"}};
    carried->legacyDrawing.elements = {
        {0, "shapetype", R"(<v:shapetype id="_x0000_t201" coordsize="21600,21600" o:spt="201"></v:shapetype>)"},
        {0, "shape",
         R"(<v:shape id="_x0000_s1025" type="#_x0000_t201"><x:ClientData ObjectType="Checkbox"><x:Checked>1</x:Checked>)"
         R"(</x:ClientData></v:shape>)"},
    };
    carried->legacyDrawingIdBlocks = {1};
    return carried;
}

TEST(VmlDrawingPart, CarriedShapesFollowTheNotesAsTheyWereWithTheirBlocksInTheIdmap) {
    auto xml = Write({Note(1, 1)}, {2}, CarriedCheckbox());
    const pugi::xml_node root = xml->child("xml");
    EXPECT_STREQ(root.attribute("xmlns:w").value(), "urn:schemas-microsoft-com:office:word");
    EXPECT_STREQ(root.child("o:shapelayout").child("o:idmap").attribute("data").value(), "1,2");
    std::vector<std::string> children;
    for (const pugi::xml_node child : root.children()) {
        children.push_back(std::string(child.name()) + " " + child.attribute("id").value());
    }
    EXPECT_EQ(children, (std::vector<std::string>{"o:shapelayout ", "v:shapetype _x0000_t202", "v:shape _x0000_s2049",
                                                  "v:shapetype _x0000_t201", "v:shape _x0000_s1025"}));
    EXPECT_THAT(WriteText({Note(1, 1)}, {2}, CarriedCheckbox()),
                HasSubstr(CarriedCheckbox()->legacyDrawing.elements[1].xml));
}

TEST(VmlDrawingPart, ADrawingOfCarriedShapesAloneListsTheirBlocksOnly) {
    auto xml = Write({}, {2}, CarriedCheckbox());
    EXPECT_STREQ(xml->child("xml").child("o:shapelayout").child("o:idmap").attribute("data").value(), "1");
    EXPECT_EQ(Shapes(*xml).size(), 1u);
}

}  // namespace
