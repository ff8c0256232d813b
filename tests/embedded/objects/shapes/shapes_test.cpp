#include "embedded/engine_fixture.hpp"

using namespace excel;

namespace {

class ShapesTest : public EngineTest {
protected:
    std::shared_ptr<Shape> AddBox(double left = 10, double top = 20, double width = 100, double height = 50) {
        return sheet->Shapes()->AddTextbox(msoTextOrientationHorizontal, left, top, width, height);
    }
};

TEST_F(ShapesTest, NewSheetHasNoShapes) {
    EXPECT_EQ(sheet->Shapes()->Count(), 0);
}

TEST_F(ShapesTest, TextBoxesAndCommentsShareOneCounter) {
    auto box = AddBox();
    auto comment = At("B2")->AddComment("note");
    auto second = AddBox();
    EXPECT_EQ(box->Name(), "TextBox 1");
    EXPECT_EQ(comment->Shape()->Name(), "Comment 2");
    EXPECT_EQ(second->Name(), "TextBox 3");
    EXPECT_EQ(box->Type(), msoTextBox);
    EXPECT_EQ(comment->Shape()->Type(), msoComment);
    EXPECT_EQ(sheet->Shapes()->Count(), 3);
    EXPECT_NE(box->ID(), second->ID());
    EXPECT_NE(box->ID(), comment->Shape()->ID());
}

TEST_F(ShapesTest, ItemByPositionInZOrderAndByNameIgnoringCase) {
    AddBox();
    At("A1")->AddComment("x");
    EXPECT_EQ(sheet->Shapes()->Item(1)->Name(), "TextBox 1");
    EXPECT_EQ(sheet->Shapes()->Item(2)->Type(), msoComment);
    EXPECT_EQ(sheet->Shapes()->Item("textbox 1")->Type(), msoTextBox);
    auto renamed = sheet->Shapes()->Item(1);
    renamed->SetName("Header");
    EXPECT_TRUE(IsSameObject(sheet->Shapes()->Item("HEADER"), renamed));
}

TEST_F(ShapesTest, ItemWithBadIndexOrNameIsRefused) {
    AddBox();
    EXPECT_EQ(ErrorCodeOf([&] { sheet->Shapes()->Item(0); }), kRefused);
    EXPECT_EQ(ErrorCodeOf([&] { sheet->Shapes()->Item(2); }), kRefused);
    EXPECT_EQ(ErrorCodeOf([&] { sheet->Shapes()->Item("TextBox 9"); }), kRefused);
}

TEST_F(ShapesTest, NumbersAreNotReusedAfterDelete) {
    AddBox()->Delete();
    EXPECT_EQ(sheet->Shapes()->Count(), 0);
    EXPECT_EQ(AddBox()->Name(), "TextBox 2");
}

TEST_F(ShapesTest, ViewsOfDeletedShapeRaiseObjectRequired) {
    auto box = AddBox();
    auto frame = box->TextFrame();
    auto fill = box->Fill();
    box->Delete();
    EXPECT_EQ(ErrorCodeOf([&] { box->Name(); }), kObjectRequired);
    EXPECT_EQ(ErrorCodeOf([&] { frame->Characters()->Text(); }), kObjectRequired);
    EXPECT_EQ(ErrorCodeOf([&] { fill->ForeColor()->RGB(); }), kObjectRequired);
}

TEST_F(ShapesTest, ViewsOfShapeOnDeletedSheetRaiseObjectRequired) {
    auto other = book->Worksheets()->Add();
    auto box = other->Shapes()->AddTextbox(msoTextOrientationHorizontal, 0, 0, 50, 50);
    auto shapes = other->Shapes();
    app->SetDisplayAlerts(false);
    other->Delete();
    EXPECT_EQ(ErrorCodeOf([&] { box->Left(); }), kObjectRequired);
    EXPECT_EQ(ErrorCodeOf([&] { shapes->Count(); }), kObjectRequired);
}

TEST_F(ShapesTest, NewTextBoxDefaults) {
    auto box = AddBox();
    EXPECT_EQ(box->Placement(), xlMoveAndSize);
    EXPECT_EQ(box->Visible(), msoTrue);
    EXPECT_EQ(box->OnAction(), "");
    EXPECT_EQ(box->TextFrame2()->WordWrap(), msoTrue);
    auto font = box->TextFrame()->Characters()->Font();
    EXPECT_EQ(font->Name(), Variant("Calibri"));
    EXPECT_EQ(font->Size(), Variant(11.0));
    EXPECT_EQ(box->TextFrame()->Characters()->Text(), "");
}

TEST_F(ShapesTest, OnActionIsKept) {
    auto box = AddBox();
    box->SetOnAction("Module1.Refresh");
    EXPECT_EQ(sheet->Shapes()->Item(1)->OnAction(), "Module1.Refresh");
}

TEST_F(ShapesTest, VisibleTakesTriState) {
    auto box = AddBox();
    box->SetVisible(msoFalse);
    EXPECT_EQ(box->Visible(), msoFalse);
    EXPECT_EQ(ErrorCodeOf([&] { box->SetVisible(5); }), kRefused);
}

TEST_F(ShapesTest, AddTextboxRefusesNegativeSizeAndUnknownOrientation) {
    EXPECT_EQ(ErrorCodeOf([&] { AddBox(0, 0, -1, 10); }), kRefused);
    EXPECT_EQ(ErrorCodeOf([&] { sheet->Shapes()->AddTextbox(9, 0, 0, 10, 10); }), kRefused);
}

}  // namespace
