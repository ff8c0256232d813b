#include "save_open_fixture.hpp"

#include "ooxml/opc/package_reader.hpp"
#include "ooxml/opc/package_writer.hpp"

#include <map>
#include <string>
#include <utility>
#include <vector>

// An opened sheet's default column width and every column's width come back as the file gave
// them when it is saved again, whether or not a width was marked custom, and whether or not it is
// one that whole pixels give; ColumnWidth and StandardWidth read them.

using namespace excel;

namespace {

// Column -> (width, custom) for every column a sheet gives a width.
std::map<uint32_t, std::pair<double, bool>> WidthsByColumn(const ooxml::SheetDocument& sheet) {
    std::map<uint32_t, std::pair<double, bool>> widths;
    for (const ooxml::ColumnRange& range : sheet.columns) {
        for (uint32_t column = range.first; range.width && column <= range.last; ++column) {
            widths[column] = {*range.width, range.customWidth};
        }
    }
    return widths;
}

void ExpectSameColumnWidths(const std::string& original, const std::string& saved) {
    const ooxml::WorkbookDocument before = ooxml::ReadPackage(original);
    const ooxml::WorkbookDocument after = ooxml::ReadPackage(saved);
    ASSERT_EQ(before.sheets.size(), after.sheets.size());
    for (size_t i = 0; i < before.sheets.size(); ++i) {
        SCOPED_TRACE(before.sheets[i].name);
        EXPECT_EQ(after.sheets[i].defaultColumnWidth, before.sheets[i].defaultColumnWidth);
        EXPECT_EQ(WidthsByColumn(after.sheets[i]), WidthsByColumn(before.sheets[i]));
    }
}

// A sheet as another program writes it: a default width of 10 characters, a custom width no whole
// number of pixels gives, formatted columns whose width is not marked custom, a hidden column.
ooxml::WorkbookDocument SheetWithWidths() {
    ooxml::WorkbookDocument document;
    ooxml::CellFormat bold;
    bold.font.bold = true;
    document.formats.push_back(bold);
    document.sheets.resize(1);
    ooxml::SheetDocument& sheet = document.sheets[0];
    sheet.name = "Widths";
    sheet.defaultColumnWidth = 10.7109375;
    sheet.columns = {{1, 1, 26.109375, std::nullopt, false, true},
                     {2, 4, 11.5, 1u, false, false},
                     {5, 5, 9.0, std::nullopt, true, false},
                     {7, 16384, 10.7109375, 1u, false, false}};
    return document;
}

class ColumnWidthSaveOpenTest : public SaveOpenTest {
protected:
    void SetUp() override {
        SaveOpenTest::SetUp();
        ooxml::WritePackage(SheetWithWidths(), PathOf("widths.xlsx"));
        opened = app->Workbooks()->Open(PathOf("widths.xlsx"));
        widths = opened->Worksheets(1);
    }

    std::shared_ptr<Workbook> opened;
    std::shared_ptr<Worksheet> widths;
};

}  // namespace

TEST_F(ColumnWidthSaveOpenTest, StandardWidthIsTheFilesDefaultWidth) {
    EXPECT_DOUBLE_EQ(widths->StandardWidth(), 10.0);
    EXPECT_EQ(widths->Range("F1")->ColumnWidth(), Variant(10.0));  // no col element
}

TEST_F(ColumnWidthSaveOpenTest, ColumnWidthReadsTheFilesWidthCustomOrNot) {
    EXPECT_EQ(widths->Range("A1")->ColumnWidth(), Variant(25.43));  // 183 px
    EXPECT_EQ(widths->Range("B1:D1")->ColumnWidth(), Variant(10.71));  // 80 px
    EXPECT_EQ(widths->Range("XFD1")->ColumnWidth(), Variant(10.0));
}

TEST_F(ColumnWidthSaveOpenTest, SavedAgainEveryWidthIsAsTheFileGaveIt) {
    opened->SaveAs(PathOf("resaved.xlsx"));
    ExpectSameColumnWidths(PathOf("widths.xlsx"), PathOf("resaved.xlsx"));
    EXPECT_EQ(RunTool("validate-xlsx", PathOf("resaved.xlsx")), 0);
}

TEST_F(ColumnWidthSaveOpenTest, AWidthSetAfterOpeningIsSavedAsACustomWidth) {
    widths->Range("B1")->SetColumnWidth(20.0);
    opened->SaveAs(PathOf("resaved.xlsx"));
    const ooxml::WorkbookDocument saved = ooxml::ReadPackage(PathOf("resaved.xlsx"));
    const auto byColumn = WidthsByColumn(saved.sheets.at(0));
    EXPECT_EQ(byColumn.at(2), std::make_pair(20.7109375, true));
    EXPECT_EQ(byColumn.at(3), std::make_pair(11.5, false));
    EXPECT_EQ(byColumn.at(1), std::make_pair(26.109375, true));
}

TEST_F(SaveOpenTest, ExcelWorkbookKeepsItsDefaultAndColumnWidths) {
    // Made by Excel for the Mac: a default width of 11 and custom widths such as 7.125.
    const std::string original = std::string(VOS_SHARED_DIR) + "/excel-corpus/realworld-excel/poi__47813.xlsx";
    auto excelBook = app->Workbooks()->Open(original);
    auto numbers = excelBook->Worksheets(1);
    EXPECT_DOUBLE_EQ(numbers->StandardWidth(), 10.29);        // 77 px
    EXPECT_EQ(numbers->Range("A1")->ColumnWidth(), Variant(6.43));  // 50 px
    excelBook->SaveAs(PathOf("resaved.xlsx"));
    ExpectSameColumnWidths(original, PathOf("resaved.xlsx"));
}
