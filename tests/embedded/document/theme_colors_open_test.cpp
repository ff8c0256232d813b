// An opened workbook shows its theme colours as its own theme has them, not as the Office theme
// does; a new workbook keeps the Office theme.

#include "embedded/document/save_open_fixture.hpp"

#include <string>

using namespace excel;

namespace {

// An Excel 2007 template with the Apex theme: accent1 #CEB966, accent2 #9CB084, accent4 #6585CF
// where the Office theme has #4472C4, #ED7D31 and #FFC000. The title row of its Expenses sheet
// (A5:G5) has accent4 text darkened by 25% on an accent4 fill lightened by 80%.
const std::string ApexWorkbook =
    std::string(VOS_SHARED_DIR) + "/excel-corpus/realworld-excel/" + "oxsdk__O12tpl__EventBudget_TP10194064.xltx";

constexpr double Darker25 = -0.24994659260841701;
constexpr double Lighter80 = 0.79998168889431442;

// RGB Longs (0x00BBGGRR).
constexpr int32_t ApexAccent1 = 0x66B9CE;
constexpr int32_t ApexAccent2 = 0x84B09C;
constexpr int32_t ApexAccent4Darker25 = 0xB05B37;   // #375BB0
constexpr int32_t ApexAccent4Lighter80 = 0xF5E7E0;  // #E0E7F5
constexpr int32_t OfficeAccent1 = 0xC47244;

class ThemeColorsOpenTest : public SaveOpenTest {
protected:
    std::shared_ptr<Worksheet> OpenApex() {
        apex = app->Workbooks()->Open(ApexWorkbook);
        return apex->Worksheets("Expenses");
    }

    std::shared_ptr<Workbook> apex;
};

double ColorOf(const Variant& value) {
    return value.ToDouble();
}

TEST_F(ThemeColorsOpenTest, CellsShowTheThemeColoursOfTheirFileWithTheirTints) {
    auto title = OpenApex()->Range("A5");
    EXPECT_EQ(title->Font()->ThemeColor(), Variant(xlThemeColorAccent4));
    EXPECT_DOUBLE_EQ(title->Font()->TintAndShade().ToDouble(), Darker25);
    EXPECT_EQ(ColorOf(title->Font()->Color()), ApexAccent4Darker25);
    EXPECT_EQ(title->Interior()->ThemeColor(), Variant(xlThemeColorAccent4));
    EXPECT_DOUBLE_EQ(title->Interior()->TintAndShade().ToDouble(), Lighter80);
    EXPECT_EQ(ColorOf(title->Interior()->Color()), ApexAccent4Lighter80);
    // The whole title row agrees.
    EXPECT_EQ(ColorOf(OpenApex()->Range("A5:G5")->Interior()->Color()), ApexAccent4Lighter80);
}

TEST_F(ThemeColorsOpenTest, ThemeColoursSetInAnOpenedWorkbookAreItsThemes) {
    auto sheet = OpenApex();
    auto cell = sheet->Range("J2");
    cell->SetValue(Variant("Apex"));
    cell->Font()->SetThemeColor(xlThemeColorAccent1);
    EXPECT_EQ(ColorOf(cell->Font()->Color()), ApexAccent1);
    cell->Interior()->SetThemeColor(xlThemeColorAccent2);
    EXPECT_EQ(ColorOf(cell->Interior()->Color()), ApexAccent2);
    cell->Borders(xlEdgeBottom)->SetLineStyle(xlContinuous);
    cell->Borders(xlEdgeBottom)->SetThemeColor(xlThemeColorAccent1);
    EXPECT_EQ(ColorOf(cell->Borders(xlEdgeBottom)->Color()), ApexAccent1);
    cell->Characters(1, 2)->Font()->SetThemeColor(xlThemeColorAccent2);
    EXPECT_EQ(ColorOf(cell->Characters(1, 2)->Font()->Color()), ApexAccent2);

    auto box = sheet->Shapes()->AddTextbox(msoTextOrientationHorizontal, 0, 0, 100, 40);
    box->Fill()->ForeColor()->SetObjectThemeColor(msoThemeColorAccent1);
    EXPECT_EQ(box->Fill()->ForeColor()->RGB(), ApexAccent1);
}

TEST_F(ThemeColorsOpenTest, ANewWorkbookKeepsTheOfficeThemeBesideAnOpenedOne) {
    OpenApex();
    for (const auto& workbook : {book, app->Workbooks()->Add()}) {
        auto cell = workbook->Worksheets(1)->Range("A1");
        cell->Font()->SetThemeColor(xlThemeColorAccent1);
        EXPECT_EQ(ColorOf(cell->Font()->Color()), OfficeAccent1);
    }
}

TEST_F(ThemeColorsOpenTest, SavedAndOpenedAgainTheWorkbookKeepsItsTheme) {
    auto sheet = OpenApex();
    auto note = sheet->Range("J2")->AddComment("Apex")->Shape();
    note->Fill()->ForeColor()->SetObjectThemeColor(msoThemeColorAccent1);
    apex->SaveAs(PathOf("apex.xlsx"));
    apex->Close();
    auto reopened = app->Workbooks()->Open(PathOf("apex.xlsx"));
    auto again = reopened->Worksheets("Expenses");
    EXPECT_EQ(ColorOf(again->Range("A5")->Font()->Color()), ApexAccent4Darker25);
    EXPECT_EQ(ColorOf(again->Range("A5")->Interior()->Color()), ApexAccent4Lighter80);
    // A note's colour is saved as the RGB it shows.
    EXPECT_EQ(again->Range("J2")->Comment()->Shape()->Fill()->ForeColor()->RGB(), ApexAccent1);
}

TEST_F(ThemeColorsOpenTest, ANewWorkbookSavedAndOpenedAgainKeepsTheOfficeTheme) {
    At("A1")->Font()->SetThemeColor(xlThemeColorAccent1);
    auto reopened = SaveAndReopen("office.xlsx");
    EXPECT_EQ(ColorOf(reopened->Worksheets(1)->Range("A1")->Font()->Color()), OfficeAccent1);
}

}  // namespace
