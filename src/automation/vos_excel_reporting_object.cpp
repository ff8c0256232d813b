#ifdef _WIN32

#include "automation/vos_excel_reporting_object.hpp"

#include "automation/automation_values.hpp"
#include "automation/report_workbook_object.hpp"

#include <excel/excel.hpp>

namespace automation {

HRESULT VosExcelReportingObject::put_UnitTestingMode(VARIANT_BOOL on) {
    return Guarded([&] { reporting_.SetUnitTestingMode(Boolean(on)); });
}

HRESULT VosExcelReportingObject::get_UnitTestingMode(VARIANT_BOOL* result) {
    return Guarded([&] { *result = AutomationBoolean(reporting_.UnitTestingMode()); });
}

HRESULT VosExcelReportingObject::NewReportWorkbook(IDispatch* xlApp, BSTR applicationIdentifier, IDispatch* existingWB,
                                                   VARIANT_BOOL reusePreviouslyCreatedWorkbook, LONG DefaultLanguage,
                                                   VARIANT* result) {
    return Guarded([&] {
        const auto report = reporting_.NewReportWorkbook(ExcelObject<excel::Application>(xlApp, "Application"),
                                                         Text(applicationIdentifier),
                                                         ExcelObject<excel::Workbook>(existingWB, "Workbook"),
                                                         Boolean(reusePreviouslyCreatedWorkbook), DefaultLanguage);
        _VosExcelReportWorkbook* workbook = nullptr;
        SetReportObject<ReportWorkbookObject>(&workbook, report);
        V_VT(result) = VT_DISPATCH;
        V_DISPATCH(result) = workbook;
    });
}

HRESULT VosExcelReportingObject::WorkbookHasCreationTag(IDispatch* wb, BSTR applicationIdentifier,
                                                        VARIANT_BOOL* result) {
    return Guarded([&] {
        *result = AutomationBoolean(reporting_.WorkbookHasCreationTag(ExcelObject<excel::Workbook>(wb, "Workbook"),
                                                                      Text(applicationIdentifier)));
    });
}

HRESULT VosExcelReportingObject::WorksheetHasCreationTag(IDispatch* ws, BSTR applicationIdentifier,
                                                         VARIANT_BOOL* result) {
    return Guarded([&] {
        *result = AutomationBoolean(reporting_.WorksheetHasCreationTag(ExcelObject<excel::Worksheet>(ws, "Worksheet"),
                                                                       Text(applicationIdentifier)));
    });
}

HRESULT VosExcelReportingObject::AddComment(IDispatch* p_CellRange, BSTR* p_HeaderText, BSTR p_MainText,
                                            IDispatch** result) {
    return Guarded([&] {
        *result =
            Dispatch(reporting_.AddComment(ExcelObject<excel::Range>(p_CellRange, "Range"),
                                           Text(p_HeaderText != nullptr ? *p_HeaderText : nullptr), Text(p_MainText)));
    });
}

}  // namespace automation

#endif  // _WIN32
