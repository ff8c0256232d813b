#include "report_fixture.hpp"

#include "workbook/report_workbook.hpp"

namespace {

constexpr const char* Placeholder = "_ReportPlaceholder_";

class ReportWorkbookTest : public ReportTest {
protected:
    void SetUp() override {
        ReportTest::SetUp();
        report = NewWorkbook();
        book = report->ExcelWorkbook();
    }

    vos::ReportWorkbook& Internals() { return dynamic_cast<vos::ReportWorkbook&>(*report); }
    int32_t SheetCount() { return book->Worksheets()->Count(); }

    std::shared_ptr<vos::VosExcelReportWorkbook> report;
    std::shared_ptr<excel::Workbook> book;
};

}  // namespace

TEST_F(ReportWorkbookTest, TheFirstReportSheetReplacesThePlaceholder) {
    auto sheet = report->NewReportWorksheet("Data");
    EXPECT_EQ(SheetNames(book), std::vector<std::string>{"Data"});
    EXPECT_TRUE(excel::IsSameObject(sheet->ExcelWorksheet(), book->Worksheets(1)));
}

TEST_F(ReportWorkbookTest, ReportSheetsGoToTheEndInTheOrderAsked) {
    report->NewReportWorksheet("First");
    book->Worksheets()->Add(book->Worksheets(1))->SetName("Before");
    report->NewReportWorksheet("Second");
    report->NewReportWorksheet("Third");
    EXPECT_EQ(SheetNames(book), (std::vector<std::string>{"Before", "First", "Second", "Third"}));
}

TEST_F(ReportWorkbookTest, InAWorkbookEndingInAChartSheetReportSheetsFollowTheLastWorksheet) {
    // Sheet1 ... Sheet2 and last the chart sheet Chart2.
    const auto opened =
        app->Workbooks()->Open(std::string(VOS_SHARED_DIR) + "/excel-corpus/realworld-excel/poi__WithChartSheet.xlsx");
    auto chartReport = reporting.NewReportWorkbook(app, "MyApp", opened);
    EXPECT_EQ(chartReport->NewReportWorksheet("Chart2")->ExcelWorksheet()->Name(), "Chart2 (2)");
    EXPECT_EQ(chartReport->NewReportWorksheet("Data")->ExcelWorksheet()->Index(), 8);
    EXPECT_EQ(opened->Sheets()->Count(), 9);
    EXPECT_EQ(opened->Worksheets(8)->Name(), "Data");
}

TEST_F(ReportWorkbookTest, SheetNamesAreTrimmedMadeValidAndUnique) {
    EXPECT_EQ(report->NewReportWorksheet("  Data  ")->ExcelWorksheet()->Name(), "Data");
    EXPECT_EQ(report->NewReportWorksheet("data")->ExcelWorksheet()->Name(), "data (2)");
    EXPECT_EQ(report->NewReportWorksheet("Sales/Costs")->ExcelWorksheet()->Name(), "Sales_Costs");
}

TEST_F(ReportWorkbookTest, ABlankSheetNameFailsAndAddsNothing) {
    report->NewReportWorksheet("Data");
    ExpectAutomationError([&] { report->NewReportWorksheet("   "); }, vos::error_code::EmptyArgument, "worksheetName");
    ExpectAutomationError([&] { report->NewReportWorksheet(""); }, vos::error_code::EmptyArgument, "worksheetName");
    EXPECT_EQ(SheetNames(book), std::vector<std::string>{"Data"});
}

TEST_F(ReportWorkbookTest, ReportSheetsAreTaggedForTheWorkbooksApplication) {
    auto sheet = report->NewReportWorksheet("Data")->ExcelWorksheet();
    EXPECT_TRUE(reporting.WorksheetHasCreationTag(sheet, "MyApp"));
    EXPECT_FALSE(reporting.WorksheetHasCreationTag(sheet, "OtherApp"));
}

TEST_F(ReportWorkbookTest, DeletingEveryTaggedSheetLeavesThePlaceholderUntilTheNextSheet) {
    report->NewReportWorksheet("One");
    report->NewReportWorksheet("Two");
    report->DeleteReportWorksheets();
    EXPECT_EQ(SheetNames(book), std::vector<std::string>{Placeholder});
    report->NewReportWorksheet("Three");
    EXPECT_EQ(SheetNames(book), std::vector<std::string>{"Three"});
}

TEST_F(ReportWorkbookTest, OnlyThisApplicationsSheetsGoUnlessAllAreAskedFor) {
    report->NewReportWorksheet("Mine");
    auto other = reporting.NewReportWorkbook(app, "OtherApp", book);
    other->NewReportWorksheet("Theirs");
    book->Worksheets()->Add(excel::Variant(), book->Worksheets(2))->SetName("Untagged");

    report->DeleteReportWorksheets(false);
    EXPECT_EQ(SheetNames(book), (std::vector<std::string>{"Theirs", "Untagged"}));

    report->NewReportWorksheet("Mine again");
    report->DeleteReportWorksheets(true);
    EXPECT_EQ(SheetNames(book), std::vector<std::string>{"Untagged"});
}

TEST_F(ReportWorkbookTest, DeletingWhenNothingIsTaggedChangesNothing) {
    report->NewReportWorksheet("Mine");
    auto plain = app->Workbooks()->Add();
    auto other = reporting.NewReportWorkbook(app, "MyApp", plain);
    other->DeleteReportWorksheets();
    EXPECT_EQ(SheetNames(plain), std::vector<std::string>{"Sheet1"});
}

TEST_F(ReportWorkbookTest, ThemeColoursForDrawingObjectsSwapDarkAndLight) {
    EXPECT_EQ(Internals().ThemeColorFor(vos::VosGeneralFont, true), 1);
    EXPECT_EQ(Internals().ThemeColorFor(vos::VosTableTitle, true), 4);
    EXPECT_EQ(Internals().ThemeColorFor(vos::VosCommentFont, true), 5);
    EXPECT_EQ(Internals().ThemeColorFor(vos::VosReportHeader, true), 2);
    EXPECT_EQ(Internals().ThemeColorFor(vos::VosSpecialFont, true), 6);
}

TEST_F(ReportWorkbookTest, TheThemeTableForCells) {
    const std::vector<std::pair<int32_t, float>> expected{{1, 0.0f}, {3, -0.25f}, {1, 0.0f},   {3, 0.0f},
                                                          {1, -0.25f}, {2, 0.0f}, {5, -0.25f}, {6, -0.25f}};
    for (int32_t type = vos::VosReportHeader; type <= vos::VosSpecialFont; ++type) {
        EXPECT_EQ(Internals().ThemeColorFor(type, false), expected[static_cast<size_t>(type - 1)].first) << type;
        EXPECT_EQ(Internals().ThemeTintAndShadeFor(type), expected[static_cast<size_t>(type - 1)].second) << type;
    }
}

TEST_F(ReportWorkbookTest, AnUnknownThemePropertyReadsTheTableBordersEntry) {
    for (int32_t type : {0, 9, -3}) {
        EXPECT_EQ(Internals().ThemeColorFor(type, false), 1);
        EXPECT_EQ(Internals().ThemeColorFor(type, true), 2);
        EXPECT_EQ(Internals().ThemeTintAndShadeFor(type), -0.25f);
    }
}

TEST_F(ReportWorkbookTest, UseThemesIsOffUntilSwitchedOn) {
    EXPECT_FALSE(report->UseThemes());
    report->SetUseThemes(true);
    EXPECT_TRUE(report->UseThemes());
}

TEST_F(ReportWorkbookTest, ActivatingTheFirstSheetBeforeAnyWasMadeDoesNothing) {
    auto active = app->ActiveSheet();
    EXPECT_NO_THROW(report->ActivateFirstWorksheetCreated());
    EXPECT_TRUE(excel::IsSameObject(app->ActiveSheet(), active));
}

TEST_F(ReportWorkbookTest, ActivatingTheFirstSheetCreated) {
    auto first = report->NewReportWorksheet("First")->ExcelWorksheet();
    report->NewReportWorksheet("Second");
    EXPECT_FALSE(excel::IsSameObject(book->ActiveSheet(), first));
    report->ActivateFirstWorksheetCreated();
    EXPECT_TRUE(excel::IsSameObject(book->ActiveSheet(), first));
}

TEST_F(ReportWorkbookTest, ThePlaceholderCanBeAddedFoundAndRemoved) {
    report->NewReportWorksheet("Data");
    EXPECT_FALSE(Internals().HasPlaceholderSheet());
    auto placeholder = Internals().AddPlaceholderSheet();
    EXPECT_EQ(placeholder->Name(), Placeholder);
    EXPECT_EQ(SheetNames(book), (std::vector<std::string>{"Data", Placeholder}));
    EXPECT_TRUE(Internals().HasPlaceholderSheet());
    Internals().RemovePlaceholderSheet();
    EXPECT_EQ(SheetNames(book), std::vector<std::string>{"Data"});
    EXPECT_NO_THROW(Internals().RemovePlaceholderSheet());
}

TEST_F(ReportWorkbookTest, ThePlaceholderStaysWhenItIsTheOnlySheet) {
    EXPECT_NO_THROW(Internals().RemovePlaceholderSheet());
    EXPECT_EQ(SheetNames(book), std::vector<std::string>{Placeholder});
}

TEST_F(ReportWorkbookTest, TheInitializerRefusesAMissingWorkbookOrIdentifier) {
    vos::ReportWorkbook fresh;
    ExpectAutomationError([&] { fresh.InitializeWorkbook(nullptr, "MyApp", 9); }, vos::error_code::MissingObject,
                          "ExcelWorkbook");
    ExpectAutomationError([&] { fresh.InitializeWorkbook(book, "", 9); }, vos::error_code::EmptyArgument,
                          "ApplicationIdentifier");
}

TEST_F(ReportWorkbookTest, AReportSheetNeverTakesThePlaceholdersName) {
    report->NewReportWorksheet("Data");
    auto sheet = report->NewReportWorksheet("_reportplaceholder_");
    EXPECT_EQ(sheet->ExcelWorksheet()->Name(), "_reportplaceholder_ (2)");
    EXPECT_EQ(SheetNames(book), (std::vector<std::string>{"Data", "_reportplaceholder_ (2)"}));
}
