// Excel's limits on what a workbook holds, met in a file opened and through the object model: cell
// formats past the limit are refused; hyperlinks, data validations and conditional formats that
// Excel would remove on opening are dropped, so that the workbook saves into a file Excel opens
// without repair.

#include "embedded/document/save_open_fixture.hpp"
#include "ooxml/reader_test_package.hpp"

#include <gmock/gmock.h>

#include <string>
#include <vector>

using namespace excel;
using ooxml_test::Relationship;
using ooxml_test::RelationshipsPart;
using ::testing::HasSubstr;

namespace {

constexpr int kMaxCellFormats = 65490;

// A styles part of count cell formats after the default one, the i-th showing numbers with its
// own number format when distinct, or all the same format when not.
std::string StylesOfFormats(int count, bool distinct) {
    std::string numberFormats;
    std::string formats = R"(<xf numFmtId="0" fontId="0" fillId="0" borderId="0" xfId="0"/>)";
    for (int i = 0; i < count; ++i) {
        const int id = 164 + (distinct ? i : 0);
        if (distinct || i == 0) {
            numberFormats += R"(<numFmt numFmtId=")" + std::to_string(id) + R"(" formatCode="0.0&quot;)" +
                             std::to_string(i) + R"(&quot;"/>)";
        }
        formats += R"(<xf numFmtId=")" + std::to_string(id) +
                   R"(" fontId="0" fillId="0" borderId="0" xfId="0" applyNumberFormat="1"/>)";
    }
    return R"(<styleSheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main"><numFmts>)" +
           numberFormats +
           R"(</numFmts><fonts count="1"><font><sz val="11"/><name val="Calibri"/></font></fonts>)"
           R"(<fills count="2"><fill><patternFill patternType="none"/></fill>)"
           R"(<fill><patternFill patternType="gray125"/></fill></fills>)"
           R"(<borders count="1"><border><left/><right/><top/><bottom/><diagonal/></border></borders>)"
           R"(<cellStyleXfs count="1"><xf numFmtId="0" fontId="0" fillId="0" borderId="0"/></cellStyleXfs><cellXfs>)" +
           formats +
           R"(</cellXfs><cellStyles count="1"><cellStyle name="Normal" xfId="0" builtinId="0"/></cellStyles></styleSheet>)";
}

// Cells A1:A<count> holding 1, the i-th in the i-th format after the default one.
std::string CellsInEachFormat(int count) {
    std::string rows = "<sheetData>";
    for (int row = 1; row <= count; ++row) {
        const std::string number = std::to_string(row);
        rows += R"(<row r=")" + number + R"("><c r="A)" + number + R"(" s=")" + number + R"("><v>1</v></c></row>)";
    }
    return rows + "</sheetData>";
}

class ExcelLimitsOpenTest : public SaveOpenTest {
protected:
    std::shared_ptr<Workbook> Open(const ooxml_test::PackageParts& parts) {
        const ooxml_test::TemporaryPackage package(parts);
        book->Close(false);
        return app->Workbooks()->Open(package.Path());
    }

    // What the first sheet of the workbook saved again holds, and whether check-xlsx passes it.
    std::string SavedSheet(const std::shared_ptr<Workbook>& workbook, const std::string& name) {
        const ooxml_test::PackageParts saved = Saved(workbook, name);
        EXPECT_EQ(RunTool("check-xlsx", PathOf(name)), 0);
        return saved.at("xl/worksheets/sheet1.xml");
    }

    // A one-sheet package whose sheet holds the markup after its cells, with a relationships part
    // for the sheet when relationships are given.
    static ooxml_test::PackageParts SheetPackage(const std::string& afterCells,
                                                 const std::vector<std::string>& relationships = {}) {
        ooxml_test::PackageParts parts = ooxml_test::MinimalPackage(
            R"(<sheetData><row r="1"><c r="A1"><v>1</v></c></row></sheetData>)" + afterCells);
        if (!relationships.empty()) {
            parts["xl/worksheets/_rels/sheet1.xml.rels"] = RelationshipsPart(relationships);
        }
        return parts;
    }
};

TEST_F(ExcelLimitsOpenTest, AFileOfMoreDistinctCellFormatsThanExcelAllowsIsRefused) {
    const int count = kMaxCellFormats;  // with the default format, one more than Excel allows
    const ooxml_test::TemporaryPackage package(
        ooxml_test::MinimalPackageWithStyles("<sheetData/>", StylesOfFormats(count, true)));
    try {
        app->Workbooks()->Open(package.Path());
        FAIL() << "opened";
    } catch (const AutomationError& error) {
        EXPECT_THAT(error.what(), HasSubstr("because the file format or file extension is not valid"));
        EXPECT_THAT(error.what(), HasSubstr("(The workbook holds 65491 different cell formats; Excel allows 65490)"));
    }
    EXPECT_EQ(app->Workbooks()->Count(), 1);
}

TEST_F(ExcelLimitsOpenTest, AFileListingOneFormatManyTimesOpensAndSavesItOnce) {
    auto workbook = Open(ooxml_test::MinimalPackageWithStyles(
        R"(<sheetData><row r="1"><c r="A1" s="70000"><v>1</v></c></row></sheetData>)", StylesOfFormats(70000, false)));
    EXPECT_EQ(workbook->Worksheets(1)->Range("A1")->NumberFormat(), Variant("0.0\"0\""));
    const ooxml_test::PackageParts saved = Saved(workbook, "once.xlsx");
    const std::string& styles = saved.at("xl/styles.xml");
    const size_t count = styles.find(R"(<cellXfs count=")");
    ASSERT_NE(count, std::string::npos);
    EXPECT_LT(std::stoi(styles.substr(count + 16)), 5);
    EXPECT_EQ(RunTool("check-xlsx", PathOf("once.xlsx")), 0);
}

// Near the limit, a change that would pass it is refused before any cell changes, as Excel
// refuses it; one that fits is made, and the workbook saves into a file Excel opens.
TEST_F(ExcelLimitsOpenTest, AFormatChangePastTheLimitIsRefusedAndChangesNothing) {
    const int count = 40000;
    auto workbook = Open(ooxml_test::MinimalPackageWithStyles(CellsInEachFormat(count), StylesOfFormats(count, true)));
    auto sheet = workbook->Worksheets(1);
    const std::string all = "A1:A" + std::to_string(count);
    try {
        sheet->Range(all)->Font()->SetBold(true);
        FAIL() << "a bold font was given to " << count << " formats";
    } catch (const AutomationError& error) {
        EXPECT_EQ(error.code(), hresult::Refused);
        EXPECT_STREQ(error.what(), "Too many different cell formats.");
    }
    EXPECT_EQ(sheet->Range("A1")->Font()->Bold(), Variant(false));
    EXPECT_EQ(sheet->Range("A" + std::to_string(count))->Font()->Bold(), Variant(false));

    // Bold on half the cells fits; then one new format per cell, until the workbook is full.
    sheet->Range("A1:A" + std::to_string(count / 2))->Font()->SetBold(true);
    EXPECT_EQ(sheet->Range("A" + std::to_string(count / 2))->Font()->Bold(), Variant(true));
    int row = count / 2 + 1;
    try {
        for (; row <= count; ++row) {
            sheet->Range("A" + std::to_string(row))->Font()->SetItalic(true);
        }
    } catch (const AutomationError& error) {
        EXPECT_STREQ(error.what(), "Too many different cell formats.");
    }
    ASSERT_LT(row, count);
    EXPECT_EQ(sheet->Range("A" + std::to_string(row))->Font()->Italic(), Variant(false));
    sheet->Range("A1")->Font()->SetBold(false);  // a format the workbook holds already
    EXPECT_EQ(sheet->Range("A1")->Font()->Bold(), Variant(false));

    const ooxml_test::PackageParts saved = Saved(workbook, "full.xlsx");
    EXPECT_THAT(saved.at("xl/styles.xml"), HasSubstr(R"(<cellXfs count="65490">)"));
    EXPECT_EQ(RunTool("check-xlsx", PathOf("full.xlsx")), 0);
}

TEST_F(ExcelLimitsOpenTest, HyperlinksBeyondTheLimitOfASheetAreDropped) {
    std::string hyperlinks = "<hyperlinks>";
    for (int row = 1; row <= 65531; ++row) {
        hyperlinks += R"(<hyperlink ref="B)" + std::to_string(row) + R"(" location="Sheet1!A1"/>)";
    }
    const std::string sheet = SavedSheet(Open(SheetPackage(hyperlinks + "</hyperlinks>")), "links.xlsx");
    EXPECT_THAT(sheet, HasSubstr(R"(<hyperlink ref="B65530" location="Sheet1!A1"/></hyperlinks>)"));
    EXPECT_EQ(sheet.find(R"(ref="B65531")"), std::string::npos);
}

TEST_F(ExcelLimitsOpenTest, HyperlinksToAddressesLongerThanExcelTakesOrToNoCellsAreDropped) {
    const std::string longAddress = "https://example.com/" + std::string(2060, 'a');  // 2,080 characters
    const std::string sheet =
        SavedSheet(Open(SheetPackage(
                       R"(<hyperlinks xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships">)"
                       R"(<hyperlink ref="A1" r:id="rId1"/><hyperlink ref="A2" r:id="rId2"/>)"
                       R"(<hyperlink ref="XFE3" location="Sheet1!A1"/><hyperlink ref="A4:B" location="Sheet1!A1"/>)"
                       R"(</hyperlinks>)",
                       {Relationship("rId1", "hyperlink", longAddress, true),
                        Relationship("rId2", "hyperlink", "https://example.com/" + std::string(2059, 'a'), true)})),
                   "addresses.xlsx");
    EXPECT_THAT(sheet, HasSubstr(R"("><hyperlink ref="A2" r:id="rId2"/></hyperlinks>)"));
    EXPECT_EQ(sheet.find("<hyperlink "), sheet.rfind("<hyperlink "));
    const ooxml_test::PackageParts saved = ooxml_test::ReadPackageParts(PathOf("addresses.xlsx"));
    EXPECT_EQ(saved.at("xl/worksheets/_rels/sheet1.xml.rels").find(longAddress), std::string::npos);
}

TEST_F(ExcelLimitsOpenTest, AListValidationOfMoreThan255CharactersOrOnNoCellsIsDropped) {
    const std::string fits(255, 'x');
    const std::string sheet = SavedSheet(
        Open(SheetPackage(R"(<dataValidations count="4">)"
                          R"(<dataValidation type="list" sqref="B1"><formula1>")" +
                          std::string(256, 'x') +
                          R"("</formula1></dataValidation>)"
                          R"(<dataValidation type="list" sqref="B2"><formula1>")" +
                          fits +
                          R"("</formula1></dataValidation>)"
                          R"(<dataValidation type="whole" sqref="B3 A0"><formula1>1</formula1></dataValidation>)"
                          R"(<dataValidation type="whole" sqref="C:C 4:5"><formula1>1</formula1></dataValidation>)"
                          R"(</dataValidations>)")),
        "validations.xlsx");
    EXPECT_THAT(sheet,
                HasSubstr(R"(<dataValidations count="2"><dataValidation type="list" sqref="B2"><formula1>")" + fits +
                          R"("</formula1></dataValidation><dataValidation type="whole" sqref="C:C 4:5">)"));
}

// The package has no styles part, so no differential format a rule could name.
TEST_F(ExcelLimitsOpenTest, ConditionalFormatsOnNoCellsOrOfFormatsTheStylesLackAreDroppedAndAListLeftEmptyGoes) {
    const std::string sheet = SavedSheet(
        Open(SheetPackage(
            R"(<conditionalFormatting sqref="A1:A4 QQQQ9"><cfRule type="expression" priority="1"><formula>TRUE</formula>)"
            R"(</cfRule></conditionalFormatting><conditionalFormatting sqref="B1:B4"><cfRule type="expression" priority="2">)"
            R"(<formula>FALSE</formula></cfRule><cfRule type="expression" dxfId="0" priority="3"><formula>1</formula>)"
            R"(</cfRule></conditionalFormatting><conditionalFormatting sqref="C1"><cfRule type="expression" dxfId="2")"
            R"( priority="4"><formula>1</formula></cfRule></conditionalFormatting>)"
            R"(<dataValidations count="1"><dataValidation type="whole" sqref="0:1"><formula1>1</formula1>)"
            R"(</dataValidation></dataValidations>)")),
        "rules.xlsx");
    EXPECT_EQ(sheet.find("QQQQ9"), std::string::npos);
    EXPECT_THAT(sheet, HasSubstr(R"(<conditionalFormatting sqref="B1:B4"><cfRule type="expression" priority="2">)"
                                 R"(<formula>FALSE</formula></cfRule></conditionalFormatting>)"));
    EXPECT_EQ(sheet.find("dxfId"), std::string::npos);
    EXPECT_EQ(sheet.find(R"(sqref="C1")"), std::string::npos);
    EXPECT_EQ(sheet.find("dataValidations"), std::string::npos);
}

}  // namespace
