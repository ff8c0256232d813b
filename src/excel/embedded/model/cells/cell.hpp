#pragma once

#include <cstdint>

namespace excel::embedded {

enum class CellKind : uint8_t { Blank, Number, Text, Boolean, Error, Formula, OpenedFormula };

// One stored cell: 16 bytes. Text and Formula hold a StringPool id; OpenedFormula holds an
// OpenedFormulaTable id (a formula read from a file, with its cached result); Error holds Excel's
// xlErr number; Boolean holds 0 or 1 in number.
struct Cell {
    uint16_t column = 1;
    CellKind kind = CellKind::Blank;
    uint32_t format = 0;
    union {
        double number = 0.0;
        uint32_t text;
        int32_t error;
    };

    static Cell Blank(int32_t column, uint32_t format) {
        Cell cell;
        cell.column = static_cast<uint16_t>(column);
        cell.format = format;
        return cell;
    }
    bool HasValue() const { return kind != CellKind::Blank; }
    void ClearValue() {
        kind = CellKind::Blank;
        number = 0.0;
    }
};

static_assert(sizeof(Cell) == 16);

}  // namespace excel::embedded
