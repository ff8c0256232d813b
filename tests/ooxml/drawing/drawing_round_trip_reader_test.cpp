// Text boxes and comments written by WritePackage and read back by ReadPackage are the same.

#include "ooxml/opc/package_reader.hpp"
#include "ooxml/opc/package_writer.hpp"
#include "ooxml/reader_test_package.hpp"
#include "ooxml/writer_test_support.hpp"

#include <gtest/gtest.h>

namespace {

using namespace ooxml;

void ExpectSameTextBox(const DrawingShape& read, const DrawingShape& written) {
    SCOPED_TRACE(written.name);
    EXPECT_EQ(read.id, written.id);
    EXPECT_EQ(read.name, written.name);
    EXPECT_EQ(read.editAs, written.editAs);
    EXPECT_EQ(read.from, written.from);
    EXPECT_EQ(read.to, written.to);
    EXPECT_EQ(read.x, written.x);
    EXPECT_EQ(read.y, written.y);
    EXPECT_EQ(read.width, written.width);
    EXPECT_EQ(read.height, written.height);
    EXPECT_EQ(read.fill, written.fill);
    EXPECT_DOUBLE_EQ(read.fillTransparency, written.fillTransparency);
    EXPECT_EQ(read.line, written.line);
    EXPECT_EQ(read.lineWidth, written.lineWidth);
    EXPECT_EQ(read.insetLeft, written.insetLeft);
    EXPECT_EQ(read.insetTop, written.insetTop);
    EXPECT_EQ(read.insetRight, written.insetRight);
    EXPECT_EQ(read.insetBottom, written.insetBottom);
    EXPECT_EQ(read.wrap, written.wrap);
    EXPECT_EQ(read.autoFit, written.autoFit);
    EXPECT_EQ(read.verticalAnchor, written.verticalAnchor);
    EXPECT_EQ(read.alignment, written.alignment);
    EXPECT_EQ(read.macro, written.macro);
    EXPECT_EQ(read.hidden, written.hidden);
    EXPECT_EQ(read.text, written.text);
}

void ExpectSameComment(const CellComment& read, const CellComment& written) {
    SCOPED_TRACE(std::to_string(written.row) + "," + std::to_string(written.column));
    EXPECT_EQ(read.row, written.row);
    EXPECT_EQ(read.column, written.column);
    EXPECT_EQ(read.author, written.author);
    EXPECT_EQ(read.text, written.text);
    EXPECT_EQ(read.visible, written.visible);
    EXPECT_TRUE(read.hasShape);
    EXPECT_EQ(read.left, written.left);
    EXPECT_EQ(read.top, written.top);
    EXPECT_EQ(read.width, written.width);
    EXPECT_EQ(read.height, written.height);
    EXPECT_EQ(read.anchor, written.anchor);
    EXPECT_EQ(read.moveWithCells, written.moveWithCells);
    EXPECT_EQ(read.sizeWithCells, written.sizeWithCells);
    EXPECT_EQ(read.fillRgb, written.fillRgb);
    EXPECT_EQ(read.lineRgb, written.lineRgb);
    EXPECT_EQ(read.lineWeight, written.lineWeight);
    EXPECT_EQ(read.insets, written.insets);
}

TEST(DrawingRoundTripReaderTest, TextBoxesAndCommentsReadBackFieldByField) {
    const writer_test::ScratchFolder folder;
    const std::string path = folder.File("drawings.xlsx");
    const WorkbookDocument written = writer_test::FullDocument();
    WritePackage(written, path);
    const WorkbookDocument read = ReadPackage(path);
    ASSERT_EQ(read.sheets.size(), written.sheets.size());
    for (std::size_t sheet = 0; sheet < written.sheets.size(); ++sheet) {
        const SheetDocument& before = written.sheets[sheet];
        const SheetDocument& after = read.sheets[sheet];
        ASSERT_EQ(after.shapes.size(), before.shapes.size()) << sheet;
        for (std::size_t i = 0; i < before.shapes.size(); ++i) {
            ExpectSameTextBox(after.shapes[i], before.shapes[i]);
        }
        ASSERT_EQ(after.comments.size(), before.comments.size()) << sheet;
        for (std::size_t i = 0; i < before.comments.size(); ++i) {
            ExpectSameComment(after.comments[i], before.comments[i]);
        }
    }
}

// A comments part without a legacy drawing: the comments are read, marked as having no shape.
TEST(DrawingRoundTripReaderTest, CommentsWithoutNotesAreReadWithoutShapes) {
    ooxml_test::PackageParts parts = ooxml_test::MinimalPackage("<sheetData/>");
    parts["xl/worksheets/_rels/sheet1.xml.rels"] =
        R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)"
        R"(<Relationship Id="rId1" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/comments")"
        R"( Target="../comments1.xml"/></Relationships>)";
    parts["xl/comments1.xml"] =
        R"(<comments xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main"><authors><author>A</author>)"
        R"(</authors><commentList><comment ref="D17" authorId="0"><text><t>later</t></text></comment>)"
        R"(<comment ref="A1" authorId="7"><text><t>first</t></text></comment>)"
        R"(<comment ref="A1" authorId="0"><text><t>again</t></text></comment>)"
        R"(<comment ref="nowhere" authorId="0"><text><t>lost</t></text></comment></commentList></comments>)";
    const ooxml_test::TemporaryPackage package(parts);
    const std::vector<CellComment> comments = ReadPackage(package.Path()).sheets.at(0).comments;
    ASSERT_EQ(comments.size(), 2u);
    EXPECT_EQ(comments[0].text.text, "first");
    EXPECT_EQ(comments[0].author, "") << "an author id beyond the list names nobody";
    EXPECT_FALSE(comments[0].hasShape);
    EXPECT_EQ(comments[1].author, "A");
    EXPECT_FALSE(comments[1].hasShape);
    EXPECT_FALSE(comments[1].visible);
}

// Excel's VML is not always XML; a note shape the reader cannot parse leaves the defaults.
TEST(DrawingRoundTripReaderTest, AMalformedLegacyDrawingLeavesTheNotesDefaults) {
    ooxml_test::PackageParts parts = ooxml_test::MinimalPackage(R"(<sheetData/><legacyDrawing r:id="rId2"/>)");
    parts["xl/worksheets/_rels/sheet1.xml.rels"] =
        R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)"
        R"(<Relationship Id="rId1" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/comments")"
        R"( Target="../comments1.xml"/>)"
        R"(<Relationship Id="rId2" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/vmlDrawing")"
        R"( Target="../drawings/vmlDrawing1.vml"/></Relationships>)";
    parts["xl/comments1.xml"] =
        R"(<comments xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main"><authors/><commentList>)"
        R"(<comment ref="B2" authorId="0"><text><t>note</t></text></comment></commentList></comments>)";
    parts["xl/drawings/vmlDrawing1.vml"] = "<xml><v:shape><br></v:shape></xml>";
    const ooxml_test::TemporaryPackage package(parts);
    const std::vector<CellComment> comments = ReadPackage(package.Path()).sheets.at(0).comments;
    ASSERT_EQ(comments.size(), 1u);
    EXPECT_FALSE(comments[0].hasShape) << "placed as a new comment when opened";
    EXPECT_EQ(comments[0].fillRgb, 0xFFFFE1u);
}

}  // namespace
