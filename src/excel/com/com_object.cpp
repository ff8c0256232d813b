#ifdef _WIN32

#include "excel/com/com_object.hpp"

#include "excel/com/com_interfaces.hpp"

#include <excel/automation_error.hpp>

namespace excel::com {

namespace {

constexpr int32_t TypeMismatch = 13;

class ComObjectBridge final : public ObjectBridge {
public:
    std::shared_ptr<Object> Wrap(IDispatch* dispatch) const override {
        return dispatch == nullptr ? nullptr : TypedComObject(dispatch, TypeOf(dispatch));
    }

    IDispatch* Unwrap(const std::shared_ptr<Object>& object) const override {
        if (object == nullptr) {
            return nullptr;
        }
        const auto automation = std::dynamic_pointer_cast<DispatchHolder>(object);
        if (automation == nullptr) {
            ThrowRuntimeError(TypeMismatch);  // an object of another backend has no dispatch pointer
        }
        automation->Dispatch()->AddRef();
        return automation->Dispatch();
    }
};

}  // namespace

DispatchHolder::DispatchHolder(IDispatch* dispatch) : DispatchHolder(dispatch, TypeOf(dispatch)) {}

DispatchHolder::DispatchHolder(IDispatch* dispatch, DispatchType type)
    : caller_(dispatch, std::move(type), ComObjects()) {
    // The canonical IUnknown is what COM compares objects by; the dispatch pointer may differ
    // between two references to one object.
    dispatch->QueryInterface(IID_IUnknown, reinterpret_cast<void**>(&identity_));
}

DispatchHolder::~DispatchHolder() {
    if (identity_ != nullptr) {
        identity_->Release();
    }
}

const ObjectBridge& ComObjects() {
    static const ComObjectBridge bridge;
    return bridge;
}

}  // namespace excel::com

#endif  // _WIN32
