#pragma once

#include <windows.h>

namespace engine_automation {

// The class of the engine's automation object, VosExcelEngine.Application.
inline constexpr CLSID CLSID_EngineApplication = {
    0x9d2f6b1e, 0x4c3a, 0x4f58, {0xb7, 0x0e, 0x61, 0x2a, 0xd4, 0x8c, 0x35, 0x9b}};
inline constexpr wchar_t EngineProgId[] = L"VosExcelEngine.Application";

}  // namespace engine_automation
