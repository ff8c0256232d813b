// Workbooks written by Excel, read and compared with values checked independently (openpyxl).

#include "ooxml/opc/package_reader.hpp"
#include "ooxml/package_error.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <iostream>

namespace {

using ooxml::CellType;
using ooxml::Color;

const std::string CorpusDir = VOS_SHARED_DIR "/excel-corpus/";

ooxml::WorkbookDocument ReadCorpus(const std::string& relativePath) {
    return ooxml::ReadPackage(CorpusDir + relativePath);
}

const ooxml::Cell* FindCell(const ooxml::SheetDocument& sheet, uint32_t row, uint32_t column) {
    for (const ooxml::Row& r : sheet.rows) {
        for (const ooxml::Cell& cell : r.cells) {
            if (r.index == row && cell.column == column) {
                return &cell;
            }
        }
    }
    return nullptr;
}

const ooxml::Cell& CellAt(const ooxml::SheetDocument& sheet, uint32_t row, uint32_t column) {
    const ooxml::Cell* cell = FindCell(sheet, row, column);
    if (cell == nullptr) {
        throw std::out_of_range("no cell at row " + std::to_string(row) + " column " + std::to_string(column));
    }
    return *cell;
}

TEST(ExcelCorpusReaderTest, MergedRangeAndItsCentredValue) {
    const auto document = ReadCorpus("cells-drawings-xlsxwriter/xw__merge_range05.xlsx");
    const ooxml::SheetDocument& sheet = document.sheets.at(0);
    EXPECT_EQ(sheet.merges, (std::vector<ooxml::CellBlock>{{2, 2, 2, 4}}));
    const ooxml::Cell& b2 = CellAt(sheet, 2, 2);
    EXPECT_EQ(b2.type, CellType::Number);
    EXPECT_EQ(b2.number, 123.0);
    EXPECT_EQ(document.formats.at(b2.format).alignment.horizontal, "center");
}

TEST(ExcelCorpusReaderTest, RichStringRunsWithTheirFonts) {
    const auto document = ReadCorpus("cells-drawings-xlsxwriter/xw__rich_string06.xlsx");
    const ooxml::SheetDocument& sheet = document.sheets.at(0);
    EXPECT_EQ(document.strings.at(CellAt(sheet, 1, 1).string).text, "Foo");
    const ooxml::SharedString& rich = document.strings.at(CellAt(sheet, 3, 1).string);
    EXPECT_EQ(rich.text, "abcdefg");
    ASSERT_EQ(rich.runs.size(), 3u);
    EXPECT_EQ(rich.runs[0], (ooxml::TextRun{"ab", std::nullopt}));
    ooxml::Font red;
    red.color = Color{Color::Kind::Rgb, 0xFFFF0000, 0, 0.0};
    EXPECT_EQ(rich.runs[1], (ooxml::TextRun{"cde", red}));
    EXPECT_EQ(rich.runs[2], (ooxml::TextRun{"fg", ooxml::Font{}}));
}

TEST(ExcelCorpusReaderTest, ThemeFillsWithTints) {
    const auto document = ReadCorpus("cells-drawings-xlsxwriter/xw__theme_color02.xlsx");
    const ooxml::SheetDocument& sheet = document.sheets.at(0);
    const std::vector<double> tints{
        0.0, 0.499984740745262, 0.3499862666707358, 0.249977111117893, 0.1499984740745262, 0.0499893185216834};
    for (uint32_t row = 1; row <= tints.size(); ++row) {
        const ooxml::Fill& fill = document.formats.at(CellAt(sheet, row, 1).format).fill;
        EXPECT_EQ(fill.patternType, "solid") << "row " << row;
        EXPECT_EQ(fill.foreground.kind, Color::Kind::Theme) << "row " << row;
        EXPECT_EQ(fill.foreground.index, 1) << "row " << row;
        EXPECT_DOUBLE_EQ(fill.foreground.tint, tints[row - 1]) << "row " << row;
    }
}

TEST(ExcelCorpusReaderTest, PrintAreasAreSheetLevelNames) {
    const auto document = ReadCorpus("cells-drawings-xlsxwriter/rxw__print_area08.xlsx");
    ASSERT_EQ(document.sheets.size(), 2u);
    EXPECT_EQ(document.names, (std::vector<ooxml::DefinedName>{{"_xlnm.Print_Area", "Sheet1!$A$1", 0u, false},
                                                               {"_xlnm.Print_Area", "Sheet2!$A$1", 1u, false}}));
}

TEST(ExcelCorpusReaderTest, ColumnWidthsUpToTheLastColumn) {
    const auto document = ReadCorpus("cells-drawings-xlsxwriter/xw__set_column09.xlsx");
    const ooxml::SheetDocument& sheet = document.sheets.at(0);
    EXPECT_EQ(sheet.columns, (std::vector<ooxml::ColumnRange>{{1, 1, 10.7109375, std::nullopt, false, true},
                                                              {3, 4, 12.7109375, std::nullopt, false, true},
                                                              {6, 8, 8.7109375, std::nullopt, false, true},
                                                              {702, 702, 3.7109375, std::nullopt, false, true},
                                                              {16384, 16384, 5.7109375, std::nullopt, false, true}}));
    EXPECT_FALSE(sheet.defaultColumnWidth.has_value());
    EXPECT_EQ(sheet.defaultRowHeight, 15.0);
}

TEST(ExcelCorpusReaderTest, SheetViewAndPrintOptions) {
    const auto hiddenGrid = ReadCorpus("cells-drawings-xlsxwriter/rxw__gridlines01.xlsx");
    EXPECT_FALSE(hiddenGrid.sheets.at(0).showGridLines);
    EXPECT_TRUE(hiddenGrid.sheets.at(0).tabSelected);
    EXPECT_FALSE(hiddenGrid.sheets.at(0).printGridLines);
    const auto printedGrid = ReadCorpus("cells-drawings-xlsxwriter/xw__print_options01.xlsx");
    EXPECT_TRUE(printedGrid.sheets.at(0).showGridLines);
    EXPECT_TRUE(printedGrid.sheets.at(0).printGridLines);
}

TEST(ExcelCorpusReaderTest, HiddenSheet) {
    const auto document = ReadCorpus("cells-drawings-xlsxwriter/xw__hide01.xlsx");
    ASSERT_EQ(document.sheets.size(), 3u);
    EXPECT_EQ(document.sheets[0].state, "visible");
    EXPECT_EQ(document.sheets[1].state, "hidden");
    EXPECT_EQ(document.sheets[2].state, "visible");
    EXPECT_EQ(document.activeSheet, 0u);
}

TEST(ExcelCorpusReaderTest, QuotePrefixedTextAndSharedFormulasOfAMacroWorkbook) {
    const auto document =
        ReadCorpus("realworld-excel/poi__0-www-crossref-org.lib.rivier.edu_education-files_suffix-generator.xlsm");
    ASSERT_EQ(document.sheets.size(), 3u);
    EXPECT_EQ(document.sheets[0].name, "Form");
    EXPECT_EQ(document.sheets[1].name, "Data_sheet");
    EXPECT_EQ(document.sheets[1].state, "hidden");
    EXPECT_EQ(document.sheets[2].state, "hidden");
    const ooxml::SheetDocument& data = document.sheets[1];
    const ooxml::Cell& g3 = CellAt(data, 3, 7);
    EXPECT_EQ(g3.type, CellType::String);
    EXPECT_EQ(g3.formula, ooxml::NoFormula);
    EXPECT_EQ(document.strings.at(g3.string).text, "=A:A&\"/\"&B:B");
    EXPECT_TRUE(document.formats.at(g3.format).quotePrefix);
    EXPECT_EQ(document.formats.at(g3.format).font.size, 12.0);
    const ooxml::Cell& c5 = CellAt(data, 5, 3);
    EXPECT_EQ(c5.type, CellType::Number);
    EXPECT_EQ(c5.number, 100.0);
    for (uint32_t row = 12; row <= 100; ++row) {
        const ooxml::Cell& cell = CellAt(data, row, 3);
        ASSERT_NE(cell.formula, ooxml::NoFormula) << "row " << row;
        EXPECT_EQ(data.formulas.at(cell.formula), "A:A&\"/\"&B:B") << "row " << row;
    }
}

TEST(ExcelCorpusReaderTest, RealWorldWorkbookWithStylesMergesAndProperties) {
    const auto document = ReadCorpus("realworld-excel/oxsdk__TestFiles__basicspreadsheet.xlsx");
    ASSERT_EQ(document.sheets.size(), 3u);
    const ooxml::SheetDocument& sheet = document.sheets[0];
    EXPECT_EQ(sheet.name, "Sheet1");
    EXPECT_TRUE(sheet.tabSelected);
    EXPECT_EQ(sheet.merges, (std::vector<ooxml::CellBlock>{{6, 7, 6, 11}}));
    ASSERT_GE(sheet.columns.size(), 4u);
    EXPECT_EQ(sheet.columns[0], (ooxml::ColumnRange{1, 1, 16.0, std::nullopt, false, true}));
    EXPECT_EQ(sheet.columns[1].width, 16.625);
    EXPECT_EQ(sheet.columns[2].first, 3u);
    EXPECT_EQ(sheet.columns[2].last, 4u);
    EXPECT_EQ(sheet.columns[2].width, 11.625);
    EXPECT_EQ(document.strings.at(CellAt(sheet, 1, 2).string).text, "Fill Color");
    EXPECT_TRUE(document.formats.at(CellAt(sheet, 1, 2).format).font.bold);
    EXPECT_EQ(CellAt(sheet, 3, 11).number, 3.0);
    const ooxml::CellFormat& a1 = document.formats.at(CellAt(sheet, 1, 1).format);
    EXPECT_EQ(a1.fill.patternType, "solid");
    EXPECT_EQ(a1.fill.foreground, (Color{Color::Kind::Theme, 0, 4, 0.0}));
    EXPECT_EQ(a1.font.size, 11.0);
    EXPECT_EQ(document.properties.creator, "Swapna Khadilkar");
    EXPECT_EQ(document.properties.lastModifiedBy, "Shiguang Dong");
    EXPECT_EQ(document.properties.created, std::time_t{1153867870});  // 2006-07-25T22:51:10Z
}

// Every workbook of the corpus either reads or fails with a PackageError, never anything worse;
// those Excel wrote must all read.
TEST(ExcelCorpusReaderTest, EveryCorpusWorkbookReadsOrFailsCleanly) {
    std::size_t read = 0;
    std::size_t refused = 0;
    std::size_t excelMadeRefused = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(CorpusDir)) {
        const std::string extension = entry.path().extension().string();
        if (extension != ".xlsx" && extension != ".xlsm" && extension != ".xltx" && extension != ".xltm") {
            continue;
        }
        try {
            const auto document = ooxml::ReadPackage(entry.path().string());
            EXPECT_FALSE(document.sheets.empty()) << entry.path();
            EXPECT_LT(document.activeSheet, document.sheets.size()) << entry.path();
            ++read;
        } catch (const ooxml::PackageError& error) {
            ++refused;
            const bool excelMade = entry.path().parent_path().filename() != "non-excel";
            excelMadeRefused += excelMade ? 1 : 0;
            EXPECT_FALSE(excelMade) << entry.path() << ": " << error.what();
        }
    }
    std::cout << "[ corpus   ] " << read << " workbooks read, " << refused << " refused\n";
    EXPECT_GT(read, 400u);
    EXPECT_EQ(excelMadeRefused, 0u);
}

}  // namespace
