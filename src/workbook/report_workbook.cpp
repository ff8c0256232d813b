#include "workbook/report_workbook.hpp"

#include "support/library_error.hpp"
#include "support/support_services.hpp"
#include "support/trim_blanks.hpp"
#include "workbook/creation_tags.hpp"
#include "workbook/placeholder_sheet.hpp"
#include "worksheet/report_worksheet.hpp"

#include <excel/automation_error.hpp>
#include <excel/sheets.hpp>
#include <excel/workbook.hpp>
#include <excel/worksheet.hpp>

namespace vos {

void ReportWorkbook::InitializeWorkbook(const std::shared_ptr<excel::Workbook>& workbook,
                                        const std::string& applicationIdentifier, int32_t defaultLanguage) {
    if (!workbook)
        RaiseLibraryError(error_code::MissingObject, "ExcelWorkbook");
    if (applicationIdentifier.empty())
        RaiseLibraryError(error_code::EmptyArgument, "ApplicationIdentifier");
    excelWorkbook_ = workbook;
    applicationIdentifier_ = applicationIdentifier;
    defaultLanguage_ = defaultLanguage;
    themes_ = ThemeTable();
    useThemes_ = false;
}

std::shared_ptr<excel::Workbook> ReportWorkbook::ExcelWorkbook() const {
    return excelWorkbook_;
}

std::string ReportWorkbook::applicationIdentifier() const {
    return applicationIdentifier_;
}

int32_t ReportWorkbook::DefaultLanguage() const {
    return defaultLanguage_;
}

bool ReportWorkbook::UseThemes() const {
    return useThemes_;
}

void ReportWorkbook::SetUseThemes(bool useThemes) {
    useThemes_ = useThemes;
}

std::shared_ptr<VosExcelReportWorksheet> ReportWorkbook::NewReportWorksheet(const std::string& worksheetName) {
    const std::string wantedName = TrimBlanks(worksheetName);
    if (wantedName.empty())
        RaiseLibraryError(error_code::EmptyArgument, "worksheetName");
    const auto sheet = AddSheetAtEnd();
    sheet->SetName(ReportSheetName(wantedName));
    if (!firstWorksheetCreated_)
        firstWorksheetCreated_ = sheet;
    auto reportSheet = std::make_shared<ReportWorksheet>();
    reportSheet->InitializeReportWorksheet(shared_from_this(), sheet, applicationIdentifier_, defaultLanguage_);
    RemovePlaceholderSheet();
    return reportSheet;
}

void ReportWorkbook::DeleteReportWorksheets(bool deleteSheetsCreatedByAllVostrandApplications) {
    const std::string identifier = deleteSheetsCreatedByAllVostrandApplications ? std::string() : applicationIdentifier_;
    if (!HasPlaceholderSheet())
        AddPlaceholderSheet();
    const auto sheets = excelWorkbook_->Worksheets();
    for (int32_t i = sheets->Count(); i >= 1; --i) {
        const auto sheet = sheets->Item(i);
        if (WorksheetHasTag(sheet, identifier))
            Support().Sheets().DeleteSheetQuietly(sheet);
    }
    RemovePlaceholderSheet();
}

void ReportWorkbook::ActivateFirstWorksheetCreated() {
    if (firstWorksheetCreated_)
        firstWorksheetCreated_->Activate();
}

int32_t ReportWorkbook::ThemeColorFor(int32_t propertyType, bool objectThemeColor) const {
    return themes_.ColorFor(propertyType, objectThemeColor);
}

float ReportWorkbook::ThemeTintAndShadeFor(int32_t propertyType) const {
    return themes_.TintAndShadeFor(propertyType);
}

bool ReportWorkbook::HasPlaceholderSheet() const {
    return Support().Sheets().WorkbookHasSheet(excelWorkbook_, std::string(PlaceholderSheetName));
}

std::shared_ptr<excel::Worksheet> ReportWorkbook::AddPlaceholderSheet() {
    const auto sheet = AddSheetAtEnd();
    sheet->SetName(std::string(PlaceholderSheetName));
    return sheet;
}

void ReportWorkbook::RemovePlaceholderSheet() {
    try {
        Support().Sheets().DeleteSheetQuietly(excelWorkbook_->Worksheets()->Item(std::string(PlaceholderSheetName)));
    } catch (const excel::AutomationError&) {
        // No placeholder, or it is the last sheet: either way there is nothing to remove.
    }
}

// A valid, unused name for a new report sheet. It is never the placeholder's name, even when no
// placeholder exists now: removing the placeholder would then remove the report sheet itself.
std::string ReportWorkbook::ReportSheetName(const std::string& wantedName) const {
    const auto& support = Support();
    const std::string name = support.Sheets().MakeValidSheetName(excelWorkbook_, wantedName);
    if (!support.Strings().EqualIgnoringCase(name, PlaceholderSheetName))
        return name;
    return support.Sheets().MakeValidSheetName(excelWorkbook_, name + " (2)");
}

// A new worksheet behind the very last sheet of the workbook. When that sheet is a chart sheet or
// another sheet that is not a worksheet, the object model gives no Worksheet to add after; the new
// sheet then goes behind the last worksheet.
std::shared_ptr<excel::Worksheet> ReportWorkbook::AddSheetAtEnd() {
    const auto sheets = excelWorkbook_->Sheets();
    std::shared_ptr<excel::Worksheet> lastSheet;
    try {
        lastSheet = sheets->Item(sheets->Count());
    } catch (const excel::AutomationError& error) {
        if (error.code() != excel::hresult::TypeMismatch)
            throw;
        const auto worksheets = excelWorkbook_->Worksheets();
        lastSheet = worksheets->Item(worksheets->Count());
    }
    return excelWorkbook_->Worksheets()->Add(excel::Variant(), lastSheet, 1);
}

}  // namespace vos
