#include "excel/embedded/text/utf8_text.hpp"

#include <gtest/gtest.h>

#include <string_view>

namespace {

using excel::embedded::CodePointCount;
using excel::embedded::EqualsIgnoringCase;
using excel::embedded::FoldCase;
using excel::embedded::IsNameLetter;
using excel::embedded::NextCodePoint;

TEST(Utf8TextTest, DecodesEachLength) {
    const std::string_view text = "aé€😀";
    size_t position = 0;
    EXPECT_EQ(NextCodePoint(text, position), U'a');
    EXPECT_EQ(NextCodePoint(text, position), U'é');
    EXPECT_EQ(NextCodePoint(text, position), U'€');
    EXPECT_EQ(NextCodePoint(text, position), U'😀');
    EXPECT_EQ(position, text.size());
}

TEST(Utf8TextTest, MalformedBytesReadAsReplacementOneByOne) {
    for (const std::string_view bad : {std::string_view("\x80"), std::string_view("\xC3"), std::string_view("\xC0\xAF"),
                                       std::string_view("\xED\xA0\x80"), std::string_view("\xF8\x88\x80\x80")}) {
        size_t position = 0;
        EXPECT_EQ(NextCodePoint(bad, position), U'\uFFFD');
        EXPECT_EQ(position, 1u);
    }
}

TEST(Utf8TextTest, CountsCodePoints) {
    EXPECT_EQ(CodePointCount(""), 0u);
    EXPECT_EQ(CodePointCount("abc"), 3u);
    EXPECT_EQ(CodePointCount("Données"), 7u);
    EXPECT_EQ(CodePointCount("データ"), 3u);
    EXPECT_EQ(CodePointCount("\xC3"), 1u);
}

TEST(Utf8TextTest, FoldsLatinGreekAndCyrillic) {
    EXPECT_EQ(FoldCase(U'A'), U'a');
    EXPECT_EQ(FoldCase(U'z'), U'z');
    EXPECT_EQ(FoldCase(U'1'), U'1');
    EXPECT_EQ(FoldCase(U'É'), U'é');
    EXPECT_EQ(FoldCase(U'×'), U'×');
    EXPECT_EQ(FoldCase(U'Ā'), U'ā');
    EXPECT_EQ(FoldCase(U'Ł'), U'ł');
    EXPECT_EQ(FoldCase(U'Ÿ'), U'ÿ');
    EXPECT_EQ(FoldCase(U'Ž'), U'ž');
    EXPECT_EQ(FoldCase(U'Σ'), U'σ');
    EXPECT_EQ(FoldCase(U'ς'), U'σ');
    EXPECT_EQ(FoldCase(U'Ά'), U'ά');
    EXPECT_EQ(FoldCase(U'Ω'), U'ω');
    EXPECT_EQ(FoldCase(U'Я'), U'я');
    EXPECT_EQ(FoldCase(U'Ё'), U'ё');
    EXPECT_EQ(FoldCase(U'Ґ'), U'ґ');
    EXPECT_EQ(FoldCase(U'Ạ'), U'ạ');
    EXPECT_EQ(FoldCase(U'Ａ'), U'ａ');
    EXPECT_EQ(FoldCase(U'ж'), U'ж');
}

TEST(Utf8TextTest, ComparesIgnoringCase) {
    EXPECT_TRUE(EqualsIgnoringCase("", ""));
    EXPECT_TRUE(EqualsIgnoringCase("Sheet", "sHEET"));
    EXPECT_TRUE(EqualsIgnoringCase("Ärger", "äRGER"));
    EXPECT_FALSE(EqualsIgnoringCase("Sheet", "Sheets"));
    EXPECT_FALSE(EqualsIgnoringCase("é", "e"));
}

TEST(Utf8TextTest, NameLetters) {
    EXPECT_TRUE(IsNameLetter(U'a'));
    EXPECT_TRUE(IsNameLetter(U'é'));
    EXPECT_TRUE(IsNameLetter(U'Ж'));
    EXPECT_TRUE(IsNameLetter(U'デ'));
    EXPECT_FALSE(IsNameLetter(U'1'));
    EXPECT_FALSE(IsNameLetter(U'_'));
    EXPECT_FALSE(IsNameLetter(U'\u00A0'));
    EXPECT_FALSE(IsNameLetter(U'\u2013'));
    EXPECT_FALSE(IsNameLetter(U'\u3000'));
}

}  // namespace
