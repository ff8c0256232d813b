#pragma once

#include "excel/embedded/model/cells/cell.hpp"
#include "excel/embedded/model/cells/opened_formula_table.hpp"
#include "excel/embedded/model/string_pool.hpp"

#include <cstdint>
#include <string_view>
#include <variant>

namespace excel::embedded {

// An error a cell holds, by the engine's error number.
struct CellError {
    int32_t number;
};

// What a cell holds as its value: nothing (no cell, a blank, or a formula without a result), a
// logical, text, an error or a number; an opened formula holds the result its file kept.
// Range.Value and Range.Text both start from it.
using CellContent = std::variant<std::monostate, bool, std::string_view, CellError, double>;

inline CellContent ContentOf(const Cell* cell, const StringPool& strings, const OpenedFormulaTable& formulas) {
    if (cell == nullptr) {
        return {};
    }
    switch (cell->kind) {
        case CellKind::Blank:
        case CellKind::Formula:
            return {};
        case CellKind::OpenedFormula:
            return ContentOf(&formulas.Get(cell->text).result, strings, formulas);
        case CellKind::Text:
            return std::string_view(strings.Get(cell->text).text);
        case CellKind::Boolean:
            return cell->number != 0.0;
        case CellKind::Error:
            return CellError{cell->error};
        case CellKind::Number:
            break;
    }
    return cell->number;
}

// Visits a CellContent with one lambda per kind of content.
template <class... Visit>
struct ContentVisitor : Visit... {
    using Visit::operator()...;
};
// Clang 14 does not deduce an aggregate's template arguments from its initializers without a guide.
template <class... Visit>
ContentVisitor(Visit...) -> ContentVisitor<Visit...>;

}  // namespace excel::embedded
