// Packages that break the rules of the format in ways a careless program or an attacker would:
// each is refused with the reason named, or opened and saved into a file Excel opens without repair.

#include "embedded/document/save_open_fixture.hpp"
#include "ooxml/child_process.hpp"
#include "ooxml/reader_test_package.hpp"

#include <gmock/gmock.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cstddef>
#include <fstream>
#include <optional>

#include <string>
#include <utility>
#include <vector>

using namespace excel;
using ooxml_test::Relationship;
using ooxml_test::RelationshipsPart;
using ::testing::HasSubstr;

namespace {

#if !defined(__SANITIZE_ADDRESS__)  // the out-of-memory test cannot run under AddressSanitizer
// The address space the process holds, in bytes.
std::size_t CurrentAddressSpace() {
    std::ifstream status("/proc/self/statm");
    std::size_t pages = 0;
    status >> pages;
    return pages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}
#endif

constexpr const char* kEmptySheet = "<sheetData/>";

class HostilePackageSaveOpenTest : public SaveOpenTest {
protected:
    // The package opened in place of the test's workbook.
    std::shared_ptr<Workbook> Open(const ooxml_test::TemporaryPackage& package) {
        book->Close(false);
        return app->Workbooks()->Open(package.Path());
    }

    // What Workbooks.Open says of the package.
    std::string Refusal(const ooxml_test::PackageParts& parts) {
        const ooxml_test::TemporaryPackage package(parts);
        try {
            app->Workbooks()->Open(package.Path());
        } catch (const AutomationError& error) {
            return error.what();
        }
        return "opened";
    }
};

TEST_F(HostilePackageSaveOpenTest, APropertiesPartKeptUnderAnUnknownRelationshipLeavesTheWritersPartItsOwnName) {
    ooxml_test::PackageParts parts = ooxml_test::MinimalPackage(kEmptySheet);
    parts["_rels/.rels"] = RelationshipsPart({Relationship("rId1", "officeDocument", "xl/workbook.xml"),
                                              Relationship("rId2", "http://example.com/unknown", "docProps/app.xml"),
                                              Relationship("rId3", "http://example.com/unknown", "docProps/core.xml")});
    parts["docProps/app.xml"] = "<kept>app</kept>";
    parts["docProps/core.xml"] = "<kept>core</kept>";
    const ooxml_test::TemporaryPackage package(parts);
    auto workbook = Open(package);

    const ooxml_test::PackageParts saved = Saved(workbook, "copy.xlsx");  // throws on a name stored twice
    EXPECT_EQ(saved.at("docProps/app.xml"), "<kept>app</kept>");
    EXPECT_EQ(saved.at("docProps/core.xml"), "<kept>core</kept>");
    EXPECT_THAT(saved.at("docProps/app2.xml"), HasSubstr("<Properties"));
    EXPECT_THAT(saved.at("docProps/core2.xml"), HasSubstr("<cp:coreProperties"));
    EXPECT_THAT(saved.at("_rels/.rels"), HasSubstr(R"(Target="docProps/app2.xml")"));
    EXPECT_THAT(saved.at("[Content_Types].xml"), HasSubstr(R"(PartName="/docProps/core2.xml")"));
    workbook->Close(false);
    EXPECT_EQ(app->Workbooks()->Open(PathOf("copy.xlsx"))->Worksheets(1)->Name(), "Sheet1");
    EXPECT_EQ(RunTool("check-xlsx", PathOf("copy.xlsx")), 0);
}

TEST_F(HostilePackageSaveOpenTest, ASheetWhosePartIsTheThemeIsRefused) {
    ooxml_test::PackageParts parts = ooxml_test::MinimalPackage(kEmptySheet);
    parts["xl/workbook.xml"] =
        R"(<workbook xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships">)"
        R"(<sheets><sheet name="Sheet1" sheetId="1" r:id="rId1"/><sheet name="Theme" sheetId="2" r:id="rId2"/></sheets></workbook>)";
    parts["xl/_rels/workbook.xml.rels"] = RelationshipsPart({Relationship("rId1", "worksheet", "worksheets/sheet1.xml"),
                                                             Relationship("rId2", "theme", "theme/theme1.xml")});
    parts["xl/theme/theme1.xml"] = R"(<a:theme xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main"/>)";
    const std::string refusal = Refusal(parts);
    EXPECT_THAT(refusal, HasSubstr("because the file format or file extension is not valid"));
    EXPECT_THAT(refusal, HasSubstr(R"(The sheet "Theme" refers to a part that is no sheet (xl/theme/theme1.xml))"));
    EXPECT_EQ(app->Workbooks()->Count(), 1);
}

// A part of the given kind holding so many copies of one element that it inflates past 64 MiB,
// from a file of a few hundred kilobytes.
ooxml_test::PackageParts InflatingPackage(const std::string& kind, const std::string& opening,
                                          const std::string& element, const std::string& closing) {
    ooxml_test::PackageParts parts = ooxml_test::MinimalPackage(kEmptySheet);
    parts["xl/_rels/workbook.xml.rels"] = RelationshipsPart(
        {Relationship("rId1", "worksheet", "worksheets/sheet1.xml"), Relationship("rId2", kind, kind + ".xml")});
    std::string& part = parts["xl/" + kind + ".xml"] = opening;
    part.reserve((65u << 20) + closing.size());
    while (part.size() < (65u << 20)) {
        part += element;
    }
    part += closing;
    return parts;
}

TEST_F(HostilePackageSaveOpenTest, SharedStringsThatInflateAHundredfoldAreRefusedAsAZipBomb) {
    const std::string refusal = Refusal(
        InflatingPackage("sharedStrings", R"(<sst xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main">)",
                         "<si><t>a</t></si>", "</sst>"));
    EXPECT_THAT(refusal, HasSubstr("because the file format or file extension is not valid"));
    EXPECT_THAT(refusal, HasSubstr("Entry xl/sharedStrings.xml in "));
    EXPECT_THAT(refusal, HasSubstr("taken for a zip bomb"));
}

TEST_F(HostilePackageSaveOpenTest, StylesThatInflateAHundredfoldAreRefusedAsAZipBomb) {
    const std::string refusal = Refusal(InflatingPackage(
        "styles", R"(<styleSheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main"><cellXfs>)",
        R"(<xf numFmtId="0" fontId="0" fillId="0" borderId="0"/>)", "</cellXfs></styleSheet>"));
    EXPECT_THAT(refusal, HasSubstr("Entry xl/styles.xml in "));
    EXPECT_THAT(refusal, HasSubstr("taken for a zip bomb"));
    EXPECT_EQ(app->Workbooks()->Count(), 1);
}

// A workbook of the given sheets (name and state), each with the content given for the first, and
// the defined names given (the inside of <definedNames>).
ooxml_test::PackageParts SheetsPackage(const std::vector<std::pair<std::string, std::string>>& sheets,
                                       const std::string& firstSheetContent, const std::string& names = "") {
    ooxml_test::PackageParts parts = ooxml_test::MinimalPackage(firstSheetContent);
    std::string list;
    std::vector<std::string> relationships;
    std::string overrides;
    for (size_t index = 0; index < sheets.size(); ++index) {
        const std::string number = std::to_string(index + 1);
        list += R"(<sheet name=")" + sheets[index].first + R"(" sheetId=")" + number + R"(" state=")" +
                sheets[index].second + R"(" r:id="rId)" + number + R"("/>)";
        relationships.push_back(Relationship("rId" + number, "worksheet", "worksheets/sheet" + number + ".xml"));
        overrides +=
            R"(<Override PartName="/xl/worksheets/sheet)" + number +
            R"(.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.worksheet+xml"/>)";
        if (index > 0) {
            parts["xl/worksheets/sheet" + number + ".xml"] = parts["xl/worksheets/sheet1.xml"];
        }
    }
    parts["xl/workbook.xml"] =
        R"(<workbook xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships"><sheets>)" +
        list + "</sheets>" + (names.empty() ? "" : "<definedNames>" + names + "</definedNames>") + "</workbook>";
    parts["xl/_rels/workbook.xml.rels"] = RelationshipsPart(relationships);
    parts["[Content_Types].xml"] = ooxml_test::ContentTypesPart(
        R"(<Override PartName="/xl/workbook.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml"/>)" +
        overrides);
    return parts;
}

TEST_F(HostilePackageSaveOpenTest, AChartSheetWhosePartHasNoContentTypeIsRefused) {
    ooxml_test::PackageParts parts = ooxml_test::MinimalPackage(kEmptySheet);
    parts["xl/workbook.xml"] =
        R"(<workbook xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships">)"
        R"(<sheets><sheet name="Sheet1" sheetId="1" r:id="rId1"/><sheet name="Chart" sheetId="2" r:id="rId2"/></sheets></workbook>)";
    parts["xl/_rels/workbook.xml.rels"] =
        RelationshipsPart({Relationship("rId1", "worksheet", "worksheets/sheet1.xml"),
                           Relationship("rId2", "chartsheet", "chartsheets/sheet1.bin")});
    parts["xl/chartsheets/sheet1.bin"] =
        R"(<chartsheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main"/>)";
    EXPECT_THAT(Refusal(parts),
                HasSubstr(R"((The sheet "Chart" has a part of no content type (xl/chartsheets/sheet1.bin)))"));
}

// XML allows no NUL character: a part holding one is refused whichever reader meets it, rather
// than read up to the NUL by one and kept whole for another to fail on.
TEST_F(HostilePackageSaveOpenTest, APartHoldingANulCharacterIsRefused) {
    ooxml_test::PackageParts parts = ooxml_test::MinimalPackage(kEmptySheet);
    parts["xl/workbook.xml"].insert(parts["xl/workbook.xml"].find("<sheets>"), std::string("\0", 1));
    EXPECT_THAT(Refusal(parts), HasSubstr("(A NUL character in xl/workbook.xml)"));
    const std::string sheet =
        std::string("<sheetData><row r=\"1\"><c r=\"A1\"><v>1") + '\0' + "</v></c></row></sheetData>";
    EXPECT_THAT(Refusal(ooxml_test::MinimalPackage(sheet)), HasSubstr("a NUL character, which XML does not allow"));
}

TEST_F(HostilePackageSaveOpenTest, RelationshipsWithoutAnIdOrWithOneUsedTwiceAreRefused) {
    ooxml_test::PackageParts parts = ooxml_test::MinimalPackage(kEmptySheet);
    parts["xl/worksheets/_rels/sheet1.xml.rels"] =
        RelationshipsPart({R"(<Relationship Type="http://example.com/kept" Target="../kept.xml"/>)"});
    EXPECT_THAT(Refusal(parts), HasSubstr("(A relationship without an Id in xl/worksheets/_rels/sheet1.xml.rels)"));
    parts.erase("xl/worksheets/_rels/sheet1.xml.rels");
    parts["xl/_rels/workbook.xml.rels"] = RelationshipsPart(
        {Relationship("rId1", "worksheet", "worksheets/sheet1.xml"), Relationship("rId1", "styles", "styles.xml")});
    EXPECT_THAT(Refusal(parts), HasSubstr(R"((A relationship Id "rId1" used twice in xl/_rels/workbook.xml.rels))"));
}

TEST_F(HostilePackageSaveOpenTest, SheetNamesExcelDoesNotAllowAreRefused) {
    EXPECT_THAT(Refusal(SheetsPackage({{"a/b", "visible"}}, kEmptySheet)),
                HasSubstr(R"((The sheet name "a/b" is not one Excel allows))"));
    EXPECT_THAT(Refusal(SheetsPackage({{std::string(32, 'x'), "visible"}}, kEmptySheet)),
                HasSubstr("is not one Excel allows"));
    EXPECT_THAT(Refusal(SheetsPackage({{"Data", "visible"}, {"DATA", "visible"}}, kEmptySheet)),
                HasSubstr(R"((The sheet name "DATA" is used twice))"));
    EXPECT_EQ(app->Workbooks()->Count(), 1);
}

TEST_F(HostilePackageSaveOpenTest, ASheetNameOfMalformedUtf8OpensAsItWillBeSaved) {
    const ooxml_test::TemporaryPackage package(SheetsPackage({{"Shee\xD1t1", "visible"}}, kEmptySheet));
    auto workbook = Open(package);
    EXPECT_EQ(workbook->Worksheets(1)->Name(), "Shee\xEF\xBF\xBDt1");
    workbook->SaveAs(PathOf("named.xlsx"));
    workbook->Close(false);
    EXPECT_EQ(app->Workbooks()->Open(PathOf("named.xlsx"))->Worksheets(1)->Name(), "Shee\xEF\xBF\xBDt1");
}

TEST_F(HostilePackageSaveOpenTest, AWorkbookWhoseSheetsAreAllHiddenShowsItsFirst) {
    const ooxml_test::TemporaryPackage package(SheetsPackage({{"One", "hidden"}, {"Two", "veryHidden"}}, kEmptySheet));
    auto workbook = Open(package);
    EXPECT_EQ(workbook->Worksheets("One")->Visible(), xlSheetVisible);
    EXPECT_EQ(workbook->Worksheets("Two")->Visible(), xlSheetVeryHidden);
    workbook->SaveAs(PathOf("shown.xlsx"));
    EXPECT_EQ(RunTool("check-xlsx", PathOf("shown.xlsx")), 0);
}

TEST_F(HostilePackageSaveOpenTest, OfOverlappingMergedBlocksTheFirstIsKept) {
    const ooxml_test::TemporaryPackage package(ooxml_test::MinimalPackage(
        R"(<sheetData/><mergeCells count="4"><mergeCell ref="B2:C3"/><mergeCell ref="C3:D4"/>)"
        R"(<mergeCell ref="A1:A2"/><mergeCell ref="E5:F6"/></mergeCells>)"));
    auto workbook = Open(package);
    auto sheet = workbook->Worksheets(1);
    EXPECT_EQ(sheet->Range("B2")->MergeArea()->Address(), "$B$2:$C$3");
    EXPECT_EQ(sheet->Range("D4")->MergeArea()->Address(), "$D$4");
    EXPECT_EQ(sheet->Range("A1")->MergeArea()->Address(), "$A$1:$A$2");
    EXPECT_EQ(sheet->Range("E5")->MergeArea()->Address(), "$E$5:$F$6");
    workbook->SaveAs(PathOf("merged.xlsx"));
    EXPECT_EQ(RunTool("check-xlsx", PathOf("merged.xlsx")), 0);
}

TEST_F(HostilePackageSaveOpenTest, FormulasAndTextsBeyondExcelsLimitsAreRefused) {
    EXPECT_THAT(Refusal(ooxml_test::MinimalPackage(R"(<sheetData><row r="1"><c r="A1"><f>)" + std::string(8190, '1') +
                                                   "+11" + "</f></c></row></sheetData>")),
                HasSubstr(R"((A formula on the sheet "Sheet1" is longer than 8192 characters))"));
    EXPECT_THAT(Refusal(ooxml_test::MinimalPackage(R"(<sheetData><row r="1"><c r="A1" t="inlineStr"><is><t>)" +
                                                   std::string(32768, 'x') + "</t></is></c></row></sheetData>")),
                HasSubstr("(A text of the workbook is longer than 32767 characters)"));
    EXPECT_EQ(app->Workbooks()->Count(), 1);
}

TEST_F(HostilePackageSaveOpenTest, DefinedNamesExcelDoesNotAllowAreDropped) {
    const ooxml_test::TemporaryPackage package(SheetsPackage(
        {{"Sheet1", "visible"}}, kEmptySheet,
        R"(<definedName name="Good">Sheet1!$A$1</definedName><definedName name="A1">Sheet1!$A$2</definedName>)"
        R"(<definedName name="1st">Sheet1!$A$3</definedName><definedName name="two words">Sheet1!$A$4</definedName>)"));
    auto workbook = Open(package);
    ASSERT_EQ(workbook->Names()->Count(), 1);
    EXPECT_EQ(workbook->Names()->Item(1)->GetName(), "Good");
    workbook->SaveAs(PathOf("names.xlsx"));
    EXPECT_EQ(RunTool("check-xlsx", PathOf("names.xlsx")), 0);
}

TEST_F(HostilePackageSaveOpenTest, EmptyRunsOfRichTextAreDropped) {
    ooxml_test::PackageParts parts =
        ooxml_test::MinimalPackage(R"(<sheetData><row r="1"><c r="A1" t="s"><v>0</v></c></row></sheetData>)");
    parts["xl/_rels/workbook.xml.rels"] =
        RelationshipsPart({Relationship("rId1", "worksheet", "worksheets/sheet1.xml"),
                           Relationship("rId2", "sharedStrings", "sharedStrings.xml")});
    parts["xl/sharedStrings.xml"] =
        R"(<sst xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main"><si><r><t></t></r>)"
        R"(<r><rPr><b/></rPr><t>Bold</t></r><r><rPr><i/></rPr><t/></r></si></sst>)";
    const ooxml_test::TemporaryPackage package(parts);
    auto workbook = Open(package);
    EXPECT_EQ(workbook->Worksheets(1)->Range("A1")->Value(), Variant("Bold"));
    const ooxml_test::PackageParts saved = Saved(workbook, "runs.xlsx");
    EXPECT_EQ(saved.at("xl/sharedStrings.xml").find("<t></t>"), std::string::npos);
    EXPECT_EQ(saved.at("xl/sharedStrings.xml").find("<t/>"), std::string::npos);
    EXPECT_EQ(RunTool("check-xlsx", PathOf("runs.xlsx")), 0);
}

TEST_F(HostilePackageSaveOpenTest, ASheetWithTwoSheetDataIsRefused) {
    EXPECT_THAT(Refusal(ooxml_test::MinimalPackage(
                    R"(<sheetData><row r="1"><c r="A1"><v>1</v></c></row></sheetData><sheetData/>)")),
                HasSubstr("(More than one sheetData in xl/worksheets/sheet1.xml)"));
}

// Memory running out while opening is Excel's error, not an exception of another kind: the test
// opens, in a child process limited to a little more address space than it holds, a workbook
// whose 48 MB of tiny texts need several times that.
TEST_F(HostilePackageSaveOpenTest, RunningOutOfMemoryWhileOpeningIsExcelsError) {
#if defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "AddressSanitizer reserves more address space than the limit leaves";
#else
    ooxml_test::PackageParts parts = ooxml_test::MinimalPackage(kEmptySheet);
    parts["xl/_rels/workbook.xml.rels"] =
        RelationshipsPart({Relationship("rId1", "worksheet", "worksheets/sheet1.xml"),
                           Relationship("rId2", "sharedStrings", "sharedStrings.xml")});
    std::string& strings = parts["xl/sharedStrings.xml"] =
        R"(<sst xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main">)";
    for (int item = 0; item < 3'000'000; ++item) {
        strings += "<si><t>a</t></si>";
    }
    strings += "</sst>";
    const ooxml_test::TemporaryPackage package(parts);
    parts.clear();
    const std::optional<std::string> answer = ooxml_test::RunInChild(
        [] {
            rlimit limit{};
            getrlimit(RLIMIT_AS, &limit);
            limit.rlim_cur = static_cast<rlim_t>(CurrentAddressSpace() + (160u << 20));
            return setrlimit(RLIMIT_AS, &limit) == 0;
        },
        [&]() -> std::string {
            try {
                app->Workbooks()->Open(package.Path());
            } catch (const AutomationError& error) {
                return error.what();
            }
            return "opened";
        });
    ASSERT_TRUE(answer.has_value());
    EXPECT_THAT(*answer, HasSubstr("Excel cannot complete this task with available resources. Choose less data or "
                                   "close other applications. (opening the file: out of memory)"));
#endif
}

// Many sheets and names open and save in time proportional to them (the benchmark measures it);
// here, that they all arrive, and that a name defined twice ignoring case keeps its first definition.
TEST_F(HostilePackageSaveOpenTest, ThousandsOfSheetsAndNamesOpenAndSaveWhole) {
    std::vector<std::pair<std::string, std::string>> sheets;
    for (int sheet = 1; sheet <= 3000; ++sheet) {
        sheets.emplace_back("S" + std::to_string(sheet), "visible");
    }
    std::string names =
        "<definedName name=\"\xC3\x84rger\">S1!$A$1</definedName>"
        "<definedName name=\"\xC3\xA4RGER\">S1!$A$2</definedName>";
    for (int name = 0; name < 20000; ++name) {
        names += "<definedName name=\"Name_" + std::to_string(name) + "\">S1!$B$1</definedName>";
    }
    const ooxml_test::TemporaryPackage package(SheetsPackage(sheets, kEmptySheet, names));
    auto workbook = Open(package);
    EXPECT_EQ(workbook->Worksheets()->Count(), 3000);
    EXPECT_EQ(workbook->Names()->Count(), 20001);
    EXPECT_EQ(workbook->Names()->Item("\xC3\xA4rger")->RefersTo(), "=S1!$A$1");
    workbook->SaveAs(PathOf("many.xlsx"));
    workbook->Close(false);
    auto reopened = app->Workbooks()->Open(PathOf("many.xlsx"));
    EXPECT_EQ(reopened->Worksheets()->Count(), 3000);
    EXPECT_EQ(reopened->Worksheets(3000)->Name(), "S3000");
    EXPECT_EQ(reopened->Names()->Count(), 20001);
}

}  // namespace
