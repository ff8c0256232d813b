// Text boxes and comments of workbooks written by Excel, read back with what their parts say.

#include "ooxml/opc/package_reader.hpp"

#include <gtest/gtest.h>

namespace {

using ooxml::Color;

const std::string CorpusDir = VOS_SHARED_DIR "/excel-corpus/";

ooxml::SheetDocument FirstSheet(const std::string& relativePath) {
    return ooxml::ReadPackage(CorpusDir + relativePath).sheets.at(0);
}

ooxml::DrawingShape OnlyTextBox(const std::string& name) {
    const ooxml::SheetDocument sheet = FirstSheet("cells-drawings-xlsxwriter/xw__" + name + ".xlsx");
    EXPECT_EQ(sheet.shapes.size(), 1u) << name;
    return sheet.shapes.empty() ? ooxml::DrawingShape{} : sheet.shapes.front();
}

TEST(ExcelCorpusDrawingReaderTest, TextBoxWithExcelsDefaults) {
    const ooxml::DrawingShape box = OnlyTextBox("textbox01");
    EXPECT_EQ(box.id, 2u);
    EXPECT_EQ(box.name, "TextBox 1");
    EXPECT_EQ(box.editAs, "twoCell");
    EXPECT_EQ(box.from, (ooxml::CellAnchor{4, 0, 8, 0}));
    EXPECT_EQ(box.to, (ooxml::CellAnchor{7, 0, 14, 0}));
    EXPECT_EQ(box.x, 2438400);
    EXPECT_EQ(box.y, 1524000);
    EXPECT_EQ(box.width, 1828800);
    EXPECT_EQ(box.height, 1143000);
    EXPECT_EQ(box.fill, (Color{Color::Kind::Theme, 0, 0, 0.0}));
    // Excel's outline is Background 1 shaded by half, the nearest tint of which is -0.5.
    EXPECT_EQ(box.line, (Color{Color::Kind::Theme, 0, 0, -0.5}));
    EXPECT_EQ(box.lineWidth, 9525);
    EXPECT_EQ(box.insetLeft, 91440);
    EXPECT_EQ(box.insetTop, 45720);
    EXPECT_TRUE(box.wrap);
    EXPECT_FALSE(box.autoFit);
    EXPECT_EQ(box.verticalAnchor, "t");
    EXPECT_EQ(box.alignment, "l");
    EXPECT_EQ(box.macro, "");
    EXPECT_FALSE(box.hidden);
    EXPECT_EQ(box.text.text, "This is some text");
    EXPECT_TRUE(box.text.runs.empty());
}

TEST(ExcelCorpusDrawingReaderTest, ParagraphsAndAnEmptyOneBecomeLineFeeds) {
    const ooxml::DrawingShape box = OnlyTextBox("textbox09");
    EXPECT_EQ(box.text.text, "This\nis\n\nsome long text");
    EXPECT_TRUE(box.text.runs.empty());
}

TEST(ExcelCorpusDrawingReaderTest, FillLineAndTheirAbsence) {
    EXPECT_EQ(OnlyTextBox("textbox11").fill, (Color{Color::Kind::Rgb, 0xFFFF0000, 0, 0.0}));
    EXPECT_FALSE(OnlyTextBox("textbox12").fill);
    EXPECT_FALSE(OnlyTextBox("textbox14").line);
    EXPECT_EQ(OnlyTextBox("textbox25").lineWidth, 41275);
}

TEST(ExcelCorpusDrawingReaderTest, VerticalAnchorAndAlignment) {
    EXPECT_EQ(OnlyTextBox("textbox16").verticalAnchor, "ctr");
    EXPECT_EQ(OnlyTextBox("textbox17").verticalAnchor, "b");
    const ooxml::SheetDocument aligned = FirstSheet("cells-drawings-xlsxwriter/xw__textbox41.xlsx");
    std::vector<std::string> alignments;
    for (const ooxml::DrawingShape& box : aligned.shapes) {
        alignments.push_back(box.alignment);
    }
    EXPECT_EQ(alignments, (std::vector<std::string>{"l", "l", "ctr", "r"}));
}

TEST(ExcelCorpusDrawingReaderTest, RunFonts) {
    const ooxml::DrawingShape emphasised = OnlyTextBox("textbox21");
    ASSERT_EQ(emphasised.text.runs.size(), 1u);
    ooxml::Font expected;
    expected.size = 12;
    expected.bold = true;
    expected.italic = true;
    expected.underline = "single";
    EXPECT_EQ(emphasised.text.runs[0].font, expected);
    EXPECT_EQ(emphasised.text.text, "This is some text");

    const ooxml::DrawingShape arial = OnlyTextBox("textbox22");
    ASSERT_EQ(arial.text.runs.size(), 1u);
    EXPECT_EQ(arial.text.runs[0].font->name, "Arial");
    EXPECT_EQ(arial.text.runs[0].font->family, 2);  // pitchFamily 34: Swiss
    EXPECT_EQ(arial.text.runs[0].font->scheme, "");

    const ooxml::DrawingShape red = OnlyTextBox("textbox24");
    ASSERT_EQ(red.text.runs.size(), 1u) << "runs in one font are one run";
    EXPECT_EQ(red.text.runs[0].text, "This\nis\n\nsome long text");
    EXPECT_EQ(red.text.runs[0].font->color, (Color{Color::Kind::Rgb, 0xFFFF0000, 0, 0.0}));
}

// A picture stays carried; the chart is read, and the text box follows it in z-order.
TEST(ExcelCorpusDrawingReaderTest, PicturesArePassedOverAndChartsRead) {
    const ooxml::SheetDocument sheet = FirstSheet("cells-drawings-xlsxwriter/xw__textbox05.xlsx");
    ASSERT_EQ(sheet.shapes.size(), 2u);
    EXPECT_EQ(sheet.shapes[0].name, "Chart 2");
    EXPECT_TRUE(sheet.shapes[0].chart);
    EXPECT_EQ(sheet.shapes[1].id, 4u);
    EXPECT_EQ(sheet.shapes[1].name, "TextBox 3");
    EXPECT_FALSE(sheet.shapes[1].chart);
}

TEST(ExcelCorpusDrawingReaderTest, CommentsWithTheirNotes) {
    const ooxml::SheetDocument sheet = FirstSheet("cells-drawings-xlsxwriter/xw__comment02.xlsx");
    ASSERT_EQ(sheet.comments.size(), 2u);
    const ooxml::CellComment& first = sheet.comments[0];
    EXPECT_EQ(first.row, 2u);
    EXPECT_EQ(first.column, 2u);
    EXPECT_EQ(first.author, "John");
    EXPECT_EQ(first.text.text, "Some text");
    ASSERT_EQ(first.text.runs.size(), 1u);
    EXPECT_EQ(first.text.runs[0].font->name, "Tahoma");
    EXPECT_EQ(first.text.runs[0].font->size, 8.0);
    EXPECT_EQ(first.text.runs[0].font->color.kind, Color::Kind::Indexed);
    EXPECT_FALSE(first.visible);
    EXPECT_EQ(first.left, 107.25);
    EXPECT_EQ(first.top, 7.5);
    EXPECT_EQ(first.width, 96.0);
    EXPECT_EQ(first.height, 55.5);
    EXPECT_EQ(first.anchor, (ooxml::LegacyAnchor{2, 15, 0, 10, 4, 15, 4, 4}));
    // Excel writes both flags for a new note, which then neither moves nor sizes with its cells.
    EXPECT_FALSE(first.moveWithCells);
    EXPECT_FALSE(first.sizeWithCells);
    EXPECT_EQ(first.fillRgb, 0xFFFFE1u);
    EXPECT_EQ(first.lineRgb, 0x000000u);
    EXPECT_EQ(first.lineWeight, 0.75);
    EXPECT_FALSE(first.insets);

    EXPECT_EQ(sheet.comments[1].row, 17u);
    EXPECT_EQ(sheet.comments[1].column, 4u);
    EXPECT_EQ(sheet.comments[1].text.text, "More text");
    EXPECT_EQ(sheet.comments[1].anchor, (ooxml::LegacyAnchor{4, 15, 15, 10, 6, 15, 19, 4}));
}

TEST(ExcelCorpusDrawingReaderTest, NotesAreMatchedToTheirCommentsByCell) {
    const ooxml::SheetDocument sheet = FirstSheet("realworld-excel/poi__commentTest.xlsx");
    ASSERT_EQ(sheet.comments.size(), 14u);
    const ooxml::CellComment& a1 = sheet.comments[0];
    EXPECT_EQ(a1.row, 1u);
    EXPECT_EQ(a1.column, 1u);
    EXPECT_EQ(a1.author, "Shaun Kalley");
    EXPECT_EQ(a1.text.text, "Shaun Kalley:\nComment A1");
    ASSERT_EQ(a1.text.runs.size(), 2u);
    EXPECT_TRUE(a1.text.runs[0].font->bold);
    EXPECT_FALSE(a1.text.runs[1].font->bold);
    EXPECT_EQ(a1.top, 2.0);
    EXPECT_EQ(a1.width, 104.0);
    EXPECT_EQ(a1.anchor, (ooxml::LegacyAnchor{1, 15, 0, 2, 2, 54, 4, 6}));
    EXPECT_EQ(a1.fillRgb, 0xFBF6D6u);
    EXPECT_EQ(a1.lineRgb, 0xEDEAA1u);
    for (std::size_t i = 1; i < sheet.comments.size(); ++i) {
        const ooxml::CellComment& before = sheet.comments[i - 1];
        const ooxml::CellComment& after = sheet.comments[i];
        EXPECT_TRUE(before.row < after.row || (before.row == after.row && before.column < after.column)) << i;
    }
}

}  // namespace
