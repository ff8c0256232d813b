#pragma once

#include "ooxml/document/sheet_document.hpp"

#include <cstdint>
#include <string>
#include <string_view>

namespace ooxml {

// One end of a reference: a row and a column, 1-based, each with its absolute marker ("$").
struct ReferenceCorner {
    uint32_t row = 0;
    uint32_t column = 0;
    bool rowAbsolute = false;
    bool columnAbsolute = false;
};

// A reference to cells as an A1-style formula writes it.
struct FormulaReference {
    enum class Kind : uint8_t { Cell, Area, Rows, Columns };  // "B2", "B2:C4", "3:5", "B:C"
    Kind kind = Kind::Cell;
    // The sheet prefix as written, without its "!": "Data", "'Q1 2024'", "Jan:Mar", "[1]Rates";
    // empty when the reference names no sheet.
    std::string_view sheets;
    ReferenceCorner first;
    ReferenceCorner last;  // first again for a single cell; of rows only the rows, of columns the columns

    // The cells it covers: whole rows span every column, whole columns every row.
    CellBlock Block() const;
    // The sheet it names when it names a single sheet of this workbook: unquoted, "It's" for 'It''s'.
    // Nothing for no prefix, a range of sheets or another workbook's sheet.
    std::optional<std::string> LocalSheet() const;
};

// The reference part (without the sheet prefix) of a reference of the same kind and markers at
// another block: "$B$3:C5" moved one row down is "$B$4:C6".
std::string ReferenceText(const FormulaReference& reference, const CellBlock& block);

}  // namespace ooxml
