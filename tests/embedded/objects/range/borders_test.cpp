#include "embedded/engine_fixture.hpp"

using namespace excel;

TEST_F(EngineTest, EdgeBordersActOnTheOuterEdgesOnly) {
    auto block = At("B2:D4");
    block->Borders(xlEdgeTop)->SetLineStyle(xlContinuous);
    EXPECT_EQ(At("C2")->Borders(xlEdgeTop)->LineStyle(), Variant(xlContinuous));
    EXPECT_EQ(At("C3")->Borders(xlEdgeTop)->LineStyle(), Variant(xlLineStyleNone));
    EXPECT_EQ(block->Borders(xlEdgeTop)->LineStyle(), Variant(xlContinuous));
    EXPECT_EQ(block->Borders(xlEdgeBottom)->LineStyle(), Variant(xlLineStyleNone));
}

TEST_F(EngineTest, EdgesStoreNoCellOutsideTheBlock) {
    auto block = At("B2:D4");
    for (int32_t edge : {xlEdgeLeft, xlEdgeTop, xlEdgeBottom, xlEdgeRight}) {
        block->Borders(edge)->SetLineStyle(xlContinuous);
    }
    EXPECT_EQ(sheet->UsedRange()->Address(), "$B$2:$D$4");
}

TEST_F(EngineTest, EdgeReadsTheTouchingSideOfTheCellOutside) {
    At("A1")->Borders(xlEdgeBottom)->SetWeight(xlMedium);
    EXPECT_EQ(At("A2")->Borders(xlEdgeTop)->LineStyle(), Variant(xlContinuous));
    EXPECT_EQ(At("A2")->Borders(xlEdgeTop)->Weight(), Variant(xlMedium));
    EXPECT_EQ(At("A2:A3")->Borders(xlEdgeTop)->Weight(), Variant(xlMedium));
    EXPECT_EQ(At("A3")->Borders(xlEdgeTop)->LineStyle(), Variant(xlLineStyleNone));
}

TEST_F(EngineTest, EdgeSetLastWinsOnTheSharedLine) {
    At("A1")->Borders(xlEdgeBottom)->SetLineStyle(xlContinuous);
    At("A2")->Borders(xlEdgeTop)->SetLineStyle(xlDouble);
    EXPECT_EQ(At("A1")->Borders(xlEdgeBottom)->LineStyle(), Variant(xlDouble));
    EXPECT_EQ(At("A2")->Borders(xlEdgeTop)->LineStyle(), Variant(xlDouble));
}

TEST_F(EngineTest, EdgeColouredKeepsTheStyleTheCellOutsideShowed) {
    At("C3")->Borders(xlEdgeRight)->SetWeight(xlThick);
    At("D3")->Borders(xlEdgeLeft)->SetColor(0x0000FF);
    EXPECT_EQ(At("C3")->Borders(xlEdgeRight)->Weight(), Variant(xlThick));
    EXPECT_EQ(At("C3")->Borders(xlEdgeRight)->Color(), Variant(static_cast<double>(0x0000FF)));
}

TEST_F(EngineTest, EdgeClearedRemovesTheLineOfTheCellOutside) {
    At("A1")->Borders(xlEdgeBottom)->SetLineStyle(xlContinuous);
    At("A2")->Borders(xlEdgeTop)->SetLineStyle(xlLineStyleNone);
    EXPECT_EQ(At("A1")->Borders(xlEdgeBottom)->LineStyle(), Variant(xlLineStyleNone));
    EXPECT_EQ(At("A2")->Borders(xlEdgeTop)->LineStyle(), Variant(xlLineStyleNone));
}

TEST_F(EngineTest, EdgeReadsNullWhereTheLineDiffersAlongIt) {
    At("B2:B4")->Borders(xlEdgeRight)->SetLineStyle(xlContinuous);
    At("C3")->Borders(xlEdgeLeft)->SetLineStyle(xlDash);
    EXPECT_TRUE(At("B2:B4")->Borders(xlEdgeRight)->LineStyle().IsNull());
    EXPECT_TRUE(At("C2:C4")->Borders(xlEdgeLeft)->LineStyle().IsNull());
    EXPECT_EQ(At("C3")->Borders(xlEdgeLeft)->LineStyle(), Variant(xlDash));
}

TEST_F(EngineTest, InsideLinesAreBetweenTheCells) {
    auto block = At("B2:D4");
    block->Borders(xlInsideHorizontal)->SetLineStyle(xlDash);
    EXPECT_EQ(sheet->UsedRange()->Address(), "$B$2:$D$4");
    EXPECT_EQ(At("C2")->Borders(xlEdgeBottom)->LineStyle(), Variant(xlDash));
    EXPECT_EQ(At("C3")->Borders(xlEdgeTop)->LineStyle(), Variant(xlDash));
    EXPECT_EQ(At("C4")->Borders(xlEdgeBottom)->LineStyle(), Variant(xlLineStyleNone));
    EXPECT_EQ(At("C2")->Borders(xlEdgeTop)->LineStyle(), Variant(xlLineStyleNone));
    EXPECT_EQ(block->Borders(xlInsideHorizontal)->LineStyle(), Variant(xlDash));
    EXPECT_EQ(block->Borders(xlInsideVertical)->LineStyle(), Variant(xlLineStyleNone));
}

TEST_F(EngineTest, InsideLineOfASingleRowIsANoOp) {
    At("A1:C1")->Borders(xlInsideHorizontal)->SetLineStyle(xlContinuous);
    EXPECT_EQ(At("A1:C1")->Borders(xlEdgeBottom)->LineStyle(), Variant(xlLineStyleNone));
    EXPECT_EQ(At("A1:C1")->Borders(xlEdgeTop)->LineStyle(), Variant(xlLineStyleNone));
}

TEST_F(EngineTest, MixedInsideBorderReadsNull) {
    At("A1:A3")->Borders(xlInsideHorizontal)->SetLineStyle(xlContinuous);
    At("A1")->Borders(xlEdgeBottom)->SetLineStyle(xlDouble);
    EXPECT_TRUE(At("A1:A3")->Borders(xlInsideHorizontal)->LineStyle().IsNull());
}

TEST_F(EngineTest, BordersCollectionActsOnEdgesAndInsideLines) {
    auto block = At("B2:C3");
    block->Borders()->SetLineStyle(xlContinuous);
    EXPECT_EQ(block->Borders()->LineStyle(), Variant(xlContinuous));
    EXPECT_EQ(At("B2")->Borders(xlEdgeRight)->LineStyle(), Variant(xlContinuous));
    EXPECT_EQ(block->Borders()->Count(), 6);
    block->Borders()->SetColor(0x0000FF);
    EXPECT_EQ(block->Borders(xlEdgeLeft)->Color(), Variant(static_cast<double>(0x0000FF)));
    EXPECT_EQ(block->Borders(xlEdgeLeft)->ColorIndex(), Variant(3));
}

TEST_F(EngineTest, LineStylesAndWeightsReadBack) {
    struct Case {
        int32_t style;
        int32_t weight;
    };
    for (Case c : {Case{xlContinuous, xlHairline}, Case{xlContinuous, xlThick}, Case{xlDash, xlMedium},
                   Case{xlDashDot, xlThin}, Case{xlDashDotDot, xlMedium}, Case{xlDot, xlThin}}) {
        auto border = At("E5")->Borders(xlEdgeLeft);
        border->SetLineStyle(c.style);
        border->SetWeight(c.weight);
        EXPECT_EQ(border->LineStyle(), Variant(c.style));
        EXPECT_EQ(border->Weight(), Variant(c.weight));
    }
    EXPECT_EQ(ErrorCodeOf([&] { At("E5")->Borders(xlEdgeLeft)->SetWeight(3); }), kRefused);
    EXPECT_EQ(ErrorCodeOf([&] { At("E5")->Borders(42); }), kRefused);
}

TEST_F(EngineTest, BorderAroundDrawsTheFourEdges) {
    At("B2:D4")->BorderAround(xlContinuous, xlMedium, xlColorIndexAutomatic, static_cast<int32_t>(0xFF0000));
    for (int32_t edge : {xlEdgeLeft, xlEdgeTop, xlEdgeBottom, xlEdgeRight}) {
        EXPECT_EQ(At("B2:D4")->Borders(edge)->Weight(), Variant(xlMedium));
        EXPECT_EQ(At("B2:D4")->Borders(edge)->Color(), Variant(static_cast<double>(0xFF0000)));
    }
    EXPECT_EQ(At("B2:D4")->Borders(xlInsideVertical)->LineStyle(), Variant(xlLineStyleNone));
}

TEST_F(EngineTest, WholeColumnBorderDoesNotMaterialiseCells) {
    sheet->Columns(2)->Borders(xlEdgeLeft)->SetLineStyle(xlContinuous);
    EXPECT_EQ(At("B1000000")->Borders(xlEdgeLeft)->LineStyle(), Variant(xlContinuous));
    EXPECT_EQ(At("A1000000")->Borders(xlEdgeRight)->LineStyle(), Variant(xlContinuous));
    EXPECT_EQ(sheet->UsedRange()->Address(), "$A$1");
}

TEST_F(EngineTest, WholeRowEdgeStoresNoCellBelow) {
    sheet->Rows(3)->Borders(xlEdgeBottom)->SetLineStyle(xlContinuous);
    EXPECT_EQ(At("XFD4")->Borders(xlEdgeTop)->LineStyle(), Variant(xlContinuous));
    EXPECT_EQ(sheet->Rows(4)->Borders(xlEdgeTop)->LineStyle(), Variant(xlContinuous));
    EXPECT_EQ(sheet->UsedRange()->Address(), "$A$1");
}

// The table sets a line property by property: weight, style, colour index, theme colour, tint.
TEST_F(EngineTest, EdgeSetPropertyByPropertyEndsAsTheLastOneLeftIt) {
    auto bottom = At("B3:K4")->Borders(xlEdgeBottom);
    bottom->SetWeight(xlMedium);
    EXPECT_EQ(bottom->LineStyle(), Variant(xlContinuous));
    bottom->SetLineStyle(xlContinuous);
    EXPECT_EQ(bottom->Weight(), Variant(xlMedium));
    bottom->SetColorIndex(xlColorIndexAutomatic);
    EXPECT_EQ(bottom->ColorIndex(), Variant(xlColorIndexAutomatic));
    bottom->SetThemeColor(xlThemeColorAccent2);
    bottom->SetTintAndShade(-0.5);
    EXPECT_EQ(bottom->Weight(), Variant(xlMedium));
    EXPECT_EQ(bottom->ThemeColor(), Variant(xlThemeColorAccent2));
    EXPECT_NEAR(bottom->TintAndShade().ToDouble(), -0.5, 1e-9);
    EXPECT_EQ(At("K4")->Borders(xlEdgeBottom)->ThemeColor(), Variant(xlThemeColorAccent2));
    EXPECT_EQ(At("B3:K3")->Borders(xlEdgeBottom)->LineStyle(), Variant(xlLineStyleNone));
    auto right = At("B3:K4")->Borders(xlEdgeRight);
    right->SetWeight(xlThin);
    right->SetLineStyle(xlDash);
    right->SetColorIndex(3);
    EXPECT_EQ(At("K3:K4")->Borders(xlEdgeRight)->LineStyle(), Variant(xlDash));
    EXPECT_EQ(At("K3:K4")->Borders(xlEdgeRight)->ColorIndex(), Variant(3));
    EXPECT_EQ(At("J3:J4")->Borders(xlEdgeRight)->LineStyle(), Variant(xlLineStyleNone));
}

TEST_F(EngineTest, EdgeBottomOfTheRowAboveABlockIsTheLineOverIt) {
    auto block = At("B5:D8");
    auto above = block->Rows(0)->Borders(xlEdgeBottom);
    above->SetWeight(xlMedium);
    above->SetLineStyle(xlContinuous);
    above->SetThemeColor(xlThemeColorDark1);
    above->SetTintAndShade(-0.35);
    EXPECT_EQ(At("B4:D4")->Borders(xlEdgeBottom)->Weight(), Variant(xlMedium));
    EXPECT_EQ(block->Borders(xlEdgeTop)->Weight(), Variant(xlMedium));
    EXPECT_EQ(block->Borders(xlEdgeTop)->ThemeColor(), Variant(xlThemeColorDark1));
    EXPECT_NEAR(block->Borders(xlEdgeTop)->TintAndShade().ToDouble(), -0.35, 1e-9);
    EXPECT_EQ(At("A4")->Borders(xlEdgeBottom)->LineStyle(), Variant(xlLineStyleNone));
}

TEST_F(EngineTest, BorderAroundWithAnAutomaticColourIndex) {
    auto block = At("A1:K20");
    block->BorderAround(xlContinuous, xlMedium, xlColorIndexAutomatic);
    for (int32_t edge : {xlEdgeLeft, xlEdgeTop, xlEdgeBottom, xlEdgeRight}) {
        EXPECT_EQ(block->Borders(edge)->LineStyle(), Variant(xlContinuous));
        EXPECT_EQ(block->Borders(edge)->Weight(), Variant(xlMedium));
        EXPECT_EQ(block->Borders(edge)->ColorIndex(), Variant(xlColorIndexAutomatic));
    }
    EXPECT_EQ(At("B2:J19")->Borders()->LineStyle(), Variant(xlLineStyleNone));
    EXPECT_EQ(sheet->UsedRange()->Address(), "$A$1:$K$20");
}
