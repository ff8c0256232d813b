#pragma once

#include "ooxml/document/workbook_document.hpp"
#include "ooxml/worksheet/sheet_drawing_references.hpp"
#include "ooxml/xml/xml_pull_scanner.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ooxml {

class StringTableBuilder;

// What a worksheet's cells refer to outside the sheet.
struct WorksheetContext {
    StringTableBuilder& strings;  // takes inline strings, formula strings and error values
    uint32_t sharedStringCount;   // entries of the shared string table, the bound of a t="s" value
    uint32_t formatCount;         // cell formats; a style index beyond them means the default format

    // The cell format a style attribute names; nothing when it names none.
    std::optional<uint32_t> FormatIndex(std::string_view text) const;
};

// Reads a worksheet part into sheet (whose name and state the workbook gives): cells, rows,
// columns, merges, the first sheet view, print grid lines and the default sizes; what the engine
// does not model goes to carried. The part is read from source as it comes, never held whole.
// Returns the ids of the relationships to the sheet's drawings, which the package reader follows.
// Throws PackageError(Corrupt).
SheetDrawingReferences ReadWorksheet(const XmlByteSource& source, std::string_view partName,
                                     const WorksheetContext& context, SheetDocument& sheet, CarriedWorksheet& carried);

}  // namespace ooxml
