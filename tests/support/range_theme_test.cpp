#include "report_fixture.hpp"

#include "support/range_theme.hpp"

namespace {

class RangeThemeTest : public ReportTest {
protected:
    void SetUp() override {
        ReportTest::SetUp();
        excelSheet = NewWorkbook()->NewReportWorksheet("Report")->ExcelWorksheet();
        block = excelSheet->Range("C3:E5");
    }

    std::shared_ptr<excel::Worksheet> excelSheet;
    std::shared_ptr<excel::Range> block;
};

}  // namespace

TEST_F(RangeThemeTest, AnInteriorThemeColourChangesOnlyTheFill) {
    vos::ApplyInteriorThemeColor(block, excel::xlThemeColorAccent2, 0.4f);
    EXPECT_EQ(block->Interior()->ThemeColor().ToInt(), excel::xlThemeColorAccent2);
    EXPECT_NEAR(block->Interior()->TintAndShade().ToDouble(), 0.4, 1e-6);
    EXPECT_EQ(block->Borders(excel::xlEdgeBottom)->LineStyle().ToInt(), excel::xlLineStyleNone);
    EXPECT_EQ(block->Borders(excel::xlInsideHorizontal)->LineStyle().ToInt(), excel::xlLineStyleNone);
    EXPECT_EQ(excelSheet->Range("B2")->Interior()->ColorIndex().ToInt(), excel::xlColorIndexNone);
}

TEST_F(RangeThemeTest, ASignatureCornerTakesTheHeaderColourOverItsInterior) {
    vos::ApplySignatureRangeTheme(block, excel::xlThemeColorDark2, -0.5f);
    EXPECT_EQ(block->Interior()->ThemeColor().ToInt(), excel::xlThemeColorDark2);
    EXPECT_DOUBLE_EQ(block->Interior()->TintAndShade().ToDouble(), -0.5);
    EXPECT_EQ(block->Borders(excel::xlEdgeRight)->LineStyle().ToInt(), excel::xlLineStyleNone);
}

TEST_F(RangeThemeTest, AMissingRangeIsLeftAlone) {
    EXPECT_NO_THROW(vos::ApplyInteriorThemeColor(nullptr, excel::xlThemeColorAccent1, 0.0f));
    EXPECT_NO_THROW(vos::ApplySignatureRangeTheme(nullptr, excel::xlThemeColorAccent1, 0.0f));
    EXPECT_NO_THROW(vos::ApplyTitleRangeTheme(nullptr, 3, -0.25f, 1, 0.0f, 1, -0.25f));
}
