// The formulas an opened workbook carries (in conditional formats, data validation, hyperlinks to
// its own cells, charts and pivot caches) keep naming the same cells when cells move, and the same
// sheets when they are renamed or deleted.

#include "embedded/document/save_open_fixture.hpp"
#include "ooxml/reader_test_package.hpp"

#include <string>

using namespace excel;

namespace {

using ooxml_test::Relationship;

// Two sheets: "Report", whose rules and links refer to its own cells and to "Lists", and "Lists".
ooxml_test::PackageParts TwoSheets() {
    ooxml_test::PackageParts parts = ooxml_test::MinimalPackage(
        R"(<sheetData><row r="2"><c r="A2"><v>7</v></c></row></sheetData>)"
        R"(<conditionalFormatting sqref="B2:B9"><cfRule type="expression" priority="1">)"
        R"(<formula>AND($A2&gt;Lists!$B$1,A2&lt;&gt;"Lists!B1")</formula></cfRule></conditionalFormatting>)"
        R"(<dataValidations count="1"><dataValidation type="list" sqref="C2:C9"><formula1>Lists!$A$1:$A$3</formula1>)"
        R"(</dataValidation></dataValidations>)"
        R"(<hyperlinks><hyperlink ref="D2" location="'Lists'!A2" display="to the lists"/></hyperlinks>)");
    parts["xl/workbook.xml"] =
        R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)"
        R"(<workbook xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships">)"
        R"(<sheets><sheet name="Report" sheetId="1" r:id="rId1"/><sheet name="Lists" sheetId="2" r:id="rId2"/></sheets></workbook>)";
    parts["xl/_rels/workbook.xml.rels"] =
        ooxml_test::RelationshipsPart({Relationship("rId1", "worksheet", "worksheets/sheet1.xml"),
                                       Relationship("rId2", "worksheet", "worksheets/sheet2.xml")});
    parts["xl/worksheets/sheet2.xml"] =
        R"(<worksheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main"><sheetData>)"
        R"(<row r="1"><c r="A1" t="inlineStr"><is><t>one</t></is></c></row></sheetData></worksheet>)";
    std::string& types = parts["[Content_Types].xml"];
    types.insert(
        types.find("</Types>"),
        R"(<Override PartName="/xl/worksheets/sheet2.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.worksheet+xml"/>)");
    return parts;
}

class CarriedFormulasTest : public SaveOpenTest {
protected:
    std::shared_ptr<Workbook> OpenTwoSheets() {
        file_ = std::make_unique<ooxml_test::TemporaryPackage>(TwoSheets());
        book->Close(false);
        return app->Workbooks()->Open(file_->Path());
    }

private:
    std::unique_ptr<ooxml_test::TemporaryPackage> file_;
};

TEST_F(CarriedFormulasTest, RuleFormulasAndLinksFollowInsertedRows) {
    auto workbook = OpenTwoSheets();
    workbook->Worksheets("Report")->Range("A1")->EntireRow()->Insert();
    workbook->Worksheets("Lists")->Range("A1:A2")->EntireRow()->Insert();
    const std::string sheet = Saved(workbook, "moved.xlsx").at("xl/worksheets/sheet1.xml");
    EXPECT_NE(sheet.find(R"(<conditionalFormatting sqref="B3:B10">)"), std::string::npos) << sheet;
    // The rule's own cells moved a row, the list's three; the text inside the string stays.
    EXPECT_NE(sheet.find(R"(<formula>AND($A3&gt;Lists!$B$3,A3&lt;&gt;"Lists!B1")</formula>)"), std::string::npos);
    EXPECT_NE(sheet.find("<formula1>Lists!$A$3:$A$5</formula1>"), std::string::npos);
    EXPECT_NE(sheet.find(R"(location="'Lists'!A4")"), std::string::npos);
    EXPECT_EQ(RunTool("check-xlsx", PathOf("moved.xlsx")), 0);
}

TEST_F(CarriedFormulasTest, RuleFormulasFollowARenamedSheetAndLoseADeletedOne) {
    auto workbook = OpenTwoSheets();
    workbook->Worksheets("Lists")->SetName("Choices 2024");
    std::string sheet = Saved(workbook, "renamed.xlsx").at("xl/worksheets/sheet1.xml");
    EXPECT_NE(sheet.find("<formula1>'Choices 2024'!$A$1:$A$3</formula1>"), std::string::npos) << sheet;
    EXPECT_NE(sheet.find(R"(location="'Choices 2024'!A2")"), std::string::npos);

    app->SetDisplayAlerts(false);
    workbook->Worksheets("Choices 2024")->Delete();
    sheet = Saved(workbook, "deleted.xlsx").at("xl/worksheets/sheet1.xml");
    EXPECT_NE(sheet.find("<formula1>#REF!$A$1:$A$3</formula1>"), std::string::npos) << sheet;
    EXPECT_NE(sheet.find("AND($A2&gt;#REF!$B$1"), std::string::npos);
}

TEST_F(CarriedFormulasTest, APivotCacheKeepsItsSourceCells) {
    auto workbook = OpenCorpus("realworld-excel/cxml__TTL__LO__xlsx__pivottable_tabular_mode.xlsx");
    workbook->Worksheets("users")->Range("A1:B1")->EntireRow()->Insert();
    workbook->Worksheets("users")->SetName("Staff list");
    const std::string cache = Saved(workbook, "pivot.xlsx").at("xl/pivotCache/pivotCacheDefinition1.xml");
    EXPECT_NE(cache.find(R"(<worksheetSource ref="A2:E33" sheet="Staff list"/>)"), std::string::npos) << cache;
    EXPECT_EQ(RunTool("check-xlsx", PathOf("pivot.xlsx")), 0);
}

TEST_F(CarriedFormulasTest, APlainResaveRewritesNothing) {
    auto workbook = OpenCorpus("realworld-excel/cxml__TTL__LO__xlsx__pivottable_tabular_mode.xlsx");
    const auto input =
        ooxml_test::ReadPackageParts(CorpusPath("realworld-excel/cxml__TTL__LO__xlsx__pivottable_tabular_mode.xlsx"));
    const auto output = Saved(workbook, "copy.xlsx");
    EXPECT_TRUE(output.at("xl/pivotCache/pivotCacheDefinition1.xml") ==
                input.at("xl/pivotCache/pivotCacheDefinition1.xml"));
}

}  // namespace
