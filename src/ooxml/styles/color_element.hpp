#pragma once

#include "ooxml/document/workbook_document.hpp"
#include "ooxml/xml/xml_writer.hpp"

#include <string_view>

namespace ooxml {

// Writes a colour as <element auto|rgb|indexed|theme [tint]/>; a colour of kind None writes nothing.
void WriteColor(XmlWriter& xml, std::string_view element, const Color& color);

}  // namespace ooxml
