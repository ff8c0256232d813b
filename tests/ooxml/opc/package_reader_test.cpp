#include "ooxml/reader_test_package.hpp"

#include "ooxml/opc/package_reader.hpp"
#include "ooxml/package_error.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using ooxml::CellType;
using ooxml::PackageError;
using ooxml::ReadPackage;
using ooxml_test::MinimalPackage;
using ooxml_test::PackageParts;
using ooxml_test::TemporaryPackage;

constexpr const char* RelationshipsStart =
    R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)"
    R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)";
constexpr const char* RelationshipType = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/";

ooxml::WorkbookDocument Read(const PackageParts& parts) {
    const TemporaryPackage package(parts);
    return ReadPackage(package.Path());
}

PackageError::Reason FailureReason(const std::string& path) {
    try {
        ReadPackage(path);
    } catch (const PackageError& error) {
        return error.reason();
    }
    ADD_FAILURE() << "read without error: " << path;
    return PackageError::Reason::WriteFailed;
}

PackageError::Reason FailureReason(const PackageParts& parts) {
    const TemporaryPackage package(parts);
    return FailureReason(package.Path());
}

const ooxml::Cell& CellAt(const ooxml::SheetDocument& sheet, uint32_t row, uint32_t column) {
    static const ooxml::Cell missing{0, 0, 0, ooxml::NoFormula, 0.0, CellType::Blank};
    for (const ooxml::Row& r : sheet.rows) {
        if (r.index == row) {
            for (const ooxml::Cell& cell : r.cells) {
                if (cell.column == column) {
                    return cell;
                }
            }
        }
    }
    ADD_FAILURE() << "no cell at row " << row << " column " << column;
    return missing;
}

std::string Formula(const ooxml::SheetDocument& sheet, uint32_t row, uint32_t column) {
    const ooxml::Cell& cell = CellAt(sheet, row, column);
    return cell.formula == ooxml::NoFormula ? std::string("<none>") : sheet.formulas.at(cell.formula);
}

std::string Text(const ooxml::WorkbookDocument& document, uint32_t row, uint32_t column, uint32_t sheet = 0) {
    return document.strings.at(CellAt(document.sheets.at(sheet), row, column).string).text;
}

TEST(PackageReaderTest, MissingFileIsFileNotFound) {
    EXPECT_EQ(FailureReason(::testing::TempDir() + "no_such_workbook.xlsx"), PackageError::Reason::FileNotFound);
}

TEST(PackageReaderTest, FileThatIsNoZipIsNotAPackage) {
    const TemporaryPackage notZip(std::string("Name,Value\nA,1\n"));
    EXPECT_EQ(FailureReason(notZip.Path()), PackageError::Reason::NotAPackage);
}

TEST(PackageReaderTest, EmptyFileIsNotAPackage) {
    const TemporaryPackage empty(std::string{});
    EXPECT_EQ(FailureReason(empty.Path()), PackageError::Reason::NotAPackage);
}

TEST(PackageReaderTest, ZipWithoutWorkbookIsNotAPackage) {
    PackageParts parts = MinimalPackage("<sheetData/>");
    parts.erase("xl/workbook.xml");
    EXPECT_EQ(FailureReason(parts), PackageError::Reason::NotAPackage);
    EXPECT_EQ(FailureReason(PackageParts{{"readme.txt", "hello"}}), PackageError::Reason::NotAPackage);
}

TEST(PackageReaderTest, OfficeDocumentOfAnotherKindIsNotAPackage) {
    PackageParts parts = MinimalPackage("<sheetData/>");
    const std::string spreadsheetType = "spreadsheetml.sheet.main+xml";
    std::string& types = parts["[Content_Types].xml"];
    types.replace(types.find(spreadsheetType), spreadsheetType.size(), "wordprocessingml.document.main+xml");
    EXPECT_EQ(FailureReason(parts), PackageError::Reason::NotAPackage);
}

TEST(PackageReaderTest, UnparsableXmlIsCorrupt) {
    PackageParts parts = MinimalPackage("<sheetData><row r=\"1\"><c r=\"A1\"><v>1</v></row></sheetData>");
    EXPECT_EQ(FailureReason(parts), PackageError::Reason::Corrupt);
    parts = MinimalPackage("<sheetData/>");
    parts["xl/workbook.xml"] = "<workbook><sheets>";
    EXPECT_EQ(FailureReason(parts), PackageError::Reason::Corrupt);
}

TEST(PackageReaderTest, SharedStringIndexBeyondTheTableIsCorrupt) {
    EXPECT_EQ(FailureReason(MinimalPackage(R"(<sheetData><row r="1"><c r="A1" t="s"><v>3</v></c></row></sheetData>)")),
              PackageError::Reason::Corrupt);
}

TEST(PackageReaderTest, CellsAndRowsWithoutReferencesFollowTheirPredecessors) {
    const auto document =
        Read(MinimalPackage(R"(<sheetData>)"
                            R"(<row><c><v>1</v></c><c><v>2</v></c><c r="E1"><v>5</v></c><c><v>6</v></c></row>)"
                            R"(<row r="4"><c r="B4"><v>7</v></c></row>)"
                            R"(<row><c><v>8</v></c></row>)"
                            R"(</sheetData>)"));
    const ooxml::SheetDocument& sheet = document.sheets.at(0);
    ASSERT_EQ(sheet.rows.size(), 3u);
    EXPECT_EQ(sheet.rows[0].index, 1u);
    std::vector<uint32_t> columns;
    for (const ooxml::Cell& cell : sheet.rows[0].cells) {
        columns.push_back(cell.column);
    }
    EXPECT_EQ(columns, (std::vector<uint32_t>{1, 2, 5, 6}));
    EXPECT_EQ(CellAt(sheet, 1, 6).number, 6.0);
    EXPECT_EQ(CellAt(sheet, 4, 2).number, 7.0);
    EXPECT_EQ(sheet.rows[2].index, 5u);
    EXPECT_EQ(CellAt(sheet, 5, 1).number, 8.0);
}

TEST(PackageReaderTest, ReadsEveryKindOfCellValue) {
    const auto document =
        Read(MinimalPackage(R"(<sheetData><row r="1">)"
                            R"(<c r="A1"><v>-1.25E-3</v></c>)"
                            R"(<c r="B1" t="inlineStr"><is><t xml:space="preserve"> inline &amp; text </t></is></c>)"
                            R"(<c r="C1" t="b"><v>1</v></c>)"
                            R"(<c r="D1" t="b"><v>0</v></c>)"
                            R"(<c r="E1" t="e"><v>#DIV/0!</v></c>)"
                            R"(<c r="F1" t="str"><f>"a"&amp;"b"</f><v>ab</v></c>)"
                            R"(<c r="G1"><f>SUM(A1,1)</f><v>0.99875</v></c>)"
                            R"(<c r="H1" s="0"/>)"
                            R"(<c r="I1" t="d"><v>2024-03-05T12:00:00</v></c>)"
                            R"(</row></sheetData>)"));
    const ooxml::SheetDocument& sheet = document.sheets.at(0);
    EXPECT_EQ(CellAt(sheet, 1, 1).type, CellType::Number);
    EXPECT_DOUBLE_EQ(CellAt(sheet, 1, 1).number, -0.00125);
    EXPECT_EQ(CellAt(sheet, 1, 2).type, CellType::String);
    EXPECT_EQ(Text(document, 1, 2), " inline & text ");
    EXPECT_EQ(CellAt(sheet, 1, 3).type, CellType::Boolean);
    EXPECT_EQ(CellAt(sheet, 1, 3).number, 1.0);
    EXPECT_EQ(CellAt(sheet, 1, 4).number, 0.0);
    EXPECT_EQ(CellAt(sheet, 1, 5).type, CellType::Error);
    EXPECT_EQ(Text(document, 1, 5), "#DIV/0!");
    EXPECT_EQ(CellAt(sheet, 1, 6).type, CellType::String);
    EXPECT_EQ(Text(document, 1, 6), "ab");
    EXPECT_EQ(Formula(sheet, 1, 6), "\"a\"&\"b\"");
    EXPECT_EQ(CellAt(sheet, 1, 7).type, CellType::Number);
    EXPECT_DOUBLE_EQ(CellAt(sheet, 1, 7).number, 0.99875);
    EXPECT_EQ(Formula(sheet, 1, 7), "SUM(A1,1)");
    EXPECT_EQ(CellAt(sheet, 1, 8).type, CellType::Blank);
    EXPECT_EQ(CellAt(sheet, 1, 9).type, CellType::Number);
    EXPECT_DOUBLE_EQ(CellAt(sheet, 1, 9).number, 45356.5);  // 2024-03-05 noon as a 1900-system serial
}

TEST(PackageReaderTest, InlineAndFormulaStringsReuseEqualEntriesOfTheStringTable) {
    PackageParts parts = MinimalPackage(R"(<sheetData><row r="1">)"
                                        R"(<c r="A1" t="s"><v>0</v></c>)"
                                        R"(<c r="B1" t="inlineStr"><is><t>shared</t></is></c>)"
                                        R"(<c r="C1" t="str"><f>A1</f><v>other</v></c>)"
                                        R"(<c r="D1" t="inlineStr"><is><t>other</t></is></c>)"
                                        R"(</row></sheetData>)");
    parts["xl/sharedStrings.xml"] =
        R"(<sst xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main"><si><t>shared</t></si></sst>)";
    parts["xl/_rels/workbook.xml.rels"] = std::string(RelationshipsStart) + R"(<Relationship Id="rId1" Type=")" +
                                          RelationshipType + R"(worksheet" Target="worksheets/sheet1.xml"/>)" +
                                          R"(<Relationship Id="rId2" Type=")" + RelationshipType +
                                          R"(sharedStrings" Target="sharedStrings.xml"/></Relationships>)";
    const auto document = Read(parts);
    const ooxml::SheetDocument& sheet = document.sheets.at(0);
    EXPECT_EQ(CellAt(sheet, 1, 1).string, 0u);
    EXPECT_EQ(CellAt(sheet, 1, 2).string, 0u);
    EXPECT_EQ(CellAt(sheet, 1, 3).string, CellAt(sheet, 1, 4).string);
    EXPECT_EQ(document.strings.size(), 2u);
}

TEST(PackageReaderTest, DecodesEscapedCharactersInText) {
    const auto document =
        Read(MinimalPackage(R"(<sheetData><row r="1">)"
                            R"(<c r="A1" t="inlineStr"><is><t>a_x000D__x000A_b_x005F_x0041_</t></is></c>)"
                            R"(<c r="B1" t="inlineStr"><is><t>_xD83D__xDE00_ and _x12G4_</t></is></c>)"
                            R"(</row></sheetData>)"));
    EXPECT_EQ(Text(document, 1, 1), "a\r\nb_x0041_");
    EXPECT_EQ(Text(document, 1, 2), "\xF0\x9F\x98\x80 and _x12G4_");
}

TEST(PackageReaderTest, SharedFormulasAreExpandedIntoEveryCell) {
    const auto document = Read(MinimalPackage(
        R"(<sheetData>)"
        R"(<row r="2"><c r="C2"><f t="shared" ref="C2:D4" si="0">A2*$B$1+SUM(A:A)+Sheet2!B2&amp;"A1"</f><v>1</v></c>)"
        R"(<c r="D2"><f t="shared" si="0"/><v>2</v></c></row>)"
        R"(<row r="4"><c r="C4"><f t="shared" si="0"/><v>3</v></c></row>)"
        R"(<row r="5"><c r="A5"><f t="shared" ref="A5:A6" si="1">A4+LOG10(B$4)+Table1[[#This Row],[Qty]]</f><v>4</v></c></row>)"
        R"(<row r="6"><c r="A6"><f t="shared" si="1"/><v>5</v></c></row>)"
        R"(<row r="7"><c r="B7"><f t="shared" ref="B7:B8" si="2">A1</f><v>6</v></c></row>)"
        R"(</sheetData>)"));
    const ooxml::SheetDocument& sheet = document.sheets.at(0);
    EXPECT_EQ(Formula(sheet, 2, 3), "A2*$B$1+SUM(A:A)+Sheet2!B2&\"A1\"");
    EXPECT_EQ(Formula(sheet, 2, 4), "B2*$B$1+SUM(B:B)+Sheet2!C2&\"A1\"");
    EXPECT_EQ(Formula(sheet, 4, 3), "A4*$B$1+SUM(A:A)+Sheet2!B4&\"A1\"");
    EXPECT_EQ(Formula(sheet, 6, 1), "A5+LOG10(B$4)+Table1[[#This Row],[Qty]]");
    EXPECT_EQ(CellAt(sheet, 4, 3).number, 3.0);
}

TEST(PackageReaderTest, SharedFormulaMovedOffTheSheetBecomesRefError) {
    const auto document = Read(
        MinimalPackage(R"(<sheetData><row r="2"><c r="B2"><f t="shared" ref="A2:B2" si="0">A1+1</f><v>1</v></c></row>)"
                       R"(<row r="3"><c r="A3"><f t="shared" si="0"/><v>2</v></c></row></sheetData>)"));
    EXPECT_EQ(Formula(document.sheets.at(0), 3, 1), "#REF!+1");
}

TEST(PackageReaderTest, ArrayFormulaKeepsItsBlockAndCachedResult) {
    const auto document =
        Read(MinimalPackage(R"(<sheetData><row r="1"><c r="A1"><f t="array" ref="A1:B2">{1,2;3,4}*2</f><v>2</v></c>)"
                            R"(<c r="B1"><v>4</v></c><c r="C1"><f t="array" ref="C1">SUM(A1:B2*1)</f><v>20</v></c>)"
                            R"(<c r="D1"><f>A1</f><v>2</v></c></row></sheetData>)"));
    const ooxml::SheetDocument& sheet = document.sheets.at(0);
    EXPECT_EQ(Formula(sheet, 1, 1), "{1,2;3,4}*2");
    EXPECT_EQ(CellAt(sheet, 1, 1).number, 2.0);
    EXPECT_EQ(CellAt(sheet, 1, 2).formula, ooxml::NoFormula);
    const auto& arrays = sheet.arrayFormulas;
    ASSERT_EQ(arrays.size(), 2u);
    EXPECT_EQ(arrays.at(CellAt(sheet, 1, 1).formula), (ooxml::CellBlock{1, 1, 2, 2}));
    EXPECT_EQ(arrays.at(CellAt(sheet, 1, 3).formula), (ooxml::CellBlock{1, 3, 1, 3}));
    EXPECT_FALSE(arrays.contains(CellAt(sheet, 1, 4).formula));
}

TEST(PackageReaderTest, ReadsRowsColumnsMergesViewsAndSheetOptions) {
    const auto document = Read(MinimalPackage(
        R"(<sheetPr><tabColor rgb="FFFF0000"/></sheetPr><dimension ref="A1:C3"/>)"
        R"(<sheetViews><sheetView showGridLines="0" tabSelected="1" workbookViewId="0">)"
        R"(<pane ySplit="1" topLeftCell="A2" activePane="bottomLeft" state="frozen"/>)"
        R"(<selection pane="topLeft" activeCell="B1" sqref="B1"/>)"
        R"(<selection pane="bottomLeft" activeCell="C3" sqref="C3"/></sheetView></sheetViews>)"
        R"(<sheetFormatPr defaultColWidth="12.5" defaultRowHeight="18"/>)"
        R"(<cols><col min="2" max="4" width="20.7109375" customWidth="1"/><col min="6" max="6" width="9" hidden="1"/>)"
        R"(<col min="8" max="16384" width="9.140625" style="0"/></cols>)"
        R"(<sheetData><row r="2" ht="30" customHeight="1"><c r="A2"><v>1</v></c></row>)"
        R"(<row r="3" ht="21"><c r="A3"><v>1</v></c></row>)"
        R"(<row r="5" s="0" customFormat="1" hidden="1"/></sheetData>)"
        R"(<mergeCells count="2"><mergeCell ref="A1:C1"/><mergeCell ref="E5:D4"/></mergeCells>)"
        R"(<unknownElement><nested/></unknownElement>)"
        R"(<printOptions gridLines="1"/><pageMargins left="0.7" right="0.7" top="0.75" bottom="0.75" header="0.3" footer="0.3"/>)"));
    const ooxml::SheetDocument& sheet = document.sheets.at(0);
    EXPECT_FALSE(sheet.showGridLines);
    EXPECT_TRUE(sheet.tabSelected);
    EXPECT_EQ(sheet.activeCell, "C3");
    EXPECT_TRUE(sheet.printGridLines);
    EXPECT_EQ(sheet.defaultColumnWidth, 12.5);
    EXPECT_EQ(sheet.defaultRowHeight, 18.0);
    ASSERT_EQ(sheet.columns.size(), 3u);
    EXPECT_EQ(sheet.columns[0], (ooxml::ColumnRange{2, 4, 20.7109375, std::nullopt, false, true}));
    EXPECT_EQ(sheet.columns[1], (ooxml::ColumnRange{6, 6, 9.0, std::nullopt, true, false}));
    EXPECT_EQ(sheet.columns[2], (ooxml::ColumnRange{8, 16384, 9.140625, 0u, false, false}));
    ASSERT_EQ(sheet.rows.size(), 3u);
    EXPECT_EQ(sheet.rows[0].height, 30.0);
    EXPECT_TRUE(sheet.rows[0].customHeight);
    // A height Excel fitted to the content: the row is shown at it until it is fitted again.
    EXPECT_EQ(sheet.rows[1].height, 21.0);
    EXPECT_FALSE(sheet.rows[1].customHeight);
    EXPECT_EQ(sheet.rows[2].index, 5u);
    EXPECT_TRUE(sheet.rows[2].hidden);
    EXPECT_EQ(sheet.rows[2].format, 0u);
    EXPECT_EQ(sheet.merges, (std::vector<ooxml::CellBlock>{{1, 1, 1, 3}, {4, 4, 5, 5}}));
}

TEST(PackageReaderTest, DefaultSheetSettingsWhenTheSheetStatesNone) {
    const auto document = Read(MinimalPackage("<sheetData/>"));
    const ooxml::SheetDocument& sheet = document.sheets.at(0);
    EXPECT_EQ(sheet.name, "Sheet1");
    EXPECT_EQ(sheet.state, "visible");
    EXPECT_TRUE(sheet.showGridLines);
    EXPECT_FALSE(sheet.printGridLines);
    EXPECT_EQ(sheet.activeCell, "A1");
    EXPECT_FALSE(sheet.defaultColumnWidth.has_value());
    EXPECT_EQ(sheet.defaultRowHeight, 15.0);
    EXPECT_TRUE(sheet.rows.empty());
    EXPECT_EQ(document.formats.size(), 1u);
    EXPECT_EQ(document.formats[0], ooxml::CellFormat{});
}

TEST(PackageReaderTest, FindsPartsThroughRelationshipsWhereverTheyLie) {
    PackageParts parts = MinimalPackage(R"(<sheetData><row r="1"><c r="A1"><v>42</v></c></row></sheetData>)");
    PackageParts moved;
    moved["[Content_Types].xml"] =
        R"(<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types">)"
        R"(<Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/>)"
        R"(<Default Extension="xml" ContentType="application/xml"/>)"
        R"(<Override PartName="/Book%20Parts/Main.xml" ContentType="application/vnd.ms-excel.sheet.macroEnabled.main+xml"/></Types>)";
    moved["_rels/.rels"] = std::string(RelationshipsStart) + R"(<Relationship Id="x" Type=")" + RelationshipType +
                           R"(officeDocument" Target="/Book%20Parts/Main.xml"/></Relationships>)";
    moved["Book Parts/Main.xml"] = parts["xl/workbook.xml"];
    moved["Book Parts/_rels/Main.xml.rels"] = std::string(RelationshipsStart) + R"(<Relationship Id="rId1" Type=")" +
                                              RelationshipType +
                                              R"(worksheet" Target="./../sheets/./first.xml"/></Relationships>)";
    moved["sheets/first.xml"] = parts["xl/worksheets/sheet1.xml"];
    const auto document = Read(moved);
    EXPECT_EQ(CellAt(document.sheets.at(0), 1, 1).number, 42.0);
}

TEST(PackageReaderTest, ReadsPartsThatBindTheNamespaceToAPrefix) {
    PackageParts parts = MinimalPackage("");
    parts["xl/worksheets/sheet1.xml"] =
        R"(<x:worksheet xmlns:x="http://schemas.openxmlformats.org/spreadsheetml/2006/main">)"
        R"(<x:sheetData><x:row x:r="3"><x:c x:r="B3" x:t="inlineStr"><x:is><x:t>prefixed</x:t></x:is></x:c></x:row>)"
        R"(</x:sheetData></x:worksheet>)";
    const auto document = Read(parts);
    EXPECT_EQ(Text(document, 3, 2), "prefixed");
}

TEST(PackageReaderTest, ReadsTheWorkbookPartSheetsNamesAndProtection) {
    PackageParts parts = MinimalPackage("<sheetData/>");
    parts["xl/workbook.xml"] =
        R"(<workbook xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships">)"
        R"(<workbookPr defaultThemeVersion="124226"/><workbookProtection lockStructure="1" lockWindows="true"/>)"
        R"(<bookViews><workbookView activeTab="3"/></bookViews><sheets>)"
        R"(<sheet name="Data" sheetId="1" r:id="rId1"/><sheet name="Chart1" sheetId="2" r:id="rId2"/>)"
        R"(<sheet name="Hidden &amp; Co" sheetId="3" state="hidden" r:id="rId3"/><sheet name="Last" sheetId="4" state="veryHidden" r:id="rId4"/>)"
        R"(</sheets><definedNames><definedName name="_xlnm.Print_Area" localSheetId="3">Last!$A$1:$B$2</definedName>)"
        R"(<definedName name="OnChart" localSheetId="1">Data!$A$1</definedName>)"
        R"(<definedName name="Total" hidden="1">=Data!$C$9</definedName></definedNames></workbook>)";
    std::string relationships = RelationshipsStart;
    for (const auto& [id, type, target] : std::vector<std::tuple<std::string, std::string, std::string>>{
             {"rId1", "worksheet", "worksheets/sheet1.xml"},
             {"rId2", "chartsheet", "chartsheets/sheet1.xml"},
             {"rId3", "worksheet", "/xl/worksheets/sheet2.xml"},
             {"rId4", "worksheet", "worksheets/sheet3.xml"}}) {
        relationships +=
            "<Relationship Id=\"" + id + "\" Type=\"" + RelationshipType + type + "\" Target=\"" + target + "\"/>";
    }
    parts["xl/_rels/workbook.xml.rels"] = relationships + "</Relationships>";
    parts["xl/worksheets/sheet2.xml"] = parts["xl/worksheets/sheet3.xml"] = parts["xl/worksheets/sheet1.xml"];
    parts["xl/chartsheets/sheet1.xml"] = "<chartsheet/>";
    const auto document = Read(parts);
    ASSERT_EQ(document.sheets.size(), 3u);
    EXPECT_EQ(document.sheets[0].name, "Data");
    EXPECT_EQ(document.sheets[1].name, "Hidden & Co");
    EXPECT_EQ(document.sheets[1].state, "hidden");
    EXPECT_EQ(document.sheets[2].state, "veryHidden");
    EXPECT_EQ(document.activeSheet, 2u);  // the fourth sheet of the part is the third worksheet
    EXPECT_FALSE(document.date1904);
    EXPECT_TRUE(document.lockStructure);
    EXPECT_TRUE(document.lockWindows);
    EXPECT_EQ(document.names, (std::vector<ooxml::DefinedName>{{"_xlnm.Print_Area", "Last!$A$1:$B$2", 2u, false},
                                                               {"Total", "Data!$C$9", std::nullopt, true}}));
    // The chart sheet is kept in its place, with the name scoped to it.
    ASSERT_TRUE(document.carried);
    ASSERT_EQ(document.carried->sheets.size(), 1u);
    EXPECT_EQ(document.carried->sheets[0].name, "Chart1");
    EXPECT_EQ(document.carried->sheets[0].position, 1u);
    EXPECT_EQ(document.carried->sheets[0].relationship.target, "xl/chartsheets/sheet1.xml");
    ASSERT_EQ(document.carried->sheetNames.size(), 1u);
    EXPECT_EQ(document.carried->sheetNames[0].name.name, "OnChart");
    EXPECT_EQ(document.carried->sheetNames[0].carriedSheet, 0u);
}

// A workbook part whose two sheets have the relationships given, the first one's part present.
PackageParts TwoSheets(const std::string& secondId, const std::string& relationships) {
    PackageParts parts = MinimalPackage("<sheetData/>");
    parts["xl/workbook.xml"] =
        R"(<workbook xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships">)"
        R"(<sheets><sheet name="One" sheetId="1" r:id="rId1"/><sheet name="Two" sheetId="2" r:id=")" +
        secondId + R"("/></sheets></workbook>)";
    parts["xl/_rels/workbook.xml.rels"] = std::string(RelationshipsStart) + "<Relationship Id=\"rId1\" Type=\"" +
                                          RelationshipType + "worksheet\" Target=\"worksheets/sheet1.xml\"/>" +
                                          relationships + "</Relationships>";
    return parts;
}

TEST(PackageReaderTest, ASheetWithoutItsPartIsCorruptNotLeftOut) {
    const std::string other = std::string("<Relationship Id=\"rId2\" Type=\"") + RelationshipType + "worksheet\" ";
    // The relationship is missing, leaves the package, leads nowhere, or leads to another sheet's part.
    EXPECT_EQ(FailureReason(TwoSheets("rId9", "")), PackageError::Reason::Corrupt);
    EXPECT_EQ(FailureReason(TwoSheets("rId2", other + R"(Target="http://example.com/x.xml" TargetMode="External"/>)")),
              PackageError::Reason::Corrupt);
    EXPECT_EQ(FailureReason(TwoSheets("rId2", other + R"(Target="worksheets/sheet9.xml"/>)")),
              PackageError::Reason::Corrupt);
    EXPECT_EQ(FailureReason(TwoSheets("rId2", other + R"(Target="worksheets/sheet1.xml"/>)")),
              PackageError::Reason::Corrupt);
}

TEST(PackageReaderTest, AMacroModuleSheetWithoutAPartIsKept) {
    const auto document = Read(TwoSheets("", ""));
    ASSERT_EQ(document.sheets.size(), 1u);
    ASSERT_EQ(document.carried->sheets.size(), 1u);
    EXPECT_EQ(document.carried->sheets[0].name, "Two");
    EXPECT_EQ(document.carried->sheets[0].position, 1u);
    EXPECT_TRUE(document.carried->sheets[0].relationship.id.empty());
}

TEST(PackageReaderTest, ReadsThe1904DateSystemOfTheWorkbookPart) {
    PackageParts parts = MinimalPackage("<sheetData/>");
    const std::string::size_type sheets = parts["xl/workbook.xml"].find("<sheets>");
    ASSERT_NE(sheets, std::string::npos);
    parts["xl/workbook.xml"].insert(sheets, R"(<workbookPr date1904="1"/>)");
    EXPECT_TRUE(Read(parts).date1904);
}

TEST(PackageReaderTest, ReadsCoreDocumentProperties) {
    PackageParts parts = MinimalPackage("<sheetData/>");
    parts["docProps/core.xml"] =
        R"(<cp:coreProperties xmlns:cp="http://schemas.openxmlformats.org/package/2006/metadata/core-properties" )"
        R"(xmlns:dc="http://purl.org/dc/elements/1.1/" xmlns:dcterms="http://purl.org/dc/terms/" )"
        R"(xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance"><dc:creator>Ann Author</dc:creator>)"
        R"(<cp:lastModifiedBy>Bob Editor</cp:lastModifiedBy>)"
        R"(<dcterms:created xsi:type="dcterms:W3CDTF">2006-09-16T00:00:00Z</dcterms:created>)"
        R"(<dcterms:modified xsi:type="dcterms:W3CDTF">2024-02-29T23:30:15.5+01:30</dcterms:modified></cp:coreProperties>)";
    parts["_rels/.rels"] =
        std::string(RelationshipsStart) + R"(<Relationship Id="rId1" Type=")" + RelationshipType +
        R"(officeDocument" Target="xl/workbook.xml"/><Relationship Id="rId2" )"
        R"(Type="http://schemas.openxmlformats.org/package/2006/relationships/metadata/core-properties" )"
        R"(Target="docProps/core.xml"/></Relationships>)";
    const auto document = Read(parts);
    EXPECT_EQ(document.properties.creator, "Ann Author");
    EXPECT_EQ(document.properties.lastModifiedBy, "Bob Editor");
    EXPECT_EQ(document.properties.created, std::time_t{1158364800});
    EXPECT_EQ(document.properties.modified, std::time_t{1709244015});  // 2024-02-29T22:00:15Z
}

TEST(PackageReaderTest, HostileNumbersAndReferencesNeverLeaveTheSheet) {
    EXPECT_EQ(FailureReason(MinimalPackage(R"(<sheetData><row r="1048577"><c><v>1</v></c></row></sheetData>)")),
              PackageError::Reason::Corrupt);
    EXPECT_EQ(FailureReason(MinimalPackage(R"(<sheetData><row r="1"><c r="XFE1"><v>1</v></c></row></sheetData>)")),
              PackageError::Reason::Corrupt);
    EXPECT_EQ(FailureReason(MinimalPackage(R"(<sheetData><row r="1"><c r="XFD1"/><c/></row></sheetData>)")),
              PackageError::Reason::Corrupt);
    const auto document = Read(MinimalPackage(
        R"(<cols><col min="0" max="3" width="5"/><col min="5" max="99999" width="1e308" customWidth="1"/></cols>)"
        R"(<sheetData><row r="1"><c r="A1" s="4000000000"><v>1e999</v></c><c r="B1" t="b"><v>yes</v></c></row></sheetData>)"
        R"(<mergeCells><mergeCell ref="A1:ZZZZ9"/></mergeCells>)"));
    const ooxml::SheetDocument& sheet = document.sheets.at(0);
    EXPECT_EQ(CellAt(sheet, 1, 1).format, 0u);
    EXPECT_EQ(CellAt(sheet, 1, 1).type, CellType::Blank);
    EXPECT_EQ(CellAt(sheet, 1, 2).type, CellType::Blank);
    ASSERT_EQ(sheet.columns.size(), 1u);
    EXPECT_EQ(sheet.columns[0].last, 16384u);
    EXPECT_EQ(sheet.columns[0].width, 255.0);
    EXPECT_TRUE(sheet.merges.empty());
}

TEST(PackageReaderTest, RowsAndCellsOutOfOrderAreSorted) {
    const auto document = Read(MinimalPackage(
        R"(<sheetData><row r="3"><c r="C3"><v>3</v></c><c r="A3"><v>1</v></c></row><row r="1"><c r="A1"><v>9</v></c></row></sheetData>)"));
    const ooxml::SheetDocument& sheet = document.sheets.at(0);
    ASSERT_EQ(sheet.rows.size(), 2u);
    EXPECT_EQ(sheet.rows[0].index, 1u);
    EXPECT_EQ(sheet.rows[1].cells.at(0).column, 1u);
    EXPECT_EQ(sheet.rows[1].cells.at(1).column, 3u);
}

}  // namespace
