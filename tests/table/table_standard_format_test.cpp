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

TEST_F(TableStandardFormatTest, TheFirstTitleRowIsMergedLargeAndBoldTheSecondSmallAndPlain) {
    ExpectTitleRow(At("B2"), "B2:F2", 10.0, true, "Main");
    ExpectTitleRow(At("B3"), "B3:F3", 8.0, false, "Sub");
}

TEST_F(TableStandardFormatTest, ASingleTitleRowIsTheLargeBoldOne) {
    AddTableAt("H2", 1, 1, 1, 1, "Only");
    ExpectTitleRow(At("H2"), "H2:I2", 10.0, true, "Only");
    EXPECT_FALSE(At("H3")->MergeCells().ToBool());
}

TEST_F(TableStandardFormatTest, TheInteriorIsCentredSmallAndTopAligned) {
    const auto interior = table->InteriorRange();
    ExpectTextSetting(interior, excel::xlCenter, excel::xlTop, 8.0, false);
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
    ExpectTextSetting(header, excel::xlCenter, excel::xlBottom, 8.0, true);
    EXPECT_EQ(header->Borders(excel::xlInsideHorizontal)->LineStyle().ToInt(), excel::xlLineStyleNone);
}

TEST_F(TableStandardFormatTest, TheLeftHeaderIsTopLeftAlignedSmallAndBold) {
    ExpectTextSetting(table->LeftHeaderRange(), excel::xlLeft, excel::xlTop, 8.0, true);
}

TEST_F(TableStandardFormatTest, TheSignatureIsLeftAlignedBoldAndSmall) {
    const auto signature = table->SignatureRange();
    ExpectTextSetting(signature, excel::xlLeft, excel::xlBottom, 8.0, true);
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
