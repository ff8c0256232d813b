// A script host that treats a type library's application object as VBA does: it creates the
// coclass flagged appobject and hands it to VBScript as a named item with global members, so the
// script calls that class's members without naming an instance. cscript offers no such thing.
// The host also gives the script WScript.Echo, which prints a line.
//
// Usage: global_members_host LIBRARY SCRIPT.vbs
// LIBRARY is a .tlb, or a .dll holding the type library; its appobject class must be registered.
// The exit status is 1 when the script fails to parse or stops on an error, which is printed.

#include <windows.h>
// windows.h first: the OLE and scripting headers build on its types.
#include <activscp.h>
#include <oleauto.h>
#include <wrl/client.h>

#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>

using Microsoft::WRL::ComPtr;

namespace {

const CLSID kVBScript = {0xb54f3741, 0x5b07, 0x11cf, {0xa4, 0xb0, 0x00, 0xaa, 0x00, 0x4a, 0x55, 0xe8}};

std::string Utf8(const wchar_t* text) {
    if (text == nullptr)
        return {};
    const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
    std::string result(size > 0 ? size - 1 : 0, '\0');
    WideCharToMultiByte(CP_UTF8, 0, text, -1, result.data(), size, nullptr, nullptr);
    return result;
}

std::wstring Wide(const std::string& text) {
    const int size = MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()), nullptr, 0);
    std::wstring result(size, L'\0');
    MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()), result.data(), size);
    return result;
}

// One interface on an object that lives on the host's stack, so counting references frees nothing.
template <class Interface>
class HostObject : public Interface {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (iid != IID_IUnknown && iid != __uuidof(Interface)) {
            *object = nullptr;
            return E_NOINTERFACE;
        }
        *object = static_cast<Interface*>(this);
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
};

// The object named WScript: Echo prints its argument as text.
class EchoObject final : public HostObject<IDispatch> {
public:
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
        if (count != 1 || _wcsicmp(names[0], L"Echo") != 0) {
            ids[0] = DISPID_UNKNOWN;
            return DISP_E_UNKNOWNNAME;
        }
        ids[0] = kEcho;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                                     UINT*) override {
        if (id != kEcho)
            return DISP_E_MEMBERNOTFOUND;
        if (parameters->cArgs != 1)
            return DISP_E_BADPARAMCOUNT;
        VARIANT text;
        VariantInit(&text);
        const HRESULT converted = VariantChangeType(&text, &parameters->rgvarg[0], 0, VT_BSTR);
        if (FAILED(converted))
            return converted;
        std::printf("%s\n", Utf8(text.bstrVal).c_str());
        std::fflush(stdout);
        VariantClear(&text);
        return S_OK;
    }

private:
    static constexpr DISPID kEcho = 1;
};

// The site the script engine calls back: it hands out the named items and reports script errors.
class Site final : public HostObject<IActiveScriptSite> {
public:
    Site(std::wstring globalName, IDispatch* global, ITypeInfo* globalType)
        : globalName_(std::move(globalName)), global_(global), globalType_(globalType) {}

    bool Failed() const { return failed_; }

    HRESULT STDMETHODCALLTYPE GetLCID(LCID*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetItemInfo(LPCOLESTR name, DWORD mask, IUnknown** item, ITypeInfo** type) override {
        IDispatch* object = nullptr;
        ITypeInfo* info = nullptr;
        if (_wcsicmp(name, globalName_.c_str()) == 0) {
            object = global_;
            info = globalType_;
        } else if (_wcsicmp(name, L"WScript") == 0) {
            object = &echo_;
        } else {
            return TYPE_E_ELEMENTNOTFOUND;
        }
        if ((mask & SCRIPTINFO_IUNKNOWN) != 0) {
            *item = object;
            object->AddRef();
        }
        if ((mask & SCRIPTINFO_ITYPEINFO) != 0) {
            *type = info;
            if (info == nullptr)
                return TYPE_E_ELEMENTNOTFOUND;
            info->AddRef();
        }
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetDocVersionString(BSTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE OnScriptTerminate(const VARIANT*, const EXCEPINFO*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnStateChange(SCRIPTSTATE) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnScriptError(IActiveScriptError* error) override {
        failed_ = true;
        EXCEPINFO exception{};
        error->GetExceptionInfo(&exception);
        DWORD context = 0;
        ULONG line = 0;
        LONG column = 0;
        error->GetSourcePosition(&context, &line, &column);
        std::printf("Script error at line %lu: %s (0x%08lX)\n", line + 1, Utf8(exception.bstrDescription).c_str(),
                    static_cast<unsigned long>(exception.scode));
        SysFreeString(exception.bstrSource);
        SysFreeString(exception.bstrDescription);
        SysFreeString(exception.bstrHelpFile);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnEnterScript() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnLeaveScript() override { return S_OK; }

private:
    std::wstring globalName_;
    IDispatch* global_;
    ITypeInfo* globalType_;
    EchoObject echo_;
    bool failed_ = false;
};

// The library's coclass flagged appobject: its type information, or null when it has none.
ComPtr<ITypeInfo> ApplicationClass(ITypeLib* library) {
    for (UINT index = 0; index < library->GetTypeInfoCount(); ++index) {
        ComPtr<ITypeInfo> type;
        TYPEATTR* attributes = nullptr;
        if (FAILED(library->GetTypeInfo(index, &type)) || FAILED(type->GetTypeAttr(&attributes)))
            continue;
        const bool application =
            attributes->typekind == TKIND_COCLASS && (attributes->wTypeFlags & TYPEFLAG_FAPPOBJECT);
        type->ReleaseTypeAttr(attributes);
        if (application)
            return type;
    }
    return nullptr;
}

int Fail(const char* what, HRESULT result) {
    std::printf("global_members_host: %s (0x%08lX)\n", what, static_cast<unsigned long>(result));
    return 1;
}

int Run(const wchar_t* libraryPath, const std::string& scriptPath) {
    ComPtr<ITypeLib> library;
    HRESULT result = LoadTypeLibEx(libraryPath, REGKIND_NONE, &library);
    if (FAILED(result))
        return Fail("the type library cannot be loaded", result);
    const ComPtr<ITypeInfo> applicationClass = ApplicationClass(library.Get());
    if (!applicationClass)
        return Fail("the type library has no appobject class", E_FAIL);
    TYPEATTR* attributes = nullptr;
    applicationClass->GetTypeAttr(&attributes);
    const CLSID classId = attributes->guid;
    applicationClass->ReleaseTypeAttr(attributes);
    BSTR className = nullptr;
    applicationClass->GetDocumentation(MEMBERID_NIL, &className, nullptr, nullptr, nullptr);
    const std::wstring name(className);
    SysFreeString(className);

    ComPtr<IDispatch> application;
    result = CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, &application);
    if (FAILED(result))
        return Fail("the appobject class cannot be created", result);

    std::ifstream file(scriptPath, std::ios::binary);
    if (!file)
        return Fail("the script cannot be read", E_FAIL);
    std::ostringstream text;
    text << file.rdbuf();

    ComPtr<IActiveScript> engine;
    ComPtr<IActiveScriptParse> parser;
    result = CoCreateInstance(kVBScript, nullptr, CLSCTX_INPROC_SERVER, IID_IActiveScript, &engine);
    if (FAILED(result) || FAILED(result = engine.As(&parser)))
        return Fail("VBScript is not available", result);
    Site site(name, application.Get(), applicationClass.Get());
    if (FAILED(result = parser->InitNew()) || FAILED(result = engine->SetScriptSite(&site)) ||
        FAILED(result = engine->AddNamedItem(name.c_str(), SCRIPTITEM_ISVISIBLE | SCRIPTITEM_GLOBALMEMBERS)) ||
        FAILED(result = engine->AddNamedItem(L"WScript", SCRIPTITEM_ISVISIBLE)))
        return Fail("the script engine refused the host", result);
    EXCEPINFO exception{};
    result = parser->ParseScriptText(Wide(text.str()).c_str(), nullptr, nullptr, nullptr, 0, 0, SCRIPTTEXT_ISVISIBLE,
                                     nullptr, &exception);
    if (SUCCEEDED(result))
        result = engine->SetScriptState(SCRIPTSTATE_CONNECTED);
    engine->Close();
    if (site.Failed())
        return 1;
    return FAILED(result) ? Fail("the script did not run", result) : 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::printf("Usage: global_members_host LIBRARY SCRIPT.vbs\n");
        return 2;
    }
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    const int status = Run(Wide(argv[1]).c_str(), argv[2]);
    CoUninitialize();
    return status;
}
