#include "report_fixture.hpp"

#include "support/support_services.hpp"

#include <string>

namespace {

class SheetServicesTest : public ReportTest {
protected:
    void SetUp() override {
        ReportTest::SetUp();
        book = app->Workbooks()->Add();
        book->Worksheets(1)->SetName("Data");
    }

    std::string ValidName(const std::string& wanted) { return vos::Support().Sheets().MakeValidSheetName(book, wanted); }
    // Names the new sheet as Excel is asked to, so the result is proved acceptable.
    std::string AddSheetNamed(const std::string& wanted) {
        const std::string name = ValidName(wanted);
        book->Worksheets()->Add(excel::Variant(), book->Worksheets(book->Worksheets()->Count()))->SetName(name);
        return name;
    }

    std::shared_ptr<excel::Workbook> book;
};

}  // namespace

TEST_F(SheetServicesTest, AFreeValidNameIsKept) {
    EXPECT_EQ(ValidName("Sales 2026"), "Sales 2026");
}

TEST_F(SheetServicesTest, TheSameWantedNameTwiceGivesTwoDifferentNames) {
    const std::string first = AddSheetNamed("Results");
    const std::string second = AddSheetNamed("Results");
    EXPECT_EQ(first, "Results");
    EXPECT_EQ(second, "Results (2)");
    EXPECT_EQ(AddSheetNamed("Results"), "Results (3)");
}

TEST_F(SheetServicesTest, ANameInUseInAnotherCaseIsNumbered) {
    EXPECT_EQ(ValidName("DATA"), "DATA (2)");
}

TEST_F(SheetServicesTest, CharactersExcelForbidsBecomeUnderscores) {
    EXPECT_EQ(AddSheetNamed("Q1/Q2: [net]*?\\x"), "Q1_Q2_ _net____x");
}

TEST_F(SheetServicesTest, ApostrophesAtEitherEndGo) {
    EXPECT_EQ(AddSheetNamed("'quoted'"), "quoted");
    EXPECT_EQ(AddSheetNamed("it's"), "it's");
}

TEST_F(SheetServicesTest, LongNamesAreCutTo31CharactersAndNumberedWithinThem) {
    const std::string wanted(40, 'x');
    EXPECT_EQ(AddSheetNamed(wanted), std::string(31, 'x'));
    const std::string second = AddSheetNamed(wanted);
    EXPECT_EQ(second, std::string(27, 'x') + " (2)");
}

TEST_F(SheetServicesTest, CuttingNeverSplitsACharacter) {
    std::string wanted;
    for (int i = 0; i < 20; ++i)
        wanted += "\xC3\xA9";  // é, two bytes, one character
    EXPECT_EQ(AddSheetNamed(wanted), wanted);
    std::string emoji;
    for (int i = 0; i < 16; ++i)
        emoji += "\xF0\x9F\x93\x8A";  // a character outside the basic plane counts twice
    EXPECT_EQ(ValidName(emoji).size(), 15u * 4u);
}

TEST_F(SheetServicesTest, TheReservedNameHistoryIsNumbered) {
    EXPECT_EQ(AddSheetNamed("History"), "History (2)");
    EXPECT_EQ(ValidName("history"), "history (3)");  // "History (2)" is taken, in any case
}

TEST_F(SheetServicesTest, ANameWithNothingLeftBecomesReport) {
    EXPECT_EQ(AddSheetNamed("''"), "Report");
    EXPECT_EQ(AddSheetNamed("'"), "Report (2)");
}

TEST_F(SheetServicesTest, WorkbookHasSheetComparesWithoutRegardToCase) {
    const auto& sheets = vos::Support().Sheets();
    EXPECT_TRUE(sheets.WorkbookHasSheet(book, "Data"));
    EXPECT_TRUE(sheets.WorkbookHasSheet(book, "dATA"));
    EXPECT_FALSE(sheets.WorkbookHasSheet(book, "Other"));
}

TEST_F(SheetServicesTest, AChartSheetsNameIsTakenToo) {
    // Numbers, Chart, SomeJunk: Chart is a chart sheet.
    const auto opened =
        app->Workbooks()->Open(std::string(VOS_SHARED_DIR) + "/excel-corpus/realworld-excel/poi__47813.xlsx");
    EXPECT_TRUE(vos::Support().Sheets().WorkbookHasSheet(opened, "chart"));
    EXPECT_EQ(vos::Support().Sheets().MakeValidSheetName(opened, "Chart"), "Chart (2)");
    EXPECT_EQ(vos::Support().Sheets().MakeValidSheetName(opened, "Numbers"), "Numbers (2)");
}

TEST_F(SheetServicesTest, DeleteSheetQuietlyRestoresDisplayAlerts) {
    auto extra = book->Worksheets()->Add();
    app->SetDisplayAlerts(true);
    vos::Support().Sheets().DeleteSheetQuietly(extra);
    EXPECT_EQ(SheetNames(book), std::vector<std::string>{"Data"});
    EXPECT_TRUE(app->DisplayAlerts());
}

TEST_F(SheetServicesTest, AFailedQuietDeleteStillRestoresDisplayAlerts) {
    app->SetDisplayAlerts(true);
    EXPECT_THROW(vos::Support().Sheets().DeleteSheetQuietly(book->Worksheets(1)), excel::AutomationError);
    EXPECT_TRUE(app->DisplayAlerts());
    EXPECT_EQ(SheetNames(book), std::vector<std::string>{"Data"});
}

TEST_F(SheetServicesTest, SheetNameQualifierQuotesWhereAFormulaNeedsIt) {
    const auto& sheets = vos::Support().Sheets();
    const auto qualifierFor = [&](const std::string& name) {
        book->Worksheets(1)->SetName(name);
        return sheets.SheetNameQualifier(book->Worksheets(1));
    };
    EXPECT_EQ(qualifierFor("Data"), "Data!");
    EXPECT_EQ(qualifierFor("Net_2026.v2"), "Net_2026.v2!");
    EXPECT_EQ(qualifierFor("Q1 Data"), "'Q1 Data'!");
    EXPECT_EQ(qualifierFor("it's"), "'it''s'!");
    EXPECT_EQ(qualifierFor("2026"), "'2026'!");
    EXPECT_EQ(qualifierFor("AB12"), "'AB12'!");
    EXPECT_EQ(qualifierFor("R1C1"), "'R1C1'!");
    EXPECT_EQ(qualifierFor("Résumé"), "'Résumé'!");
}

TEST_F(SheetServicesTest, TheQualifierMakesANameLocalToTheSheet) {
    book->Worksheets(1)->SetName("Q1 Data");
    auto sheet = book->Worksheets(1);
    auto other = book->Worksheets()->Add();
    book->Names()->Add(vos::Support().Sheets().SheetNameQualifier(sheet) + "Marker", "=\"here\"");
    EXPECT_EQ(sheet->Evaluate("Marker").ToString(), "here");
    EXPECT_TRUE(other->Evaluate("Marker").IsError());
}

TEST_F(SheetServicesTest, ExcelMajorVersionReadsTheApplicationVersion) {
    EXPECT_EQ(vos::Support().Sheets().ExcelMajorVersion(app), 16);
}
