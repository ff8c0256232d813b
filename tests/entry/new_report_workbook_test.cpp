#include "report_fixture.hpp"

namespace {

constexpr const char* Placeholder = "_ReportPlaceholder_";

class NewReportWorkbookTest : public ReportTest {
protected:
    int32_t OpenWorkbooks() { return app->Workbooks()->Count(); }
};

}  // namespace

TEST_F(NewReportWorkbookTest, MakesAOneSheetWorkbookWithThePlaceholderSheetAndTagsIt) {
    auto report = NewWorkbook();
    auto book = report->ExcelWorkbook();
    EXPECT_EQ(SheetNames(book), std::vector<std::string>{Placeholder});
    EXPECT_TRUE(reporting.WorkbookHasCreationTag(book, "MyApp"));
    EXPECT_EQ(book->Names()->Item("VostrandReportWorkbookCreatedBy")->RefersTo(), "=\"MyApp\"");
    EXPECT_TRUE(book->Names()->Item("VostrandReportWorkbookCreatedBy")->Visible());
    EXPECT_EQ(report->applicationIdentifier(), "MyApp");
    EXPECT_EQ(report->DefaultLanguage(), 9);
    EXPECT_FALSE(report->UseThemes());
}

TEST_F(NewReportWorkbookTest, TheNewWorkbookBecomesTheActiveOne) {
    auto first = NewWorkbook()->ExcelWorkbook();
    app->Workbooks()->Add();
    auto second = NewWorkbook()->ExcelWorkbook();
    EXPECT_TRUE(excel::IsSameObject(app->ActiveWorkbook(), second));
    NewWorkbook("Other");
    reporting.NewReportWorkbook(app, "MyApp", first);
    EXPECT_TRUE(excel::IsSameObject(app->ActiveWorkbook(), first));
}

TEST_F(NewReportWorkbookTest, AMissingApplicationFails) {
    ExpectAutomationError([&] { reporting.NewReportWorkbook(nullptr, "MyApp"); }, vos::error_code::MissingObject,
                          "xlApp");
}

TEST_F(NewReportWorkbookTest, AMissingApplicationIsReportedBeforeABlankIdentifier) {
    ExpectAutomationError([&] { reporting.NewReportWorkbook(nullptr, " "); }, vos::error_code::MissingObject, "xlApp");
}

TEST_F(NewReportWorkbookTest, ABlankIdentifierFailsExactlyLikeAnEmptyOne) {
    ExpectAutomationError([&] { reporting.NewReportWorkbook(app, ""); }, vos::error_code::EmptyArgument,
                          "applicationIdentifier");
    ExpectAutomationError([&] { reporting.NewReportWorkbook(app, "    "); }, vos::error_code::EmptyArgument,
                          "applicationIdentifier");
    EXPECT_EQ(OpenWorkbooks(), 0);
}

TEST_F(NewReportWorkbookTest, TheIdentifierIsTrimmedBeforeItIsStoredAndTagged) {
    auto report = NewWorkbook("  MyApp  ");
    EXPECT_EQ(report->applicationIdentifier(), "MyApp");
    EXPECT_EQ(report->ExcelWorkbook()->Names()->Item("VostrandReportWorkbookCreatedBy")->RefersTo(), "=\"MyApp\"");
    auto sheet = report->NewReportWorksheet("Data")->ExcelWorksheet();
    EXPECT_EQ(sheet->Evaluate("VostrandReportWorksheetCreatedBy").ToString(), "MyApp");
}

TEST_F(NewReportWorkbookTest, AWorkbookOfAnotherApplicationObjectFails) {
    auto otherApp = excel::embedded::CreateApplication();
    auto foreign = otherApp->Workbooks()->Add();
    ExpectAutomationError([&] { reporting.NewReportWorkbook(app, "MyApp", foreign); }, vos::error_code::InvalidArgument,
                          "existingWB");
    EXPECT_EQ(OpenWorkbooks(), 0);
    EXPECT_EQ(otherApp->Workbooks()->Count(), 1);
}

TEST_F(NewReportWorkbookTest, ASuppliedWorkbookIsUsedAsItIsWithoutTagOrPlaceholder) {
    auto book = app->Workbooks()->Add();
    auto report = reporting.NewReportWorkbook(app, "MyApp", book);
    EXPECT_TRUE(excel::IsSameObject(report->ExcelWorkbook(), book));
    EXPECT_EQ(SheetNames(book), std::vector<std::string>{"Sheet1"});
    EXPECT_FALSE(reporting.WorkbookHasCreationTag(book));
    EXPECT_EQ(OpenWorkbooks(), 1);
}

TEST_F(NewReportWorkbookTest, ASuppliedWorkbookWithProtectedStructureIsPassedOver) {
    auto book = app->Workbooks()->Add();
    book->Protect(excel::Variant(), true);
    auto report = reporting.NewReportWorkbook(app, "MyApp", book);
    EXPECT_FALSE(excel::IsSameObject(report->ExcelWorkbook(), book));
    EXPECT_EQ(SheetNames(report->ExcelWorkbook()), std::vector<std::string>{Placeholder});
    EXPECT_EQ(OpenWorkbooks(), 2);
}

TEST_F(NewReportWorkbookTest, AProtectedSuppliedWorkbookLetsTheSearchForATaggedOneRun) {
    auto tagged = NewWorkbook()->ExcelWorkbook();
    auto book = app->Workbooks()->Add();
    book->Protect(excel::Variant(), true);
    auto report = reporting.NewReportWorkbook(app, "MyApp", book, true);
    EXPECT_TRUE(excel::IsSameObject(report->ExcelWorkbook(), tagged));
}

TEST_F(NewReportWorkbookTest, ReuseTakesTheFirstTaggedWorkbookInCollectionOrder) {
    app->Workbooks()->Add();
    auto first = NewWorkbook()->ExcelWorkbook();
    auto second = NewWorkbook()->ExcelWorkbook();
    NewWorkbook("OtherApp");
    auto report = reporting.NewReportWorkbook(app, "myapp", nullptr, true);
    EXPECT_TRUE(excel::IsSameObject(report->ExcelWorkbook(), first));
    EXPECT_FALSE(excel::IsSameObject(report->ExcelWorkbook(), second));
    EXPECT_EQ(OpenWorkbooks(), 4);
}

TEST_F(NewReportWorkbookTest, AReusedWorkbookIsNotTaggedAgainAndGetsNoPlaceholder) {
    auto first = NewWorkbook();
    first->NewReportWorksheet("Data");
    const int32_t namesBefore = first->ExcelWorkbook()->Names()->Count();
    auto report = reporting.NewReportWorkbook(app, "MyApp", nullptr, true);
    EXPECT_EQ(SheetNames(report->ExcelWorkbook()), std::vector<std::string>{"Data"});
    EXPECT_EQ(report->ExcelWorkbook()->Names()->Count(), namesBefore);
}

TEST_F(NewReportWorkbookTest, ReuseWithNoTaggedWorkbookCreatesANewOneSheetWorkbook) {
    auto untagged = app->Workbooks()->Add();
    NewWorkbook("OtherApp");
    auto report = reporting.NewReportWorkbook(app, "MyApp", nullptr, true);
    EXPECT_EQ(OpenWorkbooks(), 3);
    EXPECT_FALSE(excel::IsSameObject(report->ExcelWorkbook(), untagged));
    EXPECT_EQ(SheetNames(report->ExcelWorkbook()), std::vector<std::string>{Placeholder});
}

TEST_F(NewReportWorkbookTest, WithoutReuseATaggedWorkbookIsNotTaken) {
    auto tagged = NewWorkbook()->ExcelWorkbook();
    auto report = NewWorkbook();
    EXPECT_FALSE(excel::IsSameObject(report->ExcelWorkbook(), tagged));
    EXPECT_EQ(OpenWorkbooks(), 2);
}

TEST_F(NewReportWorkbookTest, ASuppliedWorkbookWithReuseDoesNotSearchTheOpenWorkbooks) {
    NewWorkbook();
    auto supplied = app->Workbooks()->Add();
    auto report = reporting.NewReportWorkbook(app, "MyApp", supplied, true);
    EXPECT_TRUE(excel::IsSameObject(report->ExcelWorkbook(), supplied));
}

TEST_F(NewReportWorkbookTest, SheetsInNewWorkbookIsTheSameAfterTheCall) {
    app->SetSheetsInNewWorkbook(4);
    auto report = NewWorkbook();
    EXPECT_EQ(app->SheetsInNewWorkbook(), 4);
    EXPECT_EQ(report->ExcelWorkbook()->Worksheets()->Count(), 1);
}

TEST_F(NewReportWorkbookTest, TheLanguageIsHandedToTheWorkbookAndItsSheets) {
    auto report = reporting.NewReportWorkbook(app, "MyApp", nullptr, false, 12);
    EXPECT_EQ(report->DefaultLanguage(), 12);
    EXPECT_EQ(report->NewReportWorksheet("Data")->DefaultLanguage(), 12);
}

TEST_F(NewReportWorkbookTest, EntryObjectsAnswerTheCreationTagQuestions) {
    auto report = NewWorkbook();
    auto sheet = report->NewReportWorksheet("Data")->ExcelWorksheet();
    vos::VosExcelReporting another;
    EXPECT_TRUE(another.WorkbookHasCreationTag(report->ExcelWorkbook(), " myapp "));
    EXPECT_TRUE(another.WorksheetHasCreationTag(sheet, "MYAPP"));
    EXPECT_FALSE(another.WorksheetHasCreationTag(sheet, "OtherApp"));
    ExpectAutomationError([&] { another.WorkbookHasCreationTag(nullptr); }, vos::error_code::MissingObject, "wb");
    ExpectAutomationError([&] { another.WorksheetHasCreationTag(nullptr); }, vos::error_code::MissingObject, "ws");
}
