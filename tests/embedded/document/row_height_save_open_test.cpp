// Rows keep the heights an opened file gave them, set or fitted by Excel to their content.

#include "embedded/document/save_open_fixture.hpp"
#include "ooxml/reader_test_package.hpp"

#include <string>

using namespace excel;

namespace {

// The row element of the saved sheet whose number is row, up to its first cell.
std::string RowElement(const std::string& sheetXml, int row) {
    const std::size_t at = sheetXml.find("<row r=\"" + std::to_string(row) + "\"");
    return at == std::string::npos ? std::string() : sheetXml.substr(at, sheetXml.find('>', at) - at + 1);
}

// Rows 6 and 7 hold a heading and a title: Excel fitted them to 20.25 and 23.25 points.
constexpr const char* Spreadsheet = "realworld-excel/oxsdk__TestFiles__basicspreadsheet.xlsx";

TEST_F(SaveOpenTest, FittedRowHeightsStayWhatTheFileGaveThem) {
    auto workbook = OpenCorpus(Spreadsheet);
    auto sheet = workbook->Worksheets(1);
    EXPECT_EQ(sheet->Range("A6")->RowHeight(), Variant(20.25));
    EXPECT_EQ(sheet->Range("A7")->RowHeight(), Variant(23.25));
    const std::string sheetXml = Saved(workbook, "copy.xlsx").at("xl/worksheets/sheet1.xml");
    EXPECT_NE(RowElement(sheetXml, 6).find(R"(ht="20.25")"), std::string::npos) << RowElement(sheetXml, 6);
    EXPECT_EQ(RowElement(sheetXml, 6).find("customHeight"), std::string::npos);
}

TEST_F(SaveOpenTest, AHeightSetAfterOpeningIsSavedAsSet) {
    auto workbook = OpenCorpus(Spreadsheet);
    auto sheet = workbook->Worksheets(1);
    sheet->Range("A7")->SetRowHeight(30);
    sheet->Range("A6")->EntireRow()->Insert();
    EXPECT_EQ(sheet->Range("A7")->RowHeight(), Variant(20.25));  // the heading moved down a row
    const std::string sheetXml = Saved(workbook, "set.xlsx").at("xl/worksheets/sheet1.xml");
    EXPECT_NE(RowElement(sheetXml, 8).find(R"(ht="30" customHeight="1")"), std::string::npos)
        << RowElement(sheetXml, 8);
    EXPECT_NE(RowElement(sheetXml, 7).find(R"(ht="20.25")"), std::string::npos);
    EXPECT_EQ(RowElement(sheetXml, 7).find("customHeight"), std::string::npos);
    EXPECT_EQ(RunTool("check-xlsx", PathOf("set.xlsx")), 0);
}

}  // namespace
