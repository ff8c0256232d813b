#pragma once

#include "ooxml/document/workbook_document.hpp"
#include "ooxml/shared_strings/shared_strings_part.hpp"
#include "ooxml/worksheet/sheet_drawing_references.hpp"
#include "ooxml/worksheet/unresolvable_references.hpp"
#include "ooxml/xml/xml_writer.hpp"

#include <string_view>

namespace ooxml {

inline constexpr std::string_view kWorksheetContentType =
    "application/vnd.openxmlformats-officedocument.spreadsheetml.worksheet+xml";
inline constexpr std::string_view kWorksheetRelationshipType =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/worksheet";

// Writes a worksheet part (xl/worksheets/sheetN.xml), streaming its rows; string cells refer to
// their positions in the shared string table. Throws PackageError
// (WriteFailed) when a cell or row refers to a format, string or formula the document does not
// have, or rows and cells are out of order: Excel would have to repair such a file. drawings are
// the ids of the sheet's relationships to its drawing parts; targets what its formulas may refer to
// beyond the workbook's sheets. The elements an opened sheet had beyond the model are written in
// their places.
void WriteWorksheetPart(XmlWriter& xml, const WorkbookDocument& document, const SheetDocument& sheet,
                        const SharedStringTable& sharedStrings, const SheetDrawingReferences& drawings = {},
                        const ReferenceTargets& targets = {});

}  // namespace ooxml
