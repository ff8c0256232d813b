#pragma once

#include "ooxml/xml/xml_writer.hpp"

#include <array>
#include <cstdint>
#include <string_view>

namespace ooxml {

inline constexpr std::string_view kThemeContentType = "application/vnd.openxmlformats-officedocument.theme+xml";
inline constexpr std::string_view kThemeRelationshipType =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/theme";

// Writes xl/theme/theme1.xml: the Office theme's fonts (Calibri Light headings, Calibri body) and
// formats with the workbook's colour scheme, which theme colour indices in styles refer to.
void WriteThemePart(XmlWriter& xml, const std::array<uint32_t, 12>& colors);

}  // namespace ooxml
