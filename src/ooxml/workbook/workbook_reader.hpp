#pragma once

#include "ooxml/document/workbook_document.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ooxml {

// A <sheet> of the workbook part. Its part is found through the workbook's relationships.
struct SheetEntry {
    std::string name;
    std::string state = "visible";
    std::string relationshipId;
};

struct WorkbookPart {
    std::vector<SheetEntry> sheets;  // worksheets and the other kinds, in the workbook's order
    std::vector<DefinedName> names;  // localSheet counts positions in sheets
    uint32_t activeTab = 0;          // a position in sheets
    bool date1904 = false;
    bool lockStructure = false;
    bool lockWindows = false;
};

// Reads the workbook part; what the engine does not model goes to carried (its elements, and the
// attributes of the properties, protection, first view and calculation settings beyond the model's).
// Throws PackageError(Corrupt).
WorkbookPart ReadWorkbook(std::string& xml, std::string_view partName, CarriedWorkbook& carried);

}  // namespace ooxml
