#pragma once

#ifdef _WIN32

#include "automation/automation_object.hpp"
#include "automation/type_library_interfaces.hpp"

#include <vos/vos_excel_reporting.hpp>

namespace automation {

// VosExcelReporting for automation clients: the library's entry, the one class they create.
class VosExcelReportingObject final : public AutomationObject<_VosExcelReporting> {
public:
    HRESULT STDMETHODCALLTYPE put_UnitTestingMode(VARIANT_BOOL on) override;
    HRESULT STDMETHODCALLTYPE get_UnitTestingMode(VARIANT_BOOL* result) override;
    HRESULT STDMETHODCALLTYPE NewReportWorkbook(IDispatch* xlApp, BSTR applicationIdentifier, IDispatch* existingWB,
                                                VARIANT_BOOL reusePreviouslyCreatedWorkbook, LONG DefaultLanguage,
                                                VARIANT* result) override;
    HRESULT STDMETHODCALLTYPE WorkbookHasCreationTag(IDispatch* wb, BSTR applicationIdentifier,
                                                     VARIANT_BOOL* result) override;
    HRESULT STDMETHODCALLTYPE WorksheetHasCreationTag(IDispatch* ws, BSTR applicationIdentifier,
                                                      VARIANT_BOOL* result) override;
    HRESULT STDMETHODCALLTYPE AddComment(IDispatch* p_CellRange, BSTR* p_HeaderText, BSTR p_MainText,
                                         IDispatch** result) override;

private:
    vos::VosExcelReporting reporting_;
};

}  // namespace automation

#endif  // _WIN32
