#include "excel/embedded/text/text_metrics.hpp"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace {

using excel::embedded::FontFormat;
using excel::embedded::LineHeight;
using excel::embedded::TextAdvance;

FontFormat FontOf(std::string name, double size, bool bold = false) {
    FontFormat font;
    font.name = std::move(name);
    font.size = size;
    font.bold = bold;
    return font;
}

// Advances are tabulated in font units of 2048 to the em.
double Points(double fontUnits, double size) {
    return fontUnits * size / 2048.0;
}

TEST(TextMetricsTest, DigitZeroHasEachFontsAdvance) {
    EXPECT_DOUBLE_EQ(TextAdvance("0", FontOf("Calibri", 11)), Points(1038, 11));
    EXPECT_DOUBLE_EQ(TextAdvance("0", FontOf("Calibri", 11, true)), Points(1038, 11));
    EXPECT_DOUBLE_EQ(TextAdvance("0", FontOf("Tahoma", 9)), Points(1118, 9));
    EXPECT_DOUBLE_EQ(TextAdvance("0", FontOf("Tahoma", 9, true)), Points(1304, 9));
    EXPECT_DOUBLE_EQ(TextAdvance("0", FontOf("Arial", 10)), Points(1139, 10));
    EXPECT_DOUBLE_EQ(TextAdvance("0000000000", FontOf("Calibri", 11)), Points(10 * 1038, 11));
}

TEST(TextMetricsTest, StringAdvanceIsTheSumOfItsGlyphs) {
    EXPECT_DOUBLE_EQ(TextAdvance("Hello", FontOf("Calibri", 11)), Points(1276 + 1019 + 470 + 470 + 1080, 11));
    EXPECT_DOUBLE_EQ(TextAdvance("Hello", FontOf("Calibri", 11, true)), Points(4430, 11));
    EXPECT_DOUBLE_EQ(TextAdvance("Hello", FontOf("Arial", 10)), Points(4667, 10));
    EXPECT_DOUBLE_EQ(TextAdvance("Hello", FontOf("Arial", 10, true)), Points(5007, 10));
    EXPECT_DOUBLE_EQ(TextAdvance("Hello", FontOf("Tahoma", 9)), Points(4509, 9));
    EXPECT_DOUBLE_EQ(TextAdvance("Hello", FontOf("Tahoma", 9, true)), Points(5281, 9));
    EXPECT_LT(TextAdvance("iiii", FontOf("Calibri", 11)), TextAdvance("WWWW", FontOf("Calibri", 11)));
}

TEST(TextMetricsTest, BoldIsWiderThanRegular) {
    for (const char* name : {"Calibri", "Tahoma", "Arial"}) {
        EXPECT_GT(TextAdvance("Quarterly sales report", FontOf(name, 11, true)),
                  TextAdvance("Quarterly sales report", FontOf(name, 11)))
            << name;
    }
}

TEST(TextMetricsTest, ItalicMeasuresAsRegular) {
    FontFormat italic = FontOf("Calibri", 11);
    italic.italic = true;
    EXPECT_DOUBLE_EQ(TextAdvance("Quarterly sales report", italic),
                     TextAdvance("Quarterly sales report", FontOf("Calibri", 11)));
}

TEST(TextMetricsTest, AdvanceScalesLinearlyWithSize) {
    const double at11 = TextAdvance("Net revenue 2024", FontOf("Calibri", 11));
    EXPECT_DOUBLE_EQ(TextAdvance("Net revenue 2024", FontOf("Calibri", 22)), 2 * at11);
    EXPECT_DOUBLE_EQ(TextAdvance("Net revenue 2024", FontOf("Calibri", 5.5)), at11 / 2);
}

TEST(TextMetricsTest, EmptyTextAdvancesNothing) {
    EXPECT_EQ(TextAdvance("", FontOf("Calibri", 11)), 0.0);
    EXPECT_EQ(TextAdvance("", FontOf("Tahoma", 9, true)), 0.0);
}

TEST(TextMetricsTest, LatinOneCharactersHaveTheirOwnAdvance) {
    EXPECT_DOUBLE_EQ(TextAdvance("\u00E9", FontOf("Calibri", 11)), Points(1019, 11));        // é
    EXPECT_DOUBLE_EQ(TextAdvance("\u00C6", FontOf("Calibri", 11)), Points(1563, 11));        // Æ
    EXPECT_DOUBLE_EQ(TextAdvance("\u00E9", FontOf("Calibri", 11, true)), Points(1031, 11));
    EXPECT_DOUBLE_EQ(TextAdvance("a\u00A0b", FontOf("Calibri", 11)), TextAdvance("a b", FontOf("Calibri", 11)));
}

TEST(TextMetricsTest, EastAsianWideCharactersAreOneEm) {
    const FontFormat calibri = FontOf("Calibri", 11);
    EXPECT_DOUBLE_EQ(TextAdvance("\u65E5\u672C\u8A9E", calibri), 33.0);  // CJK ideographs
    EXPECT_DOUBLE_EQ(TextAdvance("\u3072\u3089\u304C\u306A", calibri), 44.0);  // hiragana
    EXPECT_DOUBLE_EQ(TextAdvance("\uD55C\uAD6D", calibri), 22.0);  // Hangul syllables
    EXPECT_DOUBLE_EQ(TextAdvance("\uFF21\uFF22", calibri), 22.0);  // full-width Latin
    EXPECT_DOUBLE_EQ(TextAdvance("\U00020000", FontOf("Arial", 10)), 10.0);  // beyond the BMP
    EXPECT_DOUBLE_EQ(TextAdvance("A\u65E5", calibri), Points(1185, 11) + 11.0);
}

TEST(TextMetricsTest, CombiningMarksAdvanceNothing) {
    const FontFormat calibri = FontOf("Calibri", 11);
    EXPECT_DOUBLE_EQ(TextAdvance("e\u0301", calibri), TextAdvance("e", calibri));
    EXPECT_DOUBLE_EQ(TextAdvance("a\u200Bb", calibri), TextAdvance("ab", calibri));  // zero-width space
}

TEST(TextMetricsTest, OtherCharactersHaveTheFontsAverageAdvance) {
    EXPECT_DOUBLE_EQ(TextAdvance("\u03A9\u0436", FontOf("Calibri", 11)), Points(2 * 1048, 11));  // Ω ж
    EXPECT_DOUBLE_EQ(TextAdvance("\u20AC", FontOf("Tahoma", 9)), Points(1226, 9));             // €
    EXPECT_DOUBLE_EQ(TextAdvance("\u20AC", FontOf("Arial", 10, true)), Points(1255, 10));
}

TEST(TextMetricsTest, UnknownFontMeasuresAsCalibri) {
    for (bool bold : {false, true}) {
        EXPECT_DOUBLE_EQ(TextAdvance("Quarterly sales report", FontOf("No Such Font", 11, bold)),
                         TextAdvance("Quarterly sales report", FontOf("Calibri", 11, bold)));
        EXPECT_DOUBLE_EQ(LineHeight(FontOf("No Such Font", 11, bold)), LineHeight(FontOf("Calibri", 11, bold)));
    }
}

TEST(TextMetricsTest, FontNamesMatchIgnoringCaseAndMetricCompatibleNames) {
    EXPECT_DOUBLE_EQ(TextAdvance("Hello", FontOf("ARIAL", 10)), Points(4667, 10));
    EXPECT_DOUBLE_EQ(TextAdvance("Hello", FontOf("Liberation Sans", 10)), Points(4667, 10));
    EXPECT_DOUBLE_EQ(TextAdvance("Hello", FontOf("tahoma", 9)), Points(4509, 9));
    EXPECT_DOUBLE_EQ(TextAdvance("Hello", FontOf("Carlito", 11)), Points(4315, 11));
}

TEST(TextMetricsTest, LineHeightIsAscenderPlusDescenderPlusLineGap) {
    EXPECT_DOUBLE_EQ(LineHeight(FontOf("Calibri", 11)), Points(1536 + 512 + 452, 11));
    EXPECT_NEAR(LineHeight(FontOf("Calibri", 11)) / 11, 1.22, 0.005);
    EXPECT_DOUBLE_EQ(LineHeight(FontOf("Calibri", 11, true)), LineHeight(FontOf("Calibri", 11)));
    EXPECT_DOUBLE_EQ(LineHeight(FontOf("Tahoma", 9)), Points(2049 + 423, 9));
    EXPECT_DOUBLE_EQ(LineHeight(FontOf("Arial", 10)), Points(1854 + 434 + 67, 10));
    EXPECT_DOUBLE_EQ(LineHeight(FontOf("Arial", 20)), 2 * LineHeight(FontOf("Arial", 10)));
}

}  // namespace
