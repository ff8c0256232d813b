// The server's entries in the registry: the class under its CLSID, served in-process from this
// module to single-threaded apartments, and the ProgID that names it.

#include "engine_automation/engine_server.hpp"
#include "excel/com/server_module.hpp"
#include "excel/com/server_registration.hpp"

#include <olectl.h>

namespace {

excel::com::ServerClass EngineClass() {
    return {engine_automation::CLSID_EngineApplication, engine_automation::EngineProgId, L"VosExcelEngine Application",
            std::nullopt, L""};
}

}  // namespace

STDAPI DllRegisterServer() {
    return excel::com::RegisterServerClass(excel::com::ServerModule(), EngineClass()) ? S_OK : SELFREG_E_CLASS;
}

STDAPI DllUnregisterServer() {
    return excel::com::UnregisterServerClass(EngineClass()) ? S_OK : SELFREG_E_CLASS;
}
