#include <vos/vos_excel_reporting.hpp>

#include "support/cell_comment.hpp"
#include "support/library_error.hpp"
#include "support/trim_blanks.hpp"
#include "support/unit_testing_mode.hpp"
#include "workbook/creation_tags.hpp"
#include "workbook/placeholder_sheet.hpp"
#include "workbook/report_workbook.hpp"

#include <excel/application.hpp>
#include <excel/object.hpp>
#include <excel/sheets.hpp>
#include <excel/workbook.hpp>
#include <excel/workbooks.hpp>
#include <excel/worksheet.hpp>

namespace vos {

namespace {

// The first open workbook tagged for the application, in the order Excel lists them.
std::shared_ptr<excel::Workbook> FindTaggedWorkbook(const std::shared_ptr<excel::Application>& application,
                                                    const std::string& applicationIdentifier) {
    const auto workbooks = application->Workbooks();
    for (int32_t i = 1; i <= workbooks->Count(); ++i) {
        auto workbook = workbooks->Item(i);
        if (WorkbookHasTag(workbook, applicationIdentifier))
            return workbook;
    }
    return nullptr;
}

// A new workbook of exactly one sheet, whatever the application's setting for new workbooks; the
// setting is left as it was.
std::shared_ptr<excel::Workbook> AddOneSheetWorkbook(const std::shared_ptr<excel::Application>& application) {
    const int32_t sheetsInNewWorkbook = application->SheetsInNewWorkbook();
    application->SetSheetsInNewWorkbook(1);
    std::shared_ptr<excel::Workbook> workbook;
    try {
        workbook = application->Workbooks()->Add();
    } catch (...) {
        application->SetSheetsInNewWorkbook(sheetsInNewWorkbook);
        throw;
    }
    application->SetSheetsInNewWorkbook(sheetsInNewWorkbook);
    return workbook;
}

}  // namespace

void VosExcelReporting::SetUnitTestingMode(bool on) {
    SwitchUnitTestingMode(on);
}

bool VosExcelReporting::UnitTestingMode() const {
    return IsUnitTestingModeOn();
}

std::shared_ptr<VosExcelReportWorkbook> VosExcelReporting::NewReportWorkbook(
    const std::shared_ptr<excel::Application>& xlApp, const std::string& applicationIdentifier,
    const std::shared_ptr<excel::Workbook>& existingWB, bool reusePreviouslyCreatedWorkbook, int32_t DefaultLanguage) {
    if (!xlApp)
        RaiseLibraryError(error_code::MissingObject, "xlApp");
    const std::string identifier = TrimBlanks(applicationIdentifier);
    if (identifier.empty())
        RaiseLibraryError(error_code::EmptyArgument, "applicationIdentifier");
    if (existingWB && !excel::IsSameObject(existingWB->Application(), xlApp))
        RaiseLibraryError(error_code::InvalidArgument, "existingWB");

    // A workbook whose structure is protected cannot take new sheets, so it is passed over.
    std::shared_ptr<excel::Workbook> target = existingWB && !existingWB->ProtectStructure() ? existingWB : nullptr;
    if (!target && reusePreviouslyCreatedWorkbook)
        target = FindTaggedWorkbook(xlApp, identifier);
    if (!target) {
        target = AddOneSheetWorkbook(xlApp);
        target->Worksheets()->Item(1)->SetName(std::string(PlaceholderSheetName));
        TagWorkbook(target, identifier);
    }

    auto reportWorkbook = std::make_shared<ReportWorkbook>();
    reportWorkbook->InitializeWorkbook(target, identifier, DefaultLanguage);
    target->Activate();
    return reportWorkbook;
}

bool VosExcelReporting::WorkbookHasCreationTag(const std::shared_ptr<excel::Workbook>& wb,
                                               const std::string& applicationIdentifier) {
    return WorkbookHasTag(wb, applicationIdentifier);
}

bool VosExcelReporting::WorksheetHasCreationTag(const std::shared_ptr<excel::Worksheet>& ws,
                                                const std::string& applicationIdentifier) {
    return WorksheetHasTag(ws, applicationIdentifier);
}

std::shared_ptr<excel::Comment> VosExcelReporting::AddComment(const std::shared_ptr<excel::Range>& p_CellRange,
                                                              const std::string& p_HeaderText,
                                                              const std::string& p_MainText) {
    return CreateClientCellComment(p_CellRange, p_HeaderText, p_MainText);
}

}  // namespace vos
