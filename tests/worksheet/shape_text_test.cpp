#include "report_fixture.hpp"

#include "worksheet/shape_text.hpp"

namespace {

class ShapeTextTest : public ReportTest {
protected:
    void SetUp() override {
        ReportTest::SetUp();
        const auto excelSheet = NewWorkbook()->NewReportWorksheet("Report")->ExcelWorksheet();
        box = excelSheet->Shapes()->AddTextbox(excel::msoTextOrientationHorizontal, 10, 10, 200, 50);
    }

    std::string Text() { return box->TextFrame()->Characters()->Text(); }
    std::shared_ptr<excel::Font> FontOf(int32_t start, int32_t length) {
        return box->TextFrame()->Characters(start, length)->Font();
    }

    std::shared_ptr<excel::Shape> box;
};

}  // namespace

TEST_F(ShapeTextTest, EachRunReplacesTheTrailingSpaceAndKeepsItsOwnFormat) {
    vos::AppendShapeText(box, "A", 12.0, true, true);
    EXPECT_EQ(Text(), "A ");
    vos::AppendShapeText(box, "B", 8.0, false, false);
    EXPECT_EQ(Text(), "AB ");
    EXPECT_DOUBLE_EQ(FontOf(1, 1)->Size().ToDouble(), 12.0);
    EXPECT_TRUE(FontOf(1, 1)->Bold().ToBool());
    EXPECT_EQ(FontOf(1, 1)->Underline().ToInt(), excel::xlUnderlineStyleSingle);
    EXPECT_DOUBLE_EQ(FontOf(2, 2)->Size().ToDouble(), 8.0);
    EXPECT_FALSE(FontOf(2, 2)->Bold().ToBool());
    EXPECT_EQ(FontOf(2, 2)->Underline().ToInt(), excel::xlUnderlineStyleNone);
}

TEST_F(ShapeTextTest, ALaterRunDoesNotChangeTheEarlierOnes) {
    vos::AppendShapeText(box, "Title", 12.0, true, true);
    vos::AppendShapeText(box, "\n Label:", 8.0, true, false);
    vos::AppendShapeText(box, " value", 8.0, false, false);
    EXPECT_EQ(Text(), "Title\n Label: value ");
    EXPECT_DOUBLE_EQ(FontOf(1, 5)->Size().ToDouble(), 12.0);
    EXPECT_EQ(FontOf(1, 5)->Underline().ToInt(), excel::xlUnderlineStyleSingle);
    EXPECT_TRUE(FontOf(6, 8)->Bold().ToBool());
    EXPECT_EQ(FontOf(6, 8)->Underline().ToInt(), excel::xlUnderlineStyleNone);
    EXPECT_FALSE(FontOf(14, 7)->Bold().ToBool());
}

TEST_F(ShapeTextTest, AnEmptyTextAppendsNothing) {
    vos::AppendShapeText(box, "", 12.0, true, true);
    EXPECT_EQ(Text(), "");
    vos::AppendShapeText(box, "A", 12.0, true, false);
    vos::AppendShapeText(box, "", 8.0, false, false);
    EXPECT_EQ(Text(), "A ");
    EXPECT_TRUE(FontOf(2, 1)->Bold().ToBool());
}

// Text typed into the box by someone else has no trailing space, so its last character goes.
TEST_F(ShapeTextTest, TextWithoutTheTrailingSpaceLosesItsLastCharacter) {
    box->TextFrame()->Characters()->SetText("Note");
    vos::AppendShapeText(box, "s", 8.0, true, false);
    EXPECT_EQ(Text(), "Nots ");
    EXPECT_TRUE(FontOf(4, 2)->Bold().ToBool());
}

TEST_F(ShapeTextTest, AMissingShapeIsAnError) {
    ExpectAutomationError([] { vos::AppendShapeText(nullptr, "A", 8.0, false, false); }, vos::error_code::MissingObject,
                          "theShape");
    ExpectAutomationError([] { vos::AppendShapeText(nullptr, "", 8.0, false, false); }, vos::error_code::MissingObject,
                          "theShape");
}
