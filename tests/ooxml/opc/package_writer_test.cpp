// Writes whole packages and checks them with tools we did not write: libzip, pugixml, the schema
// validator, the logical checker and openpyxl.

#include "ooxml/opc/package_writer.hpp"
#include "ooxml/package_error.hpp"
#include "ooxml/writer_test_support.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <cstring>
#include <fstream>

namespace {

using namespace ooxml;
using namespace writer_test;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

class PackageWriterTest : public ::testing::Test {
protected:
    void SetUp() override {
        path_ = folder_.File("full.xlsx");
        WritePackage(FullDocument(), path_);
    }

    ScratchFolder folder_;
    std::string path_;
};

TEST_F(PackageWriterTest, StoresThePartsInExcelsOrder) {
    EXPECT_THAT(ZipEntryNames(path_),
                ElementsAre("[Content_Types].xml", "_rels/.rels", "xl/workbook.xml", "xl/_rels/workbook.xml.rels",
                            "xl/worksheets/sheet1.xml", "xl/worksheets/_rels/sheet1.xml.rels",
                            "xl/worksheets/sheet2.xml", "xl/worksheets/_rels/sheet2.xml.rels",
                            "xl/worksheets/sheet3.xml", "xl/theme/theme1.xml", "xl/styles.xml",
                            "xl/sharedStrings.xml", "xl/drawings/drawing1.xml", "xl/comments1.xml",
                            "xl/drawings/vmlDrawing1.vml", "xl/comments2.xml", "xl/drawings/vmlDrawing2.vml",
                            "docProps/core.xml", "docProps/app.xml"));
}

TEST_F(PackageWriterTest, EveryXmlPartIsWellFormed) {
    for (const std::string& name : ZipEntryNames(path_)) {
        auto document = ParsePart(path_, name);
        EXPECT_TRUE(document->document_element()) << name;
    }
}

TEST_F(PackageWriterTest, DeclaresAContentTypeForEveryPart) {
    auto types = ParsePart(path_, "[Content_Types].xml");
    const pugi::xml_node root = types->child("Types");
    EXPECT_STREQ(root.find_child_by_attribute("Default", "Extension", "rels").attribute("ContentType").value(),
                 "application/vnd.openxmlformats-package.relationships+xml");
    const std::pair<const char*, const char*> overrides[] = {
        {"/xl/workbook.xml", "application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml"},
        {"/xl/worksheets/sheet2.xml", "application/vnd.openxmlformats-officedocument.spreadsheetml.worksheet+xml"},
        {"/xl/styles.xml", "application/vnd.openxmlformats-officedocument.spreadsheetml.styles+xml"},
        {"/xl/theme/theme1.xml", "application/vnd.openxmlformats-officedocument.theme+xml"},
        {"/xl/sharedStrings.xml", "application/vnd.openxmlformats-officedocument.spreadsheetml.sharedStrings+xml"},
        {"/docProps/core.xml", "application/vnd.openxmlformats-package.core-properties+xml"},
        {"/docProps/app.xml", "application/vnd.openxmlformats-officedocument.extended-properties+xml"},
    };
    for (const auto& [part, contentType] : overrides) {
        EXPECT_STREQ(root.find_child_by_attribute("Override", "PartName", part).attribute("ContentType").value(),
                     contentType)
            << part;
    }
}

TEST_F(PackageWriterTest, RelatesTheWorkbookToItsParts) {
    auto rels = ParsePart(path_, "xl/_rels/workbook.xml.rels");
    auto workbook = ParsePart(path_, "xl/workbook.xml");
    const pugi::xml_node relationships = rels->child("Relationships");
    for (const pugi::xml_node sheet : workbook->child("workbook").child("sheets").children("sheet")) {
        const pugi::xml_node relationship =
            relationships.find_child_by_attribute("Relationship", "Id", sheet.attribute("r:id").value());
        ASSERT_TRUE(relationship) << sheet.attribute("name").value();
        EXPECT_THAT(relationship.attribute("Target").value(), HasSubstr("worksheets/sheet"));
    }
    EXPECT_TRUE(relationships.find_child_by_attribute("Relationship", "Target", "styles.xml"));
    EXPECT_TRUE(relationships.find_child_by_attribute("Relationship", "Target", "theme/theme1.xml"));
    EXPECT_TRUE(relationships.find_child_by_attribute("Relationship", "Target", "sharedStrings.xml"));
}

TEST_F(PackageWriterTest, PassesSchemaValidation) {
    std::string output;
    const int status = RunCommand(std::string(VOS_SHARED_DIR "/tools/validate-xlsx ") + path_, output, folder_);
    EXPECT_EQ(status, 0) << output;
    EXPECT_THAT(output, Not(HasSubstr("FAIL"))) << output;
}

TEST_F(PackageWriterTest, PassesTheLogicalChecks) {
    std::string output;
    const int status = RunCommand(std::string(VOS_SHARED_DIR "/tools/check-xlsx ") + path_, output, folder_);
    EXPECT_EQ(status, 0) << output;
    EXPECT_THAT(output, Not(HasSubstr("ERROR"))) << output;
}

TEST_F(PackageWriterTest, OpenpyxlReadsValuesAndFormatsBack) {
    const std::string script = folder_.File("check.py");
    std::ofstream(script) << R"PY(
import sys, openpyxl
wb = openpyxl.load_workbook(sys.argv[1])
assert wb.sheetnames == ["Data & <Results>", "Hidden", "Empty"], wb.sheetnames
ws = wb["Data & <Results>"]
assert ws["A1"].value == 0.1 and ws["A1"].number_format == "0.00"
assert ws["A2"].value == 1e-300
assert ws["A3"].value == -123456789.125
assert ws["B1"].value == "Plain text"
assert ws["B2"].value == "  leading and trailing  "
assert ws["C2"].value == "<tag> & \"quotes\" 'apostrophe'"
assert ws["C3"].value == "_x0041_ stays literal", repr(ws["C3"].value)
assert ws["E5"].value == "Gr\u00fc\u00dfe \u2713 \U0001D11E"
assert ws["F5"].value == "line one\nline two"
assert ws["A4"].value == "=SUM(A1:A3)"
assert ws["A5"].value is False and ws["C4"].value == "=A1>0"
assert ws["B5"].value == "#N/A"
assert ws["D1"].number_format in ("mm-dd-yy", "m/d/yyyy"), ws["D1"].number_format
assert ws["A1"].font.b and ws["A1"].fill.fill_type == "solid" and ws["A1"].fill.fgColor.rgb == "FFFF0000"
assert ws["A1"].border.left.style == "thin" and ws["A1"].border.left.color.indexed == 10
c1 = ws["C1"]
assert c1.number_format == "#,##0.000;[Red]-#,##0.000"
assert c1.font.name == "Arial" and c1.font.sz == 12.5 and c1.font.i and c1.font.u == "double" and c1.font.strike
assert c1.font.color.theme == 4 and abs(c1.font.color.tint - 0.39997558519241921) < 1e-15
assert c1.fill.fill_type == "darkGrid" and c1.fill.fgColor.theme == 5 and c1.fill.bgColor.indexed == 9
assert c1.border.right.style == "thick" and c1.border.right.color.rgb == "FF00B050"
assert c1.border.diagonal.style == "double" and c1.border.diagonalUp and c1.border.diagonalDown
assert c1.alignment.horizontal == "center" and c1.alignment.vertical == "top" and c1.alignment.wrap_text
b2 = ws["B2"]
assert b2.font.vertAlign == "superscript" and b2.alignment.text_rotation == 45 and b2.alignment.shrink_to_fit
assert b2.protection.locked is False and b2.protection.hidden is True and b2.quotePrefix
c2 = ws["C2"]
assert c2.number_format == "@" and c2.font.vertAlign == "subscript" and c2.alignment.indent == 2
assert c2.alignment.text_rotation == 255 and c2.font.color.rgb == "FF0000FF"
styles = ["thin", "medium", "dashed", "dotted", "thick", "double", "hair", "mediumDashed", "dashDot",
          "mediumDashDot", "dashDotDot", "mediumDashDotDot", "slantDashDot"]
assert [ws.cell(8, i + 1).border.bottom.style for i in range(13)] == styles
assert sorted(str(r) for r in ws.merged_cells.ranges) == ["A10:C11", "E12:F12"]
assert ws.column_dimensions["A"].width == 20.7109375
assert ws.column_dimensions["B"].width == 12.5 and ws.column_dimensions["B"].max == 4
assert ws.column_dimensions["E"].hidden
assert ws.row_dimensions[3].height == 30 and ws.row_dimensions[5].hidden and ws.row_dimensions[7].height == 8.25
assert ws.sheet_view.showGridLines is False and ws.print_options.gridLines
assert ws.sheet_view.selection[0].activeCell == "B2"
assert ws.sheet_format.defaultColWidth == 10.7109375
assert wb["Hidden"].sheet_state == "hidden" and wb["Hidden"]["A1"].value == "on the hidden sheet"
assert wb["Empty"].sheet_format.defaultRowHeight == 18.75
assert wb.defined_names["Total"].attr_text == "'Data & <Results>'!$A$1:$A$3"
assert wb.defined_names["Secret"].hidden
assert ws.print_area in ("'Data & <Results>'!$A$1:$D$12", ["$A$1:$D$12"]), ws.print_area
local = [d for d in wb.defined_names.definedName if d.name == "Local"]
assert len(local) == 1 and local[0].localSheetId == 2 and local[0].attr_text == "Empty!$B$2"
assert wb.security.lockStructure and wb.security.lockWindows
assert wb.properties.creator == "Ann Author" and wb.properties.lastModifiedBy == "Bob <Editor>"
assert wb.properties.created.isoformat() == "2023-11-14T22:13:20", wb.properties.created
assert len(wb._colors) == 64 and wb._colors[8] == "FF102030", wb._colors[:9]
print("ok")
)PY";
    std::string output;
    const int status = RunCommand("/usr/bin/python3 " + script + " " + path_, output, folder_);
    EXPECT_EQ(status, 0) << output;
}

TEST(PackageWriter, SameDocumentGivesTheSameBytes) {
    ScratchFolder folder;
    WritePackage(FullDocument(), folder.File("first.xlsx"));
    WritePackage(FullDocument(), folder.File("second.xlsx"));
    const std::string first = FileBytes(folder.File("first.xlsx"));
    EXPECT_FALSE(first.empty());
    EXPECT_EQ(first, FileBytes(folder.File("second.xlsx")));
}

TEST(PackageWriter, LeavesOutSharedStringsWhenThereAreNone) {
    ScratchFolder folder;
    WorkbookDocument document;
    document.sheets.push_back(SheetDocument{});
    document.sheets.back().name = "Sheet1";
    WritePackage(document, folder.File("plain.xlsx"));
    EXPECT_FALSE(ZipEntry(folder.File("plain.xlsx"), "xl/sharedStrings.xml").has_value());
    auto rels = ParsePart(folder.File("plain.xlsx"), "xl/_rels/workbook.xml.rels");
    EXPECT_FALSE(rels->child("Relationships").find_child_by_attribute("Relationship", "Target", "sharedStrings.xml"));
    std::string output;
    EXPECT_EQ(RunCommand(std::string(VOS_SHARED_DIR "/tools/check-xlsx ") + folder.File("plain.xlsx"), output, folder), 0)
        << output;
}

TEST(PackageWriterAtomicSave, MissingFolderThrowsPathNotFoundAndCreatesNothing) {
    ScratchFolder folder;
    const std::string target = folder.File("missing/deeper/book.xlsx");
    try {
        WritePackage(FullDocument(), target);
        FAIL() << "saving into a missing folder succeeded";
    } catch (const PackageError& error) {
        EXPECT_EQ(error.reason(), PackageError::Reason::PathNotFound) << error.what();
    }
    EXPECT_TRUE(folder.Entries().empty());
}

TEST(PackageWriterAtomicSave, TargetThatIsAFolderThrowsAccessDenied) {
    ScratchFolder folder;
    std::filesystem::create_directory(folder.File("book.xlsx"));
    try {
        WritePackage(FullDocument(), folder.File("book.xlsx"));
        FAIL() << "saving over a folder succeeded";
    } catch (const PackageError& error) {
        EXPECT_EQ(error.reason(), PackageError::Reason::AccessDenied) << error.what();
    }
    EXPECT_THAT(folder.Entries(), ElementsAre("book.xlsx"));
}

TEST(PackageWriterAtomicSave, ReplacesAnExistingFileAndKeepsItsPermissions) {
    ScratchFolder folder;
    const std::string target = folder.File("book.xlsx");
    std::ofstream(target) << "old content";
    chmod(target.c_str(), 0640);
    WritePackage(FullDocument(), target);
    EXPECT_TRUE(ZipEntry(target, "xl/workbook.xml").has_value());
    struct stat status {};
    ASSERT_EQ(stat(target.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0640u);
    EXPECT_THAT(folder.Entries(), ElementsAre("book.xlsx"));
}

TEST(PackageWriterAtomicSave, FailureWhileWritingPartsLeavesThePreviousFileIntact) {
    ScratchFolder folder;
    const std::string target = folder.File("book.xlsx");
    WritePackage(FullDocument(), target);
    const std::string previous = FileBytes(target);

    WorkbookDocument broken = FullDocument();
    broken.sheets[2].rows.push_back(Row{1, std::nullopt, std::nullopt, false, {Cell{}}});
    broken.sheets[2].rows.back().cells[0].format = 999;
    try {
        WritePackage(broken, target);
        FAIL() << "a cell with a missing format was saved";
    } catch (const PackageError& error) {
        EXPECT_EQ(error.reason(), PackageError::Reason::WriteFailed);
        EXPECT_THAT(error.what(), HasSubstr("format 999"));
    }
    EXPECT_EQ(FileBytes(target), previous);
    EXPECT_THAT(folder.Entries(), ElementsAre("book.xlsx"));
}

// Saves with files limited to limit bytes, then exits: 42 when the save failed with WriteFailed.
[[noreturn]] void SaveWithFileSizeLimit(const std::string& target, rlim_t limit) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit fileSizeLimit{limit, limit};
    setrlimit(RLIMIT_FSIZE, &fileSizeLimit);
    try {
        WritePackage(FullDocument(), target);
    } catch (const PackageError& error) {
        std::exit(error.reason() == PackageError::Reason::WriteFailed ? 42 : 1);
    }
    std::exit(0);
}

// The disk filling up is simulated by a file size limit, in a child process so the limit does not
// outlive the test.
TEST(PackageWriterAtomicSaveDeathTest, DiskFullLeavesThePreviousFileIntact) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    ScratchFolder folder;
    const std::string target = folder.File("book.xlsx");
    WritePackage(FullDocument(), target);
    const std::string previous = FileBytes(target);

    EXPECT_EXIT(SaveWithFileSizeLimit(target, 2000), ::testing::ExitedWithCode(42), "");
    EXPECT_EQ(FileBytes(target), previous);
    EXPECT_THAT(folder.Entries(), ElementsAre("book.xlsx"));
}

TEST(PackageWriter, RefusesADocumentWithoutSheets) {
    ScratchFolder folder;
    EXPECT_THROW(WritePackage(WorkbookDocument{}, folder.File("none.xlsx")), PackageError);
    EXPECT_TRUE(folder.Entries().empty());
}

}  // namespace
