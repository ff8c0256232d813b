#pragma once

#ifdef _WIN32

#include <windows.h>

#include <optional>
#include <string>

namespace excel::com {

// A class an in-process automation server registers: created by its ProgID, served from the
// server's module to single-threaded apartments, described by the server's type library if any.
struct ServerClass {
    CLSID classId;
    std::wstring progId;
    std::wstring description;
    std::optional<GUID> typeLibrary;
    std::wstring typeLibraryVersion;  // "1.1"; with the type library only
};

// Writes the class's keys under HKEY_CLASSES_ROOT for the module; false when the registry refuses.
bool RegisterServerClass(HMODULE module, const ServerClass& serverClass);
// Removes them; true when they are gone, whether or not they were there.
bool UnregisterServerClass(const ServerClass& serverClass);

}  // namespace excel::com

#endif  // _WIN32
