#pragma once

#include <string>
#include <string_view>

namespace ooxml {

// Decodes the _xHHHH_ escapes by which SpreadsheetML text carries characters XML cannot (control
// characters) or that would be mistaken for an escape ("_x005F_" is a literal underscore).
// UTF-16 surrogate pairs become one UTF-8 character; a lone surrogate becomes U+FFFD.
std::string DecodeEscapedText(std::string_view text);

// Appends a Unicode code point to out in UTF-8.
void AppendUtf8(std::string& out, char32_t codePoint);

}  // namespace ooxml
