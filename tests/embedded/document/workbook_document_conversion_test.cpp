#include "excel/embedded/document/workbook_document_conversion.hpp"
#include "excel/embedded/model/application_model.hpp"
#include "excel/embedded/model/cell_address.hpp"
#include "excel/embedded/model/geometry/geometry.hpp"
#include "excel/embedded/model/workbook_model.hpp"

#include <gtest/gtest.h>

#include <memory>

namespace excel::embedded {
namespace {

ooxml::WorkbookDocument TwoSheetDocument() {
    ooxml::WorkbookDocument document;
    document.sheets.resize(2);
    document.sheets[0].name = "Data";
    document.sheets[1].name = "Users";
    return document;
}

TEST(WorkbookDocumentConversion, NameDefinedTwiceInOneScopeKeepsItsFirstDefinition) {
    ooxml::WorkbookDocument document = TwoSheetDocument();
    document.names = {{"_xlnm._FilterDatabase", "Users!$A$1:$E$32", 1u, true},
                      {"_XLNM._filterdatabase", "Users!$A$1:$E$9", 1u, false},
                      {"_xlnm._FilterDatabase", "Data!$A$1:$B$2", 0u, true},
                      {"Total", "Data!$B$2", std::nullopt, false},
                      {"TOTAL", "Data!$B$3", std::nullopt, false}};
    auto app = std::make_shared<ApplicationModel>();
    auto book = std::make_shared<WorkbookModel>(*app, "Names.xlsx");
    LoadDocument(*book, document);

    const ooxml::WorkbookDocument saved = ToDocument(*book, "test");
    ASSERT_EQ(saved.names.size(), 3u);
    for (const ooxml::DefinedName& name : saved.names) {
        if (name.name == "Total") {
            EXPECT_EQ(name.formula, "Data!$B$2");
        } else if (name.localSheet == 1u) {
            EXPECT_EQ(name.formula, "Users!$A$1:$E$32");
        } else {
            EXPECT_EQ(name.formula, "Data!$A$1:$B$2");
        }
    }
}

TEST(WorkbookDocumentConversion, AChangedPaletteIsSavedAfterTheEightFixedColours) {
    auto app = std::make_shared<ApplicationModel>();
    auto book = app->AddWorkbook();
    EXPECT_TRUE(ToDocument(*book, "test").palette.empty());  // Excel's standard palette is not written
    book->Palette()[0] = 0x563412;                            // ColorIndex 1 as RGB 12 34 56
    book->Palette()[55] = 0x996633;
    const ooxml::WorkbookDocument saved = ToDocument(*book, "test");
    ASSERT_EQ(saved.palette.size(), 64u);
    EXPECT_EQ(saved.palette[0], 0x000000u);  // the fixed colours: black, white, red, ...
    EXPECT_EQ(saved.palette[2], 0xFF0000u);
    EXPECT_EQ(saved.palette[7], 0x00FFFFu);
    EXPECT_EQ(saved.palette[8], 0x123456u);
    EXPECT_EQ(saved.palette[9], 0xFFFFFFu);
    EXPECT_EQ(saved.palette[63], 0x336699u);
}

TEST(WorkbookDocumentConversion, AnOpenedPaletteKeepsExcelsStandardColoursWhereTheFileListsNone) {
    ooxml::WorkbookDocument document = TwoSheetDocument();
    document.palette = {0x000000, 0xFFFFFF, 0xFF0000, 0x00FF00, 0x0000FF, 0xFFFF00, 0xFF00FF, 0x00FFFF,
                        0x123456, std::nullopt, 0xABCDEF};
    auto app = std::make_shared<ApplicationModel>();
    auto book = std::make_shared<WorkbookModel>(*app, "Palette.xlsx");
    LoadDocument(*book, document);
    EXPECT_EQ(book->Palette()[0], 0x563412u);  // indexed 8, ColorIndex 1
    EXPECT_EQ(book->Palette()[1], 0xFFFFFFu);  // no RGB given: the standard white
    EXPECT_EQ(book->Palette()[2], 0xEFCDABu);
    EXPECT_EQ(book->Palette()[3], 0x00FF00u);  // not listed: Excel's standard colour
    EXPECT_EQ(book->Palette()[55], 0x333333u);
}

TEST(WorkbookDocumentConversion, TheThemeIsSavedWithTheOfficeColours) {
    auto app = std::make_shared<ApplicationModel>();
    const ooxml::WorkbookDocument saved = ToDocument(*app->AddWorkbook(), "test");
    EXPECT_EQ(saved.themeColors[0], 0xFFFFFFu);   // lt1
    EXPECT_EQ(saved.themeColors[1], 0x000000u);   // dk1
    EXPECT_EQ(saved.themeColors[3], 0x44546Au);   // dk2
    EXPECT_EQ(saved.themeColors[4], 0x4472C4u);   // accent1
    EXPECT_EQ(saved.themeColors[11], 0x954F72u);  // folHlink
}

TEST(WorkbookDocumentConversion, TheDateSystemIsLoadedAndSaved) {
    auto app = std::make_shared<ApplicationModel>();
    EXPECT_FALSE(ToDocument(*app->AddWorkbook(), "test").date1904);
    ooxml::WorkbookDocument document = TwoSheetDocument();
    document.date1904 = true;
    auto book = std::make_shared<WorkbookModel>(*app, "Dates.xlsx");
    LoadDocument(*book, document);
    EXPECT_TRUE(book->Date1904());
    EXPECT_TRUE(ToDocument(*book, "test").date1904);
}

TEST(WorkbookDocumentConversion, AnOpenedWorkbookTakesTheColoursOfItsOwnTheme) {
    ooxml::WorkbookDocument document = TwoSheetDocument();
    document.themeColors = {0xFFFFFF, 0x000000, 0xC9C2D1, 0x69676D, 0xCEB966, 0x9CB084,
                            0x6BB1C9, 0x6585CF, 0x7E6BC9, 0xA379BB, 0xB333FF, 0x5300A6};
    document.themeFromFile = true;
    auto app = std::make_shared<ApplicationModel>();
    auto book = std::make_shared<WorkbookModel>(*app, "Apex.xlsx");
    LoadDocument(*book, document);
    EXPECT_EQ(book->ThemeColors()[2], 0xD1C2C9u);  // lt2, as an RGB Long
    EXPECT_EQ(book->ThemeColors()[4], 0x66B9CEu);  // accent1
    EXPECT_EQ(book->ThemeColors()[11], 0xA60053u);
    // Saved again, the document carries them for a workbook that would need a theme written.
    EXPECT_EQ(ToDocument(*book, "test").themeColors, document.themeColors);
}

TEST(WorkbookDocumentConversion, AFileWithoutThemeColoursLeavesTheOfficeTheme) {
    ooxml::WorkbookDocument document = TwoSheetDocument();
    document.themeColors.fill(0x123456);  // not from the file: not taken
    auto app = std::make_shared<ApplicationModel>();
    auto book = std::make_shared<WorkbookModel>(*app, "Plain.xlsx");
    LoadDocument(*book, document);
    EXPECT_EQ(book->ThemeColors(), app->AddWorkbook()->ThemeColors());
    EXPECT_EQ(book->ThemeColors()[4], 0xC47244u);  // accent1 #4472C4
}

TEST(WorkbookDocumentConversion, ColumnSpansLoadAsRunsAndSaveAsOneElementPerRun) {
    ooxml::WorkbookDocument document = TwoSheetDocument();
    ooxml::ColumnRange wide;
    wide.first = 1;
    wide.last = 4;
    wide.width = FileColumnWidth(20.0);
    wide.customWidth = true;
    ooxml::ColumnRange rest = wide;
    rest.first = 5;
    rest.last = 16384;
    rest.width = FileColumnWidth(8.45);
    rest.customWidth = false;
    document.sheets[0].columns = {wide, rest};
    auto app = std::make_shared<ApplicationModel>();
    auto book = std::make_shared<WorkbookModel>(*app, "Columns.xlsx");
    LoadDocument(*book, document);

    const ColumnStore& columns = book->Sheets()[0]->Columns();
    ASSERT_EQ(columns.Runs().size(), 2u);
    EXPECT_EQ(columns.Runs()[1].first, 5);
    EXPECT_EQ(columns.Runs()[1].last, MaxColumn);
    EXPECT_EQ(columns.Get(MaxColumn), columns.Get(5));

    const ooxml::WorkbookDocument saved = ToDocument(*book, "test");
    EXPECT_EQ(saved.sheets[0].columns, document.sheets[0].columns);
}

TEST(WorkbookDocumentConversion, WidthsOfAFileAreKeptAsTheFileGaveThem) {
    ooxml::WorkbookDocument document = TwoSheetDocument();
    document.sheets[0].defaultColumnWidth = 11.0;  // 10.29 characters, 77 px
    document.sheets[0].columns = {{1, 2, 7.125, std::nullopt, false, true}, {3, 3, 12.5, std::nullopt, false, false}};
    auto app = std::make_shared<ApplicationModel>();
    auto book = std::make_shared<WorkbookModel>(*app, "Widths.xlsx");
    LoadDocument(*book, document);
    const WorksheetModel& sheet = *book->Sheets()[0];
    EXPECT_DOUBLE_EQ(sheet.Settings().standardWidth, 10.29);
    EXPECT_DOUBLE_EQ(sheet.ColumnWidthChars(1), 6.43);
    EXPECT_DOUBLE_EQ(sheet.ColumnWidthChars(3), 11.71);
    EXPECT_DOUBLE_EQ(sheet.ColumnWidthChars(4), 10.29);

    const ooxml::WorkbookDocument saved = ToDocument(*book, "test");
    EXPECT_EQ(saved.sheets[0].defaultColumnWidth, 11.0);
    EXPECT_EQ(saved.sheets[0].columns, document.sheets[0].columns);
    EXPECT_FALSE(saved.sheets[1].defaultColumnWidth.has_value());  // the standard width is not written
}

}  // namespace
}  // namespace excel::embedded
