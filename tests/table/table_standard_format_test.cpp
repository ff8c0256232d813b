#include "table/table_layout_fixture.hpp"

#include <excel/areas.hpp>

namespace {

constexpr int32_t Silver = 15;

// A continuous line of that weight in the automatic colour.
void ExpectAutomaticLine(const std::shared_ptr<excel::Border>& border, int32_t weight) {
    EXPECT_EQ(border->LineStyle().ToInt(), excel::xlContinuous);
    EXPECT_EQ(border->Weight().ToInt(), weight);
    EXPECT_EQ(border->ColorIndex().ToInt(), excel::xlColorIndexAutomatic);
}

class TableStandardFormatTest : public TableLayoutTest {
protected:
    void SetUp() override {
        TableLayoutTest::SetUp();
        table = AddTableWithEveryPart();
    }

    std::shared_ptr<vos::VosExcelTable> table;
};

}  // namespace

TEST_F(TableStandardFormatTest, TheWholeTableHasAMediumAutomaticOutline) {
    for (const int32_t edge : {excel::xlEdgeLeft, excel::xlEdgeTop, excel::xlEdgeRight, excel::xlEdgeBottom}) {
        SCOPED_TRACE(edge);
        ExpectAutomaticLine(table->TableRange()->Borders(edge), excel::xlMedium);
    }
    EXPECT_EQ(At("A5")->Borders(excel::xlEdgeRight)->Weight().ToInt(), excel::xlMedium);
    EXPECT_EQ(At("D9")->Borders(excel::xlEdgeTop)->Weight().ToInt(), excel::xlMedium);
}

TEST_F(TableStandardFormatTest, TheTitleIsLeftAlignedOnASilverFillAboveAMediumLine) {
    const auto title = table->TitleRange();
    EXPECT_EQ(title->HorizontalAlignment().ToInt(), excel::xlLeft);
    EXPECT_EQ(title->Interior()->ColorIndex().ToInt(), Silver);
    ExpectAutomaticLine(title->Borders(excel::xlEdgeBottom), excel::xlMedium);
}

TEST_F(TableStandardFormatTest, TheFirstTitleRowIsMergedLargeAndBold) {
    const auto row = table->TitleRange()->Rows(1);
    EXPECT_EQ(AddressOf(At("B2")->MergeArea()), "B2:F2");
    EXPECT_EQ(row->Font()->Size().ToDouble(), 10.0);
    EXPECT_TRUE(row->Font()->Bold().ToBool());
    EXPECT_EQ(At("B2")->Value().ToString(), "Main");
}

TEST_F(TableStandardFormatTest, TheSecondTitleRowIsMergedSmallAndPlain) {
    const auto row = table->TitleRange()->Rows(2);
    EXPECT_EQ(AddressOf(At("B3")->MergeArea()), "B3:F3");
    EXPECT_EQ(row->Font()->Size().ToDouble(), 8.0);
    EXPECT_FALSE(row->Font()->Bold().ToBool());
    EXPECT_EQ(At("B3")->Value().ToString(), "Sub");
}

TEST_F(TableStandardFormatTest, ASingleTitleRowIsTheLargeBoldOne) {
    const auto single = AddTableAt("H2", 1, 1, 1, 1, "Only");
    const auto title = single->TitleRange();
    EXPECT_EQ(AddressOf(At("H2")->MergeArea()), "H2:I2");
    EXPECT_EQ(title->Font()->Size().ToDouble(), 10.0);
    EXPECT_TRUE(title->Font()->Bold().ToBool());
    EXPECT_FALSE(At("H3")->MergeCells().ToBool());
}

TEST_F(TableStandardFormatTest, TheInteriorIsCentredSmallAndTopAligned) {
    const auto interior = table->InteriorRange();
    EXPECT_EQ(interior->HorizontalAlignment().ToInt(), excel::xlCenter);
    EXPECT_EQ(interior->VerticalAlignment().ToInt(), excel::xlTop);
    EXPECT_EQ(interior->Font()->Size().ToDouble(), 8.0);
    EXPECT_FALSE(interior->Font()->Bold().ToBool());
    EXPECT_EQ(interior->Interior()->ColorIndex().ToInt(), excel::xlColorIndexNone);
    EXPECT_EQ(interior->Borders(excel::xlInsideHorizontal)->LineStyle().ToInt(), excel::xlLineStyleNone);
}

TEST_F(TableStandardFormatTest, AThinLineRunsUnderTheTopHeaderAndTheSignature) {
    ExpectAutomaticLine(table->TopHeaderRange()->Borders(excel::xlEdgeBottom), excel::xlThin);
    ExpectAutomaticLine(table->SignatureRange()->Borders(excel::xlEdgeBottom), excel::xlThin);
}

TEST_F(TableStandardFormatTest, AThinLineRunsBesideTheLeftHeaderAndTheSignature) {
    ExpectAutomaticLine(table->LeftHeaderRange()->Borders(excel::xlEdgeRight), excel::xlThin);
    ExpectAutomaticLine(table->SignatureRange()->Borders(excel::xlEdgeRight), excel::xlThin);
}

TEST_F(TableStandardFormatTest, TheTopHeaderIsCentredSmallAndBold) {
    const auto header = table->TopHeaderRange();
    EXPECT_EQ(header->HorizontalAlignment().ToInt(), excel::xlCenter);
    EXPECT_EQ(header->Font()->Size().ToDouble(), 8.0);
    EXPECT_TRUE(header->Font()->Bold().ToBool());
    EXPECT_EQ(header->Borders(excel::xlInsideHorizontal)->LineStyle().ToInt(), excel::xlLineStyleNone);
}

TEST_F(TableStandardFormatTest, TheLeftHeaderIsTopLeftAlignedSmallAndBold) {
    const auto header = table->LeftHeaderRange();
    EXPECT_EQ(header->VerticalAlignment().ToInt(), excel::xlTop);
    EXPECT_EQ(header->HorizontalAlignment().ToInt(), excel::xlLeft);
    EXPECT_EQ(header->Font()->Size().ToDouble(), 8.0);
    EXPECT_TRUE(header->Font()->Bold().ToBool());
}

TEST_F(TableStandardFormatTest, TheSignatureIsLeftAlignedBoldAndSmall) {
    const auto signature = table->SignatureRange();
    EXPECT_EQ(signature->HorizontalAlignment().ToInt(), excel::xlLeft);
    EXPECT_EQ(signature->VerticalAlignment().ToInt(), excel::xlBottom);
    EXPECT_TRUE(signature->Font()->Bold().ToBool());
    EXPECT_EQ(signature->Font()->Size().ToDouble(), 8.0);
    EXPECT_EQ(signature->Interior()->ColorIndex().ToInt(), excel::xlColorIndexNone);
}

TEST_F(TableStandardFormatTest, WithoutTitlesNothingIsSilverAndTheOutlineTopsTheHeaders) {
    const auto untitled = AddTableAt("H2", 2, 2, 1, 1);
    for (int32_t row = 1; row <= 3; ++row)
        for (int32_t column = 1; column <= 3; ++column)
            EXPECT_EQ(untitled->TableRange()->Cells(row, column)->Interior()->ColorIndex().ToInt(),
                      excel::xlColorIndexNone);
    ExpectAutomaticLine(untitled->TopHeaderRange(true)->Areas()->Item(1)->Borders(excel::xlEdgeTop), excel::xlMedium);
    ExpectAutomaticLine(untitled->SignatureRange()->Borders(excel::xlEdgeTop), excel::xlMedium);
}

TEST_F(TableStandardFormatTest, WithoutHeaderColumnsOnlyTheTopHeaderLineIsDrawn) {
    const auto narrow = AddTableAt("H2", 2, 2, 1, 0);
    ExpectAutomaticLine(narrow->TopHeaderRange()->Borders(excel::xlEdgeBottom), excel::xlThin);
    ExpectAutomaticLine(narrow->InteriorRange()->Borders(excel::xlEdgeLeft), excel::xlMedium);
    EXPECT_EQ(narrow->InteriorRange()->Borders(excel::xlInsideVertical)->LineStyle().ToInt(), excel::xlLineStyleNone);
}

TEST_F(TableStandardFormatTest, EnglishTablesUseTenAndEightPoints) {
    ExpectFontSizes(*table, 10.0, 8.0);
}

TEST_F(TableStandardFormatTest, ChineseTablesUseTwelveAndTenPoints) {
    UseLanguage(4);
    ExpectFontSizes(*AddTableWithEveryPart(), 12.0, 10.0);
}

TEST_F(TableStandardFormatTest, OtherLanguagesUseTenAndEightPoints) {
    UseLanguage(12);
    ExpectFontSizes(*AddTableWithEveryPart(), 10.0, 8.0);
}
