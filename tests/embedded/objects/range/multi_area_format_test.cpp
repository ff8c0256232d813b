#include "embedded/engine_fixture.hpp"

using namespace excel;

namespace {

// A two-row header block and its left neighbour, joined as the table headers are.
class MultiAreaTest : public EngineTest {
protected:
    std::shared_ptr<Range> Header() { return app->Union(At("C3:F4"), At("A3:B4")); }
    // Two areas apart, with row 6 and column D between them.
    std::shared_ptr<Range> Apart() { return app->Union(At("A5:C5"), At("E7:E8")); }
};

}  // namespace

TEST_F(MultiAreaTest, AlignmentWrapAndNumberFormatReachEveryArea) {
    auto header = Header();
    header->SetHorizontalAlignment(xlCenter);
    header->SetVerticalAlignment(xlTop);
    header->SetWrapText(true);
    header->SetNumberFormat("0.00");
    for (const char* address : {"A3:F4", "A3", "B4", "C3", "F4"}) {
        EXPECT_EQ(At(address)->HorizontalAlignment(), Variant(xlCenter)) << address;
        EXPECT_EQ(At(address)->VerticalAlignment(), Variant(xlTop)) << address;
        EXPECT_EQ(At(address)->WrapText(), Variant(true)) << address;
        EXPECT_EQ(At(address)->NumberFormat(), Variant("0.00")) << address;
    }
    EXPECT_EQ(header->HorizontalAlignment(), Variant(xlCenter));
    EXPECT_EQ(At("G3")->HorizontalAlignment(), Variant(xlGeneral));
    EXPECT_EQ(At("A5")->NumberFormat(), Variant("General"));
}

TEST_F(MultiAreaTest, PropertiesReadNullWhenTheAreasDiffer) {
    auto apart = Apart();
    At("E7:E8")->SetHorizontalAlignment(xlRight);
    EXPECT_TRUE(apart->HorizontalAlignment().IsNull());
    apart->SetHorizontalAlignment(xlLeft);
    EXPECT_EQ(apart->HorizontalAlignment(), Variant(xlLeft));
    EXPECT_EQ(At("D5:D8")->HorizontalAlignment(), Variant(xlGeneral));
    EXPECT_EQ(At("A6:E6")->HorizontalAlignment(), Variant(xlGeneral));
}

TEST_F(MultiAreaTest, FontSizeAndBoldReachEveryArea) {
    auto header = Header();
    header->Font()->SetSize(8);
    header->Font()->SetBold(true);
    EXPECT_EQ(At("A3:F4")->Font()->Size(), Variant(8.0));
    EXPECT_EQ(At("A3:F4")->Font()->Bold(), Variant(true));
    EXPECT_EQ(header->Font()->Size(), Variant(8.0));
    EXPECT_EQ(At("A5")->Font()->Size(), Variant(11.0));
    EXPECT_EQ(At("A5")->Font()->Bold(), Variant(false));
}

TEST_F(MultiAreaTest, InteriorColourIndexThemeColourAndTintReachEveryArea) {
    auto header = Header();
    header->Interior()->SetColorIndex(15);
    EXPECT_EQ(At("A3:F4")->Interior()->ColorIndex(), Variant(15));
    EXPECT_EQ(At("A5")->Interior()->ColorIndex(), Variant(xlColorIndexNone));
    header->Interior()->SetThemeColor(xlThemeColorAccent1);
    header->Interior()->SetTintAndShade(0.6);
    EXPECT_EQ(At("A3:F4")->Interior()->ThemeColor(), Variant(xlThemeColorAccent1));
    EXPECT_NEAR(At("A3:F4")->Interior()->TintAndShade().ToDouble(), 0.6, 1e-9);
    EXPECT_NEAR(header->Interior()->TintAndShade().ToDouble(), 0.6, 1e-9);
}

TEST_F(MultiAreaTest, EdgeBottomIsDrawnUnderEachArea) {
    auto bottom = Header()->Borders(xlEdgeBottom);
    bottom->SetWeight(xlThin);
    bottom->SetLineStyle(xlContinuous);
    bottom->SetColorIndex(xlColorIndexAutomatic);
    EXPECT_EQ(At("A4:F4")->Borders(xlEdgeBottom)->LineStyle(), Variant(xlContinuous));
    EXPECT_EQ(At("A4:F4")->Borders(xlEdgeBottom)->Weight(), Variant(xlThin));
    EXPECT_EQ(At("A4:F4")->Borders(xlEdgeBottom)->ColorIndex(), Variant(xlColorIndexAutomatic));
    EXPECT_EQ(At("A5:F5")->Borders(xlEdgeTop)->LineStyle(), Variant(xlContinuous));
    EXPECT_EQ(At("A3:F3")->Borders(xlEdgeBottom)->LineStyle(), Variant(xlLineStyleNone));
    EXPECT_EQ(At("G4")->Borders(xlEdgeBottom)->LineStyle(), Variant(xlLineStyleNone));
    // Each area draws its own bottom edge; the union's inside lines stay undrawn.
    EXPECT_EQ(At("B3:C4")->Borders(xlInsideVertical)->LineStyle(), Variant(xlLineStyleNone));
    EXPECT_EQ(Header()->Borders(xlEdgeBottom)->LineStyle(), Variant(xlContinuous));
}

TEST_F(MultiAreaTest, EdgeRightIsDrawnRightOfEachArea) {
    auto right = app->Union(At("A5:A9"), At("A3:A4"))->Borders(xlEdgeRight);
    right->SetWeight(xlThin);
    right->SetLineStyle(xlContinuous);
    right->SetThemeColor(xlThemeColorDark1);
    right->SetTintAndShade(-0.25);
    EXPECT_EQ(At("A3:A9")->Borders(xlEdgeRight)->Weight(), Variant(xlThin));
    EXPECT_EQ(At("A3:A9")->Borders(xlEdgeRight)->ThemeColor(), Variant(xlThemeColorDark1));
    EXPECT_NEAR(At("A3:A9")->Borders(xlEdgeRight)->TintAndShade().ToDouble(), -0.25, 1e-9);
    EXPECT_EQ(At("A2")->Borders(xlEdgeRight)->LineStyle(), Variant(xlLineStyleNone));
    EXPECT_EQ(At("A10")->Borders(xlEdgeRight)->LineStyle(), Variant(xlLineStyleNone));
}

TEST_F(MultiAreaTest, InsideLinesAreDrawnInsideEachArea) {
    auto apart = app->Union(At("A1:B2"), At("D1:E2"));
    apart->Borders(xlInsideHorizontal)->SetLineStyle(xlContinuous);
    apart->Borders(xlInsideVertical)->SetLineStyle(xlDash);
    EXPECT_EQ(At("A1:B1")->Borders(xlEdgeBottom)->LineStyle(), Variant(xlContinuous));
    EXPECT_EQ(At("D1:E1")->Borders(xlEdgeBottom)->LineStyle(), Variant(xlContinuous));
    EXPECT_EQ(At("C1")->Borders(xlEdgeBottom)->LineStyle(), Variant(xlLineStyleNone));
    EXPECT_EQ(At("A1:A2")->Borders(xlEdgeRight)->LineStyle(), Variant(xlDash));
    EXPECT_EQ(At("D1:D2")->Borders(xlEdgeRight)->LineStyle(), Variant(xlDash));
    EXPECT_EQ(At("B1:B2")->Borders(xlEdgeRight)->LineStyle(), Variant(xlLineStyleNone));
    EXPECT_EQ(At("E1:E2")->Borders(xlEdgeRight)->LineStyle(), Variant(xlLineStyleNone));
}

TEST_F(MultiAreaTest, MergeCellsMergesEachAreaOnItsOwn) {
    auto apart = Apart();
    apart->SetMergeCells(true);
    EXPECT_EQ(At("B5")->MergeArea()->Address(), "$A$5:$C$5");
    EXPECT_EQ(At("E8")->MergeArea()->Address(), "$E$7:$E$8");
    EXPECT_EQ(apart->MergeCells(), Variant(true));
    apart->SetMergeCells(false);
    EXPECT_EQ(apart->MergeCells(), Variant(false));
}

TEST_F(MultiAreaTest, ValueClearContentsAndClearActOnEveryArea) {
    auto apart = Apart();
    apart->SetValue(7.0);
    for (const char* address : {"A5", "C5", "E7", "E8"}) {
        EXPECT_EQ(At(address)->Value(), Variant(7.0)) << address;
    }
    EXPECT_TRUE(At("D5")->Value().IsEmpty());
    EXPECT_TRUE(At("E6")->Value().IsEmpty());
    apart->Font()->SetBold(true);
    apart->ClearContents();
    EXPECT_TRUE(At("A5")->Value().IsEmpty());
    EXPECT_TRUE(At("E8")->Value().IsEmpty());
    EXPECT_EQ(At("E8")->Font()->Bold(), Variant(true));
    apart->SetValue("x");
    apart->Clear();
    EXPECT_TRUE(At("C5")->Value().IsEmpty());
    EXPECT_EQ(At("E7")->Font()->Bold(), Variant(false));
}
