#pragma once

#include "ooxml/document/workbook_document.hpp"

#include <cstdint>
#include <optional>
#include <string_view>

namespace ooxml {

struct CellPosition {
    uint32_t row = 1;     // 1-based
    uint32_t column = 1;  // 1-based
};

// "B7" or "$B$7"; nothing when the text is no reference inside the sheet's bounds.
std::optional<CellPosition> ParseCellReference(std::string_view text);
// "A1:C4" (corners in any order) or a single cell "B2".
std::optional<CellBlock> ParseCellBlock(std::string_view text);

}  // namespace ooxml
