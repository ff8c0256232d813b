#include "support/support_services.hpp"

#include <gtest/gtest.h>

namespace {

const vos::StringServices& strings = vos::Support().Strings();

}  // namespace

TEST(StringServices, SplitFirstTokenAnswersTheTextBeforeTheDelimiterAndKeepsTheRest) {
    std::string text = "Operator\tJane Doe\tShift 2";
    EXPECT_EQ(strings.SplitFirstToken(text, "\t"), "Operator");
    EXPECT_EQ(text, "Jane Doe\tShift 2");
    EXPECT_EQ(strings.SplitFirstToken(text, "\t"), "Jane Doe");
    EXPECT_EQ(text, "Shift 2");
}

TEST(StringServices, SplitFirstTokenWithoutADelimiterAnswersTheWholeText) {
    std::string text = "Only a value";
    EXPECT_EQ(strings.SplitFirstToken(text, "\t"), "Only a value");
    EXPECT_EQ(text, "");
}

TEST(StringServices, SplitFirstTokenAtALeadingDelimiterAnswersEmpty) {
    std::string text = "\nsecond line";
    EXPECT_EQ(strings.SplitFirstToken(text, "\n"), "");
    EXPECT_EQ(text, "second line");
}

TEST(StringServices, PrefixAndSuffixTestsAreExact) {
    EXPECT_TRUE(strings.BeginsWith("[LOCAL]0,00", "[LOCAL]"));
    EXPECT_FALSE(strings.BeginsWith("[local]0,00", "[LOCAL]"));
    EXPECT_FALSE(strings.BeginsWith("[LOC", "[LOCAL]"));
    EXPECT_TRUE(strings.EndsWith("Date:", ":"));
    EXPECT_FALSE(strings.EndsWith("Date", ":"));
    EXPECT_FALSE(strings.EndsWith("", ":"));
}

TEST(StringServices, StripPrefixRemovesOnlyALeadingMarker) {
    EXPECT_EQ(strings.StripPrefix("[LOCAL]0,00", "[LOCAL]"), "0,00");
    EXPECT_EQ(strings.StripPrefix("0,00[LOCAL]", "[LOCAL]"), "0,00[LOCAL]");
}

TEST(StringServices, QuotedDoublesTheQuoteInside) {
    EXPECT_EQ(strings.Quoted("MyApp", '"'), "\"MyApp\"");
    EXPECT_EQ(strings.Quoted("say \"hi\"", '"'), "\"say \"\"hi\"\"\"");
    EXPECT_EQ(strings.Quoted("it's", '\''), "'it''s'");
    EXPECT_EQ(strings.Quoted("", '\''), "''");
}

TEST(StringServices, EqualIgnoringCaseFoldsAsciiLetters) {
    EXPECT_TRUE(strings.EqualIgnoringCase("MyApp", "mYaPP"));
    EXPECT_FALSE(strings.EqualIgnoringCase("MyApp", "MyApp "));
    EXPECT_FALSE(strings.EqualIgnoringCase("My_App", "My-App"));
    EXPECT_TRUE(strings.EqualIgnoringCase("", ""));
}
