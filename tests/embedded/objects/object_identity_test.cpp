#include "embedded/engine_fixture.hpp"

TEST_F(EngineTest, ReferencesToOneSheetWorkbookOrApplicationAreTheSameObject) {
    EXPECT_TRUE(excel::IsSameObject(sheet, At("B2")->Parent()));
    EXPECT_TRUE(excel::IsSameObject(sheet, book->Worksheets(1)));
    EXPECT_TRUE(excel::IsSameObject(book, sheet->Parent()));
    EXPECT_TRUE(excel::IsSameObject(app, book->Application()));
    EXPECT_TRUE(excel::IsSameObject(app, At("A1")->Application()));
}

TEST_F(EngineTest, DifferentSheetsWorkbooksAndApplicationsAreDifferentObjects) {
    auto second = book->Worksheets()->Add();
    EXPECT_FALSE(excel::IsSameObject(sheet, second));
    EXPECT_FALSE(excel::IsSameObject(book, app->Workbooks()->Add()));
    EXPECT_FALSE(excel::IsSameObject(app, TestApplication()));
}

TEST_F(EngineTest, EmptyReferencesAreOnlyTheSameAsEachOther) {
    EXPECT_TRUE(excel::IsSameObject(nullptr, nullptr));
    EXPECT_FALSE(excel::IsSameObject(sheet, nullptr));
    EXPECT_FALSE(excel::IsSameObject(nullptr, book));
}

TEST_F(EngineTest, RangesAreDistinctViewsEvenOfTheSameCells) {
    EXPECT_FALSE(excel::IsSameObject(At("A1"), At("A1")));
}
