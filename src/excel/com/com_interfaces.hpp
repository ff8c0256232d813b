#pragma once

#ifdef _WIN32

#include "excel/com/dispatch_caller.hpp"

#include <excel/object.hpp>

#include <memory>

namespace excel::com {

// The object of the boundary for an automation object of the given type: a Range for a "Range", a
// Worksheet for a "Worksheet", and a ComObject for a type the object model does not name.
std::shared_ptr<Object> TypedComObject(IDispatch* dispatch, const DispatchType& type);

}  // namespace excel::com

#endif  // _WIN32
