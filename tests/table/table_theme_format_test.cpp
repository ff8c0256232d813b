#include "table/table_layout_fixture.hpp"

#include <vos/theme_property_type.hpp>

namespace {

constexpr int32_t SilverRgb = 0xC0C0C0;

class TableThemeFormatTest : public TableLayoutTest {
protected:
    void SetUp() override {
        TableLayoutTest::SetUp();
        UseThemes();
        table = AddTableWithEveryPart();
    }

    // The fill, font or line has the workbook's theme colour and tint for that part of a report.
    template <class Target>
    void ExpectThemeColour(const std::shared_ptr<Target>& target, vos::VosThemePropertyType part) {
        EXPECT_EQ(target->ThemeColor().ToInt(), sheet->ThemeColor(part));
        EXPECT_NEAR(target->TintAndShade().ToDouble(), sheet->ThemeTintAndShade(part), 1e-6);
    }

    void ExpectThemedLine(const std::shared_ptr<excel::Border>& border) {
        EXPECT_NE(border->LineStyle().ToInt(), excel::xlLineStyleNone);
        ExpectThemeColour(border, vos::VosTableBorders);
    }

    static void ExpectNoLine(const std::shared_ptr<excel::Border>& border) {
        EXPECT_EQ(border->LineStyle().ToInt(), excel::xlLineStyleNone);
    }

    std::shared_ptr<vos::VosExcelTable> table;
};

}  // namespace

TEST_F(TableThemeFormatTest, TheTitleRowsAreLeftAlignedMergedAndSizedAsInAPlainTable) {
    const auto title = table->TitleRange();
    EXPECT_EQ(title->HorizontalAlignment().ToInt(), excel::xlLeft);
    ExpectTitleRow(At("B2"), "B2:F2", 10.0, true, "Main");
    ExpectTitleRow(At("B3"), "B3:F3", 8.0, false, "Sub");
}

TEST_F(TableThemeFormatTest, TheTitleTakesTheTitleColoursAboveABorderColouredLine) {
    const auto title = table->TitleRange();
    ExpectThemeColour(title->Interior(), vos::VosTableTitle);
    ExpectThemeColour(title->Font(), vos::VosTableTitleFont);
    ExpectThemedLine(title->Borders(excel::xlEdgeBottom));
    EXPECT_NE(title->Interior()->Color().ToInt(), SilverRgb);
}

TEST_F(TableThemeFormatTest, TheInteriorIsCentredWithBorderColouredLinesBetweenItsRows) {
    const auto interior = table->InteriorRange();
    ExpectTextSetting(interior, excel::xlCenter, excel::xlTop, 8.0, false);
    ExpectThemedLine(interior->Borders(excel::xlEdgeBottom));
    ExpectThemedLine(interior->Borders(excel::xlInsideHorizontal));
    ExpectNoLine(interior->Borders(excel::xlInsideVertical));
    EXPECT_EQ(interior->Interior()->ColorIndex().ToInt(), excel::xlColorIndexNone);
}

TEST_F(TableThemeFormatTest, TheTopHeaderIsFilledInTheHeaderColourWithALineBelowOnly) {
    const auto header = table->TopHeaderRange();
    ExpectTextSetting(header, excel::xlCenter, excel::xlBottom, 8.0, true);
    ExpectThemeColour(header->Interior(), vos::VosTableHeader);
    ExpectThemedLine(header->Borders(excel::xlEdgeBottom));
    ExpectNoLine(header->Borders(excel::xlInsideHorizontal));
    ExpectNoLine(header->Borders(excel::xlInsideVertical));
}

TEST_F(TableThemeFormatTest, TheLeftHeaderIsFilledInTheHeaderColourWithALineBeside) {
    const auto header = table->LeftHeaderRange();
    ExpectTextSetting(header, excel::xlLeft, excel::xlTop, 8.0, true);
    ExpectThemeColour(header->Interior(), vos::VosTableHeader);
    ExpectThemedLine(header->Borders(excel::xlEdgeRight));
}

TEST_F(TableThemeFormatTest, TheSignatureIsFilledInTheHeaderColour) {
    const auto signature = table->SignatureRange();
    ExpectTextSetting(signature, excel::xlLeft, excel::xlBottom, 8.0, true);
    ExpectThemeColour(signature->Interior(), vos::VosTableHeader);
}

TEST_F(TableThemeFormatTest, ThereIsNoOutline) {
    const auto block = table->TableRange();
    for (const int32_t edge : {excel::xlEdgeLeft, excel::xlEdgeTop, excel::xlEdgeRight}) {
        SCOPED_TRACE(edge);
        ExpectNoLine(block->Borders(edge));
    }
    ExpectNoLine(table->SignatureRange()->Borders(excel::xlEdgeBottom));
    ExpectNoLine(table->SignatureRange()->Borders(excel::xlEdgeRight));
}

TEST_F(TableThemeFormatTest, EveryCellLooksAsTheSheetsThemeMembersColourTheSameRanges) {
    const auto otherSheet = report->NewReportWorksheet("Other");
    const auto other = otherSheet->ExcelWorksheet();
    const auto same = [&](const std::shared_ptr<excel::Range>& range) { return other->Range(AddressOf(range)); };
    otherSheet->SetTitleRangeTheme(same(table->TitleRange()));
    otherSheet->SetInteriorRangeTheme(same(table->InteriorRange()), vos::VosBorderHorizontal);
    otherSheet->SetTopHeaderRangeTheme(same(table->TopHeaderRange()), vos::VosBorderNone);
    otherSheet->SetLeftHeaderRangeTheme(same(table->LeftHeaderRange()), vos::VosBorderIgnore);
    const auto signature = same(table->SignatureRange())->Interior();
    signature->SetThemeColor(otherSheet->ThemeColor(vos::VosTableHeader));
    signature->SetTintAndShade(otherSheet->ThemeTintAndShade(vos::VosTableHeader));

    EXPECT_EQ(CellStates(At("A1:G9"), ColourState), CellStates(other->Range("A1:G9"), ColourState));
}

TEST_F(TableThemeFormatTest, MissingRangesAreLeftUncoloured) {
    const auto bare = AddTableAt("H2", 2, 2, 1, 0);
    ExpectThemeColour(bare->TopHeaderRange()->Interior(), vos::VosTableHeader);
    EXPECT_EQ(At("H1")->Interior()->ColorIndex().ToInt(), excel::xlColorIndexNone);
    ExpectNoLine(bare->TopHeaderRange()->Borders(excel::xlEdgeTop));
    ExpectNoLine(bare->InteriorRange()->Borders(excel::xlEdgeLeft));
}
