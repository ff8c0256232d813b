#include "embedded/engine_fixture.hpp"

using namespace excel;

namespace {
const Variant notAvailable(ErrorValue{static_cast<int32_t>(0x800A0000 + xlErrNA)});
}

TEST_F(EngineTest, EmptyCellReadsEmpty) {
    EXPECT_TRUE(At("A1")->Value().IsEmpty());
    EXPECT_EQ(At("A1")->Text().ToString(), "");
}

TEST_F(EngineTest, ScalarValuesRoundTrip) {
    At("A1")->SetValue(2.5);
    At("A2")->SetValue(true);
    At("A3")->SetValue("hello");
    At("A4")->SetValue(ErrorValue{static_cast<int32_t>(0x800A0000 + xlErrDiv0)});
    EXPECT_EQ(At("A1")->Value(), Variant(2.5));
    EXPECT_EQ(At("A2")->Value(), Variant(true));
    EXPECT_EQ(At("A3")->Value(), Variant("hello"));
    EXPECT_EQ(At("A4")->Value(), Variant(ErrorValue{static_cast<int32_t>(0x800A0000 + xlErrDiv0)}));
    EXPECT_EQ(At("A4")->Text().ToString(), "#DIV/0!");
}

TEST_F(EngineTest, BlockValueIsAOneBasedRowsByColumnsArray) {
    At("B2")->SetValue(1.0);
    At("C3")->SetValue("x");
    Variant values = At("B2:D3")->Value();
    ASSERT_TRUE(values.IsArray());
    const SafeArray& array = values.Array();
    EXPECT_EQ(array.Dimensions(), 2);
    EXPECT_EQ(array.LowerBound(1), 1);
    EXPECT_EQ(array.UpperBound(1), 2);
    EXPECT_EQ(array.UpperBound(2), 3);
    EXPECT_EQ(array.Get({1, 1}), Variant(1.0));
    EXPECT_EQ(array.Get({2, 2}), Variant("x"));
    EXPECT_TRUE(array.Get({2, 3}).IsEmpty());
}

TEST_F(EngineTest, ScalarFillsEveryCell) {
    At("A1:B2")->SetValue(7.0);
    EXPECT_EQ(At("B2")->Value(), Variant(7.0));
    EXPECT_EQ(At("A2")->Value(), Variant(7.0));
}

TEST_F(EngineTest, ArrayFillsTheBlockWithNotAvailableBeyondIt) {
    SafeArray values = SafeArray::Matrix(VarType::Variant, 2, 2);
    values.Put(0, 0, 1.0);
    values.Put(0, 1, 2.0);
    values.Put(1, 0, 3.0);
    values.Put(1, 1, 4.0);
    At("A1:C3")->SetValue(Variant(values));
    EXPECT_EQ(At("B2")->Value(), Variant(4.0));
    EXPECT_EQ(At("C1")->Value(), notAvailable);
    EXPECT_EQ(At("A3")->Value(), notAvailable);
    // Extra elements are ignored.
    At("E1")->SetValue(Variant(values));
    EXPECT_EQ(At("E1")->Value(), Variant(1.0));
    EXPECT_TRUE(At("F1")->Value().IsEmpty());
}

TEST_F(EngineTest, OneDimensionalArrayFillsARow) {
    At("A1:D1")->SetValue(Variant(std::vector<double>{1, 2, 3}));
    EXPECT_EQ(At("C1")->Value(), Variant(3.0));
    EXPECT_EQ(At("D1")->Value(), notAvailable);
}

TEST_F(EngineTest, ColumnFromTwoDimensionalArray) {
    SafeArray values = SafeArray::Matrix(VarType::Double, 1000, 1);
    for (uint32_t i = 0; i < 1000; ++i) {
        values.Put(i, 0, static_cast<double>(i));
    }
    At("B1:B1000")->SetValue(Variant(values));
    EXPECT_EQ(sheet->Cells(1000, 2)->Value(), Variant(999.0));
    EXPECT_EQ(sheet->Cells(500, 2)->Value(), Variant(499.0));
}

TEST_F(EngineTest, ApostropheStoresTextWithQuotePrefix) {
    At("A1")->SetValue("'123");
    EXPECT_EQ(At("A1")->Value(), Variant("123"));
    EXPECT_EQ(At("A1")->Formula(), Variant("123"));
}

TEST_F(EngineTest, FormulaIsStoredWithoutACachedValue) {
    At("A1")->SetValue("=1+2");
    EXPECT_EQ(At("A1")->Formula(), Variant("=1+2"));
    EXPECT_TRUE(At("A1")->Value().IsEmpty());
    At("A2")->SetFormula("=SUM(A1:A1)");
    EXPECT_EQ(At("A2")->Formula(), Variant("=SUM(A1:A1)"));
}

TEST_F(EngineTest, NumericStringsBecomeNumbersWithImpliedFormats) {
    At("A1")->SetValue("42");
    At("A2")->SetValue("50%");
    EXPECT_EQ(At("A1")->Value(), Variant(42.0));
    EXPECT_EQ(At("A2")->Value(), Variant(0.5));
    EXPECT_EQ(At("A2")->NumberFormat(), Variant("0%"));
    EXPECT_EQ(At("A2")->Text(), Variant("50%"));
    At("A3")->SetValue("TRUE");
    EXPECT_EQ(At("A3")->Value(), Variant(true));
}

TEST_F(EngineTest, DatesGetADateFormatAndReadBackAsDates) {
    At("A1")->SetValue(Date{45000.0});
    EXPECT_EQ(At("A1")->Value(), Variant(Date{45000.0}));
    EXPECT_EQ(At("A1")->Value2(), Variant(45000.0));
    EXPECT_EQ(At("A1")->NumberFormat(), Variant("m/d/yyyy"));
    EXPECT_EQ(At("A1")->Text(), Variant("3/15/2023"));
}

TEST_F(EngineTest, CurrencyGetsACurrencyFormat) {
    At("A1")->SetValue(Currency{12345000});
    EXPECT_EQ(At("A1")->Value(), Variant(Currency{12345000}));
    EXPECT_EQ(At("A1")->Value2(), Variant(1234.5));
    EXPECT_EQ(At("A1")->Text(), Variant("$1,234.50"));
}

TEST_F(EngineTest, SettingEmptyClearsTheValue) {
    At("A1")->SetValue(3.0);
    At("A1")->SetValue(Variant());
    EXPECT_TRUE(At("A1")->Value().IsEmpty());
}

TEST_F(EngineTest, SettingEmptyOnTheWholeSheetClearsValuesAndKeepsFormats) {
    At("B2:C3")->SetValue(3.0);
    At("B2")->Font()->SetBold(true);
    sheet->Cells()->SetValue(Variant());
    EXPECT_TRUE(At("B2")->Value().IsEmpty());
    EXPECT_TRUE(At("C3")->Value().IsEmpty());
    EXPECT_EQ(At("B2")->Font()->Bold(), Variant(true));
}

TEST_F(EngineTest, AWriteTooLargeToStoreIsRefusedAndChangesNothing) {
    At("A1")->SetValue(1.0);
    EXPECT_EQ(ErrorCodeOf([&] { sheet->Cells()->SetValue(5.0); }), static_cast<int32_t>(0x800A0007));
    EXPECT_EQ(At("A1")->Value(), Variant(1.0));
    EXPECT_TRUE(At("B1")->Value().IsEmpty());
    sheet->Columns(2)->SetValue(5.0);
    EXPECT_EQ(At("B1048576")->Value(), Variant(5.0));
}

TEST_F(EngineTest, TextOfSeveralCellsIsTheirCommonTextOrNull) {
    At("B2:C3")->SetValue(7.0);
    EXPECT_EQ(At("B2:C3")->Text(), Variant("7"));
    At("C3")->SetNumberFormat("0.0");
    EXPECT_TRUE(At("B2:C3")->Text().IsNull());
    EXPECT_TRUE(At("B2:D3")->Text().IsNull());
    EXPECT_EQ(At("E1:F9")->Text(), Variant(""));
    At("E1")->Font()->SetBold(true);
    EXPECT_EQ(At("E1:F9")->Text(), Variant(""));
    EXPECT_TRUE(sheet->Cells()->Text().IsNull());
    sheet->Cells()->ClearContents();
    EXPECT_EQ(sheet->Cells()->Text(), Variant(""));
}

TEST_F(EngineTest, TextUsesTheNumberFormat) {
    At("A1")->SetValue(1234.567);
    EXPECT_EQ(At("A1")->Text(), Variant("1234.567"));
    At("A1")->SetNumberFormat("0.00");
    EXPECT_EQ(At("A1")->Text(), Variant("1234.57"));
    At("A1")->SetNumberFormat("#,##0");
    EXPECT_EQ(At("A1")->Text(), Variant("1,235"));
    At("A1")->SetNumberFormat("0");
    EXPECT_EQ(At("A1")->Text(), Variant("1235"));
    At("A1")->SetNumberFormat("0%");
    EXPECT_EQ(At("A1")->Text(), Variant("123457%"));
    At("A1")->SetNumberFormat("@");
    EXPECT_EQ(At("A1")->Text(), Variant("1234.567"));
}

TEST_F(EngineTest, TextFormattedCellKeepsNumericEntryAsText) {
    At("A1")->SetNumberFormat("@");
    At("A1")->SetValue("007");
    EXPECT_EQ(At("A1")->Value(), Variant("007"));
}

TEST_F(EngineTest, ClearContentsKeepsFormatsClearFormatsKeepsValues) {
    At("A1")->SetValue(5.0);
    At("A1")->Font()->SetBold(true);
    At("A1")->ClearContents();
    EXPECT_TRUE(At("A1")->Value().IsEmpty());
    EXPECT_EQ(At("A1")->Font()->Bold(), Variant(true));
    At("A1")->SetValue(6.0);
    At("A1")->ClearFormats();
    EXPECT_EQ(At("A1")->Value(), Variant(6.0));
    EXPECT_EQ(At("A1")->Font()->Bold(), Variant(false));
    At("A1")->Clear();
    EXPECT_TRUE(At("A1")->Value().IsEmpty());
}

TEST_F(EngineTest, UnstorableValueIsRefusedAndChangesNothing) {
    At("A1")->SetValue(1.0);
    EXPECT_EQ(ErrorCodeOf([&] { At("A1")->SetValue(Variant(std::static_pointer_cast<Object>(sheet))); }), kRefused);
    EXPECT_EQ(At("A1")->Value(), Variant(1.0));
}

// The table writes each interior column from a one-based rows x 1 array of variants.
TEST_F(EngineTest, VariantColumnArrayFillsAColumnElementByElement) {
    SafeArray values = SafeArray::Matrix(VarType::Variant, 8, 1);
    values.Put(0, 0, Variant("label"));
    values.Put(1, 0, Variant(2.5));
    values.Put(2, 0, Variant(int16_t{-7}));
    values.Put(3, 0, Variant(int32_t{100000}));
    values.Put(4, 0, Variant(0.25f));
    values.Put(5, 0, Variant(true));
    values.Put(6, 0, Variant());
    values.Put(7, 0, Variant("12.5"));
    EXPECT_EQ(values.LowerBound(1), 1);
    auto column = At("C5:C12");
    column->SetValue(Variant(values));
    EXPECT_EQ(At("C5")->Value(), Variant("label"));
    EXPECT_EQ(At("C6")->Value(), Variant(2.5));
    EXPECT_EQ(At("C7")->Value(), Variant(-7.0));
    EXPECT_EQ(At("C8")->Value(), Variant(100000.0));
    EXPECT_EQ(At("C9")->Value(), Variant(0.25));
    EXPECT_EQ(At("C10")->Value(), Variant(true));
    EXPECT_TRUE(At("C11")->Value().IsEmpty());
    // Text that reads as a number is entered as the number, as typing it would be.
    EXPECT_EQ(At("C12")->Value(), Variant(12.5));
    EXPECT_EQ(At("C12")->Value().Type(), VarType::Double);
}

TEST_F(EngineTest, VariantColumnArrayShorterThanTheColumnLeavesNotAvailable) {
    SafeArray values = SafeArray::Matrix(VarType::Variant, 2, 1);
    values.Put(0, 0, Variant(1.0));
    values.Put(1, 0, Variant(2.0));
    At("A1:A3")->SetValue(Variant(values));
    EXPECT_EQ(At("A2")->Value(), Variant(2.0));
    EXPECT_EQ(At("A3")->Value(), notAvailable);
}

// Cells left with no value and no format of their own are not kept, so a cleared block adds
// nothing to the used range or the saved file.
TEST_F(EngineTest, ClearedCellsAreNoLongerStored) {
    At("A1:C3")->SetValue(1.0);
    At("A1:C3")->Font()->SetBold(true);
    At("A1:C3")->Clear();
    At("E5")->SetValue(2.0);
    EXPECT_EQ(sheet->UsedRange()->Address(), "$E$5");
    At("B2:C2")->SetValue(3.0);
    At("B2:C2")->ClearContents();
    EXPECT_EQ(sheet->UsedRange()->Address(), "$E$5");
    At("B2:C2")->SetValue(3.0);
    At("C2")->Font()->SetItalic(true);
    At("B2:C2")->ClearContents();
    EXPECT_EQ(sheet->UsedRange()->Address(), "$C$2:$E$5");
    EXPECT_EQ(At("C2")->Font()->Italic(), Variant(true));
}

TEST_F(EngineTest, ClearedCellsUnderARowFormatKeepShowingIt) {
    sheet->Rows(2)->Interior()->SetColorIndex(6);
    At("B2")->Interior()->SetColorIndex(3);
    At("B2")->ClearFormats();
    EXPECT_EQ(At("B2")->Interior()->ColorIndex(), Variant(xlColorIndexNone));
    At("B2")->Interior()->SetColorIndex(6);
    EXPECT_EQ(At("A2:C2")->Interior()->ColorIndex(), Variant(6));
}
