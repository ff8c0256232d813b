#ifdef _WIN32

#include "excel/com/server_registration.hpp"

#include <objbase.h>

namespace excel::com {

namespace {

std::wstring GuidText(const GUID& id) {
    wchar_t text[64] = {};
    StringFromGUID2(id, text, 64);
    return text;
}

std::wstring ClassKey(const ServerClass& serverClass) {
    return L"CLSID\\" + GuidText(serverClass.classId);
}

bool SetValue(const std::wstring& key, const wchar_t* name, const std::wstring& value) {
    HKEY opened = nullptr;
    if (RegCreateKeyExW(HKEY_CLASSES_ROOT, key.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &opened, nullptr) !=
        ERROR_SUCCESS) {
        return false;
    }
    const auto size = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
    const bool written =
        RegSetValueExW(opened, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()), size) == ERROR_SUCCESS;
    RegCloseKey(opened);
    return written;
}

bool Gone(LSTATUS status) {
    return status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND;
}

}  // namespace

bool RegisterServerClass(HMODULE module, const ServerClass& serverClass) {
    wchar_t path[MAX_PATH] = {};
    if (GetModuleFileNameW(module, path, MAX_PATH) == 0) {
        return false;
    }
    const std::wstring classKey = ClassKey(serverClass);
    bool registered = SetValue(classKey, nullptr, serverClass.description) &&
                      SetValue(classKey + L"\\InprocServer32", nullptr, path) &&
                      SetValue(classKey + L"\\InprocServer32", L"ThreadingModel", L"Apartment") &&
                      SetValue(classKey + L"\\ProgID", nullptr, serverClass.progId) &&
                      SetValue(serverClass.progId, nullptr, serverClass.description) &&
                      SetValue(serverClass.progId + L"\\CLSID", nullptr, GuidText(serverClass.classId));
    if (registered && serverClass.typeLibrary) {
        registered = SetValue(classKey + L"\\TypeLib", nullptr, GuidText(*serverClass.typeLibrary)) &&
                     SetValue(classKey + L"\\Version", nullptr, serverClass.typeLibraryVersion);
    }
    return registered;
}

bool UnregisterServerClass(const ServerClass& serverClass) {
    const bool classGone = Gone(RegDeleteTreeW(HKEY_CLASSES_ROOT, ClassKey(serverClass).c_str()));
    const bool progIdGone = Gone(RegDeleteTreeW(HKEY_CLASSES_ROOT, serverClass.progId.c_str()));
    return classGone && progIdGone;
}

}  // namespace excel::com

#endif  // _WIN32
