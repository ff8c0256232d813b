#ifdef _WIN32

#include "excel/com/served_object.hpp"

#include "excel/com/com_object.hpp"
#include "excel/com/served_interfaces.hpp"
#include "excel/com/served_type_info.hpp"
#include "excel/com/wide_text.hpp"

#include <excel/automation_error.hpp>

#include <cwchar>
#include <exception>
#include <map>
#include <new>
#include <utility>
#include <vector>

namespace excel::com {

namespace {

constexpr int32_t TypeMismatch = 13;

// Asked of an IDispatch to learn whether it is one of ours, and so has a boundary object behind it.
constexpr GUID IID_ServedObject = {0x3c5e8d41, 0x2b7a, 0x4e9f, {0x8a, 0x16, 0x5d, 0x0b, 0x7c, 0x93, 0xe2, 0x4f}};

class ServedObject;

// The served objects clients hold, by the object they stand for and the interface they serve it as.
using ServedKey = std::pair<const void*, const ServedInterface*>;
std::map<ServedKey, ServedObject*> liveObjects;

// The object's exception for its client: Excel's code and text, as Excel reports them.
HRESULT Raise(EXCEPINFO* exception, int32_t code, const std::string& text) {
    if (exception != nullptr) {
        *exception = EXCEPINFO{};
        exception->scode = code;
        exception->bstrSource = NewBstr("VosExcelEngine");
        exception->bstrDescription = NewBstr(text);
    }
    return DISP_E_EXCEPTION;
}

class ServedObject final : public IDispatch {
public:
    ServedObject(std::shared_ptr<Object> object, const ServedInterface& served)
        : object_(std::move(object)), served_(served), key_(object_->Identity(), &served) {
        liveObjects.emplace(key_, this);
    }
    ~ServedObject() { liveObjects.erase(key_); }
    ServedObject(const ServedObject&) = delete;
    ServedObject& operator=(const ServedObject&) = delete;

    const std::shared_ptr<Object>& Served() const { return object_; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        if (object == nullptr) {
            return E_POINTER;
        }
        if (id == IID_IUnknown || id == IID_IDispatch || id == IID_ServedObject) {
            *object = static_cast<IDispatch*>(this);
            AddRef();
            return S_OK;
        }
        *object = nullptr;
        return E_NOINTERFACE;
    }
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
        if (index != 0) {
            *info = nullptr;
            return DISP_E_BADINDEX;
        }
        *info = ServedTypeInfo(served_);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
        return ServedTypeInfo(served_)->GetIDsOfNames(names, count, ids);
    }

    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                                     EXCEPINFO* exception, UINT*) override {
        const bool put = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
        const UINT named = parameters != nullptr ? parameters->cNamedArgs : 0;
        const UINT count = parameters != nullptr ? parameters->cArgs : 0;
        if (named > (put ? 1u : 0u) || (named == 1 && parameters->rgdispidNamedArgs[0] != DISPID_PROPERTYPUT)) {
            return DISP_E_NONAMEDARGS;
        }
        if (put && count == 0) {
            return DISP_E_BADPARAMCOUNT;
        }
        const ServedMember* member = served_.Member(id, count > (put ? 1u : 0u));
        if (member == nullptr) {
            return DISP_E_MEMBERNOTFOUND;
        }
        try {
            // Automation hands the arguments over last first, and a put's value before them all.
            std::optional<Variant> value;
            std::vector<std::optional<Variant>> arguments;
            for (UINT index = count; index-- > 0;) {
                const VARIANT& argument = parameters->rgvarg[index];
                if (put && index == 0) {
                    value = FromVariant(argument, ServedObjects());
                } else if (argument.vt == VT_ERROR && argument.scode == DISP_E_PARAMNOTFOUND) {
                    arguments.emplace_back();
                } else {
                    arguments.emplace_back(FromVariant(argument, ServedObjects()));
                }
            }
            const Variant answer = member->invoke(*object_, put, CallArguments(std::move(arguments), std::move(value)));
            if (result != nullptr) {
                ToVariant(answer, *result, ServedObjects());
            }
            return S_OK;
        } catch (const DispatchFailure& failure) {
            return failure.result;
        } catch (const AutomationError& error) {
            return Raise(exception, error.code(), error.what());
        } catch (const std::bad_alloc&) {
            return E_OUTOFMEMORY;
        } catch (const std::exception& error) {
            return Raise(exception, static_cast<int32_t>(E_FAIL), error.what());
        }
    }

private:
    std::shared_ptr<Object> object_;
    const ServedInterface& served_;
    ServedKey key_;
    ULONG references_ = 1;
};

class ServedObjectBridge final : public ObjectBridge {
public:
    std::shared_ptr<Object> Wrap(IDispatch* dispatch) const override {
        if (dispatch == nullptr) {
            return nullptr;
        }
        ServedObject* served = nullptr;
        if (dispatch->QueryInterface(IID_ServedObject, reinterpret_cast<void**>(&served)) == S_OK) {
            std::shared_ptr<Object> object = served->Served();
            served->Release();
            return object;
        }
        return ComObjects().Wrap(dispatch);
    }

    IDispatch* Unwrap(const std::shared_ptr<Object>& object) const override { return ServeObject(object); }
};

}  // namespace

IDispatch* ServeObject(const std::shared_ptr<Object>& object) {
    if (object == nullptr) {
        return nullptr;
    }
    if (const auto* automation = dynamic_cast<const DispatchHolder*>(object.get())) {
        automation->Dispatch()->AddRef();  // an object of another automation server goes back as it came
        return automation->Dispatch();
    }
    const ServedInterface* served = ServedInterfaceOfObject(*object);
    if (served == nullptr) {
        ThrowRuntimeError(TypeMismatch);
    }
    if (const auto live = liveObjects.find({object->Identity(), served}); live != liveObjects.end()) {
        live->second->AddRef();
        return live->second;
    }
    return new ServedObject(object, *served);
}

const ObjectBridge& ServedObjects() {
    static const ServedObjectBridge bridge;
    return bridge;
}

size_t LiveServedObjects() {
    return liveObjects.size();
}

}  // namespace excel::com

#endif  // _WIN32
