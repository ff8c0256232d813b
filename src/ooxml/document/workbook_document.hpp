#pragma once

// The workbook as an .xlsx package stores it: plain values, no behaviour. The engine fills one to
// save and receives one from opening; the package writer and reader know nothing else of it.

#include "ooxml/document/carried_content.hpp"
#include "ooxml/document/cell_format.hpp"
#include "ooxml/document/defined_name.hpp"
#include "ooxml/document/document_properties.hpp"
#include "ooxml/document/shared_string.hpp"
#include "ooxml/document/sheet_document.hpp"

#include <array>
#include <map>
#include <memory>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ooxml {

struct WorkbookDocument {
    std::vector<SheetDocument> sheets;
    std::vector<DefinedName> names;
    std::vector<CellFormat> formats{CellFormat{}};  // formats[0] is the default format
    std::vector<SharedString> strings;
    // The indexed colours (0x00RRGGBB) when the workbook changed its palette: 0..7 the fixed ones,
    // then the 56 a workbook may change. A file may list fewer; an entry without an RGB value is none.
    std::vector<std::optional<uint32_t>> palette;
    // The theme's colour scheme (0x00RRGGBB) in the order cells index it: lt1, dk1, lt2, dk2,
    // accent1..accent6, hlink, folHlink.
    std::array<uint32_t, 12> themeColors{};
    // Whether themeColors are the colour scheme of the theme the opened file keeps. Otherwise the
    // engine fills them in, and the writer writes them in a theme of its own when the workbook
    // keeps none.
    bool themeFromFile = false;
    uint32_t activeSheet = 0;       // 0-based
    bool date1904 = false;          // serial 0 is 1904-01-01 (else serial 1 is 1900-01-01)
    bool lockStructure = false;
    bool lockWindows = false;
    // The protection is the opened file's, locked with a password whose hash it keeps (carried
    // with the protection's other attributes); false once the protection changed.
    bool passwordFromFile = false;
    // The legacy hash of the protection's password (workbookPassword, four hex digits): of the
    // password the engine protected the workbook with, or the opened file's. Empty for none.
    std::string passwordVerifier;
    DocumentProperties properties;
    // What the opened file held beyond the rest of the document; none for a new workbook.
    std::shared_ptr<const CarriedWorkbook> carried;
    // Carried parts whose cell references moved with the cells (tables), by part name: written
    // instead of their carried bytes.
    std::map<std::string, std::string> movedParts;
};

}  // namespace ooxml
