#pragma once

#ifdef _WIN32

#include "excel/com/variant_conversion.hpp"

#include <excel/object.hpp>

#include <windows.h>
// windows.h first: the OLE headers build on its types.
#include <oaidl.h>

#include <cstddef>
#include <memory>

namespace excel::com {

// The boundary's objects served to automation clients: each object behind an IDispatch that answers
// by the Excel names of its interface's members, as Excel's own objects do. One object has one
// IDispatch while a client holds it, so clients tell objects apart as COM does, by IUnknown.
//
// The object's IDispatch, with a reference for the caller; null for none. An object that implements
// none of the object model's interfaces fails with the runtime's type mismatch. A new served object
// keeps its owner alive while clients hold it (the objects reached from an application keep the
// application), as a COM server lives while any of its objects is held.
IDispatch* ServeObject(const std::shared_ptr<Object>& object, std::shared_ptr<Object> owner = nullptr);

// How objects cross between served objects and their clients: a served IDispatch gives back the
// object behind it, any other dispatch pointer becomes an object of the boundary over automation.
const ObjectBridge& ServedObjects();

// How many served objects clients hold, so a server knows when it may be unloaded.
size_t LiveServedObjects();

}  // namespace excel::com

#endif  // _WIN32
