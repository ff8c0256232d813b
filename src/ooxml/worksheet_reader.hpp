#pragma once

#include "ooxml/workbook_document.hpp"

#include <cstdint>
#include <string>
#include <string_view>

namespace ooxml {

class StringTableBuilder;

// What a worksheet's cells refer to outside the sheet.
struct WorksheetContext {
    StringTableBuilder& strings;  // takes inline strings, formula strings and error values
    uint32_t sharedStringCount;   // entries of the shared string table, the bound of a t="s" value
    uint32_t formatCount;         // cell formats; a style index beyond them means the default format
};

// Reads a worksheet part into sheet (whose name and state the workbook gives): cells, rows,
// columns, merges, the first sheet view, print grid lines and the default sizes. Throws
// PackageError(Corrupt).
void ReadWorksheet(std::string& xml, std::string_view partName, const WorksheetContext& context, SheetDocument& sheet);

}  // namespace ooxml
