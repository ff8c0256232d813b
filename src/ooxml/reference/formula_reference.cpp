#include "ooxml/reference/formula_reference.hpp"

#include "ooxml/reference/column_name.hpp"

#include <optional>

namespace ooxml {

namespace {

void AppendColumn(std::string& text, uint32_t column, bool absolute) {
    if (absolute) {
        text += '$';
    }
    text += ColumnName(column);
}

void AppendRow(std::string& text, uint32_t row, bool absolute) {
    if (absolute) {
        text += '$';
    }
    text += std::to_string(row);
}

}  // namespace

CellBlock FormulaReference::Block() const {
    switch (kind) {
        case Kind::Rows:
            return CellBlock{first.row, 1, last.row, MaxColumnIndex};
        case Kind::Columns:
            return CellBlock{1, first.column, MaxRowIndex, last.column};
        case Kind::Cell:
        case Kind::Area:
            break;
    }
    return CellBlock{first.row, first.column, last.row, last.column};
}

std::optional<std::string> FormulaReference::LocalSheet() const {
    if (sheets.empty() || sheets.front() == '[') {
        return std::nullopt;
    }
    if (sheets.front() != '\'') {
        return sheets.find(':') == std::string_view::npos ? std::optional(std::string(sheets)) : std::nullopt;
    }
    // A quoted name: its quotes doubled inside.
    std::string name;
    for (std::size_t at = 1; at + 1 < sheets.size(); ++at) {
        name += sheets[at];
        if (sheets[at] == '\'') {
            ++at;
        }
    }
    if (name.starts_with('[') || name.find(':') != std::string::npos) {
        return std::nullopt;
    }
    return name;
}

std::string ReferenceText(const FormulaReference& reference, const CellBlock& block) {
    std::string text;
    switch (reference.kind) {
        case FormulaReference::Kind::Rows:
            AppendRow(text, block.firstRow, reference.first.rowAbsolute);
            text += ':';
            AppendRow(text, block.lastRow, reference.last.rowAbsolute);
            break;
        case FormulaReference::Kind::Columns:
            AppendColumn(text, block.firstColumn, reference.first.columnAbsolute);
            text += ':';
            AppendColumn(text, block.lastColumn, reference.last.columnAbsolute);
            break;
        case FormulaReference::Kind::Cell:
        case FormulaReference::Kind::Area:
            AppendColumn(text, block.firstColumn, reference.first.columnAbsolute);
            AppendRow(text, block.firstRow, reference.first.rowAbsolute);
            if (reference.kind == FormulaReference::Kind::Area || block.firstRow != block.lastRow ||
                block.firstColumn != block.lastColumn) {
                text += ':';
                AppendColumn(text, block.lastColumn, reference.last.columnAbsolute);
                AppendRow(text, block.lastRow, reference.last.rowAbsolute);
            }
            break;
    }
    return text;
}

}  // namespace ooxml
