// Grouped rows and columns keep their outline levels and collapsed marks through opening, moving
// and saving.

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

TEST_F(SaveOpenTest, GroupedRowsKeepTheirOutlineLevelsAndFollowTheirCells) {
    auto workbook = OpenCorpus("realworld-excel/poi__GroupTest.xlsx");
    workbook->SaveAs(PathOf("copy.xlsx"));
    std::string sheetXml = ooxml_test::ReadPackageParts(PathOf("copy.xlsx")).at("xl/worksheets/sheet1.xml");
    EXPECT_NE(RowElement(sheetXml, 1).find(R"(outlineLevel="3")"), std::string::npos) << RowElement(sheetXml, 1);
    EXPECT_NE(RowElement(sheetXml, 4).find(R"(outlineLevel="1")"), std::string::npos);
    EXPECT_NE(RowElement(sheetXml, 8).find(R"(hidden="1" outlineLevel="3")"), std::string::npos);
    EXPECT_NE(sheetXml.find(R"(outlineLevelRow="3")"), std::string::npos);

    workbook->Worksheets(1)->Range("A1")->EntireRow()->Insert();
    workbook->SaveAs(PathOf("moved.xlsx"));
    sheetXml = ooxml_test::ReadPackageParts(PathOf("moved.xlsx")).at("xl/worksheets/sheet1.xml");
    EXPECT_EQ(RowElement(sheetXml, 1).find("outlineLevel"), std::string::npos);
    EXPECT_NE(RowElement(sheetXml, 2).find(R"(outlineLevel="3")"), std::string::npos);
    EXPECT_NE(RowElement(sheetXml, 5).find(R"(outlineLevel="1")"), std::string::npos);
    EXPECT_EQ(RunTool("check-xlsx", PathOf("moved.xlsx")), 0);
}

TEST_F(SaveOpenTest, GroupedColumnsKeepTheirOutlineLevels) {
    auto workbook = OpenCorpus("realworld-excel/poi__61495-test.xlsm");
    workbook->SaveAs(PathOf("copy.xlsm"));
    const ooxml_test::PackageParts input = ooxml_test::ReadPackageParts(CorpusPath("realworld-excel/poi__61495-test.xlsm"));
    const ooxml_test::PackageParts output = ooxml_test::ReadPackageParts(PathOf("copy.xlsm"));
    const auto grouped = [](const std::string& xml) {
        int count = 0;
        for (std::size_t at = xml.find("<col "); at != std::string::npos; at = xml.find("<col ", at + 1)) {
            const std::string col = xml.substr(at, xml.find('>', at) - at);
            count += col.find("outlineLevel=") != std::string::npos ? 1 : 0;
        }
        return count;
    };
    int inputGrouped = 0;
    int outputGrouped = 0;
    for (const auto& [name, bytes] : input) {
        if (name.starts_with("xl/worksheets/sheet")) {
            inputGrouped += grouped(bytes);
        }
    }
    for (const auto& [name, bytes] : output) {
        if (name.starts_with("xl/worksheets/sheet")) {
            outputGrouped += grouped(bytes);
        }
    }
    EXPECT_GT(inputGrouped, 0);
    EXPECT_EQ(outputGrouped, inputGrouped);
}

}  // namespace
