// Shows the two forms of the report header block and cell comments: a header written into cells
// and a header in a floating text box, in English, Chinese and French, with fixed colours and with
// the workbook's theme colours, in normal mode (the user's name and the time of the run) and in
// unit-testing mode (fixed placeholder texts, so that two runs compare equal).
//
// Usage: report_header_demo [OUTPUT.xlsx]   (default out/report_header_demo.xlsx)

#include <excel/embedded.hpp>
#include <vos/reporting.hpp>

#include "run_example.hpp"

#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

namespace {

const std::string kApplication = "DemoApp";

void Step(const std::string& message) {
    std::cout << "- " << message << '\n';
}

// Extra header lines are "label<TAB>value"; blanks around the label are trimmed.
excel::Variant HeaderLines(const std::vector<std::string>& lines) {
    return excel::Variant(lines);
}

// Writes a small block of results below the header and comments two of its cells.
void AddCommentedResults(vos::VosExcelReporting& reporting, vos::VosExcelReportWorksheet& sheet) {
    auto cell = sheet.CurrentCell();
    cell->SetValue("Mean loss");
    cell->Offset(0, 1)->SetValue(1250000);
    cell->Offset(1, 0)->SetValue("Worst case");
    cell->Offset(1, 1)->SetValue(4800000);
    cell->Offset(0, 1)->Resize(2, 1)->SetNumberFormat("#,##0");
    sheet.AddComment(cell->Offset(0, 1), "Method", "Mean of 10,000 simulated years.");
    reporting.AddComment(cell->Offset(1, 1), "Reviewer", "99th percentile; checked against last year's run.");
    sheet.AddSeparatorRows(3);
}

// Both header forms, one under the other, then commented results.
void AddBothHeaders(vos::VosExcelReporting& reporting, vos::VosExcelReportWorkbook& report,
                    const std::string& sheetName, const std::string& title, const excel::Variant& lines) {
    auto sheet = report.NewReportWorksheet(sheetName);
    auto block = sheet->AddHeaderRange(title, lines);
    sheet->AddSeparatorRows(1);
    auto box = sheet->AddHeader(title, lines);
    sheet->AddSeparatorRows(1);
    AddCommentedResults(reporting, *sheet);
    Step("sheet '" + sheet->ExcelWorksheet()->Name() + "': header in cells " + block->Address(false, false) +
         ", header box '" + box->Name() + "' down to row " + std::to_string(box->BottomRightCell()->Row()) +
         (report.UseThemes() ? ", theme colours" : ", fixed colours") +
         (reporting.UnitTestingMode() ? ", unit-testing texts" : ""));
}

void Run(const std::filesystem::path& target) {
    vos::VosExcelReporting reporting;
    auto app = excel::embedded::CreateApplication();
    const auto lines = HeaderLines({"Model\tCatastrophe model 7.2", "  Portfolio \tCommercial property",
                                    "Simulations\t10,000 years"});

    auto english = reporting.NewReportWorkbook(app, kApplication, nullptr, false, 9);
    AddBothHeaders(reporting, *english, "English", "Portfolio Risk Analysis", lines);

    english->SetUseThemes(true);
    reporting.SetUnitTestingMode(true);
    AddBothHeaders(reporting, *english, "English themed", "Portfolio Risk Analysis", lines);
    reporting.SetUnitTestingMode(false);

    // Other languages share the Excel workbook through report workbooks of their own.
    auto book = english->ExcelWorkbook();
    auto chinese = reporting.NewReportWorkbook(app, kApplication, book, false, 4);
    AddBothHeaders(reporting, *chinese, "Chinese",
                   "\u6295\u8d44\u7ec4\u5408\u98ce\u9669\u5206\u6790",
                   HeaderLines({"\u6a21\u578b\tCatastrophe model 7.2"}));

    auto french = reporting.NewReportWorkbook(app, kApplication, book, false, 12);
    french->SetUseThemes(true);
    reporting.SetUnitTestingMode(true);
    AddBothHeaders(reporting, *french, "French", "Analyse des risques du portefeuille",
                   HeaderLines({"Mod\u00e8le\tCatastrophe model 7.2"}));
    reporting.SetUnitTestingMode(false);

    english->ActivateFirstWorksheetCreated();
    book->SaveAs(target.string());
    Step("saved as " + target.string());
}

}  // namespace

int main(int argc, char** argv) {
    return RunExample(argc, argv, "out/report_header_demo.xlsx", Run);
}
