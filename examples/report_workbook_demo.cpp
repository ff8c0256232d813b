// Walks through the life of a report workbook: a reporting application makes it, writes report
// sheets beside a sheet of its user's own, saves it; later it opens the file again, finds the
// workbook by its creation tag, replaces its own sheets and leaves the user's sheet alone.
//
// Usage: report_workbook_demo [OUTPUT.xlsx]   (default out/report_workbook_demo.xlsx)

#include <excel/embedded.hpp>
#include <vos/reporting.hpp>

#include "run_example.hpp"

#include <algorithm>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

const std::string kApplication = "DemoApp";

void Step(const std::string& message) {
    std::cout << "- " << message << '\n';
}

void Require(bool condition, const std::string& expectation) {
    if (!condition)
        throw std::runtime_error("unexpected result: " + expectation);
}

std::vector<std::string> SheetNames(excel::Workbook& book) {
    std::vector<std::string> names;
    const auto sheets = book.Worksheets();
    for (int32_t i = 1; i <= sheets->Count(); ++i) {
        names.push_back(sheets->Item(i)->Name());
    }
    return names;
}

std::string Listed(const std::vector<std::string>& names) {
    std::string list;
    for (const auto& name : names) {
        list += (list.empty() ? "" : ", ") + name;
    }
    return "[" + list + "]";
}

void RequireSheets(excel::Workbook& book, const std::vector<std::string>& expected) {
    const auto actual = SheetNames(book);
    Require(actual == expected, "sheets " + Listed(expected) + ", found " + Listed(actual));
    Step("sheets now: " + Listed(actual));
}

// Each value goes into the cell at the layout cursor, which then moves two rows down: one empty row
// separates the values.
void WriteAtCursor(vos::VosExcelReportWorksheet& sheet, const std::vector<excel::Variant>& values) {
    for (const auto& value : values) {
        sheet.CurrentCell()->SetValue(value);
        sheet.AddSeparatorRows(2);
    }
}

// Returns the names the two report sheets were given.
std::vector<std::string> AddReportSheets(vos::VosExcelReportWorkbook& report) {
    auto summary = report.NewReportWorksheet("Summary");
    WriteAtCursor(*summary, {"Quarterly summary", "Orders received", 1284, "Orders shipped", 1197});
    summary->AddSpacingColumn();
    Step("report sheet '" + summary->ExcelWorksheet()->Name() + "': values two rows apart, spacing column in front");

    // A slash may not appear in a sheet name; the library cleans the name instead of failing.
    auto details = report.NewReportWorksheet("Details/2026");
    WriteAtCursor(*details, {"Details by region", "North", 412.5, "South", 298.0});
    Step("report sheet asked for as 'Details/2026' is named '" + details->ExcelWorksheet()->Name() + "'");
    return {summary->ExcelWorksheet()->Name(), details->ExcelWorksheet()->Name()};
}

// A sheet the user made by hand: no creation tag, so the library never deletes it.
void AddUserSheet(excel::Workbook& book) {
    const auto sheets = book.Worksheets();
    auto notes = sheets->Add(excel::Variant(), sheets->Item(sheets->Count()));
    notes->SetName("Notes");
    notes->Range("A1")->SetValue("Notes kept by the user");
    notes->Range("A2")->SetValue("This sheet has no creation tag and survives every rebuild.");
    Step("plain sheet 'Notes' added through the Excel object model");
}

void RequireTags(vos::VosExcelReporting& reporting, excel::Workbook& book, const std::vector<std::string>& tagged) {
    const auto sheets = book.Worksheets();
    for (int32_t i = 1; i <= sheets->Count(); ++i) {
        const auto sheet = sheets->Item(i);
        const bool expectTag = std::find(tagged.begin(), tagged.end(), sheet->Name()) != tagged.end();
        Require(reporting.WorksheetHasCreationTag(sheet, kApplication) == expectTag,
                "sheet '" + sheet->Name() + (expectTag ? "' tagged" : "' untagged"));
    }
    Step("creation tags: " + Listed(tagged) + " carry one, the rest do not");
}

void Run(const std::filesystem::path& target) {
    vos::VosExcelReporting reporting;
    auto app = excel::embedded::CreateApplication();
    Step("engine application created");

    // Blanks around the identifier are trimmed before it is stored in the tag.
    auto report = reporting.NewReportWorkbook(app, "  " + kApplication + "  ");
    Require(report->applicationIdentifier() == kApplication, "identifier trimmed to '" + kApplication + "'");
    Require(reporting.WorkbookHasCreationTag(report->ExcelWorkbook(), kApplication), "new workbook tagged");
    Step("new report workbook for '" + report->applicationIdentifier() + "'");

    const auto reportSheets = AddReportSheets(*report);
    auto book = report->ExcelWorkbook();
    AddUserSheet(*book);
    RequireSheets(*book, {reportSheets[0], reportSheets[1], "Notes"});
    RequireTags(reporting, *book, reportSheets);

    book->SaveAs(target.string());
    const std::string fileName = book->Name();
    book->Close();
    Step("saved as " + target.string() + " and closed");

    auto reopened = app->Workbooks()->Open(target.string());
    Step("opened " + reopened->Name() + " again");
    auto found = reporting.NewReportWorkbook(app, kApplication, nullptr, true);
    Require(found->ExcelWorkbook()->Name() == fileName, "the reopened workbook " + fileName + " is found again");
    Step("NewReportWorkbook with reuse found " + found->ExcelWorkbook()->Name());

    found->DeleteReportWorksheets();
    Step("report sheets of '" + kApplication + "' deleted");
    RequireSheets(*reopened, {"Notes"});

    auto rebuilt = found->NewReportWorksheet("Rebuilt");
    WriteAtCursor(*rebuilt, {"Rebuilt report", "Orders received", 1302});
    RequireSheets(*reopened, {"Notes", "Rebuilt"});
    RequireTags(reporting, *reopened, {"Rebuilt"});

    reopened->SaveAs(target.string());
    Step("saved again as " + target.string());
}

}  // namespace

int main(int argc, char** argv) {
    return RunExample(argc, argv, "out/report_workbook_demo.xlsx", Run);
}
