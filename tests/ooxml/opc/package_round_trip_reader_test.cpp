// A document written by WritePackage and read back by ReadPackage is the same document. Formats
// and strings are compared as values: the package may number them differently.

#include "ooxml/reader_test_package.hpp"

#include "ooxml/opc/package_reader.hpp"
#include "ooxml/opc/package_writer.hpp"

#include <gtest/gtest.h>

#include <cstdio>

namespace {

using ooxml::CellType;
using ooxml::Color;

ooxml::CellFormat FullFormat() {
    ooxml::CellFormat format;
    format.numberFormat = "#,##0.00\" EUR\";[Red]-#,##0.00";
    format.font.name = "Arial Narrow";
    format.font.size = 9.5;
    format.font.bold = true;
    format.font.italic = true;
    format.font.strike = true;
    format.font.underline = "doubleAccounting";
    format.font.vertAlign = "subscript";
    format.font.color = Color{Color::Kind::Rgb, 0xFF336699, 0, 0.0};
    format.font.family = 0;
    format.font.scheme = "";
    format.fill = ooxml::Fill{"solid", Color{Color::Kind::Theme, 0, 4, 0.3999755851924192},
                              Color{Color::Kind::Indexed, 0, 64, 0.0}, {}, false};
    format.border.left = {"thin", Color{Color::Kind::Auto, 0, 0, 0.0}};
    format.border.right = {"medium", Color{Color::Kind::Indexed, 0, 10, 0.0}};
    format.border.top = {"dashed", Color{Color::Kind::Theme, 0, 1, -0.25}};
    format.border.bottom = {"double", Color{Color::Kind::Rgb, 0xFF00FF00, 0, 0.0}};
    format.border.diagonal = {"hair", Color{Color::Kind::Rgb, 0xFF000000, 0, 0.0}};
    format.border.diagonalDown = true;
    format.alignment = ooxml::Alignment{"centerContinuous", "center", true, false, 3, 45};
    format.quotePrefix = true;
    format.locked = false;
    format.hidden = true;
    return format;
}

ooxml::WorkbookDocument RichDocument() {
    ooxml::WorkbookDocument document;
    ooxml::CellFormat date;
    date.numberFormat = "m/d/yyyy";
    ooxml::CellFormat percent;
    percent.numberFormat = "0.00%";
    percent.alignment.textRotation = 255;
    percent.alignment.shrinkToFit = true;
    percent.font.color = Color{Color::Kind::Theme, 0, 0, 0.5};
    ooxml::CellFormat gridFill;
    gridFill.fill = ooxml::Fill{"gray125", Color{}, Color{}, {}, false};
    gridFill.font.scheme = "major";
    gridFill.font.name = "Cambria";
    document.formats = {ooxml::CellFormat{}, FullFormat(), date, percent, gridFill};

    ooxml::Font runFont;
    runFont.bold = true;
    runFont.color = Color{Color::Kind::Rgb, 0xFFFF0000, 0, 0.0};
    document.strings = {
        {"plain", {}},
        {"Bold and plain", {{"Bold", runFont}, {" and plain", std::nullopt}}},
        {"  spaced\ttab\nnew line _x0041_ \x01 & <tag> \"q\" \xC3\xA9\xE2\x82\xAC  ", {}},
        {"#N/A", {}},
    };

    ooxml::SheetDocument data;
    data.name = "Data & Co";
    data.showGridLines = false;
    data.printGridLines = true;
    data.defaultColumnWidth = 12.5;
    data.defaultRowHeight = 18.0;
    data.activeCell = "C4";
    data.columns = {{1, 1, 30.7109375, std::nullopt, false, true},
                    {2, 4, std::nullopt, 2u, false},
                    {5, 5, 0.0, std::nullopt, true, true},
                    {7, 16384, 4.5, 4u, false}};
    data.formulas = {"SUM(B2:B3)", "\"a\"&\"b\"", "B2>0", "1/0", "A1:A2 A2"};
    data.rows.push_back({1,
                         std::nullopt,
                         std::nullopt,
                         false,
                         {{1, 0, 0, ooxml::NoFormula, 0.0, CellType::String},
                          {2, 1, 1, ooxml::NoFormula, 0.0, CellType::String},
                          {3, 0, 2, ooxml::NoFormula, 0.0, CellType::String}}});
    data.rows.push_back({2,
                         30.25,
                         4u,
                         false,
                         {{1, 2, 0, ooxml::NoFormula, 45356.5, CellType::Number},
                          {2, 3, 0, ooxml::NoFormula, -1.25e-7, CellType::Number},
                          {3, 0, 0, ooxml::NoFormula, 1.0, CellType::Boolean},
                          {4, 0, 3, ooxml::NoFormula, 0.0, CellType::Error},
                          {16384, 1, 0, ooxml::NoFormula, 0.0, CellType::Blank}}});
    data.rows.push_back({3,
                         std::nullopt,
                         std::nullopt,
                         true,
                         {{1, 0, 0, 0, 6.5, CellType::Number},
                          {2, 0, 0, 1, 0.0, CellType::String},
                          {3, 0, 0, 2, 0.0, CellType::Boolean},
                          {4, 0, 3, 3, 0.0, CellType::Error},
                          {5, 0, 0, 4, 0.0, CellType::Blank}}});
    data.rows.push_back({1048576, 409.5, std::nullopt, false, {{1, 0, 0, ooxml::NoFormula, 1e300, CellType::Number}}});
    data.merges = {{1, 2, 1, 4}, {5, 1, 9, 2}};

    ooxml::SheetDocument hidden;
    hidden.name = "Hidden";
    hidden.state = "hidden";
    hidden.tabSelected = true;
    ooxml::SheetDocument secret;
    secret.name = "Secret";
    secret.state = "veryHidden";
    document.sheets = {data, hidden, secret};
    document.activeSheet = 1;
    document.names = {{"Total", "'Data & Co'!$B$2:$B$3", std::nullopt, false},
                      {"_xlnm.Print_Area", "Hidden!$A$1:$C$3", 1u, false},
                      {"Internal", "Secret!$A$1", 2u, true}};
    document.palette.assign(64, 0x102030);
    document.palette[63] = 0xFEDCBA;
    document.lockStructure = true;
    document.lockWindows = true;
    document.properties = {"Ann Author", "Bob Editor", std::time_t{1158364800}, std::time_t{1709244015}};
    return document;
}

void ExpectSameSheet(const ooxml::WorkbookDocument& expectedBook, const ooxml::SheetDocument& expected,
                     const ooxml::WorkbookDocument& actualBook, const ooxml::SheetDocument& actual) {
    SCOPED_TRACE("sheet " + expected.name);
    EXPECT_EQ(actual.name, expected.name);
    EXPECT_EQ(actual.state, expected.state);
    EXPECT_EQ(actual.showGridLines, expected.showGridLines);
    EXPECT_EQ(actual.printGridLines, expected.printGridLines);
    EXPECT_EQ(actual.tabSelected, expected.tabSelected);
    EXPECT_EQ(actual.defaultColumnWidth, expected.defaultColumnWidth);
    EXPECT_EQ(actual.defaultRowHeight, expected.defaultRowHeight);
    EXPECT_EQ(actual.activeCell, expected.activeCell);
    EXPECT_EQ(actual.merges, expected.merges);
    ASSERT_EQ(actual.columns.size(), expected.columns.size());
    for (std::size_t i = 0; i < expected.columns.size(); ++i) {
        const ooxml::ColumnRange& want = expected.columns[i];
        const ooxml::ColumnRange& got = actual.columns[i];
        EXPECT_EQ(got.first, want.first);
        EXPECT_EQ(got.last, want.last);
        // A range without a width is written with the sheet's default width, which reads back as its width.
        EXPECT_EQ(got.width, want.width ? want.width : expected.defaultColumnWidth)
            << "columns " << want.first << ":" << want.last;
        EXPECT_EQ(got.customWidth, want.customWidth) << "columns " << want.first << ":" << want.last;
        EXPECT_EQ(got.hidden, want.hidden);
        ASSERT_EQ(got.format.has_value(), want.format.has_value());
        if (want.format) {
            EXPECT_EQ(actualBook.formats.at(*got.format), expectedBook.formats.at(*want.format));
        }
    }
    ASSERT_EQ(actual.rows.size(), expected.rows.size());
    for (std::size_t r = 0; r < expected.rows.size(); ++r) {
        const ooxml::Row& want = expected.rows[r];
        const ooxml::Row& got = actual.rows[r];
        SCOPED_TRACE("row " + std::to_string(want.index));
        EXPECT_EQ(got.index, want.index);
        EXPECT_EQ(got.height, want.height);
        EXPECT_EQ(got.hidden, want.hidden);
        ASSERT_EQ(got.format.has_value(), want.format.has_value());
        if (want.format) {
            EXPECT_EQ(actualBook.formats.at(*got.format), expectedBook.formats.at(*want.format));
        }
        ASSERT_EQ(got.cells.size(), want.cells.size());
        for (std::size_t c = 0; c < want.cells.size(); ++c) {
            const ooxml::Cell& wantCell = want.cells[c];
            const ooxml::Cell& gotCell = got.cells[c];
            SCOPED_TRACE("column " + std::to_string(wantCell.column));
            EXPECT_EQ(gotCell.column, wantCell.column);
            EXPECT_EQ(gotCell.type, wantCell.type);
            EXPECT_EQ(actualBook.formats.at(gotCell.format), expectedBook.formats.at(wantCell.format));
            if (wantCell.type == CellType::Number || wantCell.type == CellType::Boolean) {
                EXPECT_EQ(gotCell.number, wantCell.number);
            }
            if (wantCell.type == CellType::String || wantCell.type == CellType::Error) {
                EXPECT_EQ(actualBook.strings.at(gotCell.string), expectedBook.strings.at(wantCell.string));
            }
            ASSERT_EQ(gotCell.formula == ooxml::NoFormula, wantCell.formula == ooxml::NoFormula);
            if (wantCell.formula != ooxml::NoFormula) {
                EXPECT_EQ(actual.formulas.at(gotCell.formula), expected.formulas.at(wantCell.formula));
            }
        }
    }
}

TEST(PackageRoundTripReaderTest, WrittenDocumentReadsBackFieldByField) {
    const ooxml::WorkbookDocument expected = RichDocument();
    const std::string path = ::testing::TempDir() + "round_trip_reader_test.xlsx";
    ooxml::WritePackage(expected, path);
    const ooxml::WorkbookDocument actual = ooxml::ReadPackage(path);
    std::remove(path.c_str());

    ASSERT_EQ(actual.sheets.size(), expected.sheets.size());
    for (std::size_t i = 0; i < expected.sheets.size(); ++i) {
        ExpectSameSheet(expected, expected.sheets[i], actual, actual.sheets[i]);
    }
    EXPECT_EQ(actual.names, expected.names);
    EXPECT_EQ(actual.palette, expected.palette);
    EXPECT_EQ(actual.activeSheet, expected.activeSheet);
    EXPECT_EQ(actual.lockStructure, expected.lockStructure);
    EXPECT_EQ(actual.lockWindows, expected.lockWindows);
    EXPECT_EQ(actual.properties.creator, expected.properties.creator);
    EXPECT_EQ(actual.properties.lastModifiedBy, expected.properties.lastModifiedBy);
    EXPECT_EQ(actual.properties.created, expected.properties.created);
    EXPECT_EQ(actual.properties.modified, expected.properties.modified);
    EXPECT_EQ(actual.formats.at(0), expected.formats.at(0));
}

TEST(PackageRoundTripReaderTest, MinimalDocumentReadsBackWithItsDefaults) {
    ooxml::WorkbookDocument expected;
    expected.sheets.emplace_back().name = "Sheet1";
    const std::string path = ::testing::TempDir() + "round_trip_minimal_reader_test.xlsx";
    ooxml::WritePackage(expected, path);
    const ooxml::WorkbookDocument actual = ooxml::ReadPackage(path);
    std::remove(path.c_str());
    ASSERT_EQ(actual.sheets.size(), 1u);
    ExpectSameSheet(expected, expected.sheets[0], actual, actual.sheets[0]);
    EXPECT_EQ(actual.formats.at(0), ooxml::CellFormat{});
    EXPECT_TRUE(actual.names.empty());
    EXPECT_TRUE(actual.palette.empty());
    EXPECT_FALSE(actual.lockStructure);
}

}  // namespace
