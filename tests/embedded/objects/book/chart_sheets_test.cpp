// A workbook opened with chart sheets: Workbook.Sheets lists them among the worksheets and
// Workbook.Worksheets passes them over, no sheet takes a chart sheet's name, and the places given
// to Add count the chart sheets as Excel counts them.

#include "embedded/engine_fixture.hpp"
#include "ooxml/reader_test_package.hpp"

#include <string>
#include <vector>

using namespace excel;

namespace {

std::string Corpus(const std::string& name) {
    return std::string(VOS_SHARED_DIR) + "/excel-corpus/" + name;
}

// Sheet1, Chart1, Sheet2, Sheet3, Chart2, Sheet4.
constexpr const char* twoChartSheets = "charts-xlsxwriter/xw__chart_bar13.xlsx";
// Numbers, Chart, SomeJunk.
constexpr const char* chartBetweenTwoSheets = "realworld-excel/poi__47813.xlsx";

class ChartSheetsTest : public EngineTest {
protected:
    std::shared_ptr<Workbook> Open(const std::string& name) { return app->Workbooks()->Open(Corpus(name)); }

    // The workbook's sheets as Workbook.Sheets lists them, a chart sheet as "chart".
    static std::vector<std::string> SheetList(const std::shared_ptr<Workbook>& workbook) {
        std::vector<std::string> names;
        const auto sheets = workbook->Sheets();
        for (int32_t i = 1; i <= sheets->Count(); ++i) {
            names.push_back(ErrorCodeOf([&] { sheets->Item(i); }) == kTypeMismatch ? "chart" : sheets->Item(i)->Name());
        }
        return names;
    }
};

TEST_F(ChartSheetsTest, SheetsCountsTheChartSheetsAndWorksheetsDoesNot) {
    auto workbook = Open(twoChartSheets);
    EXPECT_EQ(workbook->Sheets()->Count(), 6);
    EXPECT_EQ(workbook->Worksheets()->Count(), 4);
    EXPECT_EQ(workbook->Sheets(3)->Name(), "Sheet2");
    EXPECT_EQ(workbook->Worksheets(2)->Name(), "Sheet2");
    EXPECT_EQ(workbook->Sheets(6)->Name(), "Sheet4");
    EXPECT_EQ(workbook->Worksheets(4)->Name(), "Sheet4");
    EXPECT_EQ(ErrorCodeOf([&] { workbook->Sheets(7); }), kSubscriptOutOfRange);
    EXPECT_EQ(ErrorCodeOf([&] { workbook->Worksheets(5); }), kSubscriptOutOfRange);
}

TEST_F(ChartSheetsTest, AWorksheetsIndexCountsTheChartSheetsBeforeIt) {
    auto workbook = Open(twoChartSheets);
    EXPECT_EQ(workbook->Worksheets("Sheet1")->Index(), 1);
    EXPECT_EQ(workbook->Worksheets("Sheet3")->Index(), 4);
    EXPECT_EQ(workbook->Worksheets(4)->Index(), 6);
}

TEST_F(ChartSheetsTest, AChartSheetIsATypeMismatchAsAWorksheet) {
    auto workbook = Open(twoChartSheets);
    EXPECT_EQ(ErrorCodeOf([&] { workbook->Sheets(2); }), kTypeMismatch);
    EXPECT_EQ(ErrorCodeOf([&] { workbook->Sheets()->Item(5); }), kTypeMismatch);
    EXPECT_EQ(ErrorCodeOf([&] { workbook->Sheets("chart2"); }), kTypeMismatch);
    try {
        workbook->Sheets("Chart1");
        ADD_FAILURE() << "a chart sheet came as a worksheet";
    } catch (const AutomationError& error) {
        EXPECT_EQ(std::string(error.what()), "Type mismatch");
    }
    // Worksheets does not know them at all.
    EXPECT_EQ(ErrorCodeOf([&] { workbook->Worksheets("Chart1"); }), kSubscriptOutOfRange);
    EXPECT_EQ(ErrorCodeOf([&] { workbook->Sheets("Nope"); }), kSubscriptOutOfRange);
}

TEST_F(ChartSheetsTest, AHiddenChartSheetIsCountedToo) {
    auto workbook = Open("cells-drawings-xlsxwriter/xw__chartsheet03.xlsx");  // Sheet1, hidden Chart1
    EXPECT_EQ(workbook->Sheets()->Count(), 2);
    EXPECT_EQ(ErrorCodeOf([&] { workbook->Sheets("Chart1"); }), kTypeMismatch);
}

TEST_F(ChartSheetsTest, ANewWorkbookListsTheSameSheetsBothWays) {
    book->Worksheets()->Add();
    EXPECT_EQ(book->Sheets()->Count(), 2);
    EXPECT_EQ(book->Worksheets()->Count(), 2);
    EXPECT_EQ(book->Sheets(2)->Name(), "Sheet1");
}

TEST_F(ChartSheetsTest, NoWorksheetIsRenamedToAChartSheetsNameInAnyCase) {
    auto workbook = Open(chartBetweenTwoSheets);
    auto numbers = workbook->Worksheets("Numbers");
    EXPECT_EQ(ErrorCodeOf([&] { numbers->SetName("Chart"); }), kRefused);
    EXPECT_EQ(ErrorCodeOf([&] { numbers->SetName("cHART"); }), kRefused);
    EXPECT_EQ(numbers->Name(), "Numbers");
    numbers->SetName("Chart data");
    EXPECT_EQ(workbook->Sheets(1)->Name(), "Chart data");
}

TEST_F(ChartSheetsTest, NewSheetsAreNumberedPastAChartSheetNamedSheetN) {
    // A workbook of Sheet1 and a chart sheet named "sheet2".
    ooxml_test::PackageParts parts =
        ooxml_test::ReadPackageParts(Corpus("cells-drawings-xlsxwriter/xw__chartsheet01.xlsx"));
    std::string& workbookXml = parts.at("xl/workbook.xml");
    workbookXml.replace(workbookXml.find("name=\"Chart1\""), 13, "name=\"sheet2\"");
    const ooxml_test::TemporaryPackage package(parts);
    auto workbook = app->Workbooks()->Open(package.Path());
    auto added = workbook->Worksheets()->Add(Variant(), workbook->Worksheets(1), 2);
    EXPECT_EQ(added->Name(), "Sheet4");
    EXPECT_EQ(workbook->Worksheets(2)->Name(), "Sheet3");
    EXPECT_EQ(ErrorCodeOf([&] { added->SetName("Sheet2"); }), kRefused);
    EXPECT_EQ(SheetList(workbook), (std::vector<std::string>{"Sheet1", "Sheet3", "Sheet4", "chart"}));
}

TEST_F(ChartSheetsTest, SheetsAddedBeforeOrAfterAWorksheetGoNextToItAmongTheChartSheets) {
    auto workbook = Open(twoChartSheets);
    // Right behind Sheet1, so before Chart1.
    workbook->Worksheets()->Add(Variant(), workbook->Worksheets("Sheet1"));
    // Right before Sheet4, so behind Chart2.
    workbook->Sheets()->Add(workbook->Worksheets("Sheet4"));
    EXPECT_EQ(SheetList(workbook),
              (std::vector<std::string>{"Sheet1", "Sheet5", "chart", "Sheet2", "Sheet3", "chart", "Sheet6", "Sheet4"}));
    EXPECT_EQ(workbook->Worksheets()->Count(), 6);
    EXPECT_EQ(workbook->Worksheets(5)->Name(), "Sheet6");
    EXPECT_EQ(workbook->Worksheets("Sheet6")->Index(), 7);
}

TEST_F(ChartSheetsTest, ANewSheetGoesBeforeTheActiveSheetAmongTheChartSheets) {
    auto workbook = Open(twoChartSheets);
    workbook->Worksheets("Sheet2")->Activate();
    auto added = workbook->Worksheets()->Add();
    EXPECT_EQ(added->Index(), 3);
    EXPECT_EQ(SheetList(workbook),
              (std::vector<std::string>{"Sheet1", "chart", "Sheet5", "Sheet2", "Sheet3", "chart", "Sheet4"}));
}

TEST_F(ChartSheetsTest, DeletingAWorksheetClosesUpTheSheetOrder) {
    auto workbook = Open(twoChartSheets);
    app->SetDisplayAlerts(false);
    workbook->Worksheets("Sheet2")->Delete();
    workbook->Worksheets("Sheet3")->Delete();
    EXPECT_EQ(SheetList(workbook), (std::vector<std::string>{"Sheet1", "chart", "chart", "Sheet4"}));
    EXPECT_EQ(workbook->Worksheets("Sheet4")->Index(), 4);
}

// Excel would let a visible chart sheet be a workbook's only visible sheet; the engine keeps a
// visible worksheet, as the active sheet it gives is one.
TEST_F(ChartSheetsTest, TheLastVisibleWorksheetStaysBesideAVisibleChartSheet) {
    auto workbook = Open(chartBetweenTwoSheets);
    app->SetDisplayAlerts(false);
    workbook->Worksheets("SomeJunk")->Delete();
    auto numbers = workbook->Worksheets("Numbers");
    EXPECT_EQ(ErrorCodeOf([&] { numbers->Delete(); }), kRefused);
    EXPECT_EQ(ErrorCodeOf([&] { numbers->SetVisible(xlSheetHidden); }), kRefused);
    EXPECT_EQ(workbook->Sheets()->Count(), 2);
    EXPECT_EQ(workbook->Worksheets()->Count(), 1);
}

TEST_F(ChartSheetsTest, TheLastWorksheetStaysWhenAChartSheetIsTheOnlyVisibleSheet) {
    // Sheet1, Chart1, Sheet2, both worksheets hidden.
    ooxml_test::PackageParts parts =
        ooxml_test::ReadPackageParts(Corpus("cells-drawings-xlsxwriter/xw__chartsheet02.xlsx"));
    std::string& workbookXml = parts.at("xl/workbook.xml");
    for (const char* sheet : {"Sheet1", "Sheet2"}) {
        const std::string entry = std::string("name=\"") + sheet + "\"";
        workbookXml.insert(workbookXml.find(entry) + entry.size(), " state=\"hidden\"");
    }
    const ooxml_test::TemporaryPackage package(parts);
    auto workbook = app->Workbooks()->Open(package.Path());
    app->SetDisplayAlerts(false);
    workbook->Worksheets("Sheet1")->Delete();
    EXPECT_EQ(ErrorCodeOf([&] { workbook->Worksheets("Sheet2")->Delete(); }), kRefused);
    EXPECT_EQ(workbook->Sheets()->Count(), 2);
    EXPECT_EQ(workbook->Worksheets(1)->Index(), 2);
}

}  // namespace
