// The module of the engine's automation server: where COM finds its class, which makes a new
// instance of the engine with no workbook open (as each CreateObject("Excel.Application") starts a
// new Excel), and asks whether it may unload it.

#include "engine_automation/engine_server.hpp"
#include "excel/com/served_object.hpp"
#include "excel/com/server_module.hpp"

#include <excel/embedded.hpp>

namespace {

excel::com::ClassFactory factory([] { return excel::com::ServeObject(excel::embedded::CreateApplication()); });

}  // namespace

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    return excel::com::KeepServerModule(instance, reason);
}

STDAPI DllGetClassObject(REFCLSID classId, REFIID id, LPVOID* object) {
    if (classId != engine_automation::CLSID_EngineApplication) {
        *object = nullptr;
        return CLASS_E_CLASSNOTAVAILABLE;
    }
    return factory.QueryInterface(id, object);
}

STDAPI DllCanUnloadNow() {
    return excel::com::LiveServedObjects() == 0 && !excel::com::ServerLocked() ? S_OK : S_FALSE;
}
