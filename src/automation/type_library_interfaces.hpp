#pragma once

#ifdef _WIN32

// The interfaces, enumerations and class ids of the type library VosXLRep7, as widl writes them from
// VosXLRep7.idl. widl gives BSTR parameters string-literal defaults, which C++ takes for writable
// strings; the warning says nothing about this code.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wwrite-strings"
#include <VosXLRep7.h>
#pragma GCC diagnostic pop

#endif  // _WIN32
