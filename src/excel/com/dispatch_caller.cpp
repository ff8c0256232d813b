#ifdef _WIN32

#include "excel/com/dispatch_caller.hpp"

#include "excel/com/member_name.hpp"
#include "excel/com/wide_text.hpp"

#include <excel/automation_error.hpp>

#include <dispex.h>

#include <cstring>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace excel::com {

namespace {

// Every call names its locale: English (United States), as Excel's own object model expects.
constexpr LCID EnglishUnitedStates = 1033;

constexpr int32_t Overflow = 6;
constexpr int32_t TypeMismatch = 13;
constexpr int32_t MemberNotFound = 438;
constexpr int32_t ArgumentNotOptional = 449;
constexpr int32_t WrongArgumentCount = 450;

struct GuidLess {
    bool operator()(const GUID& a, const GUID& b) const { return std::memcmp(&a, &b, sizeof(GUID)) < 0; }
};

// The ids looked up so far, by interface and folded member name; one table per thread, as COM
// objects live in the apartment of the thread that made them.
thread_local std::map<GUID, std::map<std::string, DISPID>, GuidLess> knownIds;
thread_local uint64_t invokeCount = 0;

DISPID AskedId(IDispatch* dispatch, std::string_view member) {
    std::wstring name = WideFromUtf8(member);
    LPOLESTR names[] = {name.data()};
    DISPID id = DISPID_UNKNOWN;
    HRESULT result = dispatch->GetIDsOfNames(IID_NULL, names, 1, EnglishUnitedStates, &id);
    if (result == E_NOTIMPL) {
        IDispatchEx* extended = nullptr;
        if (dispatch->QueryInterface(__uuidof(IDispatchEx), reinterpret_cast<void**>(&extended)) == S_OK) {
            BSTR text = SysAllocStringLen(name.data(), static_cast<UINT>(name.size()));
            result = extended->GetDispID(text, fdexNameCaseInsensitive, &id);
            SysFreeString(text);
            extended->Release();
        }
    }
    if (result != S_OK) {
        ThrowRuntimeError(MemberNotFound);
    }
    return id;
}

// The dispatch id of the member: from the ids of the object's interface already looked up, or
// asked of the object (by IDispatchEx when it has no GetIDsOfNames, as script objects under Wine).
DISPID IdOf(IDispatch* dispatch, const std::optional<GUID>& interfaceId, std::string_view member) {
    if (!interfaceId) {
        return AskedId(dispatch, member);
    }
    auto& ids = knownIds[*interfaceId];
    const std::string key = FoldedMemberName(member);
    if (const auto known = ids.find(key); known != ids.end()) {
        return known->second;
    }
    const DISPID id = AskedId(dispatch, member);
    ids.emplace(key, id);
    return id;
}

// The object's exception, with its code and text; a deferred text is filled in first.
[[noreturn]] void ThrowException(EXCEPINFO& exception) {
    if (exception.pfnDeferredFillIn != nullptr) {
        exception.pfnDeferredFillIn(&exception);
    }
    std::string text = Utf8FromBstr(exception.bstrDescription);
    int32_t code = exception.scode;
    if (code == 0) {
        code =
            exception.wCode != 0 ? static_cast<int32_t>(0x80040000u + exception.wCode) : static_cast<int32_t>(E_FAIL);
    }
    SysFreeString(exception.bstrSource);
    SysFreeString(exception.bstrDescription);
    SysFreeString(exception.bstrHelpFile);
    if (text.empty()) {
        text = "Automation error";
    }
    throw AutomationError(code, text);
}

[[noreturn]] void ThrowFailure(HRESULT result) {
    switch (result) {
        case DISP_E_MEMBERNOTFOUND:
        case DISP_E_UNKNOWNNAME:
            ThrowRuntimeError(MemberNotFound);
        case DISP_E_TYPEMISMATCH:
            ThrowRuntimeError(TypeMismatch);
        case DISP_E_PARAMNOTOPTIONAL:
            ThrowRuntimeError(ArgumentNotOptional);
        case DISP_E_BADPARAMCOUNT:
            ThrowRuntimeError(WrongArgumentCount);
        case DISP_E_OVERFLOW:
            ThrowRuntimeError(Overflow);
        default:
            throw AutomationError(static_cast<int32_t>(result), "Automation error");
    }
}

// The arguments as automation takes them: last first, each cleared when the call is over.
class CallArguments {
public:
    CallArguments(std::span<const Argument> arguments, const Variant* value, const ObjectBridge& objects)
        : values_(arguments.size() + (value != nullptr ? 1 : 0)) {
        for (VARIANT& slot : values_) {
            VariantInit(&slot);
        }
        size_t next = 0;
        if (value != nullptr) {
            ToVariant(*value, values_[next++], objects);  // a put's value is the first, and named
        }
        for (size_t i = arguments.size(); i-- > 0;) {
            VARIANT& slot = values_[next++];
            if (arguments[i]) {
                ToVariant(*arguments[i], slot, objects);
            } else {
                slot.vt = VT_ERROR;
                slot.scode = DISP_E_PARAMNOTFOUND;
            }
        }
    }
    ~CallArguments() {
        for (VARIANT& slot : values_) {
            VariantClear(&slot);
        }
    }
    CallArguments(const CallArguments&) = delete;
    CallArguments& operator=(const CallArguments&) = delete;

    DISPPARAMS Parameters(bool put) {
        return DISPPARAMS{values_.data(), put ? &propertyPut_ : nullptr, static_cast<UINT>(values_.size()),
                          put ? 1u : 0u};
    }

private:
    std::vector<VARIANT> values_;
    DISPID propertyPut_ = DISPID_PROPERTYPUT;
};

}  // namespace

DispatchType TypeOf(IDispatch* dispatch) {
    DispatchType type;
    UINT count = 0;
    ITypeInfo* info = nullptr;
    if (dispatch->GetTypeInfoCount(&count) != S_OK || count == 0 ||
        dispatch->GetTypeInfo(0, EnglishUnitedStates, &info) != S_OK || info == nullptr) {
        return type;
    }
    TYPEATTR* attributes = nullptr;
    if (info->GetTypeAttr(&attributes) == S_OK) {
        type.interfaceId = attributes->guid;
        info->ReleaseTypeAttr(attributes);
    }
    BSTR name = nullptr;
    if (info->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr) == S_OK) {
        type.name = Utf8FromBstr(name);
        SysFreeString(name);
        if (!type.name.empty() && type.name.front() == '_') {
            type.name.erase(0, 1);
        }
    }
    info->Release();
    return type;
}

DispatchCaller::DispatchCaller(IDispatch* dispatch, DispatchType type, const ObjectBridge& objects)
    : dispatch_(dispatch), type_(std::move(type)), objects_(objects) {
    dispatch_->AddRef();
}

uint64_t DispatchCaller::InvokeCount() {
    return invokeCount;
}

DispatchCaller::~DispatchCaller() {
    dispatch_->Release();
}

Variant DispatchCaller::Get(std::string_view member, std::span<const Argument> arguments) const {
    return Invoke(member, DISPATCH_PROPERTYGET | DISPATCH_METHOD, arguments, nullptr);
}

Variant DispatchCaller::Call(std::string_view member, std::span<const Argument> arguments) const {
    return Invoke(member, DISPATCH_METHOD, arguments, nullptr);
}

void DispatchCaller::Put(std::string_view member, const Variant& value, std::span<const Argument> arguments) const {
    Invoke(member, DISPATCH_PROPERTYPUT, arguments, &value);
}

Variant DispatchCaller::Invoke(std::string_view member, WORD flags, std::span<const Argument> arguments,
                               const Variant* value) const {
    const DISPID id = IdOf(dispatch_, type_.interfaceId, member);
    CallArguments callArguments(arguments, value, objects_);
    DISPPARAMS parameters = callArguments.Parameters(value != nullptr);
    OwnedVariant result;
    EXCEPINFO exception{};
    UINT badArgument = 0;
    ++invokeCount;
    const HRESULT outcome = dispatch_->Invoke(id, IID_NULL, EnglishUnitedStates, flags, &parameters,
                                              value != nullptr ? nullptr : result.get(), &exception, &badArgument);
    if (outcome == DISP_E_EXCEPTION) {
        ThrowException(exception);
    }
    if (FAILED(outcome)) {
        ThrowFailure(outcome);
    }
    return FromVariant(*result, objects_);
}

}  // namespace excel::com

#endif  // _WIN32
