// The module of the engine's automation server: where COM finds its class and asks whether it may
// unload it.

#include "engine_automation/engine_class_factory.hpp"
#include "engine_automation/engine_server.hpp"
#include "excel/com/served_object.hpp"

#include <atomic>

namespace engine_automation {

namespace {

HMODULE serverModule = nullptr;
std::atomic<long> locks{0};
EngineClassFactory factory;

}  // namespace

HMODULE ServerModule() {
    return serverModule;
}

void LockServer(bool lock) {
    locks += lock ? 1 : -1;
}

bool ServerLocked() {
    return locks > 0;
}

}  // namespace engine_automation

using namespace engine_automation;

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) {
        serverModule = instance;
        DisableThreadLibraryCalls(instance);
    }
    return TRUE;
}

STDAPI DllGetClassObject(REFCLSID classId, REFIID id, LPVOID* object) {
    if (classId != CLSID_EngineApplication) {
        *object = nullptr;
        return CLASS_E_CLASSNOTAVAILABLE;
    }
    return factory.QueryInterface(id, object);
}

STDAPI DllCanUnloadNow() {
    return excel::com::LiveServedObjects() == 0 && !ServerLocked() ? S_OK : S_FALSE;
}
