#pragma once

#include "ooxml/xml/xml_writer.hpp"

#include <string_view>

namespace ooxml {

inline constexpr std::string_view kThemeContentType = "application/vnd.openxmlformats-officedocument.theme+xml";
inline constexpr std::string_view kThemeRelationshipType =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/theme";

// Writes xl/theme/theme1.xml: the default Office theme (Calibri Light headings, Calibri body, the
// Office colour scheme), which theme colour indices in styles refer to.
void WriteThemePart(XmlWriter& xml);

}  // namespace ooxml
