#pragma once

#include "ooxml/workbook_document.hpp"
#include "ooxml/xml_writer.hpp"

#include <string_view>

namespace ooxml {

inline constexpr std::string_view kSharedStringsContentType =
    "application/vnd.openxmlformats-officedocument.spreadsheetml.sharedStrings+xml";
inline constexpr std::string_view kSharedStringsRelationshipType =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/sharedStrings";

// Writes xl/sharedStrings.xml: the document's strings in order (cells refer to them by index),
// rich text as runs with their fonts.
void WriteSharedStringsPart(XmlWriter& xml, const WorkbookDocument& document);

// Writes <t> with text, marking it space-preserving when a reader could otherwise trim it.
void WriteTextElement(XmlWriter& xml, std::string_view text);

}  // namespace ooxml
