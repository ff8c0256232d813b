#pragma once

#ifdef _WIN32

#include "excel/com/dispatch_caller.hpp"
#include "excel/com/variant_conversion.hpp"

#include <excel/object.hpp>

namespace excel::com {

// An automation object seen through the boundary: every member is a call by name on its dispatch
// pointer. The boundary's typed objects (a range, a worksheet, ...) stand on it; an object whose
// type the caller does not know stays a plain ComObject.
class ComObject : public virtual Object {
public:
    // Takes a reference to the object, released when the last wrapper goes.
    explicit ComObject(IDispatch* dispatch);
    ~ComObject() override;
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    IDispatch* Dispatch() const { return caller_.Dispatch(); }
    // The object's IUnknown: two wrappers of one automation object are the same object.
    const void* Identity() const override { return identity_; }

protected:
    const DispatchCaller& Caller() const { return caller_; }

private:
    IUnknown* identity_ = nullptr;
    DispatchCaller caller_;
};

// How objects cross between the boundary and automation: a dispatch pointer becomes a ComObject,
// and only a ComObject has a dispatch pointer to hand back.
const ObjectBridge& ComObjects();

}  // namespace excel::com

#endif  // _WIN32
