#pragma once

#include <pugixml.hpp>

#include <string>
#include <string_view>

namespace ooxml {

// What every part needs: entities decoded, line ends normalised, and a text node made of white
// space kept when it is an element's only content (<t xml:space="preserve"> </t>).
inline constexpr unsigned XmlPartParseOptions = pugi::parse_escapes | pugi::parse_eol | pugi::parse_ws_pcdata_single;

// Parses a part's XML in place, so text must outlive document. Throws PackageError(Corrupt).
void ParseXmlPart(pugi::xml_document& document, std::string& text, std::string_view partName);

}  // namespace ooxml
