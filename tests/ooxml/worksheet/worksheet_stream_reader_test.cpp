// The worksheet reader takes its part in pieces as the zip entry inflates: a piece may end inside
// a tag, an attribute, an entity or an _xHHHH_ escape, and the sheet read must not change.

#include "ooxml/shared_strings/string_table_builder.hpp"
#include "ooxml/worksheet/worksheet_reader.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

namespace {

const std::string Sheet =
    R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)"
    "\r\n"
    R"(<x:worksheet xmlns:x="http://schemas.openxmlformats.org/spreadsheetml/2006/main">)"
    R"(<x:sheetViews><x:sheetView tabSelected="1"><x:selection activeCell="C4"/></x:sheetView></x:sheetViews>)"
    R"(<x:cols><x:col min="2" max="3" width="20.5" customWidth="1"/></x:cols>)"
    R"(<x:sheetData>)"
    R"(<x:row x:r="2" ht="30" customHeight="1">)"
    R"(<x:c r="A2" s="1"><x:v>-1.25E-3</x:v></x:c>)"
    R"(<x:c r="B2" t="inlineStr"><x:is><x:t>a_x000D__x000A_b &amp; &#x41;&lt;&gt;</x:t></x:is></x:c>)"
    R"(<x:c r="C2" t="inlineStr"><x:is><x:r><x:rPr><x:b/><x:sz val="14"/></x:rPr><x:t>bold</x:t></x:r>)"
    R"(<x:r><x:t xml:space="preserve"> _xD83D__xDE00_</x:t></x:r></x:is></x:c>)"
    R"(<x:c r="D2"><x:f t="shared" ref="D2:D3" si="0">A2*$B$1</x:f><x:v>1</x:v></x:c>)"
    R"(<x:c r="E2" t="str"><x:f>"a"&amp;"b"</x:f><x:v><![CDATA[ab]]></x:v></x:c>)"
    R"(</x:row>)"
    R"(<x:row x:r="3"><!-- a comment --><x:c r="D3"><x:f t="shared" si="0"/><x:v>2</x:v></x:c>)"
    R"(<x:c r="E3" t="e"><x:v>#N/A</x:v></x:c><x:c r="F3" t="b"><x:v>1</x:v></x:c></x:row>)"
    R"(</x:sheetData>)"
    R"(<x:mergeCells count="1"><x:mergeCell ref="A5:B6"/></x:mergeCells>)"
    R"(<x:printOptions gridLines="1"/>)"
    R"(</x:worksheet>)";

struct ReadResult {
    ooxml::SheetDocument sheet;
    std::vector<ooxml::SharedString> strings;
    ooxml::CarriedWorksheet carried;
};

ReadResult ReadInPieces(const std::string& xml, std::size_t piece) {
    ReadResult result;
    ooxml::StringTableBuilder builder(result.strings);
    const ooxml::WorksheetContext context{builder, 0, 2};
    ooxml::ReadWorksheet(
        [&, at = std::size_t{0}](char* buffer, std::size_t size) mutable {
            const std::size_t count = std::min({piece, size, xml.size() - at});
            std::memcpy(buffer, xml.data() + at, count);
            at += count;
            return count;
        },
        "xl/worksheets/sheet1.xml", context, result.sheet, result.carried);
    return result;
}

// Everything the reader filled in, as text to compare.
std::string Describe(const ReadResult& result) {
    const ooxml::SheetDocument& sheet = result.sheet;
    std::string text = "view " + sheet.activeCell + (sheet.tabSelected ? " selected" : "") +
                       (sheet.printGridLines ? " grid" : "") + "\n";
    for (const ooxml::ColumnRange& range : sheet.columns) {
        text += "cols " + std::to_string(range.first) + "-" + std::to_string(range.last) + " " +
                std::to_string(range.width.value_or(-1)) + "\n";
    }
    for (const ooxml::Row& row : sheet.rows) {
        text += "row " + std::to_string(row.index) + " " + std::to_string(row.height.value_or(-1)) + "\n";
        for (const ooxml::Cell& cell : row.cells) {
            text += " cell " + std::to_string(cell.column) + " type " + std::to_string(static_cast<int>(cell.type)) +
                    " format " + std::to_string(cell.format) + " number " + std::to_string(cell.number);
            if (cell.type == ooxml::CellType::String || cell.type == ooxml::CellType::Error) {
                const ooxml::SharedString& string = result.strings.at(cell.string);
                text += " string [" + string.text + "] runs " + std::to_string(string.runs.size());
                for (const ooxml::TextRun& run : string.runs) {
                    text += run.font ? " font " + std::to_string(run.font->size) + (run.font->bold ? " bold" : "")
                                     : " plain";
                }
            }
            if (cell.formula != ooxml::NoFormula) {
                text += " formula " + sheet.formulas.at(cell.formula);
            }
            text += "\n";
        }
    }
    for (const ooxml::CellBlock& merge : sheet.merges) {
        text += "merge " + std::to_string(merge.firstRow) + "," + std::to_string(merge.firstColumn) + ":" +
                std::to_string(merge.lastRow) + "," + std::to_string(merge.lastColumn) + "\n";
    }
    return text;
}

TEST(WorksheetStreamReaderTest, ReadsTheSameSheetWhereverThePiecesEnd) {
    const std::string whole = Describe(ReadInPieces(Sheet, 1 << 20));
    EXPECT_EQ(Describe(ReadInPieces(Sheet, 1)), whole);
    EXPECT_EQ(Describe(ReadInPieces(Sheet, 7)), whole);
    EXPECT_EQ(Describe(ReadInPieces(Sheet, 64)), whole);
}

TEST(WorksheetStreamReaderTest, ReadsCellsAndSettingsOfAPrefixedSheet) {
    const ReadResult result = ReadInPieces(Sheet, 7);
    const ooxml::SheetDocument& sheet = result.sheet;
    EXPECT_EQ(sheet.activeCell, "C4");
    EXPECT_TRUE(sheet.tabSelected);
    EXPECT_TRUE(sheet.printGridLines);
    ASSERT_EQ(sheet.columns.size(), 1u);
    EXPECT_EQ(sheet.columns[0].first, 2u);
    EXPECT_EQ(sheet.columns[0].width, 20.5);
    ASSERT_EQ(sheet.merges.size(), 1u);
    EXPECT_EQ(sheet.merges[0], (ooxml::CellBlock{5, 1, 6, 2}));

    ASSERT_EQ(sheet.rows.size(), 2u);
    const ooxml::Row& second = sheet.rows[0];
    EXPECT_EQ(second.index, 2u);
    EXPECT_EQ(second.height, 30.0);
    ASSERT_EQ(second.cells.size(), 5u);
    EXPECT_EQ(second.cells[0].number, -1.25e-3);
    EXPECT_EQ(second.cells[0].format, 1u);
    EXPECT_EQ(result.strings.at(second.cells[1].string).text, "a\r\nb & A<>");
    const ooxml::SharedString& rich = result.strings.at(second.cells[2].string);
    EXPECT_EQ(rich.text, "bold \xF0\x9F\x98\x80");
    ASSERT_EQ(rich.runs.size(), 2u);
    ASSERT_TRUE(rich.runs[0].font);
    EXPECT_TRUE(rich.runs[0].font->bold);
    EXPECT_EQ(rich.runs[0].font->size, 14.0);
    EXPECT_FALSE(rich.runs[1].font);
    EXPECT_EQ(sheet.formulas.at(second.cells[3].formula), "A2*$B$1");
    EXPECT_EQ(sheet.formulas.at(second.cells[4].formula), "\"a\"&\"b\"");
    EXPECT_EQ(result.strings.at(second.cells[4].string).text, "ab");

    const ooxml::Row& third = sheet.rows[1];
    ASSERT_EQ(third.cells.size(), 3u);
    EXPECT_EQ(sheet.formulas.at(third.cells[0].formula), "A3*$B$1");
    EXPECT_EQ(third.cells[0].number, 2.0);
    EXPECT_EQ(third.cells[1].type, ooxml::CellType::Error);
    EXPECT_EQ(result.strings.at(third.cells[1].string).text, "#N/A");
    EXPECT_EQ(third.cells[2].type, ooxml::CellType::Boolean);
    EXPECT_EQ(third.cells[2].number, 1.0);
}

TEST(WorksheetStreamReaderTest, RowsHoldNoSpareCapacity) {
    const ReadResult result = ReadInPieces(Sheet, 1 << 20);
    for (const ooxml::Row& row : result.sheet.rows) {
        EXPECT_EQ(row.cells.capacity(), row.cells.size()) << "row " << row.index;
    }
}

}  // namespace
