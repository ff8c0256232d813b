#pragma once

#include <cstdint>
#include <string>

namespace ooxml {

// "A" for column 1 .. "XFD" for column 16,384.
std::string ColumnName(uint32_t column);

// "B12" for row 12, column 2 (both 1-based).
std::string CellReferenceText(uint32_t row, uint32_t column);

}  // namespace ooxml
