#pragma once

#include <string>
#include <string_view>

namespace ooxml {

// The name formulas use for the table a table part (xl/tables/tableN.xml) defines: its display
// name; "" when the part does not give one or cannot be read.
std::string ReadTableName(std::string_view tablePart);

}  // namespace ooxml
