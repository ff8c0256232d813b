#pragma once

#ifdef _WIN32

#include <windows.h>
// windows.h first: the OLE headers build on its types.
#include <oaidl.h>

#include <atomic>

namespace excel::com {

// What every automation object this project serves shares, whatever describes it: a reference
// count (the object deletes itself at its last Release), and its type information and member names
// answered by the ITypeInfo the object describes itself with. Interface is IDispatch or a dual
// interface derived from it.
template <class Interface>
class DispatchObject : public Interface {
public:
    DispatchObject() = default;
    DispatchObject(const DispatchObject&) = delete;
    DispatchObject& operator=(const DispatchObject&) = delete;

    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) {
            delete this;
        }
        return left;
    }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 1;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID, ITypeInfo** info) override {
        *info = index == 0 ? TypeInformation() : nullptr;
        if (*info == nullptr) {
            return index == 0 ? TYPE_E_CANTLOADLIBRARY : DISP_E_BADINDEX;
        }
        (*info)->AddRef();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
        ITypeInfo* info = TypeInformation();
        return info != nullptr ? info->GetIDsOfNames(names, count, ids) : TYPE_E_CANTLOADLIBRARY;
    }

protected:
    virtual ~DispatchObject() = default;

    // The type information the object answers with, without a reference; null when it has none.
    virtual ITypeInfo* TypeInformation() const = 0;

private:
    std::atomic<ULONG> references_{1};
};

}  // namespace excel::com

#endif  // _WIN32
