#pragma once

#include "ooxml/document/sheet_document.hpp"

#include <functional>

namespace ooxml {

// A sheet's rows one at a time, in ascending order: those the document holds, or those its row
// stream makes as they are asked for.
inline void ForEachRow(const SheetDocument& sheet, const RowVisitor& visit) {
    if (sheet.rowStream) {
        sheet.rowStream(visit);
        return;
    }
    for (const Row& row : sheet.rows) {
        visit(RowView{row, sheet.formulas, sheet.arrayFormulas});
    }
}

// Whether a cell of the sheet has a formula.
inline bool HasFormulas(const SheetDocument& sheet) {
    return !sheet.formulas.empty() || sheet.streamedFormulas;
}

}  // namespace ooxml
