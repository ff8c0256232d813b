#include "engine_automation/engine_class_factory.hpp"

#include "engine_automation/engine_server.hpp"
#include "excel/com/served_object.hpp"

#include <excel/embedded.hpp>

#include <exception>

namespace engine_automation {

HRESULT EngineClassFactory::QueryInterface(REFIID id, void** object) {
    if (id == IID_IUnknown || id == IID_IClassFactory) {
        *object = static_cast<IClassFactory*>(this);
        return S_OK;
    }
    *object = nullptr;
    return E_NOINTERFACE;
}

HRESULT EngineClassFactory::CreateInstance(IUnknown* outer, REFIID id, void** object) {
    *object = nullptr;
    if (outer != nullptr) {
        return CLASS_E_NOAGGREGATION;
    }
    try {
        IDispatch* application = excel::com::ServeObject(excel::embedded::CreateApplication());
        const HRESULT result = application->QueryInterface(id, object);
        application->Release();
        return result;
    } catch (const std::exception&) {
        return E_OUTOFMEMORY;
    }
}

HRESULT EngineClassFactory::LockServer(BOOL lock) {
    engine_automation::LockServer(lock != FALSE);
    return S_OK;
}

}  // namespace engine_automation
