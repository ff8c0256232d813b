#include "ooxml/package_error.hpp"
#include "ooxml/worksheet/worksheet_part.hpp"
#include "ooxml/writer_test_support.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace ooxml;
using writer_test::ParseXml;
using writer_test::WriteToString;

std::string Write(const WorkbookDocument& document, std::size_t sheet = 0) {
    const SharedStringTable table = BuildSharedStringTable(document);
    return WriteToString([&](XmlWriter& xml) { WriteWorksheetPart(xml, document, document.sheets[sheet], table); });
}

WorkbookDocument OneSheet(std::vector<Row> rows) {
    WorkbookDocument document;
    document.sheets.push_back(SheetDocument{});
    document.sheets[0].name = "S";
    document.sheets[0].rows = std::move(rows);
    return document;
}

Cell Number(uint32_t column, double value) {
    Cell cell;
    cell.column = column;
    cell.type = CellType::Number;
    cell.number = value;
    return cell;
}

PackageError::Reason FailureOf(const WorkbookDocument& document) {
    try {
        Write(document);
    } catch (const PackageError& error) {
        return error.reason();
    }
    ADD_FAILURE() << "the sheet was written";
    return PackageError::Reason::Corrupt;
}

TEST(WorksheetPart, NumbersTheFileCannotHoldBecomeNumErrors) {
    auto xml =
        ParseXml(Write(OneSheet({Row{2, {}, {}, false, {Number(2, std::numeric_limits<double>::quiet_NaN())}}})));
    const pugi::xml_node cell = xml->child("worksheet").child("sheetData").child("row").child("c");
    EXPECT_STREQ(cell.attribute("r").value(), "B2");
    EXPECT_STREQ(cell.attribute("t").value(), "e");
    EXPECT_STREQ(cell.child_value("v"), "#NUM!");
    EXPECT_STREQ(xml->child("worksheet").child("dimension").attribute("ref").value(), "B2");
}

TEST(WorksheetPart, StringCellsReferToTheirSharedTablePosition) {
    WorkbookDocument document = OneSheet({});
    document.strings = {SharedString{"unused", {}}, SharedString{"used", {}}};
    Cell cell;
    cell.column = 1;
    cell.type = CellType::String;
    cell.string = 1;
    document.sheets[0].rows.push_back(Row{1, {}, {}, false, {cell}});
    auto xml = ParseXml(Write(document));
    EXPECT_STREQ(xml->child("worksheet").child("sheetData").child("row").child("c").child_value("v"), "0");
}

TEST(WorksheetPart, ColumnsWithoutWidthGetTheStandardWidth) {
    WorkbookDocument document = OneSheet({});
    document.formats.push_back(CellFormat{});
    document.sheets[0].columns = {ColumnRange{3, 16384, std::nullopt, 1u, false}};
    auto xml = ParseXml(Write(document));
    const pugi::xml_node col = xml->child("worksheet").child("cols").child("col");
    EXPECT_DOUBLE_EQ(col.attribute("width").as_double(), 9.140625);
    EXPECT_FALSE(col.attribute("customWidth"));
    EXPECT_EQ(col.attribute("style").as_int(), 1);
    EXPECT_EQ(col.attribute("max").as_int(), 16384);
}

TEST(WorksheetPart, WidthsAreWrittenAsGivenAndMarkedCustomOnlyWhenTheyAre) {
    WorkbookDocument document = OneSheet({});
    document.formats.push_back(CellFormat{});
    document.sheets[0].defaultColumnWidth = 11.5;
    document.sheets[0].columns = {ColumnRange{1, 1, 26.109375, std::nullopt, false, true},
                                  ColumnRange{2, 16384, 10.83203125, 1u, false, false}};
    auto xml = ParseXml(Write(document));
    EXPECT_DOUBLE_EQ(xml->child("worksheet").child("sheetFormatPr").attribute("defaultColWidth").as_double(), 11.5);
    const pugi::xml_node custom = xml->child("worksheet").child("cols").child("col");
    EXPECT_DOUBLE_EQ(custom.attribute("width").as_double(), 26.109375);
    EXPECT_STREQ(custom.attribute("customWidth").value(), "1");
    const pugi::xml_node fitted = custom.next_sibling("col");
    EXPECT_DOUBLE_EQ(fitted.attribute("width").as_double(), 10.83203125);
    EXPECT_FALSE(fitted.attribute("customWidth"));
}

TEST(WorksheetPart, ElementsFollowTheSchemaOrder) {
    WorkbookDocument document = OneSheet({Row{1, {}, {}, false, {Number(1, 1)}}});
    document.sheets[0].columns = {ColumnRange{1, 1, 5.0, std::nullopt, false}};
    document.sheets[0].merges = {CellBlock{1, 1, 2, 2}};
    document.sheets[0].printGridLines = true;
    auto xml = ParseXml(Write(document));
    std::vector<std::string> names;
    for (const pugi::xml_node child : xml->child("worksheet").children()) {
        names.push_back(child.name());
    }
    EXPECT_EQ(names, (std::vector<std::string>{"dimension", "sheetViews", "sheetFormatPr", "cols", "sheetData",
                                               "mergeCells", "printOptions", "pageMargins"}));
}

TEST(WorksheetPart, SkipsRowsWithNothingToSay) {
    auto xml = ParseXml(Write(OneSheet({Row{1, {}, {}, false, {}}, Row{2, 20.0, {}, false, {}}})));
    const pugi::xml_node row = xml->child("worksheet").child("sheetData").child("row");
    EXPECT_EQ(row.attribute("r").as_int(), 2);
    EXPECT_FALSE(row.next_sibling("row"));
    EXPECT_STREQ(xml->child("worksheet").child("dimension").attribute("ref").value(), "A1");
}

TEST(WorksheetPart, ArrayFormulasAreWrittenWithTheirBlock) {
    WorkbookDocument document = OneSheet({});
    Cell block = Number(1, 2);
    block.formula = 0;
    Cell single = Number(3, 20);
    single.formula = 1;
    Cell plain = Number(4, 2);
    plain.formula = 2;
    document.sheets[0].formulas = {"{1,2;3,4}*2", "SUM(A1:B2)", "A1"};
    document.sheets[0].arrayFormulas = {{0, CellBlock{1, 1, 2, 2}}, {1, CellBlock{1, 3, 1, 3}}};
    document.sheets[0].rows = {Row{1, {}, {}, false, {block, Number(2, 4), single, plain}}};
    auto xml = ParseXml(Write(document));
    const pugi::xml_node row = xml->child("worksheet").child("sheetData").child("row");
    const pugi::xml_node first = row.find_child_by_attribute("c", "r", "A1").child("f");
    EXPECT_STREQ(first.attribute("t").value(), "array");
    EXPECT_STREQ(first.attribute("ref").value(), "A1:B2");
    EXPECT_STREQ(first.child_value(), "{1,2;3,4}*2");
    EXPECT_FALSE(row.find_child_by_attribute("c", "r", "B1").child("f"));
    const pugi::xml_node second = row.find_child_by_attribute("c", "r", "C1").child("f");
    EXPECT_STREQ(second.attribute("t").value(), "array");
    EXPECT_STREQ(second.attribute("ref").value(), "C1");
    const pugi::xml_node third = row.find_child_by_attribute("c", "r", "D1").child("f");
    EXPECT_FALSE(third.attribute("t"));
    EXPECT_FALSE(third.attribute("ref"));
}

TEST(WorksheetPart, RefusesRowsOrCellsOutOfOrder) {
    EXPECT_EQ(FailureOf(OneSheet({Row{2, {}, {}, false, {}}, Row{2, {}, {}, false, {}}})),
              PackageError::Reason::WriteFailed);
    EXPECT_EQ(FailureOf(OneSheet({Row{1, {}, {}, false, {Number(3, 1), Number(2, 1)}}})),
              PackageError::Reason::WriteFailed);
    EXPECT_EQ(FailureOf(OneSheet({Row{1, {}, {}, false, {Number(16385, 1)}}})), PackageError::Reason::WriteFailed);
}

TEST(WorksheetPart, RefusesReferencesToMissingStringsAndFormulas) {
    Cell string;
    string.type = CellType::String;
    string.string = 3;
    EXPECT_EQ(FailureOf(OneSheet({Row{1, {}, {}, false, {string}}})), PackageError::Reason::WriteFailed);
    Cell formula = Number(1, 2);
    formula.formula = 0;
    EXPECT_EQ(FailureOf(OneSheet({Row{1, {}, {}, false, {formula}}})), PackageError::Reason::WriteFailed);
}

}  // namespace
