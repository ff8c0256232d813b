#include "excel/com/dispatch_caller.hpp"
#include "com/counted_dispatch.hpp"
#include "excel/com/served_type_info.hpp"
#include "excel/com/wide_text.hpp"

#include <excel/automation_error.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using excel::Variant;
using excel::com::Argument;
using excel::com::DispatchCaller;

// Objects cross as nothing here: the host takes and gives no objects.
class NoObjects : public excel::com::ObjectBridge {
public:
    std::shared_ptr<excel::Object> Wrap(IDispatch*) const override { return nullptr; }
    IDispatch* Unwrap(const std::shared_ptr<excel::Object>&) const override { return nullptr; }
};
const NoObjects objects;

// The type information of an interface of no members, as a served object hands it out: it names the
// interface the caller keeps dispatch ids by.
ITypeInfo* InterfaceTypeInfo() {
    static const excel::com::ServedInterface thing("Thing", GUID{0x12345678, 0x1234, 0x5678, {1, 2, 3, 4, 5, 6, 7, 8}},
                                                   {}, "");
    return excel::com::ServedTypeInfo(thing);
}

// An automation object that the test scripts, recording how it is called: Value (a property),
// Cells(row, column) (a parameterised property), Greet(name, [suffix]) (a method), Refuse (fails
// as Excel refuses) and Mistyped (fails as automation does).
class Host : public CountedDispatch {
public:
    explicit Host(ITypeInfo* typeInfo = nullptr) : typeInfo_(typeInfo) {}

    int namesAsked = 0;
    int typeInfoAsked = 0;
    LCID lastLocale = 0;
    WORD lastFlags = 0;
    UINT lastNamedCount = 0;
    DISPID lastNamed = 0;
    bool lastHadResult = false;
    std::vector<VARTYPE> lastTypes;
    double value = 0;

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = typeInfo_ != nullptr ? 1 : 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) override {
        ++typeInfoAsked;
        *info = typeInfo_;
        return typeInfo_ != nullptr ? S_OK : E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override {
        ++namesAsked;
        const std::wstring name(names[0]);
        const wchar_t* known[] = {L"Value", L"Cells", L"Greet", L"Refuse", L"Mistyped"};
        for (DISPID id = 0; id < 5; ++id) {
            if (_wcsicmp(name.c_str(), known[id]) == 0) {
                ids[0] = id + 1;
                return S_OK;
            }
        }
        return DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID locale, WORD flags, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO* exception, UINT*) override {
        lastLocale = locale;
        lastFlags = flags;
        lastNamedCount = parameters->cNamedArgs;
        lastNamed = parameters->cNamedArgs > 0 ? parameters->rgdispidNamedArgs[0] : 0;
        lastHadResult = result != nullptr;
        lastTypes.clear();
        for (UINT i = 0; i < parameters->cArgs; ++i) {
            lastTypes.push_back(parameters->rgvarg[i].vt);
        }
        VARIANT* args = parameters->rgvarg;  // the last argument first
        switch (id) {
            case 1:
                if ((flags & DISPATCH_PROPERTYPUT) != 0) {
                    value = args[0].dblVal;
                    return S_OK;
                }
                result->vt = VT_R8;
                result->dblVal = value;
                return S_OK;
            case 2:
                result->vt = VT_I4;
                result->lVal = args[1].lVal * 100 + args[0].lVal;
                return S_OK;
            case 3: {
                const bool suffixGiven = !(args[0].vt == VT_ERROR && args[0].scode == DISP_E_PARAMNOTFOUND);
                std::string text = "Hello, " + excel::com::Utf8FromBstr(args[1].bstrVal) + (suffixGiven ? "!" : "");
                result->vt = VT_BSTR;
                result->bstrVal = excel::com::NewBstr(text);
                return S_OK;
            }
            case 4:
                exception->scode = static_cast<SCODE>(0x800A03EC);
                exception->bstrDescription = excel::com::NewBstr("Unable to set the Value property of the Range class");
                return DISP_E_EXCEPTION;
            default:
                return DISP_E_TYPEMISMATCH;
        }
    }

private:
    ITypeInfo* typeInfo_;
};

template <class Call>
void ExpectError(Call&& call, uint32_t code, const std::string& text) {
    try {
        call();
        ADD_FAILURE() << "expected an automation error";
    } catch (const excel::AutomationError& error) {
        EXPECT_EQ(static_cast<uint32_t>(error.code()), code);
        EXPECT_EQ(std::string(error.what()), text);
    }
}

TEST(DispatchCaller, PutsAndGetsAProperty) {
    Host host;
    DispatchCaller caller(&host, excel::com::TypeOf(&host), objects);
    caller.Put("Value", Variant(2.5));
    EXPECT_EQ(host.value, 2.5);
    EXPECT_EQ(host.lastFlags, DISPATCH_PROPERTYPUT);
    EXPECT_EQ(host.lastNamedCount, 1u);
    EXPECT_EQ(host.lastNamed, DISPID_PROPERTYPUT);
    EXPECT_FALSE(host.lastHadResult);
    EXPECT_EQ(host.lastLocale, 1033u);
    EXPECT_EQ(caller.Get("value"), Variant(2.5));
    EXPECT_EQ(host.lastFlags, DISPATCH_PROPERTYGET | DISPATCH_METHOD);
    EXPECT_EQ(host.lastNamedCount, 0u);
}

TEST(DispatchCaller, HandsTheArgumentsOverInTheirOrder) {
    Host host;
    DispatchCaller caller(&host, excel::com::TypeOf(&host), objects);
    const Argument cell[] = {Variant(int32_t{3}), Variant(int32_t{7})};
    EXPECT_EQ(caller.Get("Cells", cell), Variant(int32_t{307}));
}

TEST(DispatchCaller, AnOmittedArgumentIsParameterNotFound) {
    Host host;
    DispatchCaller caller(&host, excel::com::TypeOf(&host), objects);
    const Argument both[] = {Variant("World"), Variant("!")};
    EXPECT_EQ(caller.Call("Greet", both), Variant("Hello, World!"));
    EXPECT_EQ(host.lastFlags, DISPATCH_METHOD);
    const Argument nameOnly[] = {Variant("World"), std::nullopt};
    EXPECT_EQ(caller.Call("Greet", nameOnly), Variant("Hello, World"));
    EXPECT_EQ(host.lastTypes.front(), VT_ERROR);
}

TEST(DispatchCaller, AnObjectsExceptionKeepsItsCodeAndText) {
    Host host;
    DispatchCaller caller(&host, excel::com::TypeOf(&host), objects);
    ExpectError([&] { caller.Call("Refuse"); }, 0x800A03ECu, "Unable to set the Value property of the Range class");
}

TEST(DispatchCaller, AutomationsFailuresAreTheRuntimesErrors) {
    Host host;
    DispatchCaller caller(&host, excel::com::TypeOf(&host), objects);
    ExpectError([&] { caller.Get("Colour"); }, 0x800A01B6u, "Object doesn't support this property or method");
    ExpectError([&] { caller.Get("Mistyped"); }, 0x800A000Du, "Type mismatch");
}

TEST(DispatchCaller, LooksEachNameUpOncePerInterface) {
    Host first(InterfaceTypeInfo());
    Host second(InterfaceTypeInfo());
    DispatchCaller one(&first, excel::com::TypeOf(&first), objects);
    DispatchCaller other(&second, excel::com::TypeOf(&second), objects);
    one.Get("Value");
    one.Get("VALUE");
    other.Get("Value");
    other.Put("Value", Variant(1.0));
    EXPECT_EQ(first.namesAsked + second.namesAsked, 1);
    // Each caller asks its object's type once, not once a call.
    EXPECT_EQ(first.typeInfoAsked, 1);
    EXPECT_EQ(second.typeInfoAsked, 1);
    // Without type information every call asks.
    Host plain;
    DispatchCaller unknown(&plain, excel::com::TypeOf(&plain), objects);
    unknown.Get("Value");
    unknown.Get("Value");
    EXPECT_EQ(plain.namesAsked, 2);
}

TEST(DispatchCaller, HoldsAReferenceWhileItLives) {
    Host host;
    {
        DispatchCaller caller(&host, excel::com::TypeOf(&host), objects);
        EXPECT_EQ(host.references, 2u);
    }
    EXPECT_EQ(host.references, 1u);
}

}  // namespace
