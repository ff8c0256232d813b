#include "embedded/engine_fixture.hpp"

#include <cstdlib>

using namespace excel;

TEST(ApplicationTest, NewWorkbooksAreNamedBookNWithTheConfiguredSheets) {
    auto app = TestApplication();
    EXPECT_EQ(app->Workbooks()->Count(), 0);
    EXPECT_EQ(app->ActiveWorkbook(), nullptr);
    app->SetSheetsInNewWorkbook(3);
    auto first = app->Workbooks()->Add();
    auto second = app->Workbooks()->Add();
    EXPECT_EQ(first->Name(), "Book1");
    EXPECT_EQ(second->Name(), "Book2");
    EXPECT_EQ(second->Worksheets()->Count(), 3);
    EXPECT_EQ(second->Worksheets(3)->Name(), "Sheet3");
    EXPECT_EQ(app->ActiveWorkbook()->Name(), "Book2");
    EXPECT_EQ(app->Workbooks("book1")->Name(), "Book1");
    EXPECT_EQ(ErrorCodeOf([&] { app->Workbooks(3); }), kSubscriptOutOfRange);
}

TEST(ApplicationTest, Settings) {
    auto app = TestApplication();
    EXPECT_EQ(app->Version(), "16.0");
    EXPECT_EQ(app->SheetsInNewWorkbook(), 1);
    EXPECT_EQ(ErrorCodeOf([&] { app->SetSheetsInNewWorkbook(0); }), kRefused);
    EXPECT_EQ(ErrorCodeOf([&] { app->SetSheetsInNewWorkbook(256); }), kRefused);
    EXPECT_EQ(app->SheetsInNewWorkbook(), 1);
#ifdef _WIN32
    const char* user = std::getenv("USERNAME");
#else
    const char* user = std::getenv("USER");
#endif
    EXPECT_EQ(app->UserName(), user && *user ? user : "User");
    app->SetDisplayAlerts(false);
    EXPECT_FALSE(app->DisplayAlerts());
}

TEST_F(EngineTest, AddedSheetsTakeTheNextNumberAndBecomeActive) {
    auto added = book->Worksheets()->Add();
    EXPECT_EQ(added->Name(), "Sheet2");
    EXPECT_EQ(added->Index(), 1);  // before the active sheet
    EXPECT_EQ(book->ActiveSheet()->Name(), "Sheet2");
    EXPECT_EQ(app->ActiveSheet()->Name(), "Sheet2");
    EXPECT_EQ(book->Windows(1)->ActiveSheet()->Name(), "Sheet2");
    auto last = book->Worksheets()->Add(Variant(), sheet, 2);
    EXPECT_EQ(last->Name(), "Sheet4");
    EXPECT_EQ(book->Worksheets(3)->Name(), "Sheet3");
    EXPECT_EQ(book->Worksheets(4)->Name(), "Sheet4");
    EXPECT_EQ(book->Worksheets()->Count(), 4);
}

TEST_F(EngineTest, SheetItemByIndexOrName) {
    EXPECT_EQ(book->Worksheets("SHEET1")->Name(), "Sheet1");
    EXPECT_EQ(ErrorCodeOf([&] { book->Worksheets(2); }), kSubscriptOutOfRange);
    EXPECT_EQ(ErrorCodeOf([&] { book->Worksheets("Nope"); }), kSubscriptOutOfRange);
}

TEST_F(EngineTest, RenamingValidatesAndRejectsDuplicatesInAnyCase) {
    auto second = book->Worksheets()->Add();
    EXPECT_EQ(ErrorCodeOf([&] { second->SetName("sheet1"); }), kRefused);
    EXPECT_EQ(ErrorCodeOf([&] { second->SetName("a/b"); }), kRefused);
    EXPECT_EQ(ErrorCodeOf([&] { second->SetName(""); }), kRefused);
    EXPECT_EQ(ErrorCodeOf([&] { second->SetName("History"); }), kRefused);
    EXPECT_EQ(second->Name(), "Sheet2");
    second->SetName("Data");
    EXPECT_EQ(book->Worksheets("data")->Index(), second->Index());
}

TEST_F(EngineTest, DeletingTheLastVisibleSheetIsRefused) {
    EXPECT_EQ(ErrorCodeOf([&] { sheet->Delete(); }), kRefused);
    auto second = book->Worksheets()->Add();
    sheet->SetVisible(xlSheetHidden);
    EXPECT_EQ(ErrorCodeOf([&] { second->Delete(); }), kRefused);
    sheet->SetVisible(xlSheetVisible);
    second->Delete();
    EXPECT_EQ(book->Worksheets()->Count(), 1);
    EXPECT_EQ(ErrorCodeOf([&] { second->Name(); }), kObjectRequired);
    EXPECT_EQ(ErrorCodeOf([&] { second->Range("A1"); }), kObjectRequired);
}

TEST_F(EngineTest, RangeOfADeletedSheetFailsCleanly) {
    auto second = book->Worksheets()->Add();
    auto cell = second->Range("A1");
    second->Delete();
    EXPECT_EQ(ErrorCodeOf([&] { cell->SetValue(1.0); }), kObjectRequired);
    EXPECT_EQ(ErrorCodeOf([&] { cell->Font()->Bold(); }), kObjectRequired);
}

TEST_F(EngineTest, WindowGridlinesFollowTheActiveSheet) {
    auto second = book->Worksheets()->Add();
    book->Windows(1)->SetDisplayGridlines(false);
    EXPECT_FALSE(book->Windows(1)->DisplayGridlines());
    sheet->Activate();
    EXPECT_TRUE(book->Windows(1)->DisplayGridlines());
    EXPECT_TRUE(app->ActiveWindow()->DisplayGridlines());
    second->Activate();
    EXPECT_FALSE(app->ActiveWindow()->DisplayGridlines());
}

TEST_F(EngineTest, PrintGridlinesAndPageBreaksArePerSheet) {
    auto second = book->Worksheets()->Add();
    sheet->PageSetup()->SetPrintGridlines(true);
    second->SetDisplayPageBreaks(true);
    EXPECT_TRUE(sheet->PageSetup()->PrintGridlines());
    EXPECT_FALSE(second->PageSetup()->PrintGridlines());
    EXPECT_FALSE(sheet->DisplayPageBreaks());
    EXPECT_TRUE(second->DisplayPageBreaks());
}

TEST_F(EngineTest, ProtectedStructureRefusesSheetChanges) {
    book->Protect("pw");
    EXPECT_TRUE(book->ProtectStructure());
    EXPECT_EQ(ErrorCodeOf([&] { book->Worksheets()->Add(); }), kRefused);
    EXPECT_EQ(ErrorCodeOf([&] { sheet->SetName("Other"); }), kRefused);
    EXPECT_EQ(ErrorCodeOf([&] { book->Unprotect("wrong"); }), kRefused);
    book->Unprotect("pw");
    EXPECT_FALSE(book->ProtectStructure());
    book->Worksheets()->Add();
    EXPECT_EQ(book->Worksheets()->Count(), 2);
}

TEST_F(EngineTest, PaletteColorsGetSetAndReset) {
    EXPECT_EQ(book->Colors(3), Variant(static_cast<int32_t>(0x0000FF)));
    book->SetColors(3, static_cast<int32_t>(0x112233));
    EXPECT_EQ(book->Colors(3), Variant(static_cast<int32_t>(0x112233)));
    At("A1")->Interior()->SetColorIndex(3);
    EXPECT_EQ(At("A1")->Interior()->Color(), Variant(static_cast<double>(0x112233)));
    EXPECT_EQ(ErrorCodeOf([&] { book->Colors(57); }), kRefused);
    book->ResetColors();
    EXPECT_EQ(book->Colors(3), Variant(static_cast<int32_t>(0x0000FF)));
}

TEST_F(EngineTest, ClosedWorkbookObjectsRaiseObjectRequired) {
    auto cell = At("A1");
    book->Close();
    EXPECT_EQ(app->Workbooks()->Count(), 0);
    EXPECT_EQ(ErrorCodeOf([&] { book->Name(); }), kObjectRequired);
    EXPECT_EQ(ErrorCodeOf([&] { sheet->Name(); }), kObjectRequired);
    EXPECT_EQ(ErrorCodeOf([&] { cell->Value(); }), kObjectRequired);
}

TEST_F(EngineTest, SaveOfANeverSavedWorkbookIsRefused) {
    EXPECT_EQ(book->FullName(), "Book1");
    EXPECT_EQ(book->Path(), "");
    EXPECT_FALSE(book->ReadOnly());
    EXPECT_EQ(ErrorCodeOf([&] { book->Save(); }), kRefused);
}
