#include "excel/embedded/text/text_entry.hpp"

#include <gtest/gtest.h>

namespace {

using excel::embedded::ErrorNumberFromText;
using excel::embedded::ErrorTextFromNumber;
using excel::embedded::ParseTextEntry;
using excel::embedded::TextEntry;
using Kind = TextEntry::Kind;

void ExpectNumber(std::string_view input, double number, const std::string& impliedFormat = "") {
    const TextEntry entry = ParseTextEntry(input);
    EXPECT_EQ(entry.kind, Kind::Number) << input;
    EXPECT_DOUBLE_EQ(entry.number, number) << input;
    EXPECT_EQ(entry.impliedNumberFormat, impliedFormat) << input;
    EXPECT_FALSE(entry.quotePrefix) << input;
}

void ExpectText(std::string_view input) {
    const TextEntry entry = ParseTextEntry(input);
    EXPECT_EQ(entry.kind, Kind::Text) << input;
    EXPECT_EQ(entry.text, input);
    EXPECT_FALSE(entry.quotePrefix) << input;
}

TEST(TextEntryTest, EmptyStringClearsTheCell) {
    EXPECT_EQ(ParseTextEntry("").kind, Kind::Empty);
}

TEST(TextEntryTest, ApostropheKeepsTextAndSetsTheQuotePrefix) {
    TextEntry entry = ParseTextEntry("'abc");
    EXPECT_EQ(entry.kind, Kind::Text);
    EXPECT_EQ(entry.text, "abc");
    EXPECT_TRUE(entry.quotePrefix);

    entry = ParseTextEntry("'123");
    EXPECT_EQ(entry.kind, Kind::Text);
    EXPECT_EQ(entry.text, "123");
    EXPECT_TRUE(entry.quotePrefix);

    entry = ParseTextEntry("'=A1");
    EXPECT_EQ(entry.kind, Kind::Text);
    EXPECT_EQ(entry.text, "=A1");

    entry = ParseTextEntry("'");
    EXPECT_EQ(entry.kind, Kind::Text);
    EXPECT_EQ(entry.text, "");
    EXPECT_TRUE(entry.quotePrefix);

    entry = ParseTextEntry("''x");
    EXPECT_EQ(entry.text, "'x");
}

TEST(TextEntryTest, EqualsSignStartsAFormula) {
    TextEntry entry = ParseTextEntry("=A1+1");
    EXPECT_EQ(entry.kind, Kind::Formula);
    EXPECT_EQ(entry.text, "A1+1");
    entry = ParseTextEntry("=SUM(A1:A3)");
    EXPECT_EQ(entry.kind, Kind::Formula);
    EXPECT_EQ(entry.text, "SUM(A1:A3)");
    ExpectText("=");
    ExpectText(" =A1");
}

TEST(TextEntryTest, PlainNumbers) {
    ExpectNumber("12", 12);
    ExpectNumber(" 1.5 ", 1.5);
    ExpectNumber("-3", -3);
    ExpectNumber("+4", 4);
    ExpectNumber(".25", 0.25);
    ExpectNumber("5.", 5);
    ExpectNumber("0", 0);
    ExpectNumber("007", 7);
    ExpectNumber("(12)", -12);
    ExpectNumber("(1.5)", -1.5);
}

TEST(TextEntryTest, ExponentsImplyTheScientificFormat) {
    ExpectNumber("1e3", 1000, "0.00E+00");
    ExpectNumber("1.5E-2", 0.015, "0.00E+00");
    ExpectNumber("2E+5", 200000, "0.00E+00");
    ExpectNumber("1e-400", 0, "0.00E+00");
}

TEST(TextEntryTest, ThousandsSeparatorsImplyTheGroupedFormat) {
    ExpectNumber("1,234.5", 1234.5, "#,##0.00");
    ExpectNumber("1,234", 1234, "#,##0");
    ExpectNumber("-1,234,567", -1234567, "#,##0");
    ExpectNumber("12,345,678.9", 12345678.9, "#,##0.00");
}

TEST(TextEntryTest, PercentagesDivideByAHundred) {
    ExpectNumber("50%", 0.5, "0%");
    ExpectNumber("12.5%", 0.125, "0.00%");
    ExpectNumber("-5%", -0.05, "0%");
}

TEST(TextEntryTest, CurrencyImpliesTheCurrencyFormat) {
    ExpectNumber("$1,234.50", 1234.5, "$#,##0.00");
    ExpectNumber("$12", 12, "$#,##0");
    ExpectNumber("-$5.25", -5.25, "$#,##0.00");
    ExpectNumber("$-5", -5, "$#,##0");
    ExpectNumber("($7)", -7, "$#,##0");
}

TEST(TextEntryTest, KeepsFifteenSignificantDigits) {
    ExpectNumber("12345678901234567", 12345678901234500.0);
    ExpectNumber("0.12345678901234567", 0.123456789012345);
    ExpectNumber("123456789012345", 123456789012345.0);
}

TEST(TextEntryTest, NotQuiteNumbersStayText) {
    for (const char* input :
         {"abc", "12abc", "1.2.3", "1,23", "12,3456",    ",123",  "1,,234", "1e",     "e5",    "1e5%",
          "$",   "%",     "-",     "()",   "(-5)",       "$5%",   "50 %",   "1 2",    "1e400", "--1",
          "+-1", "0x1F",  "&H1F",  "1/2",  "2024-01-15", "12:30", "   ",    "1,234e3"}) {
        ExpectText(input);
    }
}

TEST(TextEntryTest, BooleansInAnyCase) {
    TextEntry entry = ParseTextEntry("TRUE");
    EXPECT_EQ(entry.kind, Kind::Boolean);
    EXPECT_TRUE(entry.boolean);
    entry = ParseTextEntry("false");
    EXPECT_EQ(entry.kind, Kind::Boolean);
    EXPECT_FALSE(entry.boolean);
    entry = ParseTextEntry("True");
    EXPECT_EQ(entry.kind, Kind::Boolean);
    EXPECT_TRUE(entry.boolean);
    ExpectText("TRUE ");
    ExpectText("yes");
}

TEST(TextEntryTest, ErrorTexts) {
    for (const char* error : {"#N/A", "#DIV/0!", "#VALUE!", "#REF!", "#NAME?", "#NUM!", "#NULL!"}) {
        const TextEntry entry = ParseTextEntry(error);
        EXPECT_EQ(entry.kind, Kind::Error) << error;
        EXPECT_EQ(entry.text, error);
    }
    const TextEntry lower = ParseTextEntry("#n/a");
    EXPECT_EQ(lower.kind, Kind::Error);
    EXPECT_EQ(lower.text, "#N/A");
    ExpectText("#N/A!");
    ExpectText("#SOMETHING");
}

TEST(TextEntryTest, ErrorNumbers) {
    EXPECT_EQ(ErrorNumberFromText("#NULL!"), 2000);
    EXPECT_EQ(ErrorNumberFromText("#DIV/0!"), 2007);
    EXPECT_EQ(ErrorNumberFromText("#VALUE!"), 2015);
    EXPECT_EQ(ErrorNumberFromText("#REF!"), 2023);
    EXPECT_EQ(ErrorNumberFromText("#NAME?"), 2029);
    EXPECT_EQ(ErrorNumberFromText("#NUM!"), 2036);
    EXPECT_EQ(ErrorNumberFromText("#N/A"), 2042);
    EXPECT_EQ(ErrorNumberFromText("#value!"), 2015);
    EXPECT_EQ(ErrorNumberFromText("N/A"), std::nullopt);
    EXPECT_EQ(ErrorNumberFromText(""), std::nullopt);
}

TEST(TextEntryTest, ErrorTextsFromNumbers) {
    for (int32_t number : {2000, 2007, 2015, 2023, 2029, 2036, 2042}) {
        const std::string text = ErrorTextFromNumber(number);
        EXPECT_EQ(ErrorNumberFromText(text), number) << text;
    }
    EXPECT_EQ(ErrorTextFromNumber(2042), "#N/A");
    EXPECT_EQ(ErrorTextFromNumber(2007), "#DIV/0!");
    EXPECT_EQ(ErrorTextFromNumber(2001), "");
    EXPECT_EQ(ErrorTextFromNumber(0), "");
}

}  // namespace
