#include "ooxml/reference/column_name.hpp"

namespace ooxml {

std::string ColumnName(uint32_t column) {
    std::string name;
    for (; column > 0; column = (column - 1) / 26) {
        name.insert(name.begin(), static_cast<char>('A' + (column - 1) % 26));
    }
    return name;
}

std::string CellReferenceText(uint32_t row, uint32_t column) {
    return ColumnName(column) + std::to_string(row);
}

}  // namespace ooxml
