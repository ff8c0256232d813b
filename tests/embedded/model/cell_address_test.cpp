#include "excel/embedded/model/cell_address.hpp"

#include <gtest/gtest.h>

namespace {

using excel::embedded::CellBlock;
using excel::embedded::ColumnLetters;
using excel::embedded::FormatBlock;
using excel::embedded::FormatBlockR1C1;
using excel::embedded::LooksLikeA1Cell;
using excel::embedded::LooksLikeR1C1Reference;
using excel::embedded::MaxColumn;
using excel::embedded::MaxRow;
using excel::embedded::ParseA1Reference;
using excel::embedded::ParseColumnLetters;

const CellBlock WholeSheet{1, 1, MaxRow, MaxColumn};

TEST(CellBlockTest, SizeAndContainment) {
    const CellBlock block{2, 3, 5, 4};  // C2:D5
    EXPECT_EQ(block.Rows(), 4);
    EXPECT_EQ(block.Columns(), 2);
    EXPECT_EQ(block.CellCount(), 8);
    EXPECT_TRUE(block.Contains(2, 3));
    EXPECT_TRUE(block.Contains(5, 4));
    EXPECT_FALSE(block.Contains(1, 3));
    EXPECT_FALSE(block.Contains(2, 5));
    EXPECT_TRUE(block.Contains(CellBlock{3, 3, 4, 4}));
    EXPECT_TRUE(block.Contains(block));
    EXPECT_FALSE(block.Contains(CellBlock{3, 3, 6, 4}));
    EXPECT_EQ(WholeSheet.CellCount(), int64_t{17179869184});
}

TEST(CellBlockTest, Intersection) {
    const CellBlock block{2, 2, 4, 4};
    EXPECT_TRUE(block.Intersects(CellBlock{4, 4, 9, 9}));
    EXPECT_TRUE(block.Intersects(CellBlock{1, 3, 10, 3}));
    EXPECT_FALSE(block.Intersects(CellBlock{5, 1, 6, 9}));
    EXPECT_FALSE(block.Intersects(CellBlock{1, 5, 9, 5}));
    EXPECT_EQ(block, (CellBlock{2, 2, 4, 4}));
    EXPECT_NE(block, (CellBlock{2, 2, 4, 5}));
}

TEST(ColumnLettersTest, Converts) {
    EXPECT_EQ(ColumnLetters(1), "A");
    EXPECT_EQ(ColumnLetters(26), "Z");
    EXPECT_EQ(ColumnLetters(27), "AA");
    EXPECT_EQ(ColumnLetters(28), "AB");
    EXPECT_EQ(ColumnLetters(52), "AZ");
    EXPECT_EQ(ColumnLetters(702), "ZZ");
    EXPECT_EQ(ColumnLetters(703), "AAA");
    EXPECT_EQ(ColumnLetters(16384), "XFD");
}

TEST(ColumnLettersTest, ParsesAnyCase) {
    EXPECT_EQ(ParseColumnLetters("A"), 1);
    EXPECT_EQ(ParseColumnLetters("ab"), 28);
    EXPECT_EQ(ParseColumnLetters("Xfd"), 16384);
    EXPECT_EQ(ParseColumnLetters("XFE"), std::nullopt);
    EXPECT_EQ(ParseColumnLetters("AAAA"), std::nullopt);
    EXPECT_EQ(ParseColumnLetters(""), std::nullopt);
    EXPECT_EQ(ParseColumnLetters("A1"), std::nullopt);
    EXPECT_EQ(ParseColumnLetters("$A"), std::nullopt);
}

TEST(ColumnLettersTest, RoundTripsEveryColumn) {
    for (int32_t column = 1; column <= MaxColumn; ++column) {
        ASSERT_EQ(ParseColumnLetters(ColumnLetters(column)), column) << column;
    }
}

TEST(FormatBlockTest, CellsAndBlocks) {
    EXPECT_EQ(FormatBlock({1, 1, 1, 1}, true, true), "$A$1");
    EXPECT_EQ(FormatBlock({1, 1, 2, 2}, true, true), "$A$1:$B$2");
    EXPECT_EQ(FormatBlock({3, 28, 3, 28}, false, false), "AB3");
    EXPECT_EQ(FormatBlock({3, 28, 4, 30}, true, false), "AB$3:AD$4");
    EXPECT_EQ(FormatBlock({3, 28, 4, 30}, false, true), "$AB3:$AD4");
    EXPECT_EQ(FormatBlock({MaxRow, MaxColumn, MaxRow, MaxColumn}, true, true), "$XFD$1048576");
}

TEST(FormatBlockTest, WholeColumnsRowsAndSheet) {
    EXPECT_EQ(FormatBlock({1, 1, MaxRow, 2}, true, true), "$A:$B");
    EXPECT_EQ(FormatBlock({1, 3, MaxRow, 3}, true, true), "$C:$C");
    EXPECT_EQ(FormatBlock({1, 3, MaxRow, 3}, false, false), "C:C");
    EXPECT_EQ(FormatBlock({1, 1, 3, MaxColumn}, true, true), "$1:$3");
    EXPECT_EQ(FormatBlock({5, 1, 5, MaxColumn}, true, true), "$5:$5");
    EXPECT_EQ(FormatBlock(WholeSheet, true, true), "$1:$1048576");
    EXPECT_EQ(FormatBlock({2, 1, MaxRow, 1}, true, true), "$A$2:$A$1048576");
}

TEST(FormatBlockR1C1Test, CellsBlocksColumnsAndRows) {
    EXPECT_EQ(FormatBlockR1C1({1, 1, 1, 1}), "R1C1");
    EXPECT_EQ(FormatBlockR1C1({1, 1, 2, 2}), "R1C1:R2C2");
    EXPECT_EQ(FormatBlockR1C1({1, 1, MaxRow, 2}), "C1:C2");
    EXPECT_EQ(FormatBlockR1C1({1, 4, MaxRow, 4}), "C4");
    EXPECT_EQ(FormatBlockR1C1({1, 1, 3, MaxColumn}), "R1:R3");
    EXPECT_EQ(FormatBlockR1C1({7, 1, 7, MaxColumn}), "R7");
    EXPECT_EQ(FormatBlockR1C1(WholeSheet), "R1:R1048576");
}

CellBlock OnlyArea(std::string_view text) {
    const auto parsed = ParseA1Reference(text);
    EXPECT_TRUE(parsed.has_value()) << text;
    if (!parsed)
        return {};
    EXPECT_EQ(parsed->areas.size(), 1u) << text;
    EXPECT_EQ(parsed->sheet, "") << text;
    return parsed->areas.front();
}

TEST(ParseA1ReferenceTest, CellsAndBlocks) {
    EXPECT_EQ(OnlyArea("A1"), (CellBlock{1, 1, 1, 1}));
    EXPECT_EQ(OnlyArea("$A$1"), (CellBlock{1, 1, 1, 1}));
    EXPECT_EQ(OnlyArea("a1:b2"), (CellBlock{1, 1, 2, 2}));
    EXPECT_EQ(OnlyArea("$C5:D$9"), (CellBlock{5, 3, 9, 4}));
    EXPECT_EQ(OnlyArea("XFD1048576"), (CellBlock{MaxRow, MaxColumn, MaxRow, MaxColumn}));
}

TEST(ParseA1ReferenceTest, ReversedCornersAreNormalised) {
    EXPECT_EQ(OnlyArea("B2:A1"), (CellBlock{1, 1, 2, 2}));
    EXPECT_EQ(OnlyArea("A2:B1"), (CellBlock{1, 1, 2, 2}));
    EXPECT_EQ(OnlyArea("C:A"), (CellBlock{1, 1, MaxRow, 3}));
    EXPECT_EQ(OnlyArea("5:3"), (CellBlock{3, 1, 5, MaxColumn}));
}

TEST(ParseA1ReferenceTest, WholeColumnsAndRows) {
    EXPECT_EQ(OnlyArea("A:C"), (CellBlock{1, 1, MaxRow, 3}));
    EXPECT_EQ(OnlyArea("$B:$B"), (CellBlock{1, 2, MaxRow, 2}));
    EXPECT_EQ(OnlyArea("3:5"), (CellBlock{3, 1, 5, MaxColumn}));
    EXPECT_EQ(OnlyArea("$1:$1048576"), WholeSheet);
}

TEST(ParseA1ReferenceTest, SeveralAreas) {
    const auto parsed = ParseA1Reference("A1,C3:D4,F:F");
    ASSERT_TRUE(parsed);
    ASSERT_EQ(parsed->areas.size(), 3u);
    EXPECT_EQ(parsed->areas[0], (CellBlock{1, 1, 1, 1}));
    EXPECT_EQ(parsed->areas[1], (CellBlock{3, 3, 4, 4}));
    EXPECT_EQ(parsed->areas[2], (CellBlock{1, 6, MaxRow, 6}));
}

TEST(ParseA1ReferenceTest, SheetQualified) {
    auto parsed = ParseA1Reference("Sheet1!A1");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->sheet, "Sheet1");
    EXPECT_EQ(parsed->areas.front(), (CellBlock{1, 1, 1, 1}));

    parsed = ParseA1Reference("'My Sheet'!$A$1:$B$2");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->sheet, "My Sheet");
    EXPECT_EQ(parsed->areas.front(), (CellBlock{1, 1, 2, 2}));

    parsed = ParseA1Reference("'It''s'!A1");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->sheet, "It's");

    parsed = ParseA1Reference("'Données 2024'!B3");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->sheet, "Données 2024");
}

TEST(ParseA1ReferenceTest, SheetRepeatedOnEveryArea) {
    const auto parsed = ParseA1Reference("Data!A1,data!C3");
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->sheet, "Data");
    EXPECT_EQ(parsed->areas.size(), 2u);
    EXPECT_FALSE(ParseA1Reference("Data!A1,Other!C3"));
    EXPECT_FALSE(ParseA1Reference("A1,Other!C3"));
}

TEST(ParseA1ReferenceTest, MalformedTextIsRefused) {
    for (const char* text : {"",           "A",     "1",           "A0",    "0:1",    "A1:",     ":A1", "A1:B",
                             "A:1",        "1:A1",  "A1,",         ",A1",   "A1,,B2", "$$A1",    "A$",  "A1$",
                             "A 1",        " A1",   "A1 ",         "A1B2",  "1A",     "Sheet1!", "!A1", "'Sheet1!A1",
                             "'Sheet1'A1", "''!A1", "My Sheet!A1", "A1!B2", "R1C1",   "A1:B2:C3"}) {
        EXPECT_FALSE(ParseA1Reference(text)) << text;
    }
}

TEST(ParseA1ReferenceTest, OutsideTheSheetIsRefused) {
    EXPECT_FALSE(ParseA1Reference("XFE1"));
    EXPECT_FALSE(ParseA1Reference("A1048577"));
    EXPECT_FALSE(ParseA1Reference("A1:A1048577"));
    EXPECT_FALSE(ParseA1Reference("1:1048577"));
    EXPECT_FALSE(ParseA1Reference("AAAA1"));
    EXPECT_FALSE(ParseA1Reference("A99999999999999999999"));
}

TEST(ParseA1ReferenceTest, FormatThenParseRoundTrips) {
    for (const CellBlock& block : {CellBlock{1, 1, 1, 1}, CellBlock{4, 2, 9, 7}, CellBlock{1, 5, MaxRow, 8},
                                   CellBlock{2, 1, 2, MaxColumn}, WholeSheet}) {
        EXPECT_EQ(OnlyArea(FormatBlock(block, true, true)), block);
        EXPECT_EQ(OnlyArea(FormatBlock(block, false, false)), block);
    }
}

TEST(CellReferenceTextTest, A1Cells) {
    EXPECT_TRUE(LooksLikeA1Cell("A1"));
    EXPECT_TRUE(LooksLikeA1Cell("xfd1048576"));
    EXPECT_FALSE(LooksLikeA1Cell("XFE1"));
    EXPECT_FALSE(LooksLikeA1Cell("A1048577"));
    EXPECT_FALSE(LooksLikeA1Cell("A"));
    EXPECT_FALSE(LooksLikeA1Cell("A1B"));
    EXPECT_FALSE(LooksLikeA1Cell("$A$1"));
    EXPECT_FALSE(LooksLikeA1Cell(""));
}

TEST(CellReferenceTextTest, R1C1References) {
    for (const char* text : {"R", "C", "r", "c", "R1", "C1", "RC", "R1C1", "rc5", "R1048576C16384"}) {
        EXPECT_TRUE(LooksLikeR1C1Reference(text)) << text;
    }
    for (const char* text : {"", "R0", "C16385", "R1048577", "RR", "R1C1X", "CR", "X1", "R1C0"}) {
        EXPECT_FALSE(LooksLikeR1C1Reference(text)) << text;
    }
}

}  // namespace
