#include "failure_report.hpp"

#include <excel/embedded.hpp>
#include <excel/excel.hpp>

#include <filesystem>
#include <iostream>
#include <string>

namespace {

constexpr const char* kChangeOption = "--insert-row-and-delete-last";

// A small edit of the kind a user makes before saving, so that the round trip also covers content
// that moves (every cell, formula, name and anchor below row 1 shifts down one row) and content
// that goes with a deleted sheet (formulas and names that refer to it become #REF!).
void InsertRowAndDeleteLastSheet(excel::Application& app, excel::Workbook& book) {
    book.Worksheets(1)->Range("1:1")->EntireRow()->Insert(excel::xlShiftDown);

    auto sheets = book.Sheets();
    const int32_t count = sheets->Count();
    if (count < 2)
        return;
    // A chart sheet is no Worksheet, and the object model has no chart objects yet to delete it by.
    auto worksheets = book.Worksheets();
    const int32_t worksheetCount = worksheets->Count();
    if (worksheets->Item(worksheetCount)->Index() != count) {
        std::cerr << "note: the last sheet is a chart sheet, which cannot be deleted yet, so it was kept\n";
        return;
    }
    // Excel refuses to delete the only visible sheet; such a workbook keeps its last sheet.
    bool anotherVisible = false;
    for (int32_t index = 1; index < worksheetCount; ++index) {
        anotherVisible = anotherVisible || worksheets->Item(index)->Visible() == excel::xlSheetVisible;
    }
    if (!anotherVisible) {
        std::cerr << "note: the last sheet is the only visible one, so it was kept\n";
        return;
    }
    // Deleting a sheet asks for confirmation unless alerts are off.
    app.SetDisplayAlerts(false);
    worksheets->Item(worksheetCount)->Delete();
    app.SetDisplayAlerts(true);
}

}  // namespace

// Opens a workbook with the embedded engine and saves it under another name, unchanged, or with
// --insert-row-and-delete-last after inserting a row at the top of the first worksheet and
// deleting the last sheet (when there is more than one).
int main(int argc, char** argv) {
    const bool change = argc == 4 && std::string(argv[1]) == kChangeOption;
    if (argc != 3 && !change) {
        std::cerr << "usage: " << argv[0] << " [" << kChangeOption << "] SOURCE.xlsx TARGET.xlsx\n";
        return 2;
    }
    const std::string source = argv[argc - 2];
    const std::string target = argv[argc - 1];
    return conformance::RunReportingFailure([&] {
        auto app = excel::embedded::CreateApplication();
        auto book = app->Workbooks()->Open(std::filesystem::absolute(source).string());
        if (change)
            InsertRowAndDeleteLastSheet(*app, *book);
        book->SaveAs(std::filesystem::absolute(target).string());
        book->Close(false);
    });
}
