// Packages that break the rules of the format in ways a careless program or an attacker would:
// each is refused with the reason named, or opened and saved into a file Excel opens without repair.

#include "embedded/document/save_open_fixture.hpp"
#include "ooxml/reader_test_package.hpp"

#include <gmock/gmock.h>

#include <string>

using namespace excel;
using ooxml_test::Relationship;
using ooxml_test::RelationshipsPart;
using ::testing::HasSubstr;

namespace {

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

}  // namespace
