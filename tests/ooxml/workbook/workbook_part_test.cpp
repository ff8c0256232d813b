#include "ooxml/workbook/workbook_part.hpp"
#include "ooxml/writer_test_support.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace {

using namespace ooxml;
using writer_test::ParseXml;
using writer_test::WriteToString;

// A one-sheet workbook whose A1 holds a formula, with a cached number when given one.
WorkbookDocument FormulaInA1(std::optional<double> cachedResult) {
    WorkbookDocument document;
    document.sheets.push_back(SheetDocument{});
    document.sheets[0].name = std::string("S");  // from a literal, GCC 12 warns wrongly at -O3 (-Wrestrict)
    document.sheets[0].formulas = {"1+2"};
    Cell cell;
    cell.formula = 0;
    if (cachedResult) {
        cell.type = CellType::Number;
        cell.number = *cachedResult;
    }
    document.sheets[0].rows = {Row{1, {}, {}, false, {cell}}};
    return document;
}

// The workbook part written for a one-sheet document.
std::string WorkbookXml(const WorkbookDocument& document) {
    return WriteToString(
        [&](XmlWriter& writer) { WriteWorkbookPart(writer, document, OrderSheets(document), {"rId1"}, {}); });
}

// calcPr's fullCalcOnLoad as the workbook part writes it, "" when left out.
std::string FullCalculationOnLoad(const WorkbookDocument& document) {
    const auto xml = ParseXml(WorkbookXml(document));
    const pugi::xml_node calculation = xml->child("workbook").child("calcPr");
    EXPECT_TRUE(calculation);
    return calculation.attribute("fullCalcOnLoad").value();
}

TEST(WorkbookPart, FormulaWithoutResultAsksExcelToCalculateOnOpening) {
    EXPECT_EQ(FullCalculationOnLoad(FormulaInA1(std::nullopt)), "1");
}

TEST(WorkbookPart, FormulaWithAKeptResultIsStillRecalculatedOnOpening) {
    EXPECT_EQ(FullCalculationOnLoad(FormulaInA1(3.0)), "1");
}

TEST(WorkbookPart, WorkbookWithoutFormulasIsNotRecalculatedOnOpening) {
    WorkbookDocument document = FormulaInA1(3.0);
    document.sheets[0].formulas.clear();
    document.sheets[0].rows[0].cells[0].formula = NoFormula;
    EXPECT_EQ(FullCalculationOnLoad(document), "");
}

// The names of the workbook element's children, in the order written.
std::vector<std::string> WorkbookChildren(const WorkbookDocument& document) {
    const auto xml = ParseXml(WorkbookXml(document));
    std::vector<std::string> names;
    for (const pugi::xml_node child : xml->child("workbook").children()) {
        names.emplace_back(child.name());
    }
    return names;
}

TEST(WorkbookPart, The1904DateSystemIsWrittenBeforeTheProtection) {
    WorkbookDocument document = FormulaInA1(3.0);
    document.date1904 = true;
    document.lockStructure = true;
    EXPECT_EQ(WorkbookChildren(document),
              (std::vector<std::string>{"workbookPr", "workbookProtection", "bookViews", "sheets", "calcPr"}));
    const auto xml = ParseXml(WorkbookXml(document));
    EXPECT_STREQ(xml->child("workbook").child("workbookPr").attribute("date1904").value(), "1");
}

TEST(WorkbookPart, The1900DateSystemNeedsNoWorkbookProperties) {
    EXPECT_EQ(WorkbookChildren(FormulaInA1(3.0)), (std::vector<std::string>{"bookViews", "sheets", "calcPr"}));
}

}  // namespace
