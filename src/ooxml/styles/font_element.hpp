#pragma once

#include "ooxml/document/workbook_document.hpp"
#include "ooxml/xml/xml_writer.hpp"

#include <string_view>

namespace ooxml {

// Writes a font's properties in the order Excel writes them. The same properties describe a font
// of the style sheet (<font>, name in <name>) and a rich text run (<rPr>, name in <rFont>).
void WriteFont(XmlWriter& xml, std::string_view element, std::string_view nameElement, const Font& font);

}  // namespace ooxml
