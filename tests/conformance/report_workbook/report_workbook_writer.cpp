// Writes a report workbook through the report library, or opens the saved file again and checks
// that the creation tags survived the round trip and still tell report sheets from the others.
// The two steps run apart so that a tag failure does not keep the file from the other checkers.
//
// Usage: report_workbook_writer write|check FILE.xlsx

#include "report_writer_main.hpp"

#include <excel/embedded.hpp>
#include <vos/reporting.hpp>

#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

const std::string kApplication = "MyApp";
const std::string kWorksheetTag = "VostrandReportWorksheetCreatedBy";

// Each value goes into the cell at the layout cursor, which then moves two rows down: one empty row
// separates the values.
void WriteAtCursor(vos::VosExcelReportWorksheet& sheet, const std::vector<excel::Variant>& values) {
    for (const auto& value : values) {
        sheet.CurrentCell()->SetValue(value);
        sheet.AddSeparatorRows(2);
    }
}

// Sheets in this order: "Summary" (report, spacing column), "Notes" (untagged), "Q1 Data" (report,
// appended behind the untagged sheet).
void WriteReportWorkbook(vos::VosExcelReporting& reporting, const std::shared_ptr<excel::Application>& app,
                         const std::filesystem::path& file) {
    auto report = reporting.NewReportWorkbook(app, kApplication);

    auto summary = report->NewReportWorksheet("Summary");
    WriteAtCursor(*summary, {"Summary", 1284, "end of summary"});
    summary->AddSpacingColumn();
    summary->CurrentCell()->SetValue("after the spacing column");

    auto book = report->ExcelWorkbook();
    auto notes = book->Worksheets()->Add(excel::Variant(), summary->ExcelWorksheet());
    notes->SetName("Notes");
    notes->Range("A1")->SetValue("untagged");

    auto quarter = report->NewReportWorksheet("Q1 Data");
    WriteAtCursor(*quarter, {"Q1", 412.5, 298.0});

    book->SaveAs(file.string());
    book->Close(false);
}

void CheckTagsAfterReopening(vos::VosExcelReporting& reporting, excel::Application& app,
                             const std::filesystem::path& file) {
    conformance::Failures failures;
    auto book = app.Workbooks()->Open(file.string());
    failures.Expect(reporting.WorkbookHasCreationTag(book, "myapp"), "workbook tagged for myapp (any case)");
    failures.Expect(reporting.WorkbookHasCreationTag(book), "workbook tagged for some application");
    failures.Expect(!reporting.WorkbookHasCreationTag(book, "OtherApp"), "workbook not tagged for OtherApp");

    const auto sheets = book->Worksheets();
    failures.Expect(sheets->Count() == 3, "three sheets, found " + std::to_string(sheets->Count()));
    for (const std::string name : {"Summary", "Q1 Data"}) {
        const auto sheet = sheets->Item(name);
        failures.Expect(reporting.WorksheetHasCreationTag(sheet, kApplication), name + " tagged for MyApp");
        failures.Expect(reporting.WorksheetHasCreationTag(sheet), name + " tagged for some application");
        failures.Expect(!reporting.WorksheetHasCreationTag(sheet, "OtherApp"), name + " not tagged for OtherApp");
    }
    const auto notes = sheets->Item("Notes");
    failures.Expect(!reporting.WorksheetHasCreationTag(notes, kApplication), "Notes not tagged for MyApp");
    failures.Expect(!reporting.WorksheetHasCreationTag(notes), "Notes not tagged at all");

    // A sheet name with a blank is quoted where it qualifies a local name.
    const auto quarterTag = book->Names()->Item("'Q1 Data'!" + kWorksheetTag);
    failures.Expect(quarterTag->RefersTo() == "=\"MyApp\"",
                    "Q1 Data tag refers to =\"MyApp\", found " + quarterTag->RefersTo());
    failures.Expect(quarterTag->Visible(), "Q1 Data tag visible");
    book->Close(false);
    failures.ThrowIfAny();
}

}  // namespace

int main(int argc, char** argv) {
    return conformance::RunReportWriter(argc, argv, WriteReportWorkbook, CheckTagsAfterReopening);
}
