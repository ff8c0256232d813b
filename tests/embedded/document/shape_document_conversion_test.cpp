#include "excel/embedded/document/workbook_document_conversion.hpp"
#include "excel/embedded/model/application_model.hpp"
#include "excel/embedded/model/workbook_model.hpp"
#include "excel/embedded/objects/book/workbook_view.hpp"
#include "excel/embedded/objects/book/worksheet_view.hpp"

#include <excel/excel.hpp>

#include <gtest/gtest.h>

#include <memory>

namespace excel::embedded {
namespace {

class ShapeDocumentConversion : public ::testing::Test {
protected:
    void SetUp() override {
        app = std::make_shared<ApplicationModel>();
        app->userName = "Reporter";
        book = app->AddWorkbook();
        sheet = std::make_shared<WorksheetView>(book->Sheets().front());
    }

    const ooxml::SheetDocument& Saved() {
        document = ToDocument(*book, "test");
        return document.sheets.front();
    }

    // The saved document opened into a new workbook, whose first sheet answers.
    std::shared_ptr<excel::Worksheet> Reopened() {
        const ooxml::WorkbookDocument saved = ToDocument(*book, "test");
        reopened = std::make_shared<WorkbookModel>(*app, "Reopened.xlsx");
        LoadDocument(*reopened, saved);
        return std::make_shared<WorksheetView>(reopened->Sheets().front());
    }

    std::shared_ptr<excel::Shape> AddBox(double left, double top, double width, double height) {
        return sheet->Shapes()->AddTextbox(msoTextOrientationHorizontal, left, top, width, height);
    }

    std::shared_ptr<ApplicationModel> app;
    std::shared_ptr<WorkbookModel> book;
    std::shared_ptr<WorkbookModel> reopened;
    std::shared_ptr<excel::Worksheet> sheet;
    ooxml::WorkbookDocument document;
};

TEST_F(ShapeDocumentConversion, TextBoxGeometryAndAnchors) {
    AddBox(50, 20, 100, 30)->SetPlacement(xlMove);
    const auto& boxes = Saved().shapes;
    ASSERT_EQ(boxes.size(), 1u);
    const ooxml::DrawingShape& box = boxes.front();
    EXPECT_EQ(box.id, 2u);
    EXPECT_EQ(box.name, "TextBox 1");
    EXPECT_EQ(box.editAs, "oneCell");
    EXPECT_EQ(box.x, 50 * 12700);
    EXPECT_EQ(box.y, 20 * 12700);
    EXPECT_EQ(box.width, 100 * 12700);
    EXPECT_EQ(box.height, 30 * 12700);
    // B2 + (2pt, 5pt) to D4 + (6pt, 5pt), 0-based.
    EXPECT_EQ(box.from, (ooxml::CellAnchor{1, 2 * 12700, 1, 5 * 12700}));
    EXPECT_EQ(box.to, (ooxml::CellAnchor{3, 6 * 12700, 3, 5 * 12700}));
}

TEST_F(ShapeDocumentConversion, TextBoxDefaultsAsExcelWritesThem) {
    AddBox(0, 0, 100, 30);
    const ooxml::DrawingShape& box = Saved().shapes.front();
    EXPECT_EQ(box.editAs, "twoCell");
    ASSERT_TRUE(box.fill.has_value());
    EXPECT_EQ(*box.fill, (ooxml::Color{ooxml::Color::Kind::Theme, 0, 0, 0.0}));
    ASSERT_TRUE(box.line.has_value());
    EXPECT_EQ(*box.line, (ooxml::Color{ooxml::Color::Kind::Theme, 0, 0, -0.5}));
    EXPECT_EQ(box.lineWidth, 9525);
    EXPECT_EQ(box.insetLeft, 91440);
    EXPECT_EQ(box.insetTop, 45720);
    EXPECT_EQ(box.insetRight, 91440);
    EXPECT_EQ(box.insetBottom, 45720);
    EXPECT_TRUE(box.wrap);
    EXPECT_FALSE(box.autoFit);
    EXPECT_EQ(box.verticalAnchor, "t");
    EXPECT_EQ(box.alignment, "l");
    EXPECT_FALSE(box.hidden);
}

TEST_F(ShapeDocumentConversion, TextBoxFormattingAndText) {
    auto shape = AddBox(0, 0, 100, 30);
    auto frame = shape->TextFrame();
    frame->Characters()->SetText("Title\nBody");
    frame->Characters(1, 5)->Font()->SetBold(true);
    frame->SetMarginLeft(0);
    frame->SetVerticalAlignment(xlVAlignCenter);
    frame->SetHorizontalAlignment(xlHAlignRight);
    shape->TextFrame2()->SetWordWrap(msoFalse);
    shape->Fill()->SetVisible(msoFalse);
    shape->Line()->ForeColor()->SetObjectThemeColor(msoThemeColorAccent2);
    shape->Line()->SetWeight(2);
    shape->SetOnAction("Refresh");
    frame->SetAutoSize(true);
    const ooxml::DrawingShape& box = Saved().shapes.front();
    EXPECT_FALSE(box.fill.has_value());
    EXPECT_EQ(*box.line, (ooxml::Color{ooxml::Color::Kind::Theme, 0, 5, 0.0}));
    EXPECT_EQ(box.lineWidth, 2 * 12700);
    EXPECT_EQ(box.insetLeft, 0);
    EXPECT_EQ(box.insetTop, 45720);
    EXPECT_FALSE(box.wrap);
    EXPECT_TRUE(box.autoFit);
    EXPECT_EQ(box.verticalAnchor, "ctr");
    EXPECT_EQ(box.alignment, "r");
    EXPECT_EQ(box.macro, "[0]!Refresh");  // a procedure of the workbook itself, as Excel names it
    EXPECT_EQ(box.text.text, "Title\nBody");
    ASSERT_EQ(box.text.runs.size(), 2u);
    EXPECT_TRUE(box.text.runs[0].font->bold);
    EXPECT_FALSE(box.text.runs[1].font->bold);
    EXPECT_EQ(box.text.runs[1].font->name, "Calibri");
}

TEST_F(ShapeDocumentConversion, PaletteColoursOfTextBoxRunsAreSavedAsTheRgbTheyShow) {
    // DrawingML has no palette: a run coloured by ColorIndex is saved as the colour the workbook's
    // palette gives it, its tint kept; a comment's runs keep the palette index.
    std::make_shared<WorkbookView>(book)->SetColors(3, 0x563412);  // RGB 12 34 56
    auto frame = AddBox(0, 0, 100, 30)->TextFrame();
    frame->Characters()->SetText("ab");
    frame->Characters(1, 1)->Font()->SetColorIndex(3);
    frame->Characters(2, 1)->Font()->SetColorIndex(4);
    sheet->Range("B2")->AddComment("c")->Shape()->TextFrame()->Characters()->Font()->SetColorIndex(3);
    const ooxml::SheetDocument& saved = Saved();
    const auto& runs = saved.shapes.front().text.runs;
    ASSERT_EQ(runs.size(), 2u);
    EXPECT_EQ(runs[0].font->color, (ooxml::Color{ooxml::Color::Kind::Rgb, 0xFF123456, 0, 0.0}));
    EXPECT_EQ(runs[1].font->color, (ooxml::Color{ooxml::Color::Kind::Rgb, 0xFF00FF00, 0, 0.0}));
    EXPECT_EQ(saved.comments.front().text.runs.front().font->color,
              (ooxml::Color{ooxml::Color::Kind::Indexed, 0, 10, 0.0}));
}

TEST_F(ShapeDocumentConversion, CommentFields) {
    auto comment = sheet->Range("B2")->AddComment("Note");
    comment->Shape()->TextFrame()->Characters(1, 2)->Font()->SetBold(true);
    sheet->Range("D17")->AddComment("Other")->SetVisible(true);
    const auto& comments = Saved().comments;
    ASSERT_EQ(comments.size(), 2u);
    const ooxml::CellComment& first = comments[0];
    EXPECT_EQ(first.row, 2u);
    EXPECT_EQ(first.column, 2u);
    EXPECT_EQ(first.author, "Reporter");
    EXPECT_FALSE(first.visible);
    EXPECT_TRUE(comments[1].visible);
    EXPECT_DOUBLE_EQ(first.left, 107.25);
    EXPECT_DOUBLE_EQ(first.top, 7.5);
    EXPECT_DOUBLE_EQ(first.width, 96);
    EXPECT_DOUBLE_EQ(first.height, 55.5);
    // The anchors Excel writes for notes on B2 and D17.
    EXPECT_EQ(first.anchor, (ooxml::LegacyAnchor{2, 15, 0, 10, 4, 15, 4, 4}));
    EXPECT_EQ(comments[1].anchor, (ooxml::LegacyAnchor{4, 15, 15, 10, 6, 15, 19, 4}));
    EXPECT_EQ(first.fillRgb, 0xFFFFE1u);
    EXPECT_EQ(first.lineRgb, 0x000000u);
    EXPECT_DOUBLE_EQ(first.lineWeight, 0.75);
    EXPECT_FALSE(first.insets.has_value());
    EXPECT_TRUE(first.moveWithCells);
    EXPECT_TRUE(first.sizeWithCells);
    ASSERT_EQ(first.text.runs.size(), 2u);
    EXPECT_TRUE(first.text.runs[0].font->bold);
    EXPECT_EQ(first.text.runs[1].font->name, "Tahoma");
    EXPECT_DOUBLE_EQ(first.text.runs[1].font->size, 9);
}

TEST_F(ShapeDocumentConversion, CommentThemeColoursAreSavedResolved) {
    auto shape = sheet->Range("A1")->AddComment("x")->Shape();
    shape->Fill()->ForeColor()->SetObjectThemeColor(msoThemeColorAccent1);
    shape->TextFrame()->SetMarginTop(1);
    const ooxml::CellComment& comment = Saved().comments.front();
    EXPECT_EQ(comment.fillRgb, 0x4472C4u);
    ASSERT_TRUE(comment.insets.has_value());
    EXPECT_DOUBLE_EQ((*comment.insets)[0], 7.2);
    EXPECT_DOUBLE_EQ((*comment.insets)[1], 1);
}

// A file whose comments have no legacy drawing: each is placed as a new comment on that sheet,
// beside its cell as the sheet's own column widths and row heights put it.
TEST_F(ShapeDocumentConversion, CommentsOpenedWithoutShapesArePlacedAsNewOnes) {
    ooxml::WorkbookDocument opened = ToDocument(*book, "test");
    ooxml::CellComment comment;
    comment.row = 2;
    comment.column = 2;
    comment.text.text = "no shape";
    comment.hasShape = false;
    opened.sheets.front().rows.push_back(ooxml::Row{1, 30.0, std::nullopt, false, {}});
    opened.sheets.front().comments.push_back(comment);
    reopened = std::make_shared<WorkbookModel>(*app, "Reopened.xlsx");
    LoadDocument(*reopened, opened);
    const auto shape = WorksheetView(reopened->Sheets().front()).Range("B2")->Comment()->Shape();
    EXPECT_DOUBLE_EQ(shape->Left(), 107.25);
    EXPECT_DOUBLE_EQ(shape->Top(), 22.5) << "7.5 points above row 2, below the 30-point row 1";
    EXPECT_DOUBLE_EQ(shape->Width(), 96);
    EXPECT_DOUBLE_EQ(shape->Height(), 55.5);
}

TEST_F(ShapeDocumentConversion, CommentsAreSavedInRowThenColumnOrder) {
    sheet->Range("C5")->AddComment("c");
    sheet->Range("B5")->AddComment("b");
    sheet->Range("Z1")->AddComment("a");
    const auto& comments = Saved().comments;
    ASSERT_EQ(comments.size(), 3u);
    EXPECT_EQ(comments[0].text.text, "a");
    EXPECT_EQ(comments[1].text.text, "b");
    EXPECT_EQ(comments[2].text.text, "c");
}

TEST_F(ShapeDocumentConversion, TextBoxesComeBackWithEverything) {
    auto shape = AddBox(30, 40, 120, 60);
    auto frame = shape->TextFrame();
    frame->Characters()->SetText("Head\nline");
    frame->Characters(1, 4)->Font()->SetItalic(true);
    frame->Characters()->Font()->SetSize(9);
    frame->SetMarginRight(1.5);
    frame->SetVerticalAlignment(xlVAlignBottom);
    shape->SetPlacement(xlFreeFloating);
    shape->Fill()->ForeColor()->SetRGB(0x336699);
    shape->Line()->ForeColor()->SetObjectThemeColor(msoThemeColorAccent3);
    shape->Line()->ForeColor()->SetTintAndShade(0.25);
    shape->SetOnAction("Go");
    shape->SetVisible(msoFalse);

    auto back = Reopened()->Shapes()->Item("TextBox 1");
    EXPECT_EQ(back->Placement(), xlFreeFloating);
    EXPECT_DOUBLE_EQ(back->Left(), 30);
    EXPECT_DOUBLE_EQ(back->Top(), 40);
    EXPECT_DOUBLE_EQ(back->Width(), 120);
    EXPECT_DOUBLE_EQ(back->Height(), 60);
    EXPECT_EQ(back->Visible(), msoFalse);
    EXPECT_EQ(back->OnAction(), "Go");
    EXPECT_EQ(back->Fill()->ForeColor()->RGB(), 0x336699);
    EXPECT_EQ(back->Line()->ForeColor()->ObjectThemeColor(), msoThemeColorAccent3);
    EXPECT_DOUBLE_EQ(back->Line()->ForeColor()->TintAndShade(), 0.25);
    auto backFrame = back->TextFrame();
    EXPECT_EQ(backFrame->Characters()->Text(), "Head\nline");
    EXPECT_EQ(backFrame->Characters(1, 4)->Font()->Italic(), Variant(true));
    EXPECT_EQ(backFrame->Characters(6)->Font()->Italic(), Variant(false));
    EXPECT_EQ(backFrame->Characters()->Font()->Size(), Variant(9.0));
    EXPECT_FALSE(backFrame->AutoMargins());
    EXPECT_DOUBLE_EQ(backFrame->MarginRight(), 1.5);
    EXPECT_EQ(backFrame->VerticalAlignment(), xlVAlignBottom);
    // Numbering goes on after the opened shapes.
    EXPECT_EQ(Reopened()->Shapes()->AddTextbox(msoTextOrientationHorizontal, 0, 0, 5, 5)->Name(), "TextBox 2");
}

TEST_F(ShapeDocumentConversion, CommentsComeBackWithEverything) {
    auto comment = sheet->Range("C3")->AddComment("Bold\nplain");
    comment->Shape()->TextFrame()->Characters(1, 4)->Font()->SetBold(true);
    comment->SetVisible(true);
    comment->Shape()->SetWidth(150);
    comment->Shape()->Line()->SetWeight(1.5);

    auto back = Reopened()->Range("C3")->Comment();
    ASSERT_NE(back, nullptr);
    EXPECT_EQ(back->Author(), "Reporter");
    EXPECT_EQ(back->Text(), "Bold\nplain");
    EXPECT_TRUE(back->Visible());
    auto frame = back->Shape()->TextFrame();
    EXPECT_EQ(frame->Characters(1, 4)->Font()->Bold(), Variant(true));
    EXPECT_EQ(frame->Characters(6)->Font()->Bold(), Variant(false));
    EXPECT_EQ(frame->Characters(6)->Font()->Name(), Variant("Tahoma"));
    EXPECT_DOUBLE_EQ(back->Shape()->Width(), 150);
    EXPECT_DOUBLE_EQ(back->Shape()->Line()->Weight(), 1.5);
    EXPECT_EQ(back->Shape()->Fill()->ForeColor()->RGB(), 0xE1FFFF);
    EXPECT_TRUE(frame->AutoMargins());
}

TEST_F(ShapeDocumentConversion, SavingAgainGivesTheSameShapes) {
    auto shape = AddBox(10, 10, 80, 40);
    shape->TextFrame()->Characters()->SetText("Same");
    sheet->Range("B2")->AddComment("again");
    const ooxml::SheetDocument first = Saved();
    Reopened();
    const ooxml::SheetDocument second = ToDocument(*reopened, "test").sheets.front();
    ASSERT_EQ(second.shapes.size(), 1u);
    EXPECT_EQ(second.shapes[0].text, first.shapes[0].text);
    EXPECT_EQ(second.shapes[0].from, first.shapes[0].from);
    EXPECT_EQ(second.shapes[0].to, first.shapes[0].to);
    EXPECT_EQ(second.shapes[0].fill, first.shapes[0].fill);
    EXPECT_EQ(second.shapes[0].line, first.shapes[0].line);
    ASSERT_EQ(second.comments.size(), 1u);
    EXPECT_EQ(second.comments[0].text, first.comments[0].text);
    EXPECT_EQ(second.comments[0].anchor, first.comments[0].anchor);
}

// Excel writes a procedure of the workbook's own modules as "[0]!Name"; a procedure of a sheet's
// module keeps its qualified name ("Detailed_report.IM_AppRecus" in an Excel-made file).
TEST_F(ShapeDocumentConversion, MacrosOfTheWorkbookItselfAreNamedAsExcelNamesThem) {
    AddBox(10, 10, 50, 20)->SetOnAction("objClick");
    AddBox(10, 40, 50, 20)->SetOnAction("Sheet1.Refresh");
    AddBox(10, 70, 50, 20)->SetOnAction("'Other.xlsm'!Go");
    AddBox(10, 100, 50, 20);
    const auto& boxes = Saved().shapes;
    ASSERT_EQ(boxes.size(), 4u);
    EXPECT_EQ(boxes[0].macro, "[0]!objClick");
    EXPECT_EQ(boxes[1].macro, "Sheet1.Refresh");
    EXPECT_EQ(boxes[2].macro, "'Other.xlsm'!Go");
    EXPECT_EQ(boxes[3].macro, "");
    const auto back = Reopened()->Shapes();
    EXPECT_EQ(back->Item(1)->OnAction(), "objClick");
    EXPECT_EQ(back->Item(2)->OnAction(), "Sheet1.Refresh");
    EXPECT_EQ(back->Item(3)->OnAction(), "'Other.xlsm'!Go");
    EXPECT_EQ(back->Item(4)->OnAction(), "");
}

}  // namespace
}  // namespace excel::embedded
