#pragma once

#include "ooxml/document/workbook_document.hpp"
#include "ooxml/workbook/sheet_order.hpp"
#include "ooxml/worksheet/unresolvable_references.hpp"
#include "ooxml/xml/xml_writer.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace ooxml {

inline constexpr std::string_view kWorkbookContentType =
    "application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml";
inline constexpr std::string_view kOfficeDocumentRelationshipType =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument";

// Writes xl/workbook.xml: protection, the active sheet, the sheets in order (sheetRelationshipIds[i]
// is the relationship to worksheet i's part; carried sheets keep theirs), the defined names, and
// what the opened workbook part had beyond them. Names keep the references to other workbooks and
// tables that targets holds.
void WriteWorkbookPart(XmlWriter& xml, const WorkbookDocument& document, const SheetOrder& order,
                       const std::vector<std::string>& sheetRelationshipIds, const ReferenceTargets& targets);

}  // namespace ooxml
