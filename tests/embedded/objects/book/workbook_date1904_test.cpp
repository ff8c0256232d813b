#include "embedded/engine_fixture.hpp"

// Workbook.Date1904: which day a date serial counts from. Switching keeps the numbers the cells
// store, so every date they show moves by 1,462 days, as in Excel.

using namespace excel;

TEST_F(EngineTest, SwitchingTo1904SystemKeepsTheSerialsAndMovesTheDates) {
    At("A1")->SetValue(Date{45000.0});  // 3/15/2023
    book->SetDate1904(true);
    EXPECT_TRUE(book->Date1904());
    EXPECT_EQ(At("A1")->Value2(), Variant(45000.0));
    EXPECT_EQ(At("A1")->Value(), Variant(Date{46462.0}));
    EXPECT_EQ(At("A1")->Text(), Variant("3/16/2027"));
}

TEST_F(EngineTest, SwitchingBackTo1900SystemShowsTheOriginalDates) {
    book->SetDate1904(true);
    At("A1")->SetValue(Date{45000.0});
    book->SetDate1904(false);
    EXPECT_FALSE(book->Date1904());
    EXPECT_EQ(At("A1")->Value2(), Variant(43538.0));
    EXPECT_EQ(At("A1")->Value(), Variant(Date{43538.0}));
    EXPECT_EQ(At("A1")->Text(), Variant("3/14/2019"));
}

TEST_F(EngineTest, SettingTheDateSystemIsAChange) {
    ASSERT_TRUE(book->Saved());
    book->SetDate1904(true);
    EXPECT_FALSE(book->Saved());
}

TEST_F(EngineTest, TheDateSystemOfAClosedWorkbookCannotBeRead) {
    book->Close();
    EXPECT_EQ(ErrorCodeOf([&] { book->Date1904(); }), kObjectRequired);
    EXPECT_EQ(ErrorCodeOf([&] { book->SetDate1904(true); }), kObjectRequired);
}
