#pragma once

#include "ooxml/document/workbook_document.hpp"

#include <cstdint>
#include <vector>

namespace ooxml {

// The workbook's sheets in the order the workbook part lists them: the worksheets, with the
// carried sheets (chart sheets and the like) put back at the positions they had when opened, or
// after the last worksheet when fewer sheets are left.
struct SheetOrder {
    struct Entry {
        bool carried = false;
        uint32_t index = 0;  // into the document's sheets, or the carried ones
    };
    std::vector<Entry> entries;
    std::vector<uint32_t> worksheetPositions;  // by worksheet
    std::vector<uint32_t> carriedPositions;    // by carried sheet
};

SheetOrder OrderSheets(const WorkbookDocument& document);

}  // namespace ooxml
