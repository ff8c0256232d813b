#include "ooxml/reference/cell_reference_reader.hpp"

#include <algorithm>

namespace ooxml {

std::optional<CellPosition> ParseCellReference(std::string_view text) {
    std::size_t at = 0;
    if (at < text.size() && text[at] == '$') {
        ++at;
    }
    uint32_t column = 0;
    const std::size_t lettersStart = at;
    while (at < text.size() && at - lettersStart < 3) {
        char c = text[at];
        if (c >= 'a' && c <= 'z') {
            c = static_cast<char>(c - 'a' + 'A');
        }
        if (c < 'A' || c > 'Z') {
            break;
        }
        column = column * 26 + static_cast<uint32_t>(c - 'A' + 1);
        ++at;
    }
    if (at == lettersStart || column > MaxColumnIndex) {
        return std::nullopt;
    }
    if (at < text.size() && text[at] == '$') {
        ++at;
    }
    uint32_t row = 0;
    const std::size_t digitsStart = at;
    while (at < text.size() && text[at] >= '0' && text[at] <= '9' && at - digitsStart < 7) {
        row = row * 10 + static_cast<uint32_t>(text[at] - '0');
        ++at;
    }
    if (at != text.size() || at == digitsStart || row == 0 || row > MaxRowIndex) {
        return std::nullopt;
    }
    return CellPosition{row, column};
}

std::optional<CellBlock> ParseCellBlock(std::string_view text) {
    const std::size_t colon = text.find(':');
    const std::optional<CellPosition> first = ParseCellReference(text.substr(0, colon));
    const std::optional<CellPosition> last =
        colon == std::string_view::npos ? first : ParseCellReference(text.substr(colon + 1));
    if (!first || !last) {
        return std::nullopt;
    }
    return CellBlock{std::min(first->row, last->row), std::min(first->column, last->column),
                     std::max(first->row, last->row), std::max(first->column, last->column)};
}

}  // namespace ooxml
