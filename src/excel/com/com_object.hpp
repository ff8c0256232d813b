#pragma once

#ifdef _WIN32

#include "excel/com/dispatch_caller.hpp"
#include "excel/com/variant_conversion.hpp"

#include <excel/object.hpp>

namespace excel::com {

// What every object of the boundary over automation has: the automation object's dispatch pointer,
// with the calls by name made on it, and its IUnknown, by which COM tells objects apart. The typed
// objects (a range, a worksheet, ...) derive from their interface of the object model and from this;
// the interfaces already derive from Object, so this does not.
class DispatchHolder {
public:
    // Takes a reference to the object, released when the holder goes; the type is asked of the
    // object unless the caller knows it already.
    explicit DispatchHolder(IDispatch* dispatch);
    DispatchHolder(IDispatch* dispatch, DispatchType type);
    virtual ~DispatchHolder();
    DispatchHolder(const DispatchHolder&) = delete;
    DispatchHolder& operator=(const DispatchHolder&) = delete;

    IDispatch* Dispatch() const { return caller_.Dispatch(); }
    // The object's IUnknown: two holders of one automation object answer the same.
    const void* DispatchIdentity() const { return identity_; }
    const DispatchType& Type() const { return caller_.Type(); }

protected:
    const DispatchCaller& Caller() const { return caller_; }

private:
    IUnknown* identity_ = nullptr;
    DispatchCaller caller_;
};

// An automation object whose type the boundary does not know, as a value in a Variant.
class ComObject final : public Object, public DispatchHolder {
public:
    using DispatchHolder::DispatchHolder;
    const void* Identity() const override { return DispatchIdentity(); }
};

// How objects cross between the boundary and automation: a dispatch pointer becomes the typed object
// its type information names (a ComObject when it names none of the object model's interfaces), and
// only an object of this boundary has a dispatch pointer to hand back.
const ObjectBridge& ComObjects();

}  // namespace excel::com

#endif  // _WIN32
