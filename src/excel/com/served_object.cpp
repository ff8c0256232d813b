#ifdef _WIN32

#include "excel/com/served_object.hpp"

#include "excel/com/com_object.hpp"
#include "excel/com/dispatch_object.hpp"
#include "excel/com/served_interfaces.hpp"
#include "excel/com/served_type_info.hpp"
#include "excel/com/wide_text.hpp"

#include <excel/automation_error.hpp>

#include <cwchar>
#include <exception>
#include <map>
#include <mutex>
#include <new>
#include <utility>
#include <vector>

namespace excel::com {

namespace {

constexpr int32_t TypeMismatch = 13;

// Asked of an IDispatch to learn whether it is one of ours, and so has a boundary object behind it.
constexpr GUID IID_ServedObject = {0x3c5e8d41, 0x2b7a, 0x4e9f, {0x8a, 0x16, 0x5d, 0x0b, 0x7c, 0x93, 0xe2, 0x4f}};

class ServedObject;

// The object behind one of the served IDispatch pointers.
const std::shared_ptr<Object>& ServedBehind(IDispatch* served);

// The served objects clients hold, by the object they stand for and the interface they serve it as.
// Each lives in the apartment of the thread that made it, but threads of other apartments may serve
// engines of their own at the same time, so the table is shared under a lock.
using ServedKey = std::pair<const void*, const ServedInterface*>;
std::map<ServedKey, ServedObject*> liveObjects;
std::mutex liveObjectsLock;

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

// How objects cross to and from the clients of served objects; the objects it serves keep the owner.
class ServedObjectBridge final : public ObjectBridge {
public:
    explicit ServedObjectBridge(std::shared_ptr<Object> owner = nullptr) : owner_(std::move(owner)) {}

    std::shared_ptr<Object> Wrap(IDispatch* dispatch) const override {
        if (dispatch == nullptr) {
            return nullptr;
        }
        IDispatch* served = nullptr;
        if (dispatch->QueryInterface(IID_ServedObject, reinterpret_cast<void**>(&served)) == S_OK) {
            std::shared_ptr<Object> object = ServedBehind(served);
            served->Release();
            return object;
        }
        return ComObjects().Wrap(dispatch);
    }

    IDispatch* Unwrap(const std::shared_ptr<Object>& object) const override { return ServeObject(object, owner_); }

private:
    std::shared_ptr<Object> owner_;
};

class ServedObject final : public DispatchObject<IDispatch> {
public:
    ServedObject(std::shared_ptr<Object> object, const ServedInterface& served, std::shared_ptr<Object> owner)
        : object_(std::move(object)), owner_(std::move(owner)), served_(served), key_(object_->Identity(), &served) {
        const std::lock_guard<std::mutex> guard(liveObjectsLock);
        liveObjects.emplace(key_, this);
    }
    ~ServedObject() {
        const std::lock_guard<std::mutex> guard(liveObjectsLock);
        liveObjects.erase(key_);
    }

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
            // What this call answers is reached from this object, and keeps what this one keeps.
            const ServedObjectBridge objects(owner_ != nullptr ? owner_ : object_);
            // Automation hands the arguments over last first, and a put's value before them all.
            std::optional<Variant> value;
            std::vector<std::optional<Variant>> arguments;
            for (UINT index = count; index-- > 0;) {
                const VARIANT& argument = parameters->rgvarg[index];
                if (put && index == 0) {
                    value = FromVariant(argument, objects);
                } else if (argument.vt == VT_ERROR && argument.scode == DISP_E_PARAMNOTFOUND) {
                    arguments.emplace_back();
                } else {
                    arguments.emplace_back(FromVariant(argument, objects));
                }
            }
            const CallArguments call(std::move(arguments), std::move(value));
            // A put on the default member with arguments (r(1, 2) = 5) puts the object they pick.
            const Variant answer = id == DISPID_VALUE && put && call.Count() > 0
                                       ? call.ToDefaultMember(Variant(object_))
                                       : member->invoke(*object_, put, call);
            if (result != nullptr) {
                ToVariant(answer, *result, objects);
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
    ITypeInfo* TypeInformation() const override { return ServedTypeInfo(served_); }

    std::shared_ptr<Object> object_;
    // The object this one was reached from first (the application), kept while clients hold this
    // one: a COM server lives as long as any of its objects is held, so a client may let go of the
    // application and keep working with a workbook.
    std::shared_ptr<Object> owner_;
    const ServedInterface& served_;
    ServedKey key_;
};

const std::shared_ptr<Object>& ServedBehind(IDispatch* served) {
    return static_cast<ServedObject*>(served)->Served();
}

}  // namespace

IDispatch* ServeObject(const std::shared_ptr<Object>& object, std::shared_ptr<Object> owner) {
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
    {
        const std::lock_guard<std::mutex> guard(liveObjectsLock);
        if (const auto live = liveObjects.find({object->Identity(), served}); live != liveObjects.end()) {
            live->second->AddRef();
            return live->second;
        }
    }
    return new ServedObject(object, *served, std::move(owner));
}

const ObjectBridge& ServedObjects() {
    static const ServedObjectBridge bridge;
    return bridge;
}

size_t LiveServedObjects() {
    const std::lock_guard<std::mutex> guard(liveObjectsLock);
    return liveObjects.size();
}

}  // namespace excel::com

#endif  // _WIN32
