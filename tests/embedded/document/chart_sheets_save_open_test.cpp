// Chart sheets are saved where Workbook.Sheets lists them: worksheets added or deleted before a
// chart sheet move it in the saved workbook's sheet list as they moved it in Sheets, and the names
// local to it follow it.

#include "embedded/document/save_open_fixture.hpp"
#include "ooxml/reader_test_package.hpp"

#include <string>
#include <vector>

using namespace excel;

namespace {


// Sheet1, Sheet6, Sheet5, Sheet4, Sheet3, Sheet2, Chart2.
constexpr const char* chartSheetLast = "realworld-excel/poi__WithChartSheet.xlsx";
// Sheet1, Chart1, Sheet2, Sheet3, Chart2, Sheet4.
constexpr const char* twoChartSheets = "charts-xlsxwriter/xw__chart_bar13.xlsx";
// Chart1, Sheet1.
constexpr const char* chartSheetFirst = "realworld-excel/exceljs__chart-sheet.xlsx";

class ChartSheetsSaveOpenTest : public SaveOpenTest {
protected:
    // Saves the workbook as target in the test's folder and answers its workbook part.
    std::string SavedWorkbookXml(const std::shared_ptr<Workbook>& workbook, const std::string& target) {
        workbook->SaveAs(PathOf(target));
        return ooxml_test::ReadPackageParts(PathOf(target)).at("xl/workbook.xml");
    }
    void ExpectValid(const std::string& target) {
        EXPECT_EQ(RunTool("validate-xlsx", PathOf(target)), 0);
        EXPECT_EQ(RunTool("check-xlsx", PathOf(target)), 0);
    }
};

// The names of a workbook part's sheet list, in order.
std::vector<std::string> SheetNames(const std::string& workbookXml) {
    std::vector<std::string> names;
    const std::string entry = "<sheet name=\"";
    for (size_t at = workbookXml.find(entry); at != std::string::npos; at = workbookXml.find(entry, at + 1)) {
        const size_t start = at + entry.size();
        names.push_back(workbookXml.substr(start, workbookXml.find('"', start) - start));
    }
    return names;
}

TEST_F(ChartSheetsSaveOpenTest, AWorksheetAddedBeforeAChartSheetIsSavedBeforeIt) {
    auto workbook = OpenCorpus(chartSheetLast);
    workbook->Worksheets()->Add(Variant(), workbook->Worksheets("Sheet2"));
    EXPECT_EQ(
        SheetNames(SavedWorkbookXml(workbook, "copy.xlsx")),
        (std::vector<std::string>{"Sheet1", "Sheet6", "Sheet5", "Sheet4", "Sheet3", "Sheet2", "Sheet7", "Chart2"}));
    ExpectValid("copy.xlsx");
    workbook->Close(false);
    auto reopened = app->Workbooks()->Open(PathOf("copy.xlsx"));
    EXPECT_EQ(reopened->Sheets()->Count(), 8);
    EXPECT_EQ(reopened->Sheets(7)->Name(), "Sheet7");
    EXPECT_EQ(ErrorCodeOf([&] { reopened->Sheets(8); }), kTypeMismatch);
}

TEST_F(ChartSheetsSaveOpenTest, ChartSheetsMoveUpWhenWorksheetsBeforeThemAreDeleted) {
    auto workbook = OpenCorpus(twoChartSheets);
    app->SetDisplayAlerts(false);
    workbook->Worksheets("Sheet2")->Delete();
    workbook->Worksheets("Sheet3")->Delete();
    EXPECT_EQ(SheetNames(SavedWorkbookXml(workbook, "copy.xlsx")),
              (std::vector<std::string>{"Sheet1", "Chart1", "Chart2", "Sheet4"}));
    ExpectValid("copy.xlsx");
}

TEST_F(ChartSheetsSaveOpenTest, AChartSheetBeforeEveryWorksheetStaysFirst) {
    auto workbook = OpenCorpus(chartSheetFirst);
    auto added = workbook->Worksheets()->Add(workbook->Worksheets(1));
    EXPECT_EQ(added->Index(), 2);
    EXPECT_EQ(SheetNames(SavedWorkbookXml(workbook, "copy.xlsx")),
              (std::vector<std::string>{"Chart1", "Sheet2", "Sheet1"}));
    ExpectValid("copy.xlsx");
}

TEST_F(ChartSheetsSaveOpenTest, AnUnchangedOrderIsSavedAsOpened) {
    auto workbook = OpenCorpus(twoChartSheets);
    EXPECT_EQ(SheetNames(SavedWorkbookXml(workbook, "copy.xlsx")),
              (std::vector<std::string>{"Sheet1", "Chart1", "Sheet2", "Sheet3", "Chart2", "Sheet4"}));
}

TEST_F(ChartSheetsSaveOpenTest, ANameLocalToAChartSheetFollowsIt) {
    ooxml_test::PackageParts parts = ooxml_test::ReadPackageParts(CorpusPath(twoChartSheets));
    std::string& workbookXml = parts.at("xl/workbook.xml");
    workbookXml.insert(workbookXml.find("<calcPr"),
                       "<definedNames><definedName name=\"OnChart\" localSheetId=\"4\">Sheet1!$A$1</definedName>"
                       "</definedNames>");
    const ooxml_test::TemporaryPackage package(parts);
    book->Close(false);
    auto workbook = app->Workbooks()->Open(package.Path());
    app->SetDisplayAlerts(false);
    workbook->Worksheets("Sheet3")->Delete();
    const std::string saved = SavedWorkbookXml(workbook, "copy.xlsx");
    EXPECT_EQ(SheetNames(saved), (std::vector<std::string>{"Sheet1", "Chart1", "Sheet2", "Chart2", "Sheet4"}));
    EXPECT_NE(saved.find("<definedName name=\"OnChart\" localSheetId=\"3\">"), std::string::npos);
    ExpectValid("copy.xlsx");
}

}  // namespace
