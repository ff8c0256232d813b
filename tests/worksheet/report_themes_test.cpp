#include "worksheet/report_sheet_fixture.hpp"

namespace {

constexpr int32_t Red = 0x0000FF;

class ReportThemesTest : public ReportSheetTest {
protected:
    void SetUp() override {
        ReportSheetTest::SetUp();
        block = excelSheet->Range("B2:D4");
    }

    // Draws red dashed lines between all the block's cells, as a table drawn earlier would have.
    void DrawRedInsideLines() {
        for (const int32_t inside : {excel::xlInsideHorizontal, excel::xlInsideVertical}) {
            block->Borders(inside)->SetLineStyle(excel::xlDash);
            block->Borders(inside)->SetColor(Red);
        }
    }

    std::shared_ptr<excel::Border> Line(int32_t index) { return block->Borders(index); }

    static void ExpectThemed(const std::shared_ptr<excel::Border>& border, int32_t color, double tint) {
        EXPECT_EQ(border->ThemeColor().ToInt(), color);
        EXPECT_DOUBLE_EQ(border->TintAndShade().ToDouble(), tint);
        EXPECT_NE(border->LineStyle().ToInt(), excel::xlLineStyleNone);
    }
    static void ExpectNoLine(const std::shared_ptr<excel::Border>& border) {
        EXPECT_EQ(border->LineStyle().ToInt(), excel::xlLineStyleNone);
    }
    static void ExpectRedDashed(const std::shared_ptr<excel::Border>& border) {
        EXPECT_EQ(border->LineStyle().ToInt(), excel::xlDash);
        EXPECT_EQ(border->Color().ToInt(), Red);
    }

    std::shared_ptr<excel::Range> block;
};

// The workbook's theme table: borders (1, -0.25), table title (3, -0.25), title font (1, 0),
// table header (3, 0).
constexpr int32_t BorderColor = 1;
constexpr double BorderTint = -0.25;

}  // namespace

TEST_F(ReportThemesTest, ThemeColoursInCellAndDrawingObjectNumbering) {
    EXPECT_EQ(sheet->ThemeColor(vos::VosTableTitle), 3);
    EXPECT_EQ(sheet->ThemeColor(vos::VosTableTitle, true), 4);
    EXPECT_EQ(sheet->ThemeColor(vos::VosCommentFont, true), 5);
    EXPECT_EQ(sheet->ThemeColor(vos::VosReportHeader), 1);
    EXPECT_EQ(sheet->ThemeColor(vos::VosReportHeader, true), 2);
}

TEST_F(ReportThemesTest, TintsDoNotDependOnTheNumbering) {
    EXPECT_EQ(sheet->ThemeTintAndShade(vos::VosTableHeader), 0.0f);
    EXPECT_EQ(sheet->ThemeTintAndShade(vos::VosTableTitle), -0.25f);
    EXPECT_EQ(sheet->ThemeTintAndShade(vos::VosTableTitle, true), -0.25f);
}

TEST_F(ReportThemesTest, AnUnknownPropertyReadsTheBordersEntry) {
    EXPECT_EQ(sheet->ThemeColor(99), 1);
    EXPECT_EQ(sheet->ThemeTintAndShade(99), -0.25f);
    EXPECT_EQ(sheet->ThemeColor(0, true), 2);
}

TEST_F(ReportThemesTest, ATitleRangeTakesTheTitleColoursAndABorderBelow) {
    sheet->SetTitleRangeTheme(block);
    EXPECT_EQ(block->Interior()->ThemeColor().ToInt(), 3);
    EXPECT_DOUBLE_EQ(block->Interior()->TintAndShade().ToDouble(), -0.25);
    EXPECT_EQ(block->Font()->ThemeColor().ToInt(), 1);
    EXPECT_DOUBLE_EQ(block->Font()->TintAndShade().ToDouble(), 0.0);
    ExpectThemed(Line(excel::xlEdgeBottom), BorderColor, BorderTint);
    ExpectNoLine(Line(excel::xlInsideHorizontal));
    ExpectNoLine(Line(excel::xlEdgeRight));
}

TEST_F(ReportThemesTest, ThemesApplyWhetherOrNotTheWorkbookUsesThem) {
    ASSERT_FALSE(report->UseThemes());
    sheet->SetTopHeaderRangeTheme(block);
    EXPECT_EQ(block->Interior()->ThemeColor().ToInt(), 3);
    report->SetUseThemes(true);
    sheet->SetTitleRangeTheme(block);
    EXPECT_DOUBLE_EQ(block->Interior()->TintAndShade().ToDouble(), -0.25);
}

TEST_F(ReportThemesTest, AnInteriorWithHorizontalLinesKeepsExistingVerticalLines) {
    DrawRedInsideLines();
    sheet->SetInteriorRangeTheme(block, vos::VosBorderHorizontal);
    ExpectThemed(Line(excel::xlEdgeBottom), BorderColor, BorderTint);
    ExpectThemed(Line(excel::xlInsideHorizontal), BorderColor, BorderTint);
    ExpectRedDashed(Line(excel::xlInsideVertical));
    EXPECT_EQ(block->Interior()->ColorIndex().ToInt(), excel::xlColorIndexNone);
}

TEST_F(ReportThemesTest, AnInteriorDrawsHorizontalLinesByDefault) {
    sheet->SetInteriorRangeTheme(block);
    ExpectThemed(Line(excel::xlInsideHorizontal), BorderColor, BorderTint);
    ExpectNoLine(Line(excel::xlInsideVertical));
}

TEST_F(ReportThemesTest, AnInteriorWithVerticalLinesKeepsExistingHorizontalLines) {
    DrawRedInsideLines();
    sheet->SetInteriorRangeTheme(block, vos::VosBorderVertical);
    ExpectRedDashed(Line(excel::xlInsideHorizontal));
    ExpectThemed(Line(excel::xlInsideVertical), BorderColor, BorderTint);
}

TEST_F(ReportThemesTest, AnInteriorWithoutLinesRemovesBoth) {
    DrawRedInsideLines();
    sheet->SetInteriorRangeTheme(block, vos::VosBorderNone);
    ExpectNoLine(Line(excel::xlInsideHorizontal));
    ExpectNoLine(Line(excel::xlInsideVertical));
    ExpectThemed(Line(excel::xlEdgeBottom), BorderColor, BorderTint);
}

TEST_F(ReportThemesTest, AnInteriorWithBothLinesThemesBoth) {
    DrawRedInsideLines();
    sheet->SetInteriorRangeTheme(block, vos::VosBorderHorizontalAndVertical);
    ExpectThemed(Line(excel::xlInsideHorizontal), BorderColor, BorderTint);
    ExpectThemed(Line(excel::xlInsideVertical), BorderColor, BorderTint);
}

TEST_F(ReportThemesTest, ATopHeaderWithHorizontalLinesRemovesTheVerticalOnes) {
    DrawRedInsideLines();
    sheet->SetTopHeaderRangeTheme(block, vos::VosBorderHorizontal);
    ExpectThemed(Line(excel::xlEdgeBottom), BorderColor, BorderTint);
    ExpectThemed(Line(excel::xlInsideHorizontal), BorderColor, BorderTint);
    ExpectNoLine(Line(excel::xlInsideVertical));
    EXPECT_EQ(block->Interior()->ThemeColor().ToInt(), 3);
    EXPECT_DOUBLE_EQ(block->Interior()->TintAndShade().ToDouble(), 0.0);
}

TEST_F(ReportThemesTest, ATopHeaderWithVerticalLinesRemovesTheHorizontalOnes) {
    DrawRedInsideLines();
    sheet->SetTopHeaderRangeTheme(block, vos::VosBorderVertical);
    ExpectNoLine(Line(excel::xlInsideHorizontal));
    ExpectThemed(Line(excel::xlInsideVertical), BorderColor, BorderTint);
}

TEST_F(ReportThemesTest, ATopHeaderWithBothOrNoLines) {
    DrawRedInsideLines();
    sheet->SetTopHeaderRangeTheme(block, vos::VosBorderNone);
    ExpectNoLine(Line(excel::xlInsideHorizontal));
    ExpectNoLine(Line(excel::xlInsideVertical));
    sheet->SetTopHeaderRangeTheme(block, vos::VosBorderHorizontalAndVertical);
    ExpectThemed(Line(excel::xlInsideHorizontal), BorderColor, BorderTint);
    ExpectThemed(Line(excel::xlInsideVertical), BorderColor, BorderTint);
}

TEST_F(ReportThemesTest, ALeftHeaderThemesItsRightEdgeInsteadOfItsBottomEdge) {
    sheet->SetLeftHeaderRangeTheme(block, vos::VosBorderVertical);
    ExpectThemed(Line(excel::xlEdgeRight), BorderColor, BorderTint);
    ExpectNoLine(Line(excel::xlEdgeBottom));
    ExpectThemed(Line(excel::xlInsideVertical), BorderColor, BorderTint);
    EXPECT_EQ(block->Interior()->ThemeColor().ToInt(), 3);
}

TEST_F(ReportThemesTest, ALeftHeaderWithBothLinesLeavesTheHorizontalLinesAsTheyWere) {
    DrawRedInsideLines();
    sheet->SetLeftHeaderRangeTheme(block, vos::VosBorderHorizontalAndVertical);
    ExpectRedDashed(Line(excel::xlInsideHorizontal));
    ExpectThemed(Line(excel::xlInsideVertical), BorderColor, BorderTint);
}

TEST_F(ReportThemesTest, ALeftHeaderWithHorizontalLinesRemovesTheVerticalOnes) {
    DrawRedInsideLines();
    sheet->SetLeftHeaderRangeTheme(block);
    ExpectThemed(Line(excel::xlInsideHorizontal), BorderColor, BorderTint);
    ExpectNoLine(Line(excel::xlInsideVertical));
}

TEST_F(ReportThemesTest, IgnoredOrUnknownBorderTypesLeaveTheInsideLinesAlone) {
    DrawRedInsideLines();
    for (const int32_t insideBorderType : {static_cast<int32_t>(vos::VosBorderIgnore), 7, -1}) {
        sheet->SetInteriorRangeTheme(block, insideBorderType);
        sheet->SetTopHeaderRangeTheme(block, insideBorderType);
        sheet->SetLeftHeaderRangeTheme(block, insideBorderType);
        ExpectRedDashed(Line(excel::xlInsideHorizontal));
        ExpectRedDashed(Line(excel::xlInsideVertical));
    }
    ExpectThemed(Line(excel::xlEdgeBottom), BorderColor, BorderTint);
    ExpectThemed(Line(excel::xlEdgeRight), BorderColor, BorderTint);
}

TEST_F(ReportThemesTest, AMissingRangeIsLeftAlone) {
    EXPECT_NO_THROW(sheet->SetTitleRangeTheme(nullptr));
    EXPECT_NO_THROW(sheet->SetInteriorRangeTheme(nullptr, vos::VosBorderHorizontalAndVertical));
    EXPECT_NO_THROW(sheet->SetTopHeaderRangeTheme(nullptr, vos::VosBorderNone));
    EXPECT_NO_THROW(sheet->SetLeftHeaderRangeTheme(nullptr));
    EXPECT_EQ(excelSheet->UsedRange()->Interior()->ColorIndex().ToInt(), excel::xlColorIndexNone);
}
