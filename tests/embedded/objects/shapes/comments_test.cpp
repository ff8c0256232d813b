#include "embedded/engine_fixture.hpp"

using namespace excel;

namespace {

class CommentsTest : public EngineTest {};

TEST_F(CommentsTest, AddCommentOnTheFirstCell) {
    app->SetUserName("Reporter");
    auto comment = At("B2:C3")->AddComment("Checked");
    EXPECT_EQ(comment->Text(), "Checked");
    EXPECT_EQ(comment->Author(), "Reporter");
    EXPECT_EQ(comment->Parent()->Address(true, true, xlA1, false), "$B$2");
    EXPECT_TRUE(IsSameObject(At("B2")->Comment(), comment));
    EXPECT_EQ(At("C3")->Comment(), nullptr);
}

TEST_F(CommentsTest, CellWithoutCommentAnswersNone) {
    EXPECT_EQ(At("A1")->Comment(), nullptr);
}

TEST_F(CommentsTest, SecondCommentIsRefusedButReplacesAfterDelete) {
    At("A1")->AddComment("first");
    EXPECT_EQ(ErrorCodeOf([&] { At("A1")->AddComment("second"); }), kRefused);
    At("A1")->Comment()->Delete();
    EXPECT_EQ(At("A1")->Comment(), nullptr);
    EXPECT_EQ(At("A1")->AddComment("second")->Text(), "second");
    EXPECT_EQ(sheet->Shapes()->Count(), 1);
}

TEST_F(CommentsTest, HiddenByDefault) {
    auto comment = At("A1")->AddComment("x");
    EXPECT_FALSE(comment->Visible());
    EXPECT_EQ(comment->Shape()->Visible(), msoFalse);
    comment->SetVisible(true);
    EXPECT_EQ(comment->Shape()->Visible(), msoTrue);
}

TEST_F(CommentsTest, ShapeDefaultsAsExcelMakesThem) {
    auto shape = At("A1")->AddComment("x")->Shape();
    EXPECT_EQ(shape->Fill()->ForeColor()->RGB(), 0xE1FFFF);
    EXPECT_EQ(shape->Line()->ForeColor()->RGB(), 0x000000);
    EXPECT_DOUBLE_EQ(shape->Line()->Weight(), 0.75);
    EXPECT_DOUBLE_EQ(shape->Width(), 96);
    EXPECT_DOUBLE_EQ(shape->Height(), 55.5);
    auto font = shape->TextFrame()->Characters()->Font();
    EXPECT_EQ(font->Name(), Variant("Tahoma"));
    EXPECT_EQ(font->Size(), Variant(9.0));
}

// Excel's own files place a note on B2 at 107.25, 7.5 points and one on D17 at 203.25, 232.5.
TEST_F(CommentsTest, PlacedRightOfTheCellAndSlightlyAbove) {
    auto b2 = At("B2")->AddComment("x")->Shape();
    EXPECT_DOUBLE_EQ(b2->Left(), 107.25);
    EXPECT_DOUBLE_EQ(b2->Top(), 7.5);
    auto d17 = At("D17")->AddComment("x")->Shape();
    EXPECT_DOUBLE_EQ(d17->Left(), 203.25);
    EXPECT_DOUBLE_EQ(d17->Top(), 232.5);
    EXPECT_DOUBLE_EQ(At("A1")->AddComment("x")->Shape()->Top(), 1.5);  // as in Excel's own files
}

TEST_F(CommentsTest, RichTextThroughTheShapesCharacters) {
    auto comment = At("A1")->AddComment("Title\nDetails");
    auto title = comment->Shape()->TextFrame()->Characters(1, 5)->Font();
    title->SetBold(true);
    title->SetUnderline(xlUnderlineStyleSingle);
    auto frame = comment->Shape()->TextFrame();
    EXPECT_EQ(frame->Characters(1, 5)->Font()->Bold(), Variant(true));
    EXPECT_EQ(frame->Characters(7)->Font()->Bold(), Variant(false));
    EXPECT_EQ(frame->Characters(7)->Font()->Name(), Variant("Tahoma"));
    EXPECT_EQ(comment->Text(), "Title\nDetails");
}

TEST_F(CommentsTest, TextReplacesInsertsOrOverwrites) {
    auto comment = At("A1")->AddComment("Hello world");
    EXPECT_EQ(comment->Text(" big", 6), "Hello big world");
    EXPECT_EQ(comment->Text("!", 6, true), "Hello!");
    EXPECT_EQ(comment->Text("New"), "New");
    EXPECT_EQ(comment->Text(), "New");
}

TEST_F(CommentsTest, MovesWithItsCell) {
    auto comment = At("B2")->AddComment("x");
    const double top = comment->Shape()->Top();
    sheet->Rows(1)->Insert();
    EXPECT_EQ(comment->Parent()->Address(true, true, xlA1, false), "$B$3");
    EXPECT_NE(At("B3")->Comment(), nullptr);
    EXPECT_EQ(At("B2")->Comment(), nullptr);
    EXPECT_DOUBLE_EQ(comment->Shape()->Top(), top + 15);
    At("A2")->Insert(xlShiftToRight);
    EXPECT_EQ(comment->Parent()->Address(true, true, xlA1, false), "$B$3");
    At("A3")->Insert(xlShiftToRight);
    EXPECT_EQ(comment->Parent()->Address(true, true, xlA1, false), "$C$3");
}

TEST_F(CommentsTest, GoesWhenItsCellIsDeleted) {
    auto comment = At("B2")->AddComment("x");
    sheet->Rows(2)->Delete();
    EXPECT_EQ(sheet->Shapes()->Count(), 0);
    EXPECT_EQ(ErrorCodeOf([&] { comment->Text(); }), kObjectRequired);
}

TEST_F(CommentsTest, ClearRemovesCommentsButClearContentsAndFormatsKeepThem) {
    At("A1")->AddComment("a");
    At("A2")->AddComment("b");
    At("A1:A2")->ClearContents();
    At("A1:A2")->ClearFormats();
    EXPECT_NE(At("A1")->Comment(), nullptr);
    At("A1")->Clear();
    EXPECT_EQ(At("A1")->Comment(), nullptr);
    EXPECT_NE(At("A2")->Comment(), nullptr);
}

TEST_F(CommentsTest, ClearCommentsRemovesEveryCommentOfTheRange) {
    At("A1")->AddComment("a");
    At("B5")->AddComment("b");
    At("C9")->AddComment("c");
    At("A1:B5")->ClearComments();
    EXPECT_EQ(sheet->Shapes()->Count(), 1);
    EXPECT_NE(At("C9")->Comment(), nullptr);
}

TEST_F(CommentsTest, DeletingTheShapeDeletesTheComment) {
    At("A1")->AddComment("a")->Shape()->Delete();
    EXPECT_EQ(At("A1")->Comment(), nullptr);
}

}  // namespace
