#ifdef _WIN32

#include "automation/failed_call.hpp"

#include "excel/com/wide_text.hpp"

#include <excel/automation_error.hpp>

#include <oleauto.h>

#include <exception>
#include <new>
#include <string>

namespace automation {

namespace {

HRESULT Raise(REFIID interfaceId, HRESULT code, const std::string& text) {
    ICreateErrorInfo* created = nullptr;
    if (SUCCEEDED(CreateErrorInfo(&created))) {
        created->SetGUID(interfaceId);
        created->SetSource(const_cast<LPOLESTR>(L"VosXLRep7"));
        std::wstring description = excel::com::WideFromUtf8(text);
        created->SetDescription(description.data());
        IErrorInfo* info = nullptr;
        if (SUCCEEDED(created->QueryInterface(IID_IErrorInfo, reinterpret_cast<void**>(&info)))) {
            SetErrorInfo(0, info);
            info->Release();
        }
        created->Release();
    }
    return code;
}

}  // namespace

HRESULT FailedCall(REFIID interfaceId) {
    try {
        throw;
    } catch (const excel::AutomationError& error) {
        return Raise(interfaceId, static_cast<HRESULT>(error.code()), error.what());
    } catch (const std::bad_alloc&) {
        return Raise(interfaceId, E_OUTOFMEMORY, "Out of memory");
    } catch (const std::exception& error) {
        return Raise(interfaceId, E_FAIL, error.what());
    } catch (...) {
        return Raise(interfaceId, E_FAIL, "Automation error");
    }
}

}  // namespace automation

#endif  // _WIN32
