#include "report_fixture.hpp"

#include "workbook/creation_tags.hpp"

#include <unistd.h>

#include <filesystem>

namespace {

class CreationTagsTest : public ReportTest {
protected:
    void SetUp() override {
        ReportTest::SetUp();
        book = app->Workbooks()->Add();
        sheet = book->Worksheets(1);
    }

    std::shared_ptr<excel::Workbook> book;
    std::shared_ptr<excel::Worksheet> sheet;
};

}  // namespace

TEST_F(CreationTagsTest, AWorkbookTagIsAVisibleWorkbookLevelTextName) {
    vos::TagWorkbook(book, "MyApp");
    const auto name = book->Names()->Item("VostrandReportWorkbookCreatedBy");
    EXPECT_EQ(name->GetName(), "VostrandReportWorkbookCreatedBy");
    EXPECT_EQ(name->RefersTo(), "=\"MyApp\"");
    EXPECT_TRUE(name->Visible());
}

TEST_F(CreationTagsTest, AWorksheetTagIsAVisibleNameLocalToTheSheet) {
    sheet->SetName("Data");
    vos::TagWorksheet(sheet, "MyApp");
    const auto name = book->Names()->Item("Data!VostrandReportWorksheetCreatedBy");
    EXPECT_EQ(name->RefersTo(), "=\"MyApp\"");
    EXPECT_TRUE(name->Visible());
    EXPECT_EQ(sheet->Names()->Count(), 1);
}

TEST_F(CreationTagsTest, ATaggedWorkbookMatchesItsIdentifierInAnyCaseTrimmedOrEmpty) {
    vos::TagWorkbook(book, "MyApp");
    EXPECT_TRUE(vos::WorkbookHasTag(book, "MyApp"));
    EXPECT_TRUE(vos::WorkbookHasTag(book, "myapp"));
    EXPECT_TRUE(vos::WorkbookHasTag(book, "  MyApp  "));
    EXPECT_TRUE(vos::WorkbookHasTag(book, ""));
    EXPECT_TRUE(vos::WorkbookHasTag(book, "   "));
    EXPECT_FALSE(vos::WorkbookHasTag(book, "OtherApp"));
    EXPECT_FALSE(vos::WorkbookHasTag(book, "MyApp2"));
}

TEST_F(CreationTagsTest, AWorkbookWithoutTheNameMatchesNoIdentifier) {
    for (const char* identifier : {"", "MyApp", "OtherApp"})
        EXPECT_FALSE(vos::WorkbookHasTag(book, identifier)) << identifier;
}

TEST_F(CreationTagsTest, ATaggedWorksheetMatchesLikeAWorkbook) {
    sheet->SetName("Q1 Data");
    vos::TagWorksheet(sheet, "MyApp");
    EXPECT_TRUE(vos::WorksheetHasTag(sheet, "MYAPP"));
    EXPECT_TRUE(vos::WorksheetHasTag(sheet, " MyApp"));
    EXPECT_TRUE(vos::WorksheetHasTag(sheet, ""));
    EXPECT_FALSE(vos::WorksheetHasTag(sheet, "OtherApp"));
    EXPECT_FALSE(vos::WorksheetHasTag(book->Worksheets()->Add(), ""));
}

TEST_F(CreationTagsTest, WorkbookAndWorksheetTagsDoNotSeeEachOther) {
    vos::TagWorksheet(sheet, "MyApp");
    EXPECT_FALSE(vos::WorkbookHasTag(book, ""));
    auto other = app->Workbooks()->Add();
    vos::TagWorkbook(other, "MyApp");
    EXPECT_FALSE(vos::WorksheetHasTag(other->Worksheets(1), ""));
}

TEST_F(CreationTagsTest, TheWorkbookTestReadsTheTagFromTheFirstSheet) {
    vos::TagWorkbook(book, "MyApp");
    book->Worksheets()->Add();  // becomes the first sheet
    EXPECT_TRUE(vos::WorkbookHasTag(book, "MyApp"));
}

TEST_F(CreationTagsTest, TheIdentifierIsStoredTrimmedWithItsCase) {
    vos::TagWorkbook(book, "  My App  ");
    EXPECT_EQ(book->Names()->Item("VostrandReportWorkbookCreatedBy")->RefersTo(), "=\"My App\"");
}

TEST_F(CreationTagsTest, AnIdentifierWithQuotesEvaluatesBackToItself) {
    vos::TagWorkbook(book, "Say \"hi\"");
    EXPECT_EQ(sheet->Evaluate("VostrandReportWorkbookCreatedBy").ToString(), "Say \"hi\"");
    EXPECT_TRUE(vos::WorkbookHasTag(book, "say \"HI\""));
}

TEST_F(CreationTagsTest, ANameHoldingSomethingElseThanTextIsNoTag) {
    book->Names()->Add("VostrandReportWorkbookCreatedBy", "=#N/A");
    EXPECT_FALSE(vos::WorkbookHasTag(book, ""));
}

TEST_F(CreationTagsTest, MissingObjectsAreNamed) {
    ExpectAutomationError([] { vos::TagWorkbook(nullptr, "MyApp"); }, vos::error_code::MissingObject, "wb");
    ExpectAutomationError([] { vos::WorkbookHasTag(nullptr, "MyApp"); }, vos::error_code::MissingObject, "wb");
    ExpectAutomationError([] { vos::TagWorksheet(nullptr, "MyApp"); }, vos::error_code::MissingObject, "ws");
    ExpectAutomationError([] { vos::WorksheetHasTag(nullptr, ""); }, vos::error_code::MissingObject, "ws");
}

TEST_F(CreationTagsTest, TaggingWithABlankIdentifierFailsAndWritesNothing) {
    ExpectAutomationError([&] { vos::TagWorkbook(book, "  "); }, vos::error_code::EmptyArgument,
                          "applicationIdentifier");
    ExpectAutomationError([&] { vos::TagWorksheet(sheet, ""); }, vos::error_code::EmptyArgument,
                          "applicationIdentifier");
    EXPECT_EQ(book->Names()->Count(), 0);
}

TEST_F(CreationTagsTest, TagsSurviveSavingAndOpening) {
    const auto folder = std::filesystem::temp_directory_path() / ("creation_tags_" + std::to_string(::getpid()));
    std::filesystem::create_directories(folder);
    const std::string path = (folder / "tagged.xlsx").string();

    auto report = reporting.NewReportWorkbook(app, "MyApp");
    auto quoted = report->NewReportWorksheet("Q1 Data")->ExcelWorksheet();
    report->NewReportWorksheet("Plain");
    report->ExcelWorkbook()->Worksheets()->Add(excel::Variant(), quoted)->SetName("Untagged");
    report->ExcelWorkbook()->SaveAs(path);
    report->ExcelWorkbook()->Close();

    auto reopened = app->Workbooks()->Open(path);
    EXPECT_TRUE(reporting.WorkbookHasCreationTag(reopened, "myapp"));
    EXPECT_FALSE(reporting.WorkbookHasCreationTag(reopened, "OtherApp"));
    EXPECT_TRUE(reporting.WorksheetHasCreationTag(reopened->Worksheets("Q1 Data"), "MyApp"));
    EXPECT_TRUE(reporting.WorksheetHasCreationTag(reopened->Worksheets("Plain"), "MyApp"));
    EXPECT_FALSE(reporting.WorksheetHasCreationTag(reopened->Worksheets("Untagged"), ""));
    EXPECT_TRUE(reopened->Names()->Item("'Q1 Data'!VostrandReportWorksheetCreatedBy")->Visible());
    auto reused = reporting.NewReportWorkbook(app, "MYAPP", nullptr, true);
    EXPECT_TRUE(excel::IsSameObject(reused->ExcelWorkbook(), reopened));
    std::filesystem::remove_all(folder);
}
