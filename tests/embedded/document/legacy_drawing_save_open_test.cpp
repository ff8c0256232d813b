// A workbook whose legacy drawings hold notes beside other shapes (the icons and pictures of
// embedded documents, buttons), opened and saved again: the engine writes the notes anew and keeps
// the other shapes as they were, under their ids, with their images.

#include "embedded/document/save_open_fixture.hpp"
#include "ooxml/reader_test_package.hpp"

#include <pugixml.hpp>

#include <set>
#include <sstream>
#include <string>
#include <vector>

using namespace excel;

namespace {

constexpr const char* Attachments = "realworld-excel/poi__ExcelWithAttachments.xlsm";

bool IsNote(pugi::xml_node shape) {
    return std::string_view(shape.child("x:ClientData").attribute("ObjectType").value()) == "Note";
}

// The shapes of a VML drawing that are not notes, each as markup, and how many notes it has.
struct VmlShapes {
    std::vector<std::string> others;
    std::size_t notes = 0;
    std::vector<std::string> ids;  // of every shape
    std::string idmap;
};

VmlShapes ShapesOf(const std::string& vml) {
    pugi::xml_document document;
    EXPECT_TRUE(document.load_string(vml.c_str()));
    const pugi::xml_node root = document.document_element();
    VmlShapes shapes;
    shapes.idmap = root.child("o:shapelayout").child("o:idmap").attribute("data").value();
    for (const pugi::xml_node child : root.children()) {
        const std::string_view name = child.name();
        if (name == "o:shapelayout" || name == "v:shapetype") {
            continue;
        }
        shapes.ids.emplace_back(child.attribute("o:spid") ? child.attribute("o:spid").value()
                                                          : child.attribute("id").value());
        if (IsNote(child)) {
            ++shapes.notes;
            continue;
        }
        std::ostringstream markup;
        child.print(markup, "", pugi::format_raw);
        shapes.others.push_back(markup.str());
    }
    return shapes;
}

std::vector<std::string> VmlParts(const ooxml_test::PackageParts& parts) {
    std::vector<std::string> names;
    for (const auto& [name, bytes] : parts) {
        if (name.ends_with(".vml")) {
            names.push_back(name);
        }
    }
    return names;
}

class LegacyDrawingSaveOpenTest : public SaveOpenTest {};

TEST_F(LegacyDrawingSaveOpenTest, EmbeddedDocumentsKeepTheirIconsBesideTheNotes) {
    const ooxml_test::PackageParts input = ooxml_test::ReadPackageParts(CorpusPath(Attachments));
    auto workbook = OpenCorpus(Attachments);
    const ooxml_test::PackageParts output = Saved(workbook, "copy.xlsm");
    for (const auto& [part, bytes] : input) {
        if (part.starts_with("xl/media/") || part.starts_with("xl/embeddings/")) {
            SCOPED_TRACE(part);
            ASSERT_EQ(output.count(part), 1u);
            EXPECT_TRUE(output.at(part) == bytes);
        }
    }
    const VmlShapes opened = ShapesOf(input.at("xl/drawings/vmlDrawing1.vml"));
    ASSERT_EQ(VmlParts(output), std::vector<std::string>{"xl/drawings/vmlDrawing1.vml"});
    const VmlShapes saved = ShapesOf(output.at("xl/drawings/vmlDrawing1.vml"));
    EXPECT_EQ(opened.others.size(), 4u);
    EXPECT_EQ(saved.others, opened.others);
    EXPECT_EQ(saved.notes, opened.notes);
    EXPECT_EQ(std::set<std::string>(saved.ids.begin(), saved.ids.end()).size(), saved.ids.size());
    // The pictures keep block 1, which the sheet's oleObjects refer to (shapeId="1032"); the notes take block 2.
    EXPECT_EQ(saved.idmap, "1,2");
    EXPECT_NE(output.at("xl/worksheets/sheet1.xml").find(R"(shapeId="1032")"), std::string::npos);
    for (const char* image :
         {"../media/image1.emf", "../media/image2.emf", "../media/image3.emf", "../media/image4.emf"}) {
        EXPECT_NE(output.at("xl/drawings/_rels/vmlDrawing1.vml.rels").find(image), std::string::npos) << image;
    }
    EXPECT_EQ(RunTool("validate-xlsx", PathOf("copy.xlsm")), 0);
    EXPECT_EQ(RunTool("check-xlsx", PathOf("copy.xlsm")), 0);
}

TEST_F(LegacyDrawingSaveOpenTest, TheIconsStayWhenTheNotesAreCleared) {
    const ooxml_test::PackageParts input = ooxml_test::ReadPackageParts(CorpusPath(Attachments));
    auto workbook = OpenCorpus(Attachments);
    workbook->Worksheets(1)->Cells()->ClearComments();
    const ooxml_test::PackageParts output = Saved(workbook, "cleared.xlsm");
    ASSERT_EQ(VmlParts(output).size(), 1u);
    const VmlShapes saved = ShapesOf(output.at(VmlParts(output).front()));
    EXPECT_EQ(saved.notes, 0u);
    EXPECT_EQ(saved.others, ShapesOf(input.at("xl/drawings/vmlDrawing1.vml")).others);
    EXPECT_EQ(saved.idmap, "1");
    EXPECT_EQ(output.count("xl/comments1.xml"), 0u);
    EXPECT_EQ(RunTool("validate-xlsx", PathOf("cleared.xlsm")), 0);
    EXPECT_EQ(RunTool("check-xlsx", PathOf("cleared.xlsm")), 0);
}

// Two sheets with buttons and notes, the first with 2,048 notes over blocks 1 to 3 and its buttons
// in block 1, the other with its button in block 4: every shape of the workbook keeps an id of its own.
TEST_F(LegacyDrawingSaveOpenTest, ButtonsKeepTheirIdsAndNotesTakeOthers) {
    const std::string name = "cells-drawings-xlsxwriter/rxw__vml04.xlsx";
    const ooxml_test::PackageParts input = ooxml_test::ReadPackageParts(CorpusPath(name));
    auto workbook = OpenCorpus(name);
    const ooxml_test::PackageParts output = Saved(workbook, "copy.xlsx");
    std::set<std::string> ids;
    std::size_t shapes = 0;
    std::set<std::string> idmaps;
    for (const std::string& part : VmlParts(output)) {
        SCOPED_TRACE(part);
        const VmlShapes saved = ShapesOf(output.at(part));
        const VmlShapes opened = ShapesOf(input.at(part));
        EXPECT_EQ(saved.others, opened.others);
        EXPECT_EQ(saved.notes, opened.notes);
        ids.insert(saved.ids.begin(), saved.ids.end());
        shapes += saved.ids.size();
        idmaps.insert(saved.idmap);
    }
    EXPECT_EQ(shapes, 2048u + 3u + 1u + 1u);
    EXPECT_EQ(ids.size(), shapes);
    EXPECT_EQ(idmaps, (std::set<std::string>{"1,2,3,5", "4,6"}));
    EXPECT_EQ(RunTool("validate-xlsx", PathOf("copy.xlsx")), 0);
    EXPECT_EQ(RunTool("check-xlsx", PathOf("copy.xlsx")), 0);
}

// A form control moves with the cells under it as its VML anchor says: this one moves but is not
// sized with them (<x:SizeWithCells/>).
TEST_F(LegacyDrawingSaveOpenTest, FormControlsMoveWithTheirCells) {
    const std::string name = "realworld-excel/poi__45540_form_Footer.xlsx";
    const auto anchorOf = [](const std::string& vml, const std::string& shape) {
        const std::size_t at = vml.find("<x:Anchor>", vml.find(shape));
        const std::size_t start = vml.find_first_of("0123456789", at);
        return vml.substr(start, vml.find("</x:Anchor>", start) - start);
    };
    EXPECT_EQ(anchorOf(ooxml_test::ReadPackageParts(CorpusPath(name)).at("xl/drawings/vmlDrawing1.vml"), "CheckBox28"),
              "5, 3, 7, 9, 5, 24, 8, 6");
    auto workbook = OpenCorpus(name);
    workbook->Worksheets(1)->Range("A1:A2")->EntireRow()->Insert();
    const ooxml_test::PackageParts output = Saved(workbook, "moved.xlsx");
    const std::vector<std::string> vml = VmlParts(output);
    ASSERT_EQ(vml.size(), 1u);
    EXPECT_EQ(anchorOf(output.at(vml[0]), "CheckBox28"), "5, 3, 9, 9, 5, 24, 10, 6");
    EXPECT_EQ(RunTool("check-xlsx", PathOf("moved.xlsx")), 0);
}

// A form control's own anchor in the sheet moves with its cells too (moveWithCells, not sized).
TEST_F(LegacyDrawingSaveOpenTest, FormControlAnchorsInTheSheetMoveWithTheirCells) {
    auto workbook = OpenCorpus("realworld-excel/cxml__Other__Shapes__sheet-with-form-controls-input.xlsx");
    workbook->Worksheets(1)->Range("A1")->EntireRow()->Insert();
    const std::string sheet = Saved(workbook, "moved.xlsx").at("xl/worksheets/sheet1.xml");
    const std::size_t control = sheet.find(R"(name="Option Button 1")");
    ASSERT_NE(control, std::string::npos);
    const std::string anchor = sheet.substr(control, sheet.find("</anchor>", control) - control);
    EXPECT_NE(anchor.find("<xdr:row>3</xdr:row><xdr:rowOff>133350</xdr:rowOff></from>"), std::string::npos) << anchor;
    EXPECT_NE(anchor.find("<xdr:row>4</xdr:row><xdr:rowOff>152400</xdr:rowOff></to>"), std::string::npos) << anchor;
    EXPECT_EQ(RunTool("check-xlsx", PathOf("moved.xlsx")), 0);
}

}  // namespace
