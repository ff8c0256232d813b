#pragma once

#ifdef _WIN32

#include "excel/com/served_interfaces.hpp"

#include <windows.h>
// windows.h first: the OLE headers build on its types.
#include <oaidl.h>

namespace excel::com {

// The type information a served object hands out: the interface's GUID, by which clients keep the
// dispatch ids of its members, and its name, which VBScript's TypeName shows. It describes no
// members one by one; their ids come from IDispatch::GetIDsOfNames. One lives for each interface
// as long as the program, so its references are not counted.
ITypeInfo* ServedTypeInfo(const ServedInterface& served);

}  // namespace excel::com

#endif  // _WIN32
