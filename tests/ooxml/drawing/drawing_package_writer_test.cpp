// How a package holds the sheets' text boxes and comments: parts, content types, relationships,
// the worksheets' references and the conformance tools' verdict.

#include "ooxml/opc/package_writer.hpp"
#include "ooxml/writer_test_support.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace ooxml;
using namespace writer_test;
using ::testing::HasSubstr;
using ::testing::Not;

class DrawingPackageWriterTest : public ::testing::Test {
protected:
    void SetUp() override {
        path_ = folder_.File("drawings.xlsx");
        WritePackage(FullDocument(), path_);
    }

    // The target of the sheet's relationship with that id, checking its type.
    std::string Target(const std::string& sheetRels, const std::string& id, const std::string& type) {
        auto rels = ParsePart(path_, sheetRels);
        const pugi::xml_node relationship =
            rels->child("Relationships").find_child_by_attribute("Relationship", "Id", id.c_str());
        EXPECT_STREQ(relationship.attribute("Type").value(),
                     ("http://schemas.openxmlformats.org/officeDocument/2006/relationships/" + type).c_str());
        return relationship.attribute("Target").value();
    }

    ScratchFolder folder_;
    std::string path_;
};

TEST_F(DrawingPackageWriterTest, DrawingsAndCommentsHaveTheirContentTypes) {
    auto types = ParsePart(path_, "[Content_Types].xml");
    const pugi::xml_node root = types->child("Types");
    EXPECT_STREQ(root.find_child_by_attribute("Default", "Extension", "vml").attribute("ContentType").value(),
                 "application/vnd.openxmlformats-officedocument.vmlDrawing");
    EXPECT_FALSE(root.find_child_by_attribute("Override", "PartName", "/xl/drawings/vmlDrawing1.vml"));
    EXPECT_STREQ(root.find_child_by_attribute("Override", "PartName", "/xl/drawings/drawing1.xml")
                     .attribute("ContentType")
                     .value(),
                 "application/vnd.openxmlformats-officedocument.drawing+xml");
    for (const char* comments : {"/xl/comments1.xml", "/xl/comments2.xml"}) {
        EXPECT_STREQ(root.find_child_by_attribute("Override", "PartName", comments).attribute("ContentType").value(),
                     "application/vnd.openxmlformats-officedocument.spreadsheetml.comments+xml")
            << comments;
    }
}

TEST_F(DrawingPackageWriterTest, WorksheetsReferToTheirDrawingsAfterThePageMargins) {
    auto sheet = ParsePart(path_, "xl/worksheets/sheet1.xml");
    const pugi::xml_node worksheet = sheet->child("worksheet");
    const pugi::xml_node drawing = worksheet.child("drawing");
    const pugi::xml_node legacyDrawing = worksheet.child("legacyDrawing");
    ASSERT_TRUE(drawing);
    ASSERT_TRUE(legacyDrawing);
    EXPECT_EQ(drawing.previous_sibling(), worksheet.child("pageMargins"));
    EXPECT_EQ(drawing.next_sibling(), legacyDrawing);
    EXPECT_EQ(Target("xl/worksheets/_rels/sheet1.xml.rels", drawing.attribute("r:id").value(), "drawing"),
              "../drawings/drawing1.xml");
    EXPECT_EQ(Target("xl/worksheets/_rels/sheet1.xml.rels", legacyDrawing.attribute("r:id").value(), "vmlDrawing"),
              "../drawings/vmlDrawing1.vml");
    auto rels = ParsePart(path_, "xl/worksheets/_rels/sheet1.xml.rels");
    EXPECT_STREQ(rels->child("Relationships")
                     .find_child_by_attribute("Relationship", "Target", "../comments1.xml")
                     .attribute("Type")
                     .value(),
                 "http://schemas.openxmlformats.org/officeDocument/2006/relationships/comments");

    auto hidden = ParsePart(path_, "xl/worksheets/sheet2.xml");
    EXPECT_FALSE(hidden->child("worksheet").child("drawing"));
    EXPECT_EQ(Target("xl/worksheets/_rels/sheet2.xml.rels",
                     hidden->child("worksheet").child("legacyDrawing").attribute("r:id").value(), "vmlDrawing"),
              "../drawings/vmlDrawing2.vml");
    EXPECT_FALSE(ZipEntry(path_, "xl/worksheets/_rels/sheet3.xml.rels")) << "a sheet without drawings has no rels";
}

TEST_F(DrawingPackageWriterTest, EachSheetsNotesHaveIdsOfTheirOwn) {
    auto first = ParsePart(path_, "xl/drawings/vmlDrawing1.vml");
    auto second = ParsePart(path_, "xl/drawings/vmlDrawing2.vml");
    EXPECT_STREQ(first->child("xml").child("o:shapelayout").child("o:idmap").attribute("data").value(), "1");
    EXPECT_STREQ(second->child("xml").child("o:shapelayout").child("o:idmap").attribute("data").value(), "2");
    EXPECT_STREQ(second->child("xml").child("v:shape").attribute("id").value(), "_x0000_s2049");
}

TEST_F(DrawingPackageWriterTest, PassesSchemaValidationWithTheVmlSchemaToo) {
    std::string output;
    const int status =
        RunCommand(std::string(VOS_SHARED_DIR "/tools/validate-xlsx --strict-vml ") + path_, output, folder_);
    EXPECT_EQ(status, 0) << output;
    EXPECT_THAT(output, Not(HasSubstr("FAIL"))) << output;
    EXPECT_THAT(output, Not(HasSubstr("WARN "))) << output;
    EXPECT_THAT(output, HasSubstr("PASS  xl/drawings/vmlDrawing1.vml")) << output;
    EXPECT_THAT(output, HasSubstr("PASS  xl/drawings/drawing1.xml")) << output;
}

TEST_F(DrawingPackageWriterTest, PassesTheLogicalChecks) {
    std::string output;
    const int status = RunCommand(std::string(VOS_SHARED_DIR "/tools/check-xlsx ") + path_, output, folder_);
    EXPECT_EQ(status, 0) << output;
    EXPECT_THAT(output, Not(HasSubstr("ERROR"))) << output;
}

}  // namespace
