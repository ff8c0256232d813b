#include "excel/embedded/model/names/defined_name_rules.hpp"

#include <gtest/gtest.h>

#include <string>

namespace {

using excel::embedded::IsValidDefinedName;
using excel::embedded::SameDefinedName;

TEST(DefinedNameRulesTest, ValidNames) {
    for (const char* name : {"Total", "_private", "\\backslash", "Sales.2024", "Rate?", "a", "tax_rate", "Données",
                             "ABCD1", "XFE1", "A1B", "RC1X", "R1C1a", "Print_Area", "x\\y"}) {
        EXPECT_TRUE(IsValidDefinedName(name)) << name;
    }
}

TEST(DefinedNameRulesTest, FirstCharacter) {
    for (const char* name : {"1abc", ".abc", "?abc", "-abc", "$abc"}) {
        EXPECT_FALSE(IsValidDefinedName(name)) << name;
    }
}

TEST(DefinedNameRulesTest, ForbiddenCharacters) {
    for (const char* name : {"my name", "a-b", "a+b", "a!b", "a:b", "a,b", "a$b", "a'b", "a(b)", "a\tb"}) {
        EXPECT_FALSE(IsValidDefinedName(name)) << name;
    }
}

TEST(DefinedNameRulesTest, CellReferencesAreNotNames) {
    for (const char* name : {"A1", "a1", "XFD1048576", "AB12", "R1C1", "R", "C", "r", "c", "RC", "R5", "C7", "rc3"}) {
        EXPECT_FALSE(IsValidDefinedName(name)) << name;
    }
}

TEST(DefinedNameRulesTest, Length) {
    EXPECT_FALSE(IsValidDefinedName(""));
    EXPECT_TRUE(IsValidDefinedName(std::string(255, 'n')));
    EXPECT_FALSE(IsValidDefinedName(std::string(256, 'n')));
}

TEST(DefinedNameRulesTest, ComparisonIgnoresCase) {
    EXPECT_TRUE(SameDefinedName("Total", "TOTAL"));
    EXPECT_TRUE(SameDefinedName("Straße", "STRAßE"));
    EXPECT_FALSE(SameDefinedName("Total", "Totals"));
}

}  // namespace
