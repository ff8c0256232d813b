#ifdef _WIN32

#include "automation/report_workbook_object.hpp"

#include "automation/automation_values.hpp"
#include "automation/report_worksheet_object.hpp"

#include <excel/excel.hpp>

namespace automation {

HRESULT ReportWorkbookObject::get_ExcelWorkbook(IDispatch** result) {
    return Guarded([&] { *result = Dispatch(workbook_->ExcelWorkbook()); });
}

HRESULT ReportWorkbookObject::get_applicationIdentifier(BSTR* result) {
    return Guarded([&] { *result = NewText(workbook_->applicationIdentifier()); });
}

HRESULT ReportWorkbookObject::get_DefaultLanguage(LONG* result) {
    return Guarded([&] { *result = workbook_->DefaultLanguage(); });
}

HRESULT ReportWorkbookObject::get_UseThemes(VARIANT_BOOL* result) {
    return Guarded([&] { *result = AutomationBoolean(workbook_->UseThemes()); });
}

HRESULT ReportWorkbookObject::put_UseThemes(VARIANT_BOOL useThemes) {
    return Guarded([&] { workbook_->SetUseThemes(Boolean(useThemes)); });
}

HRESULT ReportWorkbookObject::NewReportWorksheet(BSTR worksheetName, _VosExcelReportWorksheet** result) {
    return Guarded(
        [&] { SetReportObject<ReportWorksheetObject>(result, workbook_->NewReportWorksheet(Text(worksheetName))); });
}

HRESULT ReportWorkbookObject::DeleteReportWorksheets(VARIANT_BOOL deleteSheetsCreatedByAllVostrandApplications) {
    return Guarded([&] { workbook_->DeleteReportWorksheets(Boolean(deleteSheetsCreatedByAllVostrandApplications)); });
}

HRESULT ReportWorkbookObject::ActivateFirstWorksheetCreated() {
    return Guarded([&] { workbook_->ActivateFirstWorksheetCreated(); });
}

}  // namespace automation

#endif  // _WIN32
