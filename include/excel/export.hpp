#pragma once

// VOS_EXPORT marks the classes and functions of include/vos and include/excel whose code is in the
// VosExcelReporting library, so that a Windows DLL exports them and its users import them. The
// build defines VOS_BUILDING_LIBRARY while compiling the library, and the static library's users
// get VOS_STATIC_LIBRARY, for which nothing is imported. On ELF platforms every symbol of the
// shared library is visible already, so the macro is empty there.
#if defined(_WIN32) || defined(__CYGWIN__)
#if defined(VOS_BUILDING_LIBRARY)
#define VOS_EXPORT __declspec(dllexport)
#elif defined(VOS_STATIC_LIBRARY)
#define VOS_EXPORT
#else
#define VOS_EXPORT __declspec(dllimport)
#endif
#else
#define VOS_EXPORT
#endif
