#pragma once

#ifdef _WIN32

#include "automation/arrays_by_reference.hpp"
#include "automation/automation_server.hpp"
#include "automation/failed_call.hpp"
#include "automation/type_library.hpp"

#include <windows.h>
// windows.h first: the OLE headers build on its types.
#include <oaidl.h>
#include <oleauto.h>

#include <atomic>

namespace automation {

// What every class of the server shares: reference counting, IDispatch answered by the type
// library's description of the class's dual interface, and error information for its failures.
// A member's body runs inside Guarded, so a failure reaches the client as its code and text.
template <class Interface>
class AutomationObject : public Interface, public ISupportErrorInfo {
public:
    AutomationObject() { ObjectMade(); }
    virtual ~AutomationObject() { ObjectGone(); }
    AutomationObject(const AutomationObject&) = delete;
    AutomationObject& operator=(const AutomationObject&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        if (object == nullptr) {
            return E_POINTER;
        }
        if (id == IID_IUnknown || id == IID_IDispatch || id == __uuidof(Interface)) {
            *object = static_cast<Interface*>(this);
        } else if (id == IID_ISupportErrorInfo) {
            *object = static_cast<ISupportErrorInfo*>(this);
        } else {
            *object = nullptr;
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) {
            delete this;
        }
        return left;
    }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 1;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID, ITypeInfo** info) override {
        if (index != 0) {
            *info = nullptr;
            return DISP_E_BADINDEX;
        }
        *info = TypeInfo();
        if (*info == nullptr) {
            return TYPE_E_CANTLOADLIBRARY;
        }
        (*info)->AddRef();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
        ITypeInfo* info = TypeInfo();
        return info != nullptr ? DispGetIDsOfNames(info, names, count, ids) : TYPE_E_CANTLOADLIBRARY;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                                     EXCEPINFO* exception, UINT* badArgument) override {
        SetErrorInfo(0, nullptr);
        ITypeInfo* info = TypeInfo();
        if (info == nullptr) {
            return TYPE_E_CANTLOADLIBRARY;
        }
        ArraysByReference arguments(parameters);
        return info->Invoke(static_cast<Interface*>(this), id, flags, arguments.Parameters(), result, exception,
                            badArgument);
    }

    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID id) override {
        return id == __uuidof(Interface) ? S_OK : S_FALSE;
    }

protected:
    // Runs a member's body; its failure comes back as the member's HRESULT with error information.
    template <class Body>
    HRESULT Guarded(Body&& body) {
        try {
            body();
            return S_OK;
        } catch (...) {
            return FailedCall(__uuidof(Interface));
        }
    }

private:
    static ITypeInfo* TypeInfo() { return InterfaceTypeInfo(__uuidof(Interface)); }

    std::atomic<ULONG> references_{1};
};

}  // namespace automation

#endif  // _WIN32
