#ifdef _WIN32

#include "excel/com/served_type_info.hpp"

#include "excel/com/wide_text.hpp"

#include <cwchar>
#include <map>
#include <memory>
#include <mutex>

namespace excel::com {

namespace {

class InterfaceTypeInfo final : public ITypeInfo {
public:
    explicit InterfaceTypeInfo(const ServedInterface& served) : served_(served) {
        attributes_.guid = served.Id();
        attributes_.lcid = 1033;
        attributes_.memidConstructor = MEMBERID_NIL;
        attributes_.memidDestructor = MEMBERID_NIL;
        attributes_.cbSizeVft = sizeof(void*) * 7;  // IDispatch's seven methods
        attributes_.typekind = TKIND_DISPATCH;
        attributes_.wTypeFlags = TYPEFLAG_FDISPATCHABLE;
    }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        if (id == IID_IUnknown || id == IID_ITypeInfo) {
            *object = this;
            return S_OK;
        }
        *object = nullptr;
        return E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }

    HRESULT STDMETHODCALLTYPE GetTypeAttr(TYPEATTR** attributes) override {
        *attributes = &attributes_;
        return S_OK;
    }
    void STDMETHODCALLTYPE ReleaseTypeAttr(TYPEATTR*) override {}

    HRESULT STDMETHODCALLTYPE GetDocumentation(MEMBERID id, BSTR* name, BSTR* text, DWORD* helpContext,
                                               BSTR* helpFile) override {
        if (id != MEMBERID_NIL) {
            return TYPE_E_ELEMENTNOTFOUND;
        }
        if (name != nullptr) {
            *name = NewBstr(served_.Name());
        }
        if (text != nullptr) {
            *text = nullptr;
        }
        if (helpContext != nullptr) {
            *helpContext = 0;
        }
        if (helpFile != nullptr) {
            *helpFile = nullptr;
        }
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE GetIDsOfNames(LPOLESTR* names, UINT count, MEMBERID* ids) override {
        HRESULT result = S_OK;
        for (UINT index = 0; index < count; ++index) {
            const auto id = index == 0 ? served_.IdOf(Utf8FromWide(names[index], wcslen(names[index]))) : std::nullopt;
            ids[index] = id ? *id : MEMBERID_NIL;
            result = id ? result : DISP_E_UNKNOWNNAME;
        }
        return result;
    }

    // The members are not described one by one.
    HRESULT STDMETHODCALLTYPE GetTypeComp(ITypeComp**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetFuncDesc(UINT, FUNCDESC**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetVarDesc(UINT, VARDESC**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetNames(MEMBERID, BSTR*, UINT, UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetRefTypeOfImplType(UINT, HREFTYPE*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetImplTypeFlags(UINT, INT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Invoke(PVOID, MEMBERID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetDllEntry(MEMBERID, INVOKEKIND, BSTR*, BSTR*, WORD*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetRefTypeInfo(HREFTYPE, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE AddressOfMember(MEMBERID, INVOKEKIND, PVOID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID, PVOID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetMops(MEMBERID, BSTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetContainingTypeLib(ITypeLib**, UINT*) override { return E_NOTIMPL; }
    void STDMETHODCALLTYPE ReleaseFuncDesc(FUNCDESC*) override {}
    void STDMETHODCALLTYPE ReleaseVarDesc(VARDESC*) override {}

private:
    const ServedInterface& served_;
    TYPEATTR attributes_{};
};

}  // namespace

ITypeInfo* ServedTypeInfo(const ServedInterface& served) {
    static std::map<const ServedInterface*, std::unique_ptr<InterfaceTypeInfo>> infos;
    static std::mutex infosLock;
    const std::lock_guard<std::mutex> guard(infosLock);
    auto& info = infos[&served];
    if (info == nullptr) {
        info = std::make_unique<InterfaceTypeInfo>(served);
    }
    return info.get();
}

}  // namespace excel::com

#endif  // _WIN32
