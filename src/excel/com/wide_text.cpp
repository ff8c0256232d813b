#ifdef _WIN32

#include "excel/com/wide_text.hpp"

#include <windows.h>

namespace excel::com {

std::wstring WideFromUtf8(std::string_view utf8) {
    if (utf8.empty()) {
        return {};
    }
    const int size = static_cast<int>(utf8.size());
    const int length = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0);
    std::wstring wide(static_cast<size_t>(length), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, wide.data(), length);
    return wide;
}

std::string Utf8FromWide(const wchar_t* wide, size_t length) {
    if (length == 0) {
        return {};
    }
    const int size = static_cast<int>(length);
    const int bytes = WideCharToMultiByte(CP_UTF8, 0, wide, size, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<size_t>(bytes), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide, size, utf8.data(), bytes, nullptr, nullptr);
    return utf8;
}

BSTR NewBstr(std::string_view utf8) {
    const std::wstring wide = WideFromUtf8(utf8);
    return SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
}

std::string Utf8FromBstr(BSTR text) {
    return text == nullptr ? std::string() : Utf8FromWide(text, SysStringLen(text));
}

}  // namespace excel::com

#endif  // _WIN32
