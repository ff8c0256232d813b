// A sheet's legacy VML drawing that holds a note beside a checkbox and an embedded object's icon,
// read and written again: the notes are written anew, the checkbox and the icon come back as they
// were, under their ids (the sheet's controls and oleObjects refer to them by number), with the
// icon's image; the notes take ids no other shape of the workbook has.

#include "ooxml/opc/package_reader.hpp"
#include "ooxml/opc/package_writer.hpp"
#include "ooxml/reader_test_package.hpp"
#include "ooxml/writer_test_support.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pugixml.hpp>

#include <set>
#include <string>
#include <vector>

using ooxml_test::PackageParts;

namespace {

constexpr const char* Declaration = ooxml_test::XmlDeclaration;
const std::string Type = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/";
constexpr const char* VmlNamespaces =
    R"(xmlns:v="urn:schemas-microsoft-com:vml" xmlns:o="urn:schemas-microsoft-com:office:office" )"
    R"(xmlns:x="urn:schemas-microsoft-com:office:excel")";

using ooxml_test::Relationship;
using ooxml_test::RelationshipsPart;

std::string Worksheet(const std::string& content) {
    return std::string(Declaration) +
           R"(<worksheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" )"
           R"(xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships">)" +
           content + "</worksheet>";
}

constexpr const char* CheckboxShape =
    R"(<v:shape id="_x0000_s1025" type="#_x0000_t201" style="position:absolute;margin-left:96pt;margin-top:15pt;)"
    R"(width:72pt;height:15pt;z-index:1" filled="f" stroked="f" o:insetmode="auto">)"
    R"(<v:textbox style="mso-direction-alt:auto" o:singleclick="f"><div style="text-align:left">)"
    R"(<font face="Tahoma" size="160" color="auto">Paid</font></div></v:textbox>)"
    R"(<x:ClientData ObjectType="Checkbox"><x:Anchor>2, 0, 1, 0, 3, 24, 2, 0</x:Anchor><x:AutoFill>False</x:AutoFill>)"
    R"(<x:AutoLine>False</x:AutoLine><x:TextVAlign>Center</x:TextVAlign><x:Checked>1</x:Checked><x:NoThreeD/>)"
    R"(</x:ClientData></v:shape>)";
constexpr const char* IconShape =
    R"(<v:shape id="_x0000_s1027" type="#_x0000_t75" style="position:absolute;margin-left:200pt;margin-top:30pt;)"
    R"(width:77.25pt;height:50.25pt;z-index:3"><v:imagedata o:relid="rId1" o:title=""/>)"
    R"(<x:ClientData ObjectType="Pict"><x:SizeWithCells/><x:Anchor>4, 0, 2, 0, 5, 39, 5, 16</x:Anchor>)"
    R"(<x:CF>Pict</x:CF><x:AutoPict/></x:ClientData></v:shape>)";

// Two sheets: the first with a note on A1, a checkbox and an embedded document shown as an icon
// in its legacy drawing; the second with a button alone in a drawing of block 2, kept whole.
PackageParts NotesBesideControls() {
    PackageParts parts;
    parts["[Content_Types].xml"] = ooxml_test::ContentTypesPart(
        R"(<Default Extension="vml" ContentType="application/vnd.openxmlformats-officedocument.vmlDrawing"/>)"
        R"(<Default Extension="emf" ContentType="image/x-emf"/>)"
        R"(<Default Extension="bin" ContentType="application/vnd.openxmlformats-officedocument.oleObject"/>)"
        R"(<Override PartName="/xl/workbook.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml"/>)"
        R"(<Override PartName="/xl/worksheets/sheet1.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.worksheet+xml"/>)"
        R"(<Override PartName="/xl/worksheets/sheet2.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.worksheet+xml"/>)"
        R"(<Override PartName="/xl/comments1.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.comments+xml"/>)"
        R"(<Override PartName="/xl/ctrlProps/ctrlProp1.xml" ContentType="application/vnd.ms-excel.controlproperties+xml"/>)");
    parts["_rels/.rels"] = RelationshipsPart({Relationship("rId1", "officeDocument", "xl/workbook.xml")});
    parts["xl/workbook.xml"] =
        std::string(Declaration) +
        R"(<workbook xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" )"
        R"(xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships">)"
        R"(<sheets><sheet name="Form" sheetId="1" r:id="rId1"/><sheet name="Buttons" sheetId="2" r:id="rId2"/></sheets></workbook>)";
    parts["xl/_rels/workbook.xml.rels"] =
        RelationshipsPart({Relationship("rId1", "worksheet", "worksheets/sheet1.xml"),
                           Relationship("rId2", "worksheet", "worksheets/sheet2.xml")});
    parts["xl/worksheets/sheet1.xml"] = Worksheet(
        R"(<sheetData><row r="1"><c r="A1" t="inlineStr"><is><t>Total</t></is></c></row></sheetData>)"
        R"(<legacyDrawing r:id="rId2"/>)"
        R"(<oleObjects><oleObject progId="Word.Document.8" dvAspect="DVASPECT_ICON" shapeId="1027" r:id="rId3"/></oleObjects>)"
        R"(<controls><control shapeId="1025" r:id="rId4" name="Check Box 1"/></controls>)");
    parts["xl/worksheets/_rels/sheet1.xml.rels"] =
        RelationshipsPart({Relationship("rId1", "comments", "../comments1.xml"),
                           Relationship("rId2", "vmlDrawing", "../drawings/vmlDrawing1.vml"),
                           Relationship("rId3", "oleObject", "../embeddings/oleObject1.bin"),
                           Relationship("rId4", "http://schemas.microsoft.com/office/2006/relationships/ctrlProp",
                                        "../ctrlProps/ctrlProp1.xml")});
    parts["xl/comments1.xml"] =
        std::string(Declaration) +
        R"(<comments xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main"><authors><author>Ann</author></authors>)"
        R"(<commentList><comment ref="A1" authorId="0"><text><r><t>Check the sum</t></r></text></comment></commentList></comments>)";
    parts["xl/drawings/vmlDrawing1.vml"] =
        std::string("<xml ") + VmlNamespaces +
        ">\n <o:shapelayout v:ext=\"edit\">\n  <o:idmap v:ext=\"edit\" data=\"1\"/>\n"
        " </o:shapelayout>"
        R"(<v:shapetype id="_x0000_t201" coordsize="21600,21600" o:spt="201" path="m,l,21600r21600,l21600,xe">)"
        R"(<v:stroke joinstyle="miter"/><v:path shadowok="f" o:extrusionok="f" strokeok="f" fillok="f" o:connecttype="rect"/>)"
        R"(<o:lock v:ext="edit" shapetype="t"/></v:shapetype>)" +
        CheckboxShape +
        R"(<v:shapetype id="_x0000_t202" coordsize="21600,21600" o:spt="202" path="m,l,21600r21600,l21600,xe">)"
        R"(<v:stroke joinstyle="miter"/><v:path gradientshapeok="t" o:connecttype="rect"/></v:shapetype>)"
        R"(<v:shape id="_x0000_s1026" type="#_x0000_t202" style="position:absolute;margin-left:59.25pt;margin-top:1.5pt;)"
        R"(width:108pt;height:59.25pt;z-index:2;visibility:hidden" fillcolor="#ffffe1" o:insetmode="auto">)"
        R"(<v:fill color2="#ffffe1"/><v:shadow on="t" color="black" obscured="t"/><v:path o:connecttype="none"/>)"
        R"(<v:textbox style="mso-direction-alt:auto"><div style="text-align:left"></div></v:textbox>)"
        R"(<x:ClientData ObjectType="Note"><x:MoveWithCells/><x:SizeWithCells/><x:Anchor>1, 15, 0, 2, 3, 15, 4, 3</x:Anchor>)"
        R"(<x:AutoFill>False</x:AutoFill><x:Row>0</x:Row><x:Column>0</x:Column></x:ClientData></v:shape>)"
        R"(<v:shapetype id="_x0000_t75" coordsize="21600,21600" o:spt="75" o:preferrelative="t" path="m@4@5l@4@11@9@11@9@5xe" filled="f" stroked="f">)"
        R"(<v:stroke joinstyle="miter"/><v:path o:extrusionok="f" gradientshapeok="t" o:connecttype="rect"/>)"
        R"(<o:lock v:ext="edit" aspectratio="t"/></v:shapetype>)" +
        IconShape + "</xml>";
    parts["xl/drawings/_rels/vmlDrawing1.vml.rels"] =
        RelationshipsPart({Relationship("rId1", "image", "../media/image1.emf")});
    parts["xl/media/image1.emf"] = std::string("\x01\x00\x00\x00\x6c\x00\x00\x00icon", 12);
    parts["xl/embeddings/oleObject1.bin"] = std::string("\xd0\xcf\x11\xe0\xa1\xb1\x1a\xe1ole", 11);
    parts["xl/ctrlProps/ctrlProp1.xml"] =
        std::string(Declaration) +
        R"(<formControlPr xmlns="http://schemas.microsoft.com/office/spreadsheetml/2009/9/main" objectType="CheckBox" checked="Checked"/>)";
    parts["xl/worksheets/sheet2.xml"] = Worksheet(R"(<sheetData/><legacyDrawing r:id="rId1"/>)");
    parts["xl/worksheets/_rels/sheet2.xml.rels"] =
        RelationshipsPart({Relationship("rId1", "vmlDrawing", "../drawings/vmlDrawing2.vml")});
    parts["xl/drawings/vmlDrawing2.vml"] =
        std::string("<xml ") + VmlNamespaces +
        R"(><o:shapelayout v:ext="edit"><o:idmap v:ext="edit" data="2"/></o:shapelayout>)"
        R"(<v:shapetype id="_x0000_t201" coordsize="21600,21600" o:spt="201" path="m,l,21600r21600,l21600,xe"/>)"
        R"(<v:shape id="_x0000_s2049" type="#_x0000_t201" style="position:absolute;margin-left:10pt;margin-top:10pt;width:48pt;height:15pt;z-index:1">)"
        R"(<x:ClientData ObjectType="Button"><x:Anchor>1, 0, 1, 0, 2, 0, 2, 0</x:Anchor></x:ClientData></v:shape></xml>)";
    return parts;
}

class LegacyDrawingRoundTripTest : public ::testing::Test {
protected:
    void SetUp() override {
        const ooxml_test::TemporaryPackage input(input_);
        path_ = folder_.File("resaved.xlsx");
        ooxml::WritePackage(ooxml::ReadPackage(input.Path()), path_);
        output_ = ooxml_test::ReadPackageParts(path_);
    }

    // The part a sheet's relationship of that type leads to.
    std::string RelatedPart(const std::string& sheetPart, const std::string& type) {
        pugi::xml_document relationships;
        const std::string name = "xl/worksheets/_rels/" + sheetPart.substr(sheetPart.rfind('/') + 1) + ".rels";
        EXPECT_TRUE(relationships.load_string(output_.at(name).c_str()));
        for (const pugi::xml_node relationship : relationships.child("Relationships").children()) {
            if (std::string(relationship.attribute("Type").value()) == Type + type) {
                return "xl/" + std::string(relationship.attribute("Target").value()).substr(3);
            }
        }
        return {};
    }

    pugi::xml_node Parsed(pugi::xml_document& document, const std::string& part) {
        EXPECT_TRUE(document.load_string(output_.at(part).c_str())) << part;
        return document.document_element();
    }

    PackageParts input_ = NotesBesideControls();
    writer_test::ScratchFolder folder_;
    std::string path_;
    PackageParts output_;
};

TEST_F(LegacyDrawingRoundTripTest, TheCheckboxAndTheIconComeBackWithTheirIdsAfterTheNote) {
    const std::string vml = RelatedPart("xl/worksheets/sheet1.xml", "vmlDrawing");
    ASSERT_EQ(output_.count(vml), 1u);
    pugi::xml_document document;
    const pugi::xml_node root = Parsed(document, vml);
    std::vector<std::string> shapes;
    for (const pugi::xml_node shape : root.children("v:shape")) {
        shapes.push_back(std::string(shape.attribute("id").value()) + " " +
                         shape.child("x:ClientData").attribute("ObjectType").value());
    }
    EXPECT_EQ(shapes, (std::vector<std::string>{"_x0000_s3073 Note", "_x0000_s1025 Checkbox", "_x0000_s1027 Pict"}));
    EXPECT_THAT(output_.at(vml), ::testing::HasSubstr(CheckboxShape));
    EXPECT_THAT(output_.at(vml), ::testing::HasSubstr(IconShape));
    std::vector<std::string> types;
    for (const pugi::xml_node type : root.children("v:shapetype")) {
        types.emplace_back(type.attribute("id").value());
    }
    EXPECT_EQ(types, (std::vector<std::string>{"_x0000_t202", "_x0000_t201", "_x0000_t75"}));
    // The sheet still refers to them by number.
    EXPECT_THAT(output_.at("xl/worksheets/sheet1.xml"), ::testing::HasSubstr(R"(shapeId="1027")"));
    EXPECT_THAT(output_.at("xl/worksheets/sheet1.xml"), ::testing::HasSubstr(R"(shapeId="1025")"));
}

// Block 1 is the checkbox's and the icon's, block 2 the kept drawing's: the note takes block 3.
TEST_F(LegacyDrawingRoundTripTest, TheIdmapListsTheCarriedShapesBlockAndTheNotesOwn) {
    pugi::xml_document document;
    const pugi::xml_node root = Parsed(document, RelatedPart("xl/worksheets/sheet1.xml", "vmlDrawing"));
    EXPECT_STREQ(root.child("o:shapelayout").child("o:idmap").attribute("data").value(), "1,3");
    const std::string kept = RelatedPart("xl/worksheets/sheet2.xml", "vmlDrawing");
    EXPECT_EQ(kept, "xl/drawings/vmlDrawing2.vml");
    EXPECT_EQ(output_.at(kept), input_.at("xl/drawings/vmlDrawing2.vml"));
}

TEST_F(LegacyDrawingRoundTripTest, EveryShapeIdOfTheWorkbookIsItsOwn) {
    std::set<std::string> ids;
    std::size_t shapes = 0;
    for (const auto& [name, bytes] : output_) {
        if (!name.ends_with(".vml")) {
            continue;
        }
        pugi::xml_document document;
        for (const pugi::xml_node shape : Parsed(document, name).children("v:shape")) {
            ids.insert(shape.attribute("id").value());
            ++shapes;
        }
    }
    EXPECT_EQ(shapes, 4u);
    EXPECT_EQ(ids.size(), shapes);
}

TEST_F(LegacyDrawingRoundTripTest, TheIconKeepsItsImageUnderItsRelationshipId) {
    const std::string vml = RelatedPart("xl/worksheets/sheet1.xml", "vmlDrawing");
    const std::string relationships = "xl/drawings/_rels/" + vml.substr(vml.rfind('/') + 1) + ".rels";
    ASSERT_EQ(output_.count(relationships), 1u);
    pugi::xml_document document;
    const pugi::xml_node image = Parsed(document, relationships).find_child_by_attribute("Id", "rId1");
    EXPECT_EQ(image.attribute("Type").value(), Type + "image");
    EXPECT_STREQ(image.attribute("Target").value(), "../media/image1.emf");
    for (const char* part : {"xl/media/image1.emf", "xl/embeddings/oleObject1.bin", "xl/ctrlProps/ctrlProp1.xml"}) {
        ASSERT_EQ(output_.count(part), 1u) << part;
        EXPECT_EQ(output_.at(part), input_.at(part)) << part;
    }
}

TEST_F(LegacyDrawingRoundTripTest, ThePackageIsValidWithTheVmlSchemaToo) {
    std::string output;
    const int status = writer_test::RunCommand(std::string(VOS_SHARED_DIR "/tools/validate-xlsx --strict-vml ") + path_,
                                               output, folder_);
    EXPECT_EQ(status, 0) << output;
    EXPECT_EQ(writer_test::RunCommand(std::string(VOS_SHARED_DIR "/tools/check-xlsx ") + path_, output, folder_), 0)
        << output;
}

}  // namespace
