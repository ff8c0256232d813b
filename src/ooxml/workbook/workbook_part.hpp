#pragma once

#include "ooxml/document/workbook_document.hpp"
#include "ooxml/xml/xml_writer.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace ooxml {

inline constexpr std::string_view kWorkbookContentType =
    "application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml";
inline constexpr std::string_view kOfficeDocumentRelationshipType =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument";

// Writes xl/workbook.xml: protection, the active sheet, the sheets (sheetRelationshipIds[i] is the
// relationship to sheet i's part) and the defined names.
void WriteWorkbookPart(XmlWriter& xml, const WorkbookDocument& document,
                       const std::vector<std::string>& sheetRelationshipIds);

}  // namespace ooxml
