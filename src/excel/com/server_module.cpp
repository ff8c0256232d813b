#ifdef _WIN32

#include "excel/com/server_module.hpp"

#include <atomic>
#include <exception>
#include <new>

namespace excel::com {

namespace {

HMODULE serverModule = nullptr;
std::atomic<long> locks{0};

}  // namespace

BOOL KeepServerModule(HINSTANCE instance, DWORD reason) {
    if (reason == DLL_PROCESS_ATTACH) {
        serverModule = instance;
        DisableThreadLibraryCalls(instance);
    }
    return TRUE;
}

HMODULE ServerModule() {
    return serverModule;
}

bool ServerLocked() {
    return locks > 0;
}

HRESULT ClassFactory::QueryInterface(REFIID id, void** object) {
    if (id == IID_IUnknown || id == IID_IClassFactory) {
        *object = static_cast<IClassFactory*>(this);
        return S_OK;
    }
    *object = nullptr;
    return E_NOINTERFACE;
}

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID id, void** object) {
    *object = nullptr;
    if (outer != nullptr) {
        return CLASS_E_NOAGGREGATION;
    }
    try {
        IUnknown* made = make_();
        const HRESULT result = made->QueryInterface(id, object);
        made->Release();
        return result;
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (const std::exception&) {
        return E_FAIL;
    }
}

HRESULT ClassFactory::LockServer(BOOL lock) {
    locks += lock != FALSE ? 1 : -1;
    return S_OK;
}

}  // namespace excel::com

#endif  // _WIN32
