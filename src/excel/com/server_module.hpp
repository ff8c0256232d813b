#pragma once

#ifdef _WIN32

#include <windows.h>
// windows.h first: the OLE headers build on its types.
#include <unknwn.h>

#include <functional>

namespace excel::com {

// What an in-process automation server keeps of its module: the handle DllMain received (for the
// path it registers and the resources it loads) and the locks clients hold through its class
// factory. Each server links its own copy, so each keeps its own.
// What a server's DllMain does: keeps the module's handle when the module is loaded.
BOOL KeepServerModule(HINSTANCE instance, DWORD reason);
HMODULE ServerModule();
bool ServerLocked();

// The class factory of a server's one creatable class: it makes a new object with the given
// function (which answers with one reference, or throws) and hands out the interface asked for.
// Aggregation is refused; locks are kept for the module.
class ClassFactory final : public IClassFactory {
public:
    explicit ClassFactory(std::function<IUnknown*()> make) : make_(std::move(make)) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }  // a factory lives as long as its module
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** object) override;
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override;

private:
    std::function<IUnknown*()> make_;
};

}  // namespace excel::com

#endif  // _WIN32
