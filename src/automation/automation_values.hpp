#pragma once

#ifdef _WIN32

#include "excel/com/com_interfaces.hpp"
#include "excel/com/com_object.hpp"
#include "excel/com/variant_conversion.hpp"
#include "excel/com/wide_text.hpp"

#include <excel/automation_error.hpp>
#include <excel/variant.hpp>

#include <windows.h>
// windows.h first: the OLE headers build on its types.
#include <oaidl.h>

#include <memory>
#include <string>

namespace automation {

// How the members' arguments and results cross between automation and the report library: texts
// as BSTRs, Booleans as VARIANT_BOOLs, Excel's objects as their dispatch pointers, which the report
// library drives through the object model over automation.

inline std::string Text(BSTR text) {
    return excel::com::Utf8FromBstr(text);
}

inline BSTR NewText(const std::string& text) {
    return excel::com::NewBstr(text);
}

inline bool Boolean(VARIANT_BOOL value) {
    return value != VARIANT_FALSE;
}

inline VARIANT_BOOL AutomationBoolean(bool value) {
    return value ? VARIANT_TRUE : VARIANT_FALSE;
}

inline excel::Variant Value(const VARIANT& value) {
    return excel::com::FromVariant(value, excel::com::ComObjects());
}

// Into a result the caller owns (it was empty).
inline void SetValue(VARIANT* result, const excel::Variant& value) {
    excel::com::ToVariant(value, *result, excel::com::ComObjects());
}

// An Excel object the client passed, as the interface the member takes, whatever its type
// information calls it; none for a null pointer.
template <class Interface>
std::shared_ptr<Interface> ExcelObject(IDispatch* dispatch, const char* interfaceName) {
    if (dispatch == nullptr) {
        return nullptr;
    }
    excel::com::DispatchType type = excel::com::TypeOf(dispatch);
    type.name = interfaceName;
    return std::dynamic_pointer_cast<Interface>(excel::com::TypedComObject(dispatch, type));
}

// An Excel object for the client, with a reference for it; null for none.
inline IDispatch* Dispatch(const std::shared_ptr<excel::Object>& object) {
    return excel::com::ComObjects().Unwrap(object);
}

// An array of the element type the member declares, passed by reference, as the Variant holding
// it (a copy). Arrays that do not record their element type (VBScript's Dim a(n)) take the
// declared one.
inline excel::Variant ArrayValue(SAFEARRAY** array, VARTYPE declared) {
    if (array == nullptr || *array == nullptr) {
        return excel::Variant(excel::SafeArray(excel::VarType::Variant, {}));  // unallocated
    }
    VARIANT held;
    VariantInit(&held);
    VARTYPE element = VT_EMPTY;
    held.vt = static_cast<VARTYPE>(
        VT_ARRAY | (SUCCEEDED(SafeArrayGetVartype(*array, &element)) && element != VT_EMPTY ? element : declared));
    held.parray = *array;  // borrowed: not cleared here
    return Value(held);
}

// Whether the client left an optional VARIANT argument out.
inline bool Omitted(const VARIANT& value) {
    return value.vt == VT_ERROR && value.scode == DISP_E_PARAMNOTFOUND;
}

// A report object for the client, as a new automation object of its class.
template <class AutomationClass, class Interface, class ReportObject>
void SetReportObject(Interface** result, std::shared_ptr<ReportObject> object) {
    *result = object != nullptr ? new AutomationClass(std::move(object)) : nullptr;
}

}  // namespace automation

#endif  // _WIN32
