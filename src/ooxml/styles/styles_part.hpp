#pragma once

#include "ooxml/document/workbook_document.hpp"
#include "ooxml/xml/xml_writer.hpp"

#include <string_view>

namespace ooxml {

inline constexpr std::string_view kStylesContentType =
    "application/vnd.openxmlformats-officedocument.spreadsheetml.styles+xml";
inline constexpr std::string_view kStylesRelationshipType =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/styles";

// Writes xl/styles.xml. Cell format i of the document becomes cellXfs entry i (so cells keep their
// format index as s), based on the named style it names; its number format, font, fill and border
// are shared with equal ones of other formats and of the named styles. An opened file's named
// styles, number formats and the rest are kept. A custom palette is written as the indexed colours.
void WriteStylesPart(XmlWriter& xml, const WorkbookDocument& document);

}  // namespace ooxml
