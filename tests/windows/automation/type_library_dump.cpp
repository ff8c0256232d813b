// Prints a type library as canonical text, so that a library built from its IDL can be compared
// with an expected description by diff. Enumerations, interfaces and coclasses each come in name
// order, whatever order the IDL declares them in; an interface's members come in vtable order.
//
// Usage: type_library_dump PATH   (a .tlb, or a .dll or .exe holding the library as a resource)
// Output (UTF-8, LF line ends):
//   library NAME MAJOR.MINOR lcid LCID
//   enum NAME
//     MEMBER = VALUE
//   interface NAME : BASE [dual]          (dispinterface NAME for a pure dispatch interface)
//     ID KIND NAME(PARAM, ...) -> RESULT   KIND: method, propget, propput or propputref
//   coclass NAME [appobject] cancreate|noncreatable [default] [source] INTERFACE ...
// A parameter prints as [FLAGS] TYPE NAME, the flags showing what differs from a plain input (in,
// out, retval, lcid, optional, default=VALUE). A put's right-hand value prints without a name; the
// retval parameter is the RESULT. Dispatch ids must ascend in member order, a property's get and
// put sharing one: an "error:" line reports each place where they do not, and the exit status is 1.

#include <windows.h>
// windows.h first: the OLE headers build on its types.
#include <oleauto.h>

#include <fcntl.h>
#include <io.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <iterator>
#include <string>
#include <vector>

namespace {

// Releases the COM object it holds.
template <class T>
class Ref {
public:
    Ref() = default;
    Ref(const Ref&) = delete;
    Ref& operator=(const Ref&) = delete;
    ~Ref() {
        if (object_)
            object_->Release();
    }
    T** operator&() { return &object_; }
    T* operator->() const { return object_; }
    T* get() const { return object_; }

private:
    T* object_ = nullptr;
};

std::string Utf8(const wchar_t* text, int length = -1) {
    if (!text || length == 0)
        return {};
    const int size = WideCharToMultiByte(CP_UTF8, 0, text, length, nullptr, 0, nullptr, nullptr);
    std::string result(size, '\0');
    WideCharToMultiByte(CP_UTF8, 0, text, length, result.data(), size, nullptr, nullptr);
    if (length < 0)
        result.pop_back();  // the terminating null
    return result;
}

std::string NameOf(ITypeInfo* info, MEMBERID member = MEMBERID_NIL) {
    BSTR name = nullptr;
    if (FAILED(info->GetDocumentation(member, &name, nullptr, nullptr, nullptr)))
        return "?";
    std::string result = Utf8(name);
    SysFreeString(name);
    return result;
}

std::string Quoted(const wchar_t* text, UINT length) {
    std::string result = "\"";
    for (unsigned char c : Utf8(text, static_cast<int>(length))) {
        if (c == '"' || c == '\\') {
            result += '\\';
            result += static_cast<char>(c);
        } else if (c < 0x20) {
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\x%02X", c);
            result += escape;
        } else {
            result += static_cast<char>(c);
        }
    }
    return result + "\"";
}

// The shortest text that reads back as the same double (or float), with ".0" on whole numbers so
// that a floating default never reads like an integer one.
std::string Floating(double value, bool single) {
    char text[64];
    const auto end = single ? std::to_chars(text, text + sizeof text, static_cast<float>(value)).ptr
                            : std::to_chars(text, text + sizeof text, value).ptr;
    std::string result(text, end);
    if (std::isfinite(value) && result.find_first_of(".e") == std::string::npos)
        result += ".0";
    return result;
}

// The value as automation converts it to text in US English.
std::string ConvertedText(const VARIANT& value) {
    VARIANT converted;
    VariantInit(&converted);
    std::string text = "?";
    if (SUCCEEDED(VariantChangeTypeEx(&converted, const_cast<VARIANT*>(&value), 1033, 0, VT_BSTR))) {
        text = Utf8(V_BSTR(&converted), static_cast<int>(SysStringLen(V_BSTR(&converted))));
    }
    VariantClear(&converted);
    return text;
}

std::string ValueText(const VARIANT& value) {
    static const VARTYPE kIntegers[] = {VT_I1, VT_I2, VT_I4, VT_I8, VT_INT, VT_UI1, VT_UI2, VT_UI4, VT_UI8, VT_UINT};
    switch (V_VT(&value)) {
        case VT_EMPTY:
            return "Empty";
        case VT_NULL:
            return "Null";
        case VT_BOOL:
            return V_BOOL(&value) ? "True" : "False";
        case VT_R4:
            return Floating(V_R4(&value), true);
        case VT_R8:
            return Floating(V_R8(&value), false);
        case VT_BSTR:
            return Quoted(V_BSTR(&value), SysStringLen(V_BSTR(&value)));
        case VT_DISPATCH:
        case VT_UNKNOWN:
            return V_UNKNOWN(&value) ? "(object)" : "Nothing";
    }
    // Integers as their digits; dates, currency and the rest as automation's text, tagged with the type.
    const bool integer = std::find(std::begin(kIntegers), std::end(kIntegers), V_VT(&value)) != std::end(kIntegers);
    return (integer ? "" : "(vt " + std::to_string(V_VT(&value)) + ")") + ConvertedText(value);
}

std::string TypeText(ITypeInfo* info, const TYPEDESC& type) {
    // Indexed by VARTYPE, up to VT_LPWSTR; the gaps are handled below or are not automation types.
    static const char* const kNames[] = {
        "EMPTY",          "NULL",  "short",        "long",          "float",          "double",        "CURRENCY",
        "DATE",           "BSTR",  "IDispatch*",   "SCODE",         "VARIANT_BOOL",   "VARIANT",       "IUnknown*",
        "DECIMAL",        nullptr, "char",         "unsigned char", "unsigned short", "unsigned long", "hyper",
        "unsigned hyper", "int",   "unsigned int", "void",          "HRESULT",        nullptr,         nullptr,
        nullptr,          nullptr, "LPSTR",        "LPWSTR"};
    switch (type.vt) {
        case VT_PTR:
            return TypeText(info, *type.lptdesc) + "*";
        case VT_SAFEARRAY:
            return "SAFEARRAY(" + TypeText(info, *type.lptdesc) + ")";
        case VT_USERDEFINED: {
            Ref<ITypeInfo> referenced;
            if (FAILED(info->GetRefTypeInfo(type.hreftype, &referenced)))
                return "?";
            return NameOf(referenced.get());
        }
    }
    if (type.vt < std::size(kNames) && kNames[type.vt])
        return kNames[type.vt];
    return "(vt " + std::to_string(type.vt) + ")";
}

const char* KindText(INVOKEKIND kind) {
    return kind == INVOKE_FUNC             ? "method"
           : kind == INVOKE_PROPERTYGET    ? "propget"
           : kind == INVOKE_PROPERTYPUT    ? "propput"
           : kind == INVOKE_PROPERTYPUTREF ? "propputref"
                                           : "?";
}

std::string IdText(MEMBERID id) {
    char text[16];
    std::snprintf(text, sizeof text, id >= 0 && id < 0x10000 ? "%lu" : "0x%08lX", static_cast<unsigned long>(id));
    return text;
}

bool InheritedFromIDispatch(const std::string& name) {
    static const char* const kNames[] = {"QueryInterface", "AddRef",        "Release", "GetTypeInfoCount",
                                         "GetTypeInfo",    "GetIDsOfNames", "Invoke"};
    return std::any_of(std::begin(kNames), std::end(kNames), [&](const char* n) { return name == n; });
}

// One member: "ID KIND NAME(PARAMS) -> RESULT". Names are looked up by dispatch id, so a member
// that repeats another's id shows that one's names (the id check reports it).
std::string MemberText(ITypeInfo* info, const FUNCDESC& function, std::string& name) {
    std::vector<BSTR> names(function.cParams + 1, nullptr);
    UINT nameCount = 0;
    info->GetNames(function.memid, names.data(), static_cast<UINT>(names.size()), &nameCount);
    name = nameCount > 0 ? Utf8(names[0]) : "?";

    const bool put = function.invkind == INVOKE_PROPERTYPUT || function.invkind == INVOKE_PROPERTYPUTREF;
    std::string params;
    std::string result;
    for (SHORT i = 0; i < function.cParams; ++i) {
        const ELEMDESC& element = function.lprgelemdescParam[i];
        const USHORT flags = element.paramdesc.wParamFlags;
        const bool last = i + 1 == function.cParams;
        if ((flags & PARAMFLAG_FRETVAL) && last && element.tdesc.vt == VT_PTR) {
            result = TypeText(info, *element.tdesc.lptdesc);
            continue;
        }
        std::string marks;
        const auto mark = [&marks](const std::string& text) { marks += (marks.empty() ? "" : ", ") + text; };
        if (flags & PARAMFLAG_FOUT)
            mark(flags & PARAMFLAG_FIN ? "in, out" : "out");
        if (flags & PARAMFLAG_FRETVAL)
            mark("retval");
        if (flags & PARAMFLAG_FLCID)
            mark("lcid");
        if (flags & PARAMFLAG_FOPT)
            mark("optional");
        if ((flags & PARAMFLAG_FHASDEFAULT) && element.paramdesc.pparamdescex)
            mark("default=" + ValueText(element.paramdesc.pparamdescex->varDefaultValue));
        std::string text = (marks.empty() ? "" : "[" + marks + "] ") + TypeText(info, element.tdesc);
        if (!(put && last)) {
            const UINT index = static_cast<UINT>(i) + 1;
            text.append(" ").append(index < nameCount ? Utf8(names[index]) : std::string("?"));
        }
        params.append(params.empty() ? "" : ", ").append(text);
    }
    for (BSTR n : names)
        SysFreeString(n);

    const VARTYPE returned = function.elemdescFunc.tdesc.vt;
    if (result.empty() && returned != VT_HRESULT && returned != VT_VOID) {
        result = TypeText(info, function.elemdescFunc.tdesc);
    }
    std::string text = IdText(function.memid) + " " + KindText(function.invkind) + " " + name + "(" + params + ")";
    if (function.cParamsOpt == -1)
        text += " vararg";
    if (!result.empty())
        text += " -> " + result;
    return text;
}

struct Listing {
    std::string out;
    bool ordered = true;
    void Line(const std::string& text) { out += text + "\n"; }
};

void DumpEnum(ITypeInfo* info, const TYPEATTR& attributes, Listing& listing) {
    listing.Line("enum " + NameOf(info));
    for (WORD i = 0; i < attributes.cVars; ++i) {
        VARDESC* variable = nullptr;
        if (FAILED(info->GetVarDesc(i, &variable)))
            continue;
        const std::string value = variable->varkind == VAR_CONST ? ValueText(*variable->lpvarValue) : "?";
        listing.Line("  " + NameOf(info, variable->memid) + " = " + value);
        info->ReleaseVarDesc(variable);
    }
}

void DumpInterface(ITypeInfo* library_view, const TYPEATTR& attributes, Listing& listing) {
    const bool dual = (attributes.wTypeFlags & TYPEFLAG_FDUAL) != 0;
    // A dual interface's members are listed from its vtable half, which holds only its own members.
    Ref<ITypeInfo> vtable_half;
    ITypeInfo* info = library_view;
    if (attributes.typekind == TKIND_DISPATCH && dual) {
        HREFTYPE reference = 0;
        if (SUCCEEDED(library_view->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference)) &&
            SUCCEEDED(library_view->GetRefTypeInfo(reference, &vtable_half))) {
            info = vtable_half.get();
        }
    }
    TYPEATTR* own = nullptr;
    if (FAILED(info->GetTypeAttr(&own)))
        return;

    std::string heading = (own->typekind == TKIND_DISPATCH ? "dispinterface " : "interface ") + NameOf(info);
    HREFTYPE base_reference = 0;
    Ref<ITypeInfo> base;
    if (own->typekind == TKIND_INTERFACE && own->cImplTypes > 0 &&
        SUCCEEDED(info->GetRefTypeOfImplType(0, &base_reference)) &&
        SUCCEEDED(info->GetRefTypeInfo(base_reference, &base))) {
        heading += " : " + NameOf(base.get());
    }
    listing.Line(heading + (dual ? " dual" : ""));

    bool first = true;
    MEMBERID previous_id = 0;
    std::string previous_name;
    for (WORD i = 0; i < own->cFuncs; ++i) {
        FUNCDESC* function = nullptr;
        if (FAILED(info->GetFuncDesc(i, &function)))
            continue;
        std::string name;
        const std::string text = MemberText(info, *function, name);
        const MEMBERID id = function->memid;
        info->ReleaseFuncDesc(function);
        if (InheritedFromIDispatch(name))
            continue;
        listing.Line("  " + text);
        if (!first && !(id > previous_id || (id == previous_id && name == previous_name))) {
            listing.Line("error: dispatch id " + IdText(id) + " of " + name + " does not follow " +
                         IdText(previous_id) + " of " + previous_name);
            listing.ordered = false;
        }
        first = false;
        previous_id = id;
        previous_name = name;
    }
    info->ReleaseTypeAttr(own);
}

void DumpCoclass(ITypeInfo* info, const TYPEATTR& attributes, Listing& listing) {
    std::string text = "coclass " + NameOf(info);
    if (attributes.wTypeFlags & TYPEFLAG_FAPPOBJECT)
        text += " appobject";
    text += attributes.wTypeFlags & TYPEFLAG_FCANCREATE ? " cancreate" : " noncreatable";
    for (WORD i = 0; i < attributes.cImplTypes; ++i) {
        HREFTYPE reference = 0;
        Ref<ITypeInfo> implemented;
        INT flags = 0;
        if (FAILED(info->GetRefTypeOfImplType(i, &reference)) ||
            FAILED(info->GetRefTypeInfo(reference, &implemented))) {
            continue;
        }
        info->GetImplTypeFlags(i, &flags);
        if (flags & IMPLTYPEFLAG_FDEFAULT)
            text += " default";
        if (flags & IMPLTYPEFLAG_FSOURCE)
            text += " source";
        text.append(" ").append(NameOf(implemented.get()));
    }
    listing.Line(text);
}

struct Entry {
    int group;  // 0 enumerations, 1 interfaces, 2 coclasses
    std::wstring name;
    UINT index;
};

}  // namespace

int main(int argc, char** argv) {
    _setmode(_fileno(stdout), _O_BINARY);
    if (argc != 2) {
        std::fprintf(stderr, "usage: type_library_dump PATH\n");
        return 2;
    }
    const int length = MultiByteToWideChar(CP_ACP, 0, argv[1], -1, nullptr, 0);
    std::wstring path(length, L'\0');
    MultiByteToWideChar(CP_ACP, 0, argv[1], -1, path.data(), length);

    Ref<ITypeLib> library;
    const HRESULT loaded = LoadTypeLibEx(path.c_str(), REGKIND_NONE, &library);
    if (FAILED(loaded)) {
        std::fprintf(stderr, "cannot load a type library from %s (0x%08lX)\n", argv[1],
                     static_cast<unsigned long>(loaded));
        return 2;
    }

    Listing listing;
    TLIBATTR* library_attributes = nullptr;
    library->GetLibAttr(&library_attributes);
    BSTR library_name = nullptr;
    library->GetDocumentation(-1, &library_name, nullptr, nullptr, nullptr);
    listing.Line("library " + Utf8(library_name) + " " + std::to_string(library_attributes->wMajorVerNum) + "." +
                 std::to_string(library_attributes->wMinorVerNum) + " lcid " +
                 std::to_string(library_attributes->lcid));
    SysFreeString(library_name);
    library->ReleaseTLibAttr(library_attributes);

    std::vector<Entry> entries;
    for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
        TYPEKIND kind;
        BSTR name = nullptr;
        if (FAILED(library->GetTypeInfoType(i, &kind)) ||
            FAILED(library->GetDocumentation(static_cast<INT>(i), &name, nullptr, nullptr, nullptr))) {
            continue;
        }
        const int group = kind == TKIND_ENUM                                  ? 0
                          : kind == TKIND_INTERFACE || kind == TKIND_DISPATCH ? 1
                          : kind == TKIND_COCLASS                             ? 2
                                                                              : -1;
        if (group >= 0)
            entries.push_back({group, name ? name : L"", i});
        SysFreeString(name);
    }
    std::sort(entries.begin(), entries.end(),
              [](const Entry& a, const Entry& b) { return a.group != b.group ? a.group < b.group : a.name < b.name; });

    static void (*const kDump[])(ITypeInfo*, const TYPEATTR&, Listing&) = {DumpEnum, DumpInterface, DumpCoclass};
    for (const Entry& entry : entries) {
        Ref<ITypeInfo> info;
        TYPEATTR* attributes = nullptr;
        if (FAILED(library->GetTypeInfo(entry.index, &info)) || FAILED(info->GetTypeAttr(&attributes)))
            continue;
        kDump[entry.group](info.get(), *attributes, listing);
        info->ReleaseTypeAttr(attributes);
    }
    std::fwrite(listing.out.data(), 1, listing.out.size(), stdout);
    return listing.ordered ? 0 : 1;
}
