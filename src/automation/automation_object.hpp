#pragma once

#ifdef _WIN32

#include "automation/arrays_by_reference.hpp"
#include "automation/automation_server.hpp"
#include "automation/failed_call.hpp"
#include "automation/type_library.hpp"
#include "excel/com/dispatch_object.hpp"

#include <windows.h>
// windows.h first: the OLE headers build on its types.
#include <oaidl.h>
#include <oleauto.h>

namespace automation {

// What every class of the server shares: IDispatch answered by the type library's description of
// the class's dual interface, and error information for its failures.
// A member's body runs inside Guarded, so a failure reaches the client as its code and text.
template <class Interface>
class AutomationObject : public excel::com::DispatchObject<Interface>, public ISupportErrorInfo {
public:
    AutomationObject() { ObjectMade(); }
    ~AutomationObject() override { ObjectGone(); }

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
        this->AddRef();
        return S_OK;
    }
    // ISupportErrorInfo's IUnknown is the object's own.
    ULONG STDMETHODCALLTYPE AddRef() override { return excel::com::DispatchObject<Interface>::AddRef(); }
    ULONG STDMETHODCALLTYPE Release() override { return excel::com::DispatchObject<Interface>::Release(); }

    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                                     EXCEPINFO* exception, UINT* badArgument) override {
        SetErrorInfo(0, nullptr);
        ITypeInfo* info = TypeInformation();
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
    ITypeInfo* TypeInformation() const override { return InterfaceTypeInfo(__uuidof(Interface)); }
};

}  // namespace automation

#endif  // _WIN32
