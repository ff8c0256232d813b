#include "embedded/engine_fixture.hpp"

using namespace excel;

namespace {

class ShapeTextTest : public EngineTest {
protected:
    void SetUp() override {
        EngineTest::SetUp();
        box = sheet->Shapes()->AddTextbox(msoTextOrientationHorizontal, 10, 20, 200, 40);
        frame = box->TextFrame();
    }
    std::shared_ptr<Shape> box;
    std::shared_ptr<TextFrame> frame;
};

TEST_F(ShapeTextTest, EmptyFrameReadsEmpty) {
    EXPECT_EQ(frame->Characters()->Text(), "");
    EXPECT_EQ(frame->Characters()->Count(), 0);
}

TEST_F(ShapeTextTest, InsertReplacesTheAddressedCharacters) {
    frame->Characters()->SetText("X ");
    frame->Characters(2)->Insert("B ");
    EXPECT_EQ(frame->Characters()->Text(), "XB ");
    frame->Characters(1, 1)->Delete();
    EXPECT_EQ(frame->Characters()->Caption(), "B ");
}

TEST_F(ShapeTextTest, FontsPerRun) {
    frame->Characters()->SetText("Title\nbody text");
    frame->Characters(1, 5)->Font()->SetBold(true);
    frame->Characters(1, 5)->Font()->SetUnderline(xlUnderlineStyleSingle);
    frame->Characters(7, 4)->Font()->SetSize(8);
    EXPECT_EQ(frame->Characters(1, 5)->Font()->Bold(), Variant(true));
    EXPECT_EQ(frame->Characters(7)->Font()->Bold(), Variant(false));
    EXPECT_TRUE(frame->Characters()->Font()->Bold().IsNull());
    EXPECT_EQ(frame->Characters(7, 4)->Font()->Size(), Variant(8.0));
    EXPECT_EQ(frame->Characters(12)->Font()->Size(), Variant(11.0));
    EXPECT_EQ(frame->Characters(2, 1)->Font()->Underline(), Variant(xlUnderlineStyleSingle));
    EXPECT_EQ(frame->Characters(1, 5)->Font()->FontStyle(), Variant("Bold"));
}

TEST_F(ShapeTextTest, InsertedTextTakesTheFontOfTheFirstReplacedCharacter) {
    frame->Characters()->SetText("ab");
    frame->Characters(2, 1)->Font()->SetItalic(true);
    frame->Characters(2, 1)->Insert("XYZ");
    EXPECT_EQ(frame->Characters()->Text(), "aXYZ");
    EXPECT_EQ(frame->Characters(2, 3)->Font()->Italic(), Variant(true));
    EXPECT_EQ(frame->Characters(1, 1)->Font()->Italic(), Variant(false));
}

TEST_F(ShapeTextTest, FontOfTheWholeEmptyFrameAppliesToTextAddedLater) {
    frame->Characters()->Font()->SetName("Arial");
    frame->Characters()->Font()->SetColor(0x0000FF);
    frame->Characters()->SetText("Later");
    EXPECT_EQ(frame->Characters()->Font()->Name(), Variant("Arial"));
    EXPECT_EQ(frame->Characters(3, 2)->Font()->Color(), Variant(static_cast<double>(0x0000FF)));
}

TEST_F(ShapeTextTest, CharactersRefuseBadArguments) {
    EXPECT_EQ(ErrorCodeOf([&] { frame->Characters(0); }), kRefused);
    EXPECT_EQ(ErrorCodeOf([&] { frame->Characters(1, -1); }), kRefused);
}

TEST_F(ShapeTextTest, MarginsDefaultAndSwitchAutomaticOff) {
    EXPECT_TRUE(frame->AutoMargins());
    EXPECT_DOUBLE_EQ(frame->MarginLeft(), 7.2);
    EXPECT_DOUBLE_EQ(frame->MarginRight(), 7.2);
    EXPECT_DOUBLE_EQ(frame->MarginTop(), 3.6);
    EXPECT_DOUBLE_EQ(frame->MarginBottom(), 3.6);
    frame->SetMarginLeft(2);
    EXPECT_FALSE(frame->AutoMargins());
    EXPECT_DOUBLE_EQ(frame->MarginLeft(), 2);
    EXPECT_DOUBLE_EQ(frame->MarginTop(), 3.6);
    frame->SetAutoMargins(true);
    EXPECT_DOUBLE_EQ(frame->MarginLeft(), 7.2);
    EXPECT_EQ(ErrorCodeOf([&] { frame->SetMarginTop(-1); }), kRefused);
}

TEST_F(ShapeTextTest, Alignment) {
    EXPECT_EQ(frame->HorizontalAlignment(), xlHAlignLeft);
    EXPECT_EQ(frame->VerticalAlignment(), xlVAlignTop);
    frame->SetHorizontalAlignment(xlHAlignCenter);
    frame->SetVerticalAlignment(xlVAlignBottom);
    EXPECT_EQ(frame->HorizontalAlignment(), xlHAlignCenter);
    EXPECT_EQ(frame->VerticalAlignment(), xlVAlignBottom);
    EXPECT_EQ(ErrorCodeOf([&] { frame->SetHorizontalAlignment(12345); }), kRefused);
}

TEST_F(ShapeTextTest, AutoSizeFitsOneLineAndKeepsLeftTop) {
    frame->Characters()->SetText("Report");
    frame->SetAutoSize(true);
    EXPECT_DOUBLE_EQ(box->Left(), 10);
    EXPECT_DOUBLE_EQ(box->Top(), 20);
    EXPECT_DOUBLE_EQ(box->Width(), 200);  // word wrap on: the width stays
    // One line of Calibri 11 and the automatic top and bottom margins.
    EXPECT_GT(box->Height(), 11 + 7.2);
    EXPECT_LT(box->Height(), 22 + 7.2);
}

TEST_F(ShapeTextTest, AutoSizeGrowsWithEachParagraphAndFollowsTextAndFonts) {
    frame->SetAutoSize(true);
    frame->Characters()->SetText("one");
    const double oneLine = box->Height();
    frame->Characters()->SetText("one\ntwo\nthree");
    const double threeLines = box->Height();
    EXPECT_NEAR(threeLines - 7.2, 3 * (oneLine - 7.2), 0.01);
    frame->Characters()->Font()->SetSize(8);
    EXPECT_LT(box->Height(), threeLines);
    const double withAutomaticMargins = box->Height();
    frame->SetMarginTop(20);
    EXPECT_NEAR(box->Height(), withAutomaticMargins + 20 - 3.6, 0.01);
}

TEST_F(ShapeTextTest, AutoSizeGivesSensibleHeightsForOneToTenLines) {
    frame->SetAutoSize(true);
    for (double size : {8.0, 10.0, 12.0}) {
        std::string text = "Line";
        for (int lines = 1; lines <= 10; ++lines) {
            frame->Characters()->SetText(text);
            frame->Characters()->Font()->SetSize(size);
            const double perLine = (box->Height() - 7.2) / lines;
            EXPECT_GT(perLine, size) << size << " pt, " << lines << " lines";
            EXPECT_LT(perLine, size * 1.5) << size << " pt, " << lines << " lines";
            text += "\nLine";
        }
    }
}

TEST_F(ShapeTextTest, AutoSizeUsesTheLargestFontOfEachParagraph) {
    frame->SetAutoSize(true);
    frame->Characters()->SetText("small\nsmall");
    frame->Characters()->Font()->SetSize(8);
    const double small = box->Height();
    frame->Characters(1, 1)->Font()->SetSize(20);
    EXPECT_GT(box->Height(), small + 10);
}

TEST_F(ShapeTextTest, AutoSizeWithoutWordWrapTakesTheWidestParagraph) {
    box->TextFrame2()->SetWordWrap(msoFalse);
    frame->Characters()->SetText("a\nmuch longer paragraph");
    frame->SetAutoSize(true);
    const double wide = box->Width();
    EXPECT_LT(wide, 200);
    EXPECT_GT(wide, 60);
    frame->Characters()->SetText("a\nb");
    EXPECT_LT(box->Width(), wide / 3);
}

TEST_F(ShapeTextTest, AutoSizeWithWordWrapWrapsLongParagraphs) {
    frame->SetAutoSize(true);
    frame->Characters()->SetText("word");
    const double oneLine = box->Height();
    box->SetWidth(60);
    frame->Characters()->SetText("word word word word word word");
    EXPECT_DOUBLE_EQ(box->Width(), 60);
    EXPECT_GT(box->Height(), oneLine * 2);
}

TEST_F(ShapeTextTest, SizeCanBeSetByHandWhileAutoSized) {
    frame->Characters()->SetText("x");
    frame->SetAutoSize(true);
    box->SetHeight(100);
    EXPECT_DOUBLE_EQ(box->Height(), 100);
    EXPECT_TRUE(frame->AutoSize());
}

}  // namespace
