#pragma once

#ifdef _WIN32

#include <windows.h>
// windows.h first: the OLE headers build on its types.
#include <oaidl.h>

namespace automation {

// The type library VosXLRep7, bound into the server as a resource and loaded once; null if the
// module holds none.
ITypeLib* ServerTypeLibrary();
// The type information of one of the library's interfaces, which answers IDispatch for its objects;
// null without the library.
ITypeInfo* InterfaceTypeInfo(REFGUID interfaceId);

}  // namespace automation

#endif  // _WIN32
