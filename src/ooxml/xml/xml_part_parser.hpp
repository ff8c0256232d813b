#pragma once

#include <pugixml.hpp>

#include <string>
#include <string_view>

namespace ooxml {

// What every part needs: entities decoded, line ends normalised, and a text node made of white
// space kept when it is an element's only content (<t xml:space="preserve"> </t>).
inline constexpr unsigned XmlPartParseOptions = pugi::parse_escapes | pugi::parse_eol | pugi::parse_ws_pcdata_single;

// XML allows no NUL character anywhere, and a parser that stops at one reads less of a part than
// a later reader of the same bytes: a part holding one is no XML. In a part written in UTF-16 (a
// byte-order mark, or "<" as two bytes) NUL bytes are half of every ASCII character instead.
inline bool HoldsNoNul(std::string_view text) {
    const bool utf16 = text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF") ||
                       text.starts_with(std::string_view("<\0", 2)) || text.starts_with(std::string_view("\0<", 2));
    return utf16 || text.find('\0') == std::string_view::npos;
}

// Parses a part's XML in place, so text must outlive document. Throws PackageError(Corrupt).
void ParseXmlPart(pugi::xml_document& document, std::string& text, std::string_view partName);

}  // namespace ooxml
