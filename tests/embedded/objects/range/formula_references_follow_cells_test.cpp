// Formulas and names keep pointing at the same cells when cells are inserted or deleted, when a
// sheet is renamed and when it is deleted, as Excel rewrites them.

#include "embedded/engine_fixture.hpp"

using namespace excel;

namespace {

TEST_F(EngineTest, FormulasFollowInsertedRowsOnTheirSheetAndFromOthers) {
    At("A1")->SetFormula("=SUM(B2:B9)+B1");
    auto other = book->Worksheets()->Add();
    other->SetName("Other");
    other->Range("A1")->SetFormula("=Sheet1!B5*'Sheet1'!$C$5+B5");
    sheet->Range("A5")->EntireRow()->Insert();
    EXPECT_EQ(At("A1")->Formula(), Variant("=SUM(B2:B10)+B1"));
    EXPECT_EQ(other->Range("A1")->Formula(), Variant("=Sheet1!B6*'Sheet1'!$C$6+B5"));
}

TEST_F(EngineTest, FormulasFollowCellsThatMoveAndTheFormulasCellsMoveToo) {
    At("C3")->SetFormula("=A3+B$1");
    At("A1:C1")->Insert(xlShiftDown);  // columns A to C move down a row from row 1
    EXPECT_EQ(At("C4")->Formula(), Variant("=A4+B$2"));
    At("B1")->EntireColumn()->Insert();
    EXPECT_EQ(At("D4")->Formula(), Variant("=A4+C$2"));
}

TEST_F(EngineTest, FormulasToDeletedCellsBecomeRefErrors) {
    At("D1")->SetFormula("=A2+SUM(A1:A4)+A6");
    auto other = book->Worksheets()->Add();
    other->Range("A1")->SetFormula("=Sheet1!A3");
    sheet->Range("A2:A3")->EntireRow()->Delete();
    EXPECT_EQ(At("D1")->Formula(), Variant("=#REF!+SUM(A1:A2)+A4"));
    EXPECT_EQ(other->Range("A1")->Formula(), Variant("=Sheet1!#REF!"));
}

TEST_F(EngineTest, NamesWithFormulasFollowTheirCells) {
    book->Names()->Add("Rows", "=OFFSET(Sheet1!$A$1,0,0,COUNTA(Sheet1!$A:$A),1)");
    book->Names()->Add("Pair", "=Sheet1!$A$2,Sheet1!$B$5");
    sheet->Range("A1")->EntireRow()->Insert();
    EXPECT_EQ(book->Names()->Item("Rows")->RefersTo(), "=OFFSET(Sheet1!$A$2,0,0,COUNTA(Sheet1!$A:$A),1)");
    sheet->Range("A3")->EntireRow()->Delete();
    EXPECT_EQ(book->Names()->Item("Pair")->RefersTo(), "=Sheet1!#REF!,Sheet1!$B$5");
}

TEST_F(EngineTest, ARenamedSheetIsRenamedInFormulas) {
    auto other = book->Worksheets()->Add();
    other->Range("A1")->SetFormula("=Sheet1!B2+SUM(sheet1!C1:C3)+\"Sheet1!B2\"");
    book->Names()->Add("Total", "=Sheet1!$D$1*2");
    sheet->SetName("Q1 2024");
    EXPECT_EQ(other->Range("A1")->Formula(), Variant("='Q1 2024'!B2+SUM('Q1 2024'!C1:C3)+\"Sheet1!B2\""));
    EXPECT_EQ(book->Names()->Item("Total")->RefersTo(), "='Q1 2024'!$D$1*2");
}

TEST_F(EngineTest, ADeletedSheetLeavesRefErrorsWhereFormulasNamedIt) {
    auto other = book->Worksheets()->Add();
    other->SetName("Data");
    sheet->Range("A1")->SetFormula("=Data!B2+B2");
    book->Names()->Add("Rate", "=Data!$A$1");
    app->SetDisplayAlerts(false);
    other->Delete();
    EXPECT_EQ(At("A1")->Formula(), Variant("=#REF!B2+B2"));
    EXPECT_EQ(book->Names()->Item("Rate")->RefersTo(), "=#REF!$A$1");
}

}  // namespace
