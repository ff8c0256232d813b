#pragma once

#ifdef _WIN32

#include "automation/automation_object.hpp"
#include "automation/type_library_interfaces.hpp"

#include <vos/vos_excel_report_workbook.hpp>

#include <memory>

namespace automation {

// A report workbook for automation clients; only NewReportWorkbook hands one out.
class ReportWorkbookObject final : public AutomationObject<_VosExcelReportWorkbook> {
public:
    explicit ReportWorkbookObject(std::shared_ptr<vos::VosExcelReportWorkbook> workbook)
        : workbook_(std::move(workbook)) {}

    HRESULT STDMETHODCALLTYPE get_ExcelWorkbook(IDispatch** result) override;
    HRESULT STDMETHODCALLTYPE get_applicationIdentifier(BSTR* result) override;
    HRESULT STDMETHODCALLTYPE get_DefaultLanguage(LONG* result) override;
    HRESULT STDMETHODCALLTYPE get_UseThemes(VARIANT_BOOL* result) override;
    HRESULT STDMETHODCALLTYPE put_UseThemes(VARIANT_BOOL useThemes) override;
    HRESULT STDMETHODCALLTYPE NewReportWorksheet(BSTR worksheetName, _VosExcelReportWorksheet** result) override;
    HRESULT STDMETHODCALLTYPE
    DeleteReportWorksheets(VARIANT_BOOL deleteSheetsCreatedByAllVostrandApplications) override;
    HRESULT STDMETHODCALLTYPE ActivateFirstWorksheetCreated() override;

private:
    std::shared_ptr<vos::VosExcelReportWorkbook> workbook_;
};

}  // namespace automation

#endif  // _WIN32
