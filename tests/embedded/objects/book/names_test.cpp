#include "embedded/engine_fixture.hpp"

using namespace excel;

TEST_F(EngineTest, WorkbookLevelName) {
    auto name = book->Names()->Add("Total", "=Sheet1!$A$1");
    EXPECT_EQ(name->GetName(), "Total");
    EXPECT_EQ(name->RefersTo(), "=Sheet1!$A$1");
    EXPECT_EQ(book->Names()->Count(), 1);
    EXPECT_EQ(book->Names()->Item("total")->RefersTo(), "=Sheet1!$A$1");
    EXPECT_EQ(name->RefersToRange()->Address(), "$A$1");
}

TEST_F(EngineTest, SheetLevelNames) {
    book->Names()->Add("Sheet1!Total", "=Sheet1!$B$2");
    sheet->SetName("My Sheet");
    book->Names()->Add("'My Sheet'!Other", 5.0);
    sheet->Names()->Add("Third", "=1");
    EXPECT_EQ(sheet->Names()->Count(), 3);
    EXPECT_EQ(book->Names()->Item("'My Sheet'!Total")->GetName(), "'My Sheet'!Total");
    EXPECT_EQ(book->Names()->Item("'My Sheet'!Total")->RefersTo(), "='My Sheet'!$B$2");
    EXPECT_EQ(sheet->Names()->Item("Other")->RefersTo(), "=5");
}

TEST_F(EngineTest, ReAddingInTheSameScopeReplaces) {
    book->Names()->Add("Total", "=1");
    book->Names()->Add("TOTAL", "=2");
    book->Names()->Add("Sheet1!Total", "=3");
    EXPECT_EQ(book->Names()->Count(), 2);
    EXPECT_EQ(book->Names()->Item("Total")->RefersTo(), "=2");
}

TEST_F(EngineTest, RefersToFromRangesAndConstants) {
    EXPECT_EQ(book->Names()->Add("Ref", sheet->Range("B2:C3"))->RefersTo(), "=Sheet1!$B$2:$C$3");
    EXPECT_EQ(book->Names()->Add("Text", "MyApp")->RefersTo(), "=\"MyApp\"");
    EXPECT_EQ(book->Names()->Add("Num", 42.0)->RefersTo(), "=42");
    EXPECT_EQ(book->Names()->Add("Flag", true)->RefersTo(), "=TRUE");
}

TEST_F(EngineTest, InvalidNamesAreRefused) {
    EXPECT_EQ(ErrorCodeOf([&] { book->Names()->Add("A1", "=1"); }), kRefused);
    EXPECT_EQ(ErrorCodeOf([&] { book->Names()->Add("1abc", "=1"); }), kRefused);
    EXPECT_EQ(ErrorCodeOf([&] { book->Names()->Add("has space", "=1"); }), kRefused);
    EXPECT_EQ(ErrorCodeOf([&] { book->Names()->Add("NoSheet!Total", "=1"); }), kRefused);
    EXPECT_EQ(book->Names()->Count(), 0);
}

TEST_F(EngineTest, NameVisibilityIndexAndDelete) {
    auto second = book->Names()->Add("Beta", "=2", false);
    auto first = book->Names()->Add("Alpha", "=1");
    EXPECT_FALSE(second->Visible());
    EXPECT_EQ(first->Index(), 1);
    EXPECT_EQ(book->Names()->Item(2)->GetName(), "Beta");
    first->Delete();
    EXPECT_EQ(book->Names()->Count(), 1);
    EXPECT_EQ(ErrorCodeOf([&] { first->RefersTo(); }), kObjectRequired);
}

TEST_F(EngineTest, EvaluatePrefersTheSheetLocalName) {
    book->Names()->Add("App", "=\"Global\"");
    sheet->Names()->Add("App", "=\"MyApp\"");
    auto other = book->Worksheets()->Add();
    EXPECT_EQ(sheet->Evaluate("App"), Variant("MyApp"));
    EXPECT_EQ(other->Evaluate("App"), Variant("Global"));
}

TEST_F(EngineTest, EvaluateConstantsReferencesAndUnknownNames) {
    book->Names()->Add("Rate", "=0.25");
    book->Names()->Add("Cell", "=Sheet1!$C$3");
    EXPECT_EQ(sheet->Evaluate("Rate"), Variant(0.25));
    auto cell = sheet->Evaluate("Cell").As<Range>();
    ASSERT_TRUE(cell);
    EXPECT_EQ(cell->Address(), "$C$3");
    EXPECT_EQ(sheet->Evaluate("B2:C4").As<Range>()->Address(), "$B$2:$C$4");
    EXPECT_EQ(sheet->Evaluate("Unknown"), Variant(ErrorValue{static_cast<int32_t>(0x800A07ED)}));
    EXPECT_EQ(sheet->Evaluate("1+2"), Variant(ErrorValue{static_cast<int32_t>(0x800A0000 + xlErrValue)}));
    EXPECT_EQ(sheet->Range("Cell")->Address(), "$C$3");
}

TEST_F(EngineTest, DeletingASheetDropsItsNamesAndBreaksReferences) {
    auto second = book->Worksheets()->Add();
    second->Names()->Add("Local", "=1");
    // Appended, not "=" + ...: GCC 12 warns wrongly of overlapping copies there at -O3.
    book->Names()->Add("Ref", std::string("=").append(second->Name()).append("!$A$1"));
    second->Delete();
    EXPECT_EQ(book->Names()->Count(), 1);
    EXPECT_EQ(book->Names()->Item("Ref")->RefersTo(), "=#REF!$A$1");
}

TEST_F(EngineTest, RenamingASheetFollowsInNames) {
    book->Names()->Add("Ref", "=Sheet1!$A$1:$B$2");
    sheet->SetName("Data 2024");
    EXPECT_EQ(book->Names()->Item("Ref")->RefersTo(), "='Data 2024'!$A$1:$B$2");
}
