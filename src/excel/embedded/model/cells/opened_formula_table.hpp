#pragma once

#include "excel/embedded/model/cells/cell.hpp"

#include <cstdint>
#include <vector>

namespace excel::embedded {

// A formula of an opened file with what the file keeps beside it. The engine does not calculate,
// so the result Excel last calculated is the only one the formula has; writing the cell drops it.
struct OpenedFormula {
    uint32_t text = 0;  // StringPool id, without the leading "="
    Cell result;        // its value only; Blank when the file kept no result
    // An array formula fills this many rows and columns from its cell; 0 for other formulas.
    int32_t arrayRows = 0;
    int32_t arrayColumns = 0;

    bool IsArray() const { return arrayRows > 0 && arrayColumns > 0; }
};

// The workbook's opened formulas. A cell holds its formula's id, so moving or copying the cell
// carries the result along. Entries are never removed while the workbook is open; saving writes
// only the ones cells still use.
class OpenedFormulaTable {
public:
    uint32_t Add(const OpenedFormula& formula) {
        formulas_.push_back(formula);
        return static_cast<uint32_t>(formulas_.size() - 1);
    }
    const OpenedFormula& Get(uint32_t id) const { return formulas_[id]; }

private:
    std::vector<OpenedFormula> formulas_;
};

}  // namespace excel::embedded
