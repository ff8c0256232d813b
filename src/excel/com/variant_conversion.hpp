#pragma once

#ifdef _WIN32

#include <excel/variant.hpp>

#include <windows.h>
// windows.h first: the OLE headers build on its types.
#include <oaidl.h>

#include <memory>

namespace excel::com {

// How objects cross between the library and automation: the COM layer wraps a dispatch pointer in
// the object that answers for it, and hands out the dispatch pointer behind one of its objects.
class ObjectBridge {
public:
    virtual ~ObjectBridge() = default;
    // The object for the dispatch pointer, which the object keeps a reference to; none for null.
    virtual std::shared_ptr<Object> Wrap(IDispatch* dispatch) const = 0;
    // The dispatch pointer behind the object, with a reference for the caller; null for none. An
    // object that has no dispatch pointer fails with the runtime's type mismatch.
    virtual IDispatch* Unwrap(const std::shared_ptr<Object>& object) const = 0;
};

// A VARIANT that clears what it holds when it goes.
class OwnedVariant {
public:
    OwnedVariant() { VariantInit(&value_); }
    ~OwnedVariant() { VariantClear(&value_); }
    OwnedVariant(const OwnedVariant&) = delete;
    OwnedVariant& operator=(const OwnedVariant&) = delete;

    VARIANT* get() { return &value_; }
    const VARIANT& operator*() const { return value_; }

private:
    VARIANT value_;
};

// The library's Variant as a VARIANT (the caller clears it): numbers, dates and currency as their
// own types, texts as BSTRs, arrays as SAFEARRAYs of their element type with their bounds, objects
// through the bridge.
void ToVariant(const Variant& value, VARIANT& out, const ObjectBridge& objects);
// A VARIANT as the library's Variant; references are followed. Types the library has no place for
// come as the nearest one: bytes and other integers as Integer or Long, larger ones and decimals as
// Double, unknown interfaces as objects when they answer for IDispatch.
Variant FromVariant(const VARIANT& value, const ObjectBridge& objects);

}  // namespace excel::com

#endif  // _WIN32
