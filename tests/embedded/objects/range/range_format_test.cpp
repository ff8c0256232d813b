#include "embedded/engine_fixture.hpp"

using namespace excel;

TEST_F(EngineTest, CellFormatBeatsRowFormatBeatsColumnFormat) {
    sheet->Columns(2)->Font()->SetItalic(true);
    sheet->Rows(3)->Font()->SetBold(true);
    At("B3")->Font()->SetSize(14);
    EXPECT_EQ(At("B5")->Font()->Italic(), Variant(true));
    EXPECT_EQ(At("B5")->Font()->Bold(), Variant(false));
    EXPECT_EQ(At("D3")->Font()->Bold(), Variant(true));
    // Where the bold row crosses the italic column Excel keeps both.
    EXPECT_EQ(At("B3")->Font()->Italic(), Variant(true));
    EXPECT_EQ(At("B3")->Font()->Bold(), Variant(true));
    EXPECT_EQ(At("B3")->Font()->Size(), Variant(14.0));
    EXPECT_EQ(At("A1")->Font()->Size(), Variant(11.0));
}

TEST_F(EngineTest, FormattingAColumnUpdatesItsExistingCells) {
    At("C7")->SetValue(1.0);
    At("C7")->Font()->SetSize(20);
    At("C7")->EntireColumn()->Font()->SetBold(true);
    EXPECT_EQ(At("C7")->Font()->Bold(), Variant(true));
    EXPECT_EQ(At("C7")->Font()->Size(), Variant(20.0));
    EXPECT_EQ(At("C1048576")->Font()->Bold(), Variant(true));
}

TEST_F(EngineTest, FormattingTheWholeSheetReachesEveryCell) {
    At("E5")->SetValue("x");
    sheet->Cells()->Interior()->SetColor(0x00FFFF);
    EXPECT_EQ(At("E5")->Interior()->Color(), Variant(static_cast<double>(0x00FFFF)));
    EXPECT_EQ(At("XFD1048576")->Interior()->Color(), Variant(static_cast<double>(0x00FFFF)));
    EXPECT_EQ(sheet->Cells()->Interior()->Color(), Variant(static_cast<double>(0x00FFFF)));
}

TEST_F(EngineTest, MillionCellBlockFormatsAndReads) {
    auto block = sheet->Range("A1:J100000");
    block->Font()->SetBold(true);
    block->SetHorizontalAlignment(xlCenter);
    EXPECT_EQ(block->Font()->Bold(), Variant(true));
    EXPECT_EQ(block->HorizontalAlignment(), Variant(xlCenter));
    EXPECT_EQ(sheet->Range("A1:K2")->Font()->Bold(), Variant::Null());
}

TEST_F(EngineTest, MixedPropertiesReadNull) {
    At("A1")->Font()->SetBold(true);
    EXPECT_TRUE(At("A1:A2")->Font()->Bold().IsNull());
    EXPECT_TRUE(At("A1:A2")->Font()->Size() == Variant(11.0));
    At("A2")->SetNumberFormat("0.00");
    EXPECT_TRUE(At("A1:A2")->NumberFormat().IsNull());
    EXPECT_EQ(At("A1")->NumberFormat(), Variant("General"));
    EXPECT_EQ(At("A1")->NumberFormatLocal(), Variant("General"));
}

TEST_F(EngineTest, AlignmentDefaultsAndConstants) {
    EXPECT_EQ(At("A1")->HorizontalAlignment(), Variant(xlGeneral));
    EXPECT_EQ(At("A1")->VerticalAlignment(), Variant(xlBottom));
    At("A1")->SetHorizontalAlignment(xlCenterAcrossSelection);
    At("A1")->SetVerticalAlignment(xlTop);
    EXPECT_EQ(At("A1")->HorizontalAlignment(), Variant(xlCenterAcrossSelection));
    EXPECT_EQ(At("A1")->VerticalAlignment(), Variant(xlTop));
    EXPECT_EQ(ErrorCodeOf([&] { At("A1")->SetHorizontalAlignment(12345); }), kRefused);
    At("A1")->SetWrapText(true);
    EXPECT_EQ(At("A1")->WrapText(), Variant(true));
    At("A1")->SetIndentLevel(2);
    EXPECT_EQ(At("A1")->IndentLevel(), Variant(2));
    At("A1")->SetOrientation(-45);
    EXPECT_EQ(At("A1")->Orientation(), Variant(-45));
    At("A2")->SetOrientation(30);
    EXPECT_EQ(At("A2")->Orientation(), Variant(30));
}

TEST_F(EngineTest, FontProperties) {
    auto font = At("A1")->Font();
    font->SetUnderline(xlUnderlineStyleDouble);
    EXPECT_EQ(font->Underline(), Variant(xlUnderlineStyleDouble));
    font->SetFontStyle("Bold Italic");
    EXPECT_EQ(font->Bold(), Variant(true));
    EXPECT_EQ(font->Italic(), Variant(true));
    EXPECT_EQ(font->FontStyle(), Variant("Bold Italic"));
    font->SetName("Arial");
    EXPECT_EQ(font->Name(), Variant("Arial"));
    EXPECT_EQ(ErrorCodeOf([&] { font->SetUnderline(99); }), kRefused);
}

TEST_F(EngineTest, FontColours) {
    auto font = At("A1")->Font();
    EXPECT_EQ(font->Color(), Variant(0.0));
    font->SetColor(0x0000FF);
    EXPECT_EQ(font->Color(), Variant(static_cast<double>(0x0000FF)));
    EXPECT_EQ(font->ColorIndex(), Variant(3));
    font->SetColorIndex(xlColorIndexAutomatic);
    EXPECT_EQ(font->ColorIndex(), Variant(xlColorIndexAutomatic));
    font->SetThemeColor(xlThemeColorAccent1);
    font->SetTintAndShade(0.4);
    EXPECT_EQ(font->ThemeColor(), Variant(xlThemeColorAccent1));
    EXPECT_NEAR(font->TintAndShade().ToDouble(), 0.4, 1e-9);
    EXPECT_NE(font->Color(), Variant(0.0));
    // A colour that is not a theme colour has no ThemeColor to read.
    font->SetColor(0x123456);
    EXPECT_EQ(ErrorCodeOf([&] { font->ThemeColor(); }), kRefused);
}

TEST_F(EngineTest, InteriorColourMakesASolidFillAndNoneRemovesIt) {
    auto interior = At("A1")->Interior();
    EXPECT_EQ(interior->ColorIndex(), Variant(xlColorIndexNone));
    EXPECT_EQ(interior->Pattern(), Variant(xlPatternNone));
    EXPECT_EQ(interior->Color(), Variant(static_cast<double>(0xFFFFFF)));
    interior->SetColor(0x00FF00);
    EXPECT_EQ(interior->Pattern(), Variant(xlPatternSolid));
    EXPECT_EQ(interior->ColorIndex(), Variant(4));
    interior->SetColorIndex(6);
    EXPECT_EQ(interior->Color(), Variant(static_cast<double>(0x00FFFF)));
    interior->SetColorIndex(xlColorIndexNone);
    EXPECT_EQ(interior->Pattern(), Variant(xlPatternNone));
    interior->SetThemeColor(xlThemeColorDark1);
    EXPECT_EQ(interior->ThemeColor(), Variant(xlThemeColorDark1));
    EXPECT_EQ(interior->Color(), Variant(static_cast<double>(0xFFFFFF)));
    interior->SetTintAndShade(-0.5);
    EXPECT_EQ(interior->Color(), Variant(static_cast<double>(0x7F7F7F)));  // "Background 1, Darker 50%"
    interior->SetPattern(xlPatternNone);
    EXPECT_EQ(interior->ColorIndex(), Variant(xlColorIndexNone));
    EXPECT_EQ(ErrorCodeOf([&] { interior->SetColorIndex(57); }), kRefused);
}

TEST_F(EngineTest, MergeKeepsTheTopLeftValueAndReadsMixed) {
    At("A1")->SetValue("keep");
    At("B2")->SetValue("lost");
    At("A1:B2")->SetMergeCells(true);
    EXPECT_EQ(At("A1:B2")->MergeCells(), Variant(true));
    EXPECT_EQ(At("A1")->MergeCells(), Variant(true));
    EXPECT_EQ(At("A1")->Value(), Variant("keep"));
    EXPECT_TRUE(At("B2")->Value().IsEmpty());
    EXPECT_TRUE(At("A1:C3")->MergeCells().IsNull());
    EXPECT_EQ(At("D4")->MergeCells(), Variant(false));
    At("B2")->SetMergeCells(false);
    EXPECT_EQ(At("A1:B2")->MergeCells(), Variant(false));
}

TEST_F(EngineTest, MergingOverAMergeAbsorbsIt) {
    At("A1:B2")->Merge();
    At("B2:C3")->Merge();
    EXPECT_EQ(At("C3")->MergeArea()->Address(), "$A$1:$C$3");
}

TEST_F(EngineTest, ColumnWidthAndRowHeight) {
    EXPECT_EQ(At("A1")->ColumnWidth(), Variant(8.43));
    EXPECT_EQ(At("A1")->RowHeight(), Variant(15.0));
    sheet->Columns(2)->SetColumnWidth(20);
    EXPECT_EQ(At("B7")->ColumnWidth(), Variant(20.0));
    EXPECT_TRUE(At("A1:B1")->ColumnWidth().IsNull());
    At("C3:D4")->EntireColumn()->SetColumnWidth(5);
    EXPECT_EQ(At("D1")->ColumnWidth(), Variant(5.0));
    sheet->Cells()->SetColumnWidth(12);
    EXPECT_EQ(At("XFD1")->ColumnWidth(), Variant(12.0));
    At("A2")->EntireRow()->SetRowHeight(30);
    EXPECT_EQ(At("C2")->RowHeight(), Variant(30.0));
    EXPECT_TRUE(At("A1:A2")->RowHeight().IsNull());
    EXPECT_EQ(ErrorCodeOf([&] { At("A1")->SetColumnWidth(256); }), kRefused);
}

TEST_F(EngineTest, HiddenRowsAndColumns) {
    sheet->Rows(2)->SetHidden(true);
    EXPECT_EQ(sheet->Rows(2)->Hidden(), Variant(true));
    EXPECT_EQ(sheet->Columns(1)->Hidden(), Variant(false));
    EXPECT_EQ(ErrorCodeOf([&] { At("A1")->SetHidden(true); }), kRefused);
}

TEST_F(EngineTest, PatternedFillKeepsCellColourAndPatternColourApart) {
    auto interior = At("A1")->Interior();
    interior->SetColor(0xFFEEDD);
    interior->SetPattern(xlPatternGray50);
    EXPECT_EQ(interior->Color(), Variant(static_cast<double>(0xFFEEDD)));
    EXPECT_EQ(interior->PatternColorIndex(), Variant(xlColorIndexAutomatic));
    interior->SetPatternColor(0x800000);
    EXPECT_EQ(interior->PatternColor(), Variant(static_cast<double>(0x800000)));
    EXPECT_EQ(interior->Color(), Variant(static_cast<double>(0xFFEEDD)));
    interior->SetPattern(xlPatternSolid);
    EXPECT_EQ(interior->Color(), Variant(static_cast<double>(0xFFEEDD)));
}

// The engine works in locale 1033, where a number format's local spelling is its own.
TEST_F(EngineTest, NumberFormatLocalActsAsNumberFormat) {
    auto block = At("B2:C3");
    block->SetNumberFormatLocal("#,##0.00");
    EXPECT_EQ(block->NumberFormat(), Variant("#,##0.00"));
    EXPECT_EQ(block->NumberFormatLocal(), Variant("#,##0.00"));
    block->SetValue(1234.5);
    EXPECT_EQ(At("B2")->Text(), Variant("1,234.50"));
    block->SetNumberFormat("0%");
    EXPECT_EQ(block->NumberFormatLocal(), Variant("0%"));
    block->SetNumberFormatLocal("");
    EXPECT_EQ(block->NumberFormatLocal(), Variant("General"));
}
