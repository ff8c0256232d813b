// The server's entries in the registry: the class under its CLSID, served in-process from this
// module to single-threaded apartments, and the ProgID that names it.

#include "engine_automation/engine_server.hpp"

#include <objbase.h>
#include <olectl.h>

#include <string>

namespace engine_automation {

namespace {

std::wstring ClassKey() {
    wchar_t text[64] = {};
    StringFromGUID2(CLSID_EngineApplication, text, 64);
    return std::wstring(L"CLSID\\") + text;
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

}  // namespace

}  // namespace engine_automation

using namespace engine_automation;

STDAPI DllRegisterServer() {
    wchar_t path[MAX_PATH] = {};
    if (GetModuleFileNameW(ServerModule(), path, MAX_PATH) == 0) {
        return SELFREG_E_CLASS;
    }
    wchar_t classId[64] = {};
    StringFromGUID2(CLSID_EngineApplication, classId, 64);
    const std::wstring classKey = ClassKey();
    const std::wstring progId = EngineProgId;
    const bool registered = SetValue(classKey, nullptr, L"VosExcelEngine Application") &&
                            SetValue(classKey + L"\\InprocServer32", nullptr, path) &&
                            SetValue(classKey + L"\\InprocServer32", L"ThreadingModel", L"Apartment") &&
                            SetValue(classKey + L"\\ProgID", nullptr, progId) &&
                            SetValue(progId, nullptr, L"VosExcelEngine Application") &&
                            SetValue(progId + L"\\CLSID", nullptr, classId);
    return registered ? S_OK : SELFREG_E_CLASS;
}

STDAPI DllUnregisterServer() {
    const LSTATUS classRemoved = RegDeleteTreeW(HKEY_CLASSES_ROOT, ClassKey().c_str());
    const LSTATUS progIdRemoved = RegDeleteTreeW(HKEY_CLASSES_ROOT, EngineProgId);
    const auto gone = [](LSTATUS status) { return status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND; };
    return gone(classRemoved) && gone(progIdRemoved) ? S_OK : SELFREG_E_CLASS;
}
