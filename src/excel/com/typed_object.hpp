#pragma once

#ifdef _WIN32

#include "excel/com/com_object.hpp"
#include "excel/com/dispatch_caller.hpp"

#include <excel/variant.hpp>

#include <memory>

namespace excel::com {

// An optional argument the caller left empty is omitted from the call.
inline Argument Optional(const Variant& value) {
    return value.IsEmpty() ? Argument() : Argument(value);
}

// A member's object as the interface the member declares: the object the bridge made already when
// its type information named that interface, otherwise a new view of the same automation object.
// Nothing answers an empty pointer; a value that is no object is a type mismatch.
template <class Interface, class Typed>
std::shared_ptr<Interface> TypedObject(const Variant& result) {
    if (result.IsEmpty()) {
        return nullptr;
    }
    const std::shared_ptr<Object> object = result.ToObject();
    if (auto typed = std::dynamic_pointer_cast<Interface>(object)) {
        return typed;
    }
    if (object == nullptr) {
        return nullptr;
    }
    const auto& holder = dynamic_cast<const DispatchHolder&>(*object);
    return std::make_shared<Typed>(holder.Dispatch(), holder.Type());
}

}  // namespace excel::com

#endif  // _WIN32
