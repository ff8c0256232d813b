#ifdef _WIN32

// The module of the automation server VosExcelReporting7: the class factory of its one creatable
// class, its registration with its type library, and the count of what clients hold.

#include "automation/automation_server.hpp"

#include "automation/type_library_interfaces.hpp"
#include "automation/vos_excel_reporting_object.hpp"
#include "excel/com/server_module.hpp"
#include "excel/com/server_registration.hpp"

#include <olectl.h>

#include <atomic>

namespace automation {

namespace {

std::atomic<long> liveObjects{0};

excel::com::ClassFactory factory([]() -> IUnknown* {
    return static_cast<_VosExcelReporting*>(new VosExcelReportingObject());
});

excel::com::ServerClass ReportingClass() {
    return {__uuidof(VosExcelReporting), L"VosXLRep7.VosExcelReporting", L"VosExcelReporting", LIBID_VosXLRep7, L"1.1"};
}

}  // namespace

void ObjectMade() {
    ++liveObjects;
}

void ObjectGone() {
    --liveObjects;
}

}  // namespace automation

using namespace automation;

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    return excel::com::KeepServerModule(instance, reason);
}

STDAPI DllGetClassObject(REFCLSID classId, REFIID id, LPVOID* object) {
    if (classId != __uuidof(VosExcelReporting)) {
        *object = nullptr;
        return CLASS_E_CLASSNOTAVAILABLE;
    }
    return factory.QueryInterface(id, object);
}

STDAPI DllCanUnloadNow() {
    return liveObjects > 0 || excel::com::ServerLocked() ? S_FALSE : S_OK;
}

// Registers the type library (its interfaces with the automation marshaler) and the creatable class.
STDAPI DllRegisterServer() {
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(excel::com::ServerModule(), path, MAX_PATH);
    ITypeLib* library = nullptr;
    if (FAILED(LoadTypeLibEx(path, REGKIND_NONE, &library))) {
        return SELFREG_E_TYPELIB;
    }
    const HRESULT typeLibraryRegistered = RegisterTypeLib(library, path, nullptr);
    library->Release();
    if (FAILED(typeLibraryRegistered)) {
        return SELFREG_E_TYPELIB;
    }
    return excel::com::RegisterServerClass(excel::com::ServerModule(), ReportingClass()) ? S_OK : SELFREG_E_CLASS;
}

STDAPI DllUnregisterServer() {
    const HRESULT typeLibraryRemoved = UnRegisterTypeLib(LIBID_VosXLRep7, 1, 1, 1033, SYS_WIN64);
    const bool classRemoved = excel::com::UnregisterServerClass(ReportingClass());
    const bool libraryGone = SUCCEEDED(typeLibraryRemoved) || typeLibraryRemoved == TYPE_E_REGISTRYACCESS ||
                             typeLibraryRemoved == TYPE_E_LIBNOTREGISTERED;
    return classRemoved && libraryGone ? S_OK : SELFREG_E_CLASS;
}

#endif  // _WIN32
