#pragma once

#ifdef _WIN32

#include <windows.h>
// windows.h first: the OLE headers build on its types.
#include <oleauto.h>

#include <string>
#include <string_view>

namespace excel::com {

// The library's texts are UTF-8; automation's are UTF-16 BSTRs.
std::wstring WideFromUtf8(std::string_view utf8);
std::string Utf8FromWide(const wchar_t* wide, size_t length);
// A new BSTR the caller owns (SysFreeString, or a VARIANT that is cleared).
BSTR NewBstr(std::string_view utf8);
// A BSTR's text, nulls inside it included; a null BSTR is the empty text.
std::string Utf8FromBstr(BSTR text);

}  // namespace excel::com

#endif  // _WIN32
