#ifdef _WIN32

// The module of the automation server VosExcelReporting7: the class factory of its one creatable
// class, its registration with its type library, and the count of what clients hold.

#include "automation/automation_server.hpp"

#include "automation/type_library.hpp"
#include "automation/vos_excel_reporting_object.hpp"
#include "excel/com/server_registration.hpp"

#include "automation/type_library_interfaces.hpp"

#include <olectl.h>

#include <atomic>
#include <new>

namespace automation {

namespace {

HMODULE serverModule = nullptr;
std::atomic<long> liveObjects{0};
std::atomic<long> locks{0};

// Makes VosExcelReporting, the only class clients create.
class ReportingClassFactory final : public IClassFactory {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        if (id == IID_IUnknown || id == IID_IClassFactory) {
            *object = static_cast<IClassFactory*>(this);
            return S_OK;
        }
        *object = nullptr;
        return E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }  // one factory lives as long as the module
    ULONG STDMETHODCALLTYPE Release() override { return 1; }

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** object) override {
        *object = nullptr;
        if (outer != nullptr) {
            return CLASS_E_NOAGGREGATION;
        }
        auto* reporting = new (std::nothrow) VosExcelReportingObject();
        if (reporting == nullptr) {
            return E_OUTOFMEMORY;
        }
        const HRESULT result = reporting->QueryInterface(id, object);
        reporting->Release();
        return result;
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override {
        automation::LockServer(lock != FALSE);
        return S_OK;
    }
};

ReportingClassFactory factory;

excel::com::ServerClass ReportingClass() {
    return {__uuidof(VosExcelReporting), L"VosXLRep7.VosExcelReporting", L"VosExcelReporting", LIBID_VosXLRep7, L"1.1"};
}

}  // namespace

HMODULE ServerModule() {
    return serverModule;
}

void ObjectMade() {
    ++liveObjects;
}

void ObjectGone() {
    --liveObjects;
}

void LockServer(bool lock) {
    locks += lock ? 1 : -1;
}

bool ServerInUse() {
    return liveObjects > 0 || locks > 0;
}

}  // namespace automation

using namespace automation;

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) {
        serverModule = instance;
        DisableThreadLibraryCalls(instance);
    }
    return TRUE;
}

STDAPI DllGetClassObject(REFCLSID classId, REFIID id, LPVOID* object) {
    if (classId != __uuidof(VosExcelReporting)) {
        *object = nullptr;
        return CLASS_E_CLASSNOTAVAILABLE;
    }
    return factory.QueryInterface(id, object);
}

STDAPI DllCanUnloadNow() {
    return ServerInUse() ? S_FALSE : S_OK;
}

// Registers the type library (its interfaces with the automation marshaler) and the creatable class.
STDAPI DllRegisterServer() {
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(ServerModule(), path, MAX_PATH);
    ITypeLib* library = nullptr;
    if (FAILED(LoadTypeLibEx(path, REGKIND_NONE, &library))) {
        return SELFREG_E_TYPELIB;
    }
    const HRESULT typeLibraryRegistered = RegisterTypeLib(library, path, nullptr);
    library->Release();
    if (FAILED(typeLibraryRegistered)) {
        return SELFREG_E_TYPELIB;
    }
    return excel::com::RegisterServerClass(ServerModule(), ReportingClass()) ? S_OK : SELFREG_E_CLASS;
}

STDAPI DllUnregisterServer() {
    const HRESULT typeLibraryRemoved = UnRegisterTypeLib(LIBID_VosXLRep7, 1, 1, 1033, SYS_WIN64);
    const bool classRemoved = excel::com::UnregisterServerClass(ReportingClass());
    const bool libraryGone = SUCCEEDED(typeLibraryRemoved) || typeLibraryRemoved == TYPE_E_REGISTRYACCESS ||
                             typeLibraryRemoved == TYPE_E_LIBNOTREGISTERED;
    return classRemoved && libraryGone ? S_OK : SELFREG_E_CLASS;
}

#endif  // _WIN32
