// A sheet's legacy VML drawing read: its notes give the comments their shapes, and everything else
// it holds (form controls, the icons of embedded objects, pictures) is carried as it was, with
// the shape types it uses and the blocks of its ids.

#include "ooxml/comments/vml_drawing_reader.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace ooxml;
using ::testing::HasSubstr;
using ::testing::Not;

constexpr const char* Drawing =
    R"(<xml xmlns:v="urn:schemas-microsoft-com:vml" xmlns:o="urn:schemas-microsoft-com:office:office")"
    R"( xmlns:x="urn:schemas-microsoft-com:office:excel" xmlns:w="urn:schemas-microsoft-com:office:word">)"
    "\n <o:shapelayout v:ext=\"edit\"><o:idmap v:ext=\"edit\" data=\"1,2\"/></o:shapelayout>\n"
    R"(<v:shapetype id="_x0000_t201" coordsize="21600,21600" o:spt="201"><v:stroke joinstyle="miter"/></v:shapetype>)"
    "<v:shape id=\"_x0000_s1025\" type=\"#_x0000_t201\" style='position:absolute;\n  margin-left:96pt;z-index:1'>"
    R"(<v:textbox><div style='text-align:left'><font face="Tahoma">Pay</font><br/></div><div style='x'/></v:textbox>)"
    R"(<x:ClientData ObjectType="Checkbox"><x:Anchor>1, 0, 1, 0, 3, 0, 2, 0</x:Anchor><x:Checked>1</x:Checked>)"
    R"(</x:ClientData></v:shape>)"
    R"(<v:shapetype id="_x0000_t202" coordsize="21600,21600" o:spt="202"><v:path o:connecttype="rect"/></v:shapetype>)"
    R"(<v:shape id="_x0000_s1026" type="#_x0000_t202" style="margin-left:50pt;width:80pt;visibility:visible">)"
    R"(<v:textbox><div style='text-align:left'></div></v:textbox>)"
    R"(<x:ClientData ObjectType="Note"><x:Visible/><x:Row>0</x:Row><x:Column>0</x:Column></x:ClientData></v:shape>)"
    R"(<v:shapetype id="_x0000_t75" o:spt="75"><v:path o:extrusionok="f"/></v:shapetype>)"
    R"(<v:shapetype id="_x0000_t99" o:spt="99"/>)"
    R"(<v:shape id="Object1" o:spid="_x0000_s2049" type="#_x0000_t75"><v:imagedata o:relid="rId1" o:title=""/>)"
    R"(<x:ClientData ObjectType="Pict"><x:CF>Pict</x:CF></x:ClientData></v:shape>)"
    R"(<v:group id="_x0000_s1027"><v:shape id="_x0000_s1028" type="#_x0000_t202" style="width:120pt">)"
    R"(<x:ClientData ObjectType="Note"><x:Row>1</x:Row><x:Column>1</x:Column></x:ClientData></v:shape>)"
    R"(<v:rect id="_x0000_s1029"/></v:group></xml>)";

std::vector<CellComment> Comments() {
    std::vector<CellComment> comments(2);
    comments[0].row = 1;
    comments[0].column = 1;
    comments[1].row = 2;
    comments[1].column = 2;
    return comments;
}

std::vector<std::string> Names(const CarriedMarkup& markup) {
    std::vector<std::string> names;
    for (const CarriedElement& element : markup.elements) {
        names.push_back(element.name);
    }
    return names;
}

TEST(VmlDrawingReader, NotesShapeTheCommentsAndTheOtherShapesAreCarried) {
    std::string xml = Drawing;
    std::vector<CellComment> comments = Comments();
    CarriedWorksheet carried;
    ReadVmlDrawing(xml, comments, carried);
    EXPECT_TRUE(comments[0].hasShape);
    EXPECT_TRUE(comments[0].visible);
    EXPECT_EQ(comments[0].left, 50.0);
    EXPECT_EQ(comments[1].width, 120.0);  // a note in a group is a note too

    // The shape types the kept shapes use, but the notes', which the writer writes itself.
    EXPECT_EQ(Names(carried.legacyDrawing),
              (std::vector<std::string>{"shapetype", "shape", "shapetype", "shape", "group"}));
    const std::vector<CarriedElement>& elements = carried.legacyDrawing.elements;
    EXPECT_THAT(elements[0].xml, HasSubstr(R"(id="_x0000_t201")"));
    EXPECT_THAT(elements[1].xml, HasSubstr(R"(<x:ClientData ObjectType="Checkbox">)"));
    EXPECT_THAT(elements[2].xml, HasSubstr(R"(id="_x0000_t75")"));
    EXPECT_THAT(elements[3].xml, HasSubstr(R"(<v:imagedata o:relid="rId1" o:title=""/>)"));
    EXPECT_THAT(elements[4].xml, HasSubstr(R"(<v:rect id="_x0000_s1029"/>)"));
    EXPECT_THAT(elements[4].xml, Not(HasSubstr("Note")));
    EXPECT_EQ(carried.legacyDrawing.rootAttributes,
              (std::vector<CarriedAttribute>{{"xmlns:w", "urn:schemas-microsoft-com:office:word"}}));
    // The checkbox's id and the icon's o:spid are in blocks 1 and 2.
    EXPECT_EQ(carried.legacyDrawingIdBlocks, (std::vector<uint32_t>{1, 2}));
}

TEST(VmlDrawingReader, TextKeepsItsEndTagsAndAttributesTheirValues) {
    std::string xml = Drawing;
    std::vector<CellComment> comments = Comments();
    CarriedWorksheet carried;
    ReadVmlDrawing(xml, comments, carried);
    const std::string& checkbox = carried.legacyDrawing.elements.at(1).xml;
    EXPECT_THAT(checkbox, HasSubstr(R"(<div style="text-align:left"><font face="Tahoma">Pay</font><br/></div>)"));
    EXPECT_THAT(checkbox, HasSubstr(R"(<div style="x"></div>)"));
    EXPECT_THAT(checkbox, HasSubstr(R"(style="position:absolute;   margin-left:96pt;z-index:1")"));
    EXPECT_THAT(carried.legacyDrawing.elements.at(0).xml, HasSubstr(R"(<v:stroke joinstyle="miter"/>)"));
}

TEST(VmlDrawingReader, ADrawingOfNotesAloneCarriesNothing) {
    std::string xml =
        R"(<xml xmlns:v="urn:schemas-microsoft-com:vml" xmlns:x="urn:schemas-microsoft-com:office:excel">)"
        R"(<v:shapetype id="_x0000_t202"/><v:shape id="_x0000_s1025" type="#_x0000_t202">)"
        R"(<x:ClientData ObjectType="Note"><x:Row>0</x:Row><x:Column>0</x:Column></x:ClientData></v:shape></xml>)";
    std::vector<CellComment> comments = Comments();
    CarriedWorksheet carried;
    ReadVmlDrawing(xml, comments, carried);
    EXPECT_TRUE(comments[0].hasShape);
    EXPECT_TRUE(carried.legacyDrawing.Empty());
    EXPECT_TRUE(carried.legacyDrawingIdBlocks.empty());
}

TEST(VmlDrawingReader, ADrawingThatIsNotXmlGivesNothing) {
    std::string xml =
        R"(<xml><v:shape id="_x0000_s1025" style="width:300pt"><br>)"
        R"(<x:ClientData ObjectType="Note"><x:Row>0</x:Row><x:Column>0</x:Column></x:ClientData></v:shape></xml>)";
    std::vector<CellComment> comments = Comments();
    const double width = comments[0].width;
    CarriedWorksheet carried;
    ReadVmlDrawing(xml, comments, carried);
    EXPECT_EQ(comments[0].width, width);
    EXPECT_TRUE(carried.legacyDrawing.Empty());
}

}  // namespace
