#include "excel/embedded/model/names/sheet_name_rules.hpp"

#include <gtest/gtest.h>

#include <string>

namespace {

using excel::embedded::IsValidSheetName;
using excel::embedded::QualifiedSheetName;
using excel::embedded::SameSheetName;
using excel::embedded::SheetNameNeedsQuotes;

TEST(SheetNameRulesTest, ValidNames) {
    for (const char* name :
         {"Sheet1", "My Sheet", "It's", "Q1 (draft)", "a", "Données", "Отчёт", "データ", "#1", "Historyx", "2024"}) {
        EXPECT_TRUE(IsValidSheetName(name)) << name;
    }
}

TEST(SheetNameRulesTest, ForbiddenCharacters) {
    for (const char* name : {"a:b", "a\\b", "a/b", "a?b", "a*b", "a[b", "a]b"}) {
        EXPECT_FALSE(IsValidSheetName(name)) << name;
    }
}

TEST(SheetNameRulesTest, LengthCountsCharactersNotBytes) {
    EXPECT_FALSE(IsValidSheetName(""));
    EXPECT_TRUE(IsValidSheetName(std::string(31, 'x')));
    EXPECT_FALSE(IsValidSheetName(std::string(32, 'x')));
    std::string accented;
    for (int i = 0; i < 31; ++i)
        accented += "é";  // 62 bytes, 31 characters
    EXPECT_TRUE(IsValidSheetName(accented));
    EXPECT_FALSE(IsValidSheetName(accented + "é"));
}

TEST(SheetNameRulesTest, ApostropheMayNotStartOrEnd) {
    EXPECT_FALSE(IsValidSheetName("'Sheet"));
    EXPECT_FALSE(IsValidSheetName("Sheet'"));
    EXPECT_TRUE(IsValidSheetName("She'et"));
}

TEST(SheetNameRulesTest, HistoryIsReserved) {
    EXPECT_FALSE(IsValidSheetName("History"));
    EXPECT_FALSE(IsValidSheetName("HISTORY"));
    EXPECT_FALSE(IsValidSheetName("history"));
}

TEST(SheetNameRulesTest, ComparisonIgnoresCase) {
    EXPECT_TRUE(SameSheetName("Sheet1", "SHEET1"));
    EXPECT_TRUE(SameSheetName("Données", "DONNÉES"));
    EXPECT_TRUE(SameSheetName("Отчёт", "ОТЧЁТ"));
    EXPECT_TRUE(SameSheetName("Σύνολο", "ΣΎΝΟΛΟ"));
    EXPECT_TRUE(SameSheetName("Łódź", "ŁÓDŹ"));
    EXPECT_FALSE(SameSheetName("Sheet1", "Sheet2"));
    EXPECT_FALSE(SameSheetName("Sheet", "Sheet1"));
    EXPECT_FALSE(SameSheetName("Données", "Donnees"));
}

TEST(SheetNameRulesTest, QuotesWhenNeeded) {
    for (const char* name : {"Sheet1", "Data", "my_sheet", "v1.2", "Données", "Ab1C"}) {
        EXPECT_FALSE(SheetNameNeedsQuotes(name)) << name;
    }
    for (const char* name : {"My Sheet", "It's", "2024", "1st", "A1", "xfd100", "R1C1", "R", "c", "RC", "a-b",
                             "Q1 (draft)", "x+y", "a,b", "a!b"}) {
        EXPECT_TRUE(SheetNameNeedsQuotes(name)) << name;
    }
}

TEST(SheetNameRulesTest, QualifiedNames) {
    EXPECT_EQ(QualifiedSheetName("Sheet1"), "Sheet1");
    EXPECT_EQ(QualifiedSheetName("My Sheet"), "'My Sheet'");
    EXPECT_EQ(QualifiedSheetName("It's"), "'It''s'");
    EXPECT_EQ(QualifiedSheetName("A1"), "'A1'");
    EXPECT_EQ(QualifiedSheetName("a''b"), "'a''''b'");
}

}  // namespace
