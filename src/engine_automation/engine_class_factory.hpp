#pragma once

#include <windows.h>
// windows.h first: the OLE headers build on its types.
#include <unknwn.h>

namespace engine_automation {

// Makes the engine's automation object: each a new instance of the engine with no workbook open, as
// each CreateObject("Excel.Application") starts a new Excel.
class EngineClassFactory final : public IClassFactory {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }  // one factory lives as long as the module
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** object) override;
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override;
};

}  // namespace engine_automation
