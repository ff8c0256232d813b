#pragma once

#ifdef _WIN32

#include <windows.h>
// windows.h first: the OLE headers build on its types.
#include <oaidl.h>

namespace automation {

// The type library VosXLRep7, bound into the server as a resource and loaded once.
ITypeLib* ServerTypeLibrary();
// The type information of one of the library's interfaces, which answers IDispatch for its objects.
ITypeInfo* InterfaceTypeInfo(REFGUID interfaceId);

}  // namespace automation

#endif  // _WIN32
