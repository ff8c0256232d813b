#include "ooxml/reference/formula_reference_scanner.hpp"
#include "ooxml/reference/formula_reference_shifter.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using ooxml::FormulaReference;

// Each reference the scanner finds, as "<sheets>|<kind>|<block>", and the formula unchanged.
std::vector<std::string> Found(const std::string& formula) {
    std::vector<std::string> found;
    const std::string same = ooxml::RewriteFormulaReferences(formula, [&](const FormulaReference& reference) {
        static const char* const kinds[] = {"cell", "area", "rows", "columns"};
        const ooxml::CellBlock block = reference.Block();
        found.push_back(std::string(reference.sheets) + "|" + kinds[static_cast<int>(reference.kind)] + "|" +
                        std::to_string(block.firstRow) + "," + std::to_string(block.firstColumn) + ":" +
                        std::to_string(block.lastRow) + "," + std::to_string(block.lastColumn));
        return std::optional<std::string>();
    });
    EXPECT_EQ(same, formula);
    return found;
}

TEST(FormulaReferenceScanner, FindsCellsAreasWholeRowsAndWholeColumns) {
    EXPECT_EQ(Found("SUM(B2:$C$4)+A1*2"), (std::vector<std::string>{"|area|2,2:4,3", "|cell|1,1:1,1"}));
    EXPECT_EQ(Found("COUNTA(3:$5)+SUM(B:XFD)"),
              (std::vector<std::string>{"|rows|3,1:5,16384", "|columns|1,2:1048576,16384"}));
}

TEST(FormulaReferenceScanner, ReadsEveryKindOfSheetPrefix) {
    EXPECT_EQ(Found("Data!A1+'Q1 ''24'!B2:C3+Jan:Mar!D4+[1]Rates!E5+'[2]Old Rates'!F6"),
              (std::vector<std::string>{"Data|cell|1,1:1,1", "'Q1 ''24'|area|2,2:3,3", "Jan:Mar|cell|4,4:4,4",
                                        "[1]Rates|cell|5,5:5,5", "'[2]Old Rates'|cell|6,6:6,6"}));
}

TEST(FormulaReferenceScanner, LeavesWhatIsNoReference) {
    EXPECT_TRUE(Found(R"("A1"&LOG10(2)&TRUE&Total&Sales[Qty]&Sales[[#This Row],[B2]]&[@C3]&1.5E+3)").empty());
    // An error value, and what a deleted sheet left of a reference.
    EXPECT_TRUE(Found("IFERROR(#REF!B2,#DIV/0!)+#N/A").empty());
    // A name after a sheet prefix, and a range ending in a name, keep their cells alone.
    EXPECT_EQ(Found("Data!Total+A1:Total"), (std::vector<std::string>{"|cell|1,1:1,1"}));
}

TEST(FormulaReferenceScanner, LocalSheetIsTheUnquotedNameOfOneSheetOfThisWorkbook) {
    std::vector<std::optional<std::string>> sheets;
    ooxml::RewriteFormulaReferences("A1+Data!A1+'It''s'!A1+Jan:Mar!A1+[1]Rates!A1+'[1]Old'!A1",
                                    [&](const FormulaReference& reference) {
                                        sheets.push_back(reference.LocalSheet());
                                        return std::optional<std::string>();
                                    });
    EXPECT_EQ(sheets, (std::vector<std::optional<std::string>>{std::nullopt, "Data", "It's", std::nullopt, std::nullopt,
                                                               std::nullopt}));
}

TEST(FormulaReferenceShifter, MovesRelativePartsAndKeepsAbsoluteOnes) {
    EXPECT_EQ(ooxml::ShiftFormulaReferences("B2*$C$1+C$2+$D3", 1, 1), "C3*$C$1+D$2+$D4");
    EXPECT_EQ(ooxml::ShiftFormulaReferences("SUM(Data!A1:A4)+COUNT(2:3)+SUM(A:A)", 2, 0),
              "SUM(Data!A3:A6)+COUNT(4:5)+SUM(A:A)");
    EXPECT_EQ(ooxml::ShiftFormulaReferences("A1+Data!A2", -1, 0), "#REF!+Data!A1");
    EXPECT_EQ(ooxml::ShiftFormulaReferences(R"("A1"&Sales[A1])", 5, 5), R"("A1"&Sales[A1])");
}

}  // namespace
