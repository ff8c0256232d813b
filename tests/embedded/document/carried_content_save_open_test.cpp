// A workbook Excel made, opened and saved again, keeps what the engine does not model, and
// deleting a sheet takes that sheet's parts with it.

#include "embedded/document/save_open_fixture.hpp"
#include "ooxml/reader_test_package.hpp"

#include <algorithm>
#include <string>

using namespace excel;

namespace {

// Parts the engine writes anew from its model; every other part is the file's own.
bool Rewritten(const std::string& name) {
    for (const char* prefix : {"xl/workbook.xml", "xl/worksheets/", "xl/styles.xml", "xl/sharedStrings.xml",
                               "xl/calcChain.xml", "xl/_rels/workbook.xml.rels", "docProps/core.xml",
                               "docProps/app.xml", "[Content_Types].xml", "_rels/.rels"}) {
        if (name.starts_with(prefix)) {
            return true;
        }
    }
    return false;
}

class CarriedContentSaveOpenTest : public SaveOpenTest {};

TEST_F(CarriedContentSaveOpenTest, EveryPartTheEngineDoesNotRewriteIsKeptByteForByte) {
    for (const char* name :
         {"realworld-excel/poi__WithChartSheet.xlsx", "realworld-excel/poi__DataTableCities.xlsx",
          "realworld-excel/cxml__TTL__LO__xlsx__activex_checkbox.xlsx", "realworld-excel/calamine__pivots.xlsx"}) {
        SCOPED_TRACE(name);
        const ooxml_test::PackageParts input = ooxml_test::ReadPackageParts(CorpusPath(name));
        auto workbook = OpenCorpus(name);
        const ooxml_test::PackageParts output = Saved(workbook, "copy.xlsx");
        workbook->Close(false);
        book = app->Workbooks()->Add();
        for (const auto& [part, bytes] : input) {
            // Drawings and the charts they frame are written anew from the model; a chart's style and
            // colour parts stay the file's.
            if (!Rewritten(part) && !part.starts_with("xl/drawings/drawing") &&
                !part.starts_with("xl/drawings/_rels/drawing") && !part.starts_with("xl/charts/chart") &&
                !part.starts_with("xl/charts/_rels/chart")) {
                SCOPED_TRACE(part);
                ASSERT_EQ(output.count(part), 1u);
                EXPECT_TRUE(output.at(part) == bytes);
            }
        }
        EXPECT_EQ(RunTool("validate-xlsx", PathOf("copy.xlsx")), 0);
        EXPECT_EQ(RunTool("check-xlsx", PathOf("copy.xlsx")), 0);
    }
}

TEST_F(CarriedContentSaveOpenTest, FormulasKeepTheirTableReferences) {
    auto workbook = OpenCorpus("realworld-excel/poi__DataTableCities.xlsx");
    EXPECT_EQ(workbook->Worksheets("Formula")->Range("A5")->Formula().ToString(), "=BigCity[[#Totals],[Latitude]]");
    const ooxml_test::PackageParts output = Saved(workbook, "copy.xlsx");
    EXPECT_NE(output.at("xl/worksheets/sheet1.xml").find("<f>BigCity[[#Totals],[Latitude]]</f>"), std::string::npos);
    EXPECT_NE(output.at("xl/worksheets/sheet2.xml").find("<f>SUBTOTAL(101,BigCity[Latitude])</f>"), std::string::npos);
    EXPECT_EQ(output.at("xl/worksheets/sheet1.xml").find("#REF!"), std::string::npos);
}

TEST_F(CarriedContentSaveOpenTest, ADeletedSheetTakesItsTablesWithIt) {
    auto workbook = OpenCorpus("realworld-excel/poi__DataTableCities.xlsx");
    app->SetDisplayAlerts(false);
    workbook->Worksheets("Table")->Delete();
    const ooxml_test::PackageParts output = Saved(workbook, "copy.xlsx");
    EXPECT_EQ(std::count_if(output.begin(), output.end(),
                            [](const auto& part) { return part.first.starts_with("xl/tables/"); }),
              0);
    // The formulas that used the tables lose them, as in Excel.
    EXPECT_EQ(output.at("xl/worksheets/sheet1.xml").find("BigCity["), std::string::npos);
    EXPECT_EQ(output.count("xl/pivotTables/pivotTable1.xml"), 1u);
    EXPECT_EQ(RunTool("validate-xlsx", PathOf("copy.xlsx")), 0);
    EXPECT_EQ(RunTool("check-xlsx", PathOf("copy.xlsx")), 0);
}

TEST_F(CarriedContentSaveOpenTest, AMacroWorkbookKeepsItsProjectOnlyWhereItsExtensionAllowsMacros) {
    const std::string name = "cells-drawings-xlsxwriter/xw__macro01.xlsm";
    const ooxml_test::PackageParts input = ooxml_test::ReadPackageParts(CorpusPath(name));
    auto workbook = OpenCorpus(name);
    const ooxml_test::PackageParts asMacroWorkbook = Saved(workbook, "copy.xlsm");
    ASSERT_EQ(asMacroWorkbook.count("xl/vbaProject.bin"), 1u);
    EXPECT_TRUE(asMacroWorkbook.at("xl/vbaProject.bin") == input.at("xl/vbaProject.bin"));
    EXPECT_NE(asMacroWorkbook.at("[Content_Types].xml").find("application/vnd.ms-excel.sheet.macroEnabled.main+xml"),
              std::string::npos);
    const ooxml_test::PackageParts asWorkbook = Saved(workbook, "copy.xlsx");
    EXPECT_EQ(asWorkbook.count("xl/vbaProject.bin"), 0u);
    EXPECT_EQ(asWorkbook.at("[Content_Types].xml").find("macroEnabled"), std::string::npos);
    EXPECT_EQ(asWorkbook.at("xl/_rels/workbook.xml.rels").find("vbaProject"), std::string::npos);
    for (const char* target : {"copy.xlsm", "copy.xlsx"}) {
        EXPECT_EQ(RunTool("validate-xlsx", PathOf(target)), 0) << target;
        EXPECT_EQ(RunTool("check-xlsx", PathOf(target)), 0) << target;
    }
}

TEST_F(CarriedContentSaveOpenTest, ATemplateStaysATemplate) {
    auto workbook = OpenCorpus("realworld-excel/oxsdk__O12tpl__BalanceSheet_TP10073876.xltx");
    const ooxml_test::PackageParts output = Saved(workbook, "copy.xltx");
    EXPECT_NE(output.at("[Content_Types].xml").find("spreadsheetml.template.main+xml"), std::string::npos);
}

}  // namespace

namespace {

TEST_F(CarriedContentSaveOpenTest, TablesFollowTheirCellsAndGoWithThem) {
    auto workbook = OpenCorpus("realworld-excel/poi__DataTableCities.xlsx");
    auto table = workbook->Worksheets("Table");
    table->Range("A1")->EntireRow()->Insert();
    ooxml_test::PackageParts output = Saved(workbook, "inserted.xlsx");
    EXPECT_NE(output.at("xl/tables/table1.xml").find(R"(ref="C3:F16")"), std::string::npos);
    EXPECT_NE(output.at("xl/tables/table1.xml").find(R"(<autoFilter ref="C3:F15"/>)"), std::string::npos);
    EXPECT_NE(output.at("xl/tables/table2.xml").find(R"(ref="I3:L16")"), std::string::npos);
    EXPECT_EQ(RunTool("validate-xlsx", PathOf("inserted.xlsx")), 0);
    EXPECT_EQ(RunTool("check-xlsx", PathOf("inserted.xlsx")), 0);

    table->Range("A3:A16")->EntireRow()->Delete();
    output = Saved(workbook, "deleted.xlsx");
    EXPECT_EQ(output.count("xl/tables/table1.xml") + output.count("xl/tables/table2.xml"), 0u);
    EXPECT_EQ(output.at("xl/worksheets/sheet2.xml").find("tablePart"), std::string::npos);
    EXPECT_EQ(RunTool("validate-xlsx", PathOf("deleted.xlsx")), 0);
    EXPECT_EQ(RunTool("check-xlsx", PathOf("deleted.xlsx")), 0);
}

TEST_F(CarriedContentSaveOpenTest, ConditionalFormatsFollowTheirCells) {
    auto workbook = OpenCorpus("realworld-excel/poi__NewStyleConditionalFormattings.xlsx");
    auto first = workbook->Worksheets(1);
    first->Range("A1")->EntireRow()->Insert();
    first->Range("D1")->EntireColumn()->Delete();
    const ooxml_test::PackageParts output = Saved(workbook, "moved.xlsx");
    const std::string& sheetXml = output.at("xl/worksheets/sheet1.xml");
    EXPECT_NE(sheetXml.find(R"(<conditionalFormatting sqref="C3:C18">)"), std::string::npos);
    // Column D's format went with the column; E's moved into its place.
    EXPECT_NE(sheetXml.find(R"(<conditionalFormatting sqref="D3:D18">)"), std::string::npos);
    EXPECT_EQ(sheetXml.find(R"(<conditionalFormatting sqref="C2:C17">)"), std::string::npos);
    EXPECT_NE(sheetXml.find("<xm:sqref>D3:D18</xm:sqref>"), std::string::npos);
    EXPECT_EQ(RunTool("validate-xlsx", PathOf("moved.xlsx")), 0);
    EXPECT_EQ(RunTool("check-xlsx", PathOf("moved.xlsx")), 0);
}

}  // namespace

namespace {

TEST_F(CarriedContentSaveOpenTest, AddedShapesTakeIdsThePicturesOfTheFileLeaveFree) {
    auto workbook = OpenCorpus("realworld-excel/cxml__TTL__LoadImageWithoutTransform2D.xlsx");
    auto shapes = workbook->Worksheets(1)->Shapes();
    shapes->AddTextbox(1, 10, 10, 100, 40);
    shapes->AddTextbox(1, 10, 60, 100, 40);
    const ooxml_test::PackageParts output = Saved(workbook, "copy.xlsx");
    const std::string& drawing = output.at("xl/drawings/drawing1.xml");
    std::vector<std::string> ids;
    for (std::size_t at = drawing.find("cNvPr id=\""); at != std::string::npos;
         at = drawing.find("cNvPr id=\"", at + 1)) {
        ids.push_back(drawing.substr(at + 10, drawing.find('"', at + 10) - at - 10));
    }
    EXPECT_EQ(ids, (std::vector<std::string>{"3", "4", "5"}));
    EXPECT_EQ(output.count("xl/media/image1.png"), 1u);
    EXPECT_EQ(RunTool("check-xlsx", PathOf("copy.xlsx")), 0);
}

}  // namespace

namespace {

// A one-sheet workbook file whose structure is locked with a password only its hash stands for.
ooxml_test::PackageParts PasswordProtectedWorkbook() {
    ooxml_test::PackageParts parts = ooxml_test::MinimalPackage("<sheetData/>");
    std::string& workbook = parts["xl/workbook.xml"];
    workbook.insert(workbook.find("<sheets>"),
                    R"(<workbookProtection workbookAlgorithmName="SHA-512" workbookHashValue="aGFzaA==" )"
                    R"(workbookSaltValue="c2FsdA==" workbookSpinCount="100000" lockStructure="1"/>)");
    return parts;
}

TEST_F(CarriedContentSaveOpenTest, AFilePasswordStaysUntilTheProtectionChanges) {
    const ooxml_test::TemporaryPackage file(PasswordProtectedWorkbook());
    book->Close(false);
    auto workbook = app->Workbooks()->Open(file.Path());
    EXPECT_TRUE(workbook->ProtectStructure());
    // The password cannot be checked against its hash: no password unprotects the workbook.
    EXPECT_EQ(ErrorCodeOf([&] { workbook->Unprotect(std::string()); }), kRefused);
    EXPECT_EQ(ErrorCodeOf([&] { workbook->Unprotect(std::string("guess")); }), kRefused);
    EXPECT_TRUE(workbook->ProtectStructure());
    std::string saved = Saved(workbook, "kept.xlsx").at("xl/workbook.xml");
    EXPECT_NE(saved.find(R"(workbookHashValue="aGFzaA==")"), std::string::npos);
    EXPECT_NE(saved.find(R"(lockStructure="1")"), std::string::npos);

    workbook->Protect(std::string("new"), true, false);
    saved = Saved(workbook, "changed.xlsx").at("xl/workbook.xml");
    EXPECT_EQ(saved.find("workbookHashValue"), std::string::npos);
    EXPECT_NE(saved.find(R"(lockStructure="1")"), std::string::npos);
    workbook->Unprotect(std::string("new"));
    EXPECT_FALSE(workbook->ProtectStructure());
}

// A password the engine protects a workbook with is saved as Excel's legacy hash of it, which
// unprotects the workbook when it is opened again.
TEST_F(CarriedContentSaveOpenTest, AnEnginePasswordIsSavedAsItsHashAndUnprotectsTheReopenedWorkbook) {
    book->Protect(std::string("test"), true, false);
    EXPECT_NE(Saved(book, "protected.xlsx").at("xl/workbook.xml").find(R"(workbookPassword="CBEB")"),
              std::string::npos);
    EXPECT_EQ(RunTool("validate-xlsx", PathOf("protected.xlsx")), 0);
    EXPECT_EQ(RunTool("check-xlsx", PathOf("protected.xlsx")), 0);
    book->Close(false);
    auto reopened = app->Workbooks()->Open(PathOf("protected.xlsx"));
    EXPECT_TRUE(reopened->ProtectStructure());
    EXPECT_EQ(ErrorCodeOf([&] { reopened->Unprotect(std::string("guess")); }), kRefused);
    EXPECT_TRUE(reopened->ProtectStructure());
    reopened->Unprotect(std::string("test"));
    EXPECT_FALSE(reopened->ProtectStructure());
    EXPECT_EQ(Saved(reopened, "open.xlsx").at("xl/workbook.xml").find("workbookProtection"), std::string::npos);
}

}  // namespace

namespace {

TEST_F(CarriedContentSaveOpenTest, NamesKeepWhatTheFileSaidOfThem) {
    ooxml_test::PackageParts parts = ooxml_test::MinimalPackage("<sheetData/>");
    std::string& workbookXml = parts["xl/workbook.xml"];
    workbookXml.insert(workbookXml.find("</workbook>"),
                       R"(<definedNames><definedName name="Run" function="1" vbProcedure="1" comment="the macro">)"
                       R"(Sheet1!$A$1</definedName></definedNames>)");
    const ooxml_test::TemporaryPackage file(parts);
    book->Close(false);
    auto workbook = app->Workbooks()->Open(file.Path());
    const std::string saved = Saved(workbook, "names.xlsx").at("xl/workbook.xml");
    EXPECT_NE(saved.find(R"(function="1" vbProcedure="1" comment="the macro")"), std::string::npos) << saved;
}

}  // namespace

namespace {

// The charts a workbook carries keep showing the same cells when cells move, and follow their
// sheet when it is renamed.
TEST_F(CarriedContentSaveOpenTest, CarriedChartsFollowTheirCellsAndSheets) {
    const std::string name = "realworld-excel/poi__WithThreeCharts.xlsx";
    auto workbook = OpenCorpus(name);
    workbook->Worksheets("Sheet1")->Range("A1")->EntireRow()->Insert();
    workbook->Worksheets("Sheet1")->SetName("Q1 2024");
    const ooxml_test::PackageParts output = Saved(workbook, "moved.xlsx");
    ASSERT_EQ(output.count("xl/charts/chart1.xml"), 1u);
    const std::string& chart = output.at("xl/charts/chart1.xml");
    EXPECT_EQ(chart.find("<c:f>Sheet1!"), std::string::npos);
    EXPECT_NE(chart.find("<c:f>'Q1 2024'!$A$2:$A$7</c:f>"), std::string::npos) << chart.substr(0, 2000);
    EXPECT_EQ(RunTool("validate-xlsx", PathOf("moved.xlsx")), 0);
    EXPECT_EQ(RunTool("check-xlsx", PathOf("moved.xlsx")), 0);
}

}  // namespace

namespace {

// The first tab the tab bar shows stays the same sheet while it is there.
TEST_F(CarriedContentSaveOpenTest, TheTabBarStartsAtTheSameSheet) {
    auto workbook = OpenCorpus("realworld-excel/poi__50299.xlsx");  // firstSheet="9": "Sheet10"
    EXPECT_NE(Saved(workbook, "copy.xlsx").at("xl/workbook.xml").find(R"(firstSheet="9")"), std::string::npos);
    app->SetDisplayAlerts(false);
    workbook->Worksheets("Sheet1")->Delete();
    EXPECT_NE(Saved(workbook, "fewer.xlsx").at("xl/workbook.xml").find(R"(firstSheet="8")"), std::string::npos);
    workbook->Worksheets("Sheet10")->Delete();
    EXPECT_EQ(Saved(workbook, "gone.xlsx").at("xl/workbook.xml").find("firstSheet"), std::string::npos);
    EXPECT_EQ(RunTool("check-xlsx", PathOf("gone.xlsx")), 0);
}

}  // namespace
