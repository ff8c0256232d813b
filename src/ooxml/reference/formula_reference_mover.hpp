#pragma once

#include "ooxml/document/sheet_document.hpp"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace ooxml {

// Where a block of a sheet's cells went when cells were inserted or deleted: moved, grown,
// shrunk, or nothing when all of it was deleted.
using CellBlockMove = std::function<std::optional<CellBlock>(const CellBlock&)>;

// Cells that moved on one sheet, as the references of a formula see them.
struct SheetCellMove {
    // Whether the formula's references that name no sheet are to that sheet (the formula is on it).
    bool onMovedSheet = false;
    // Whether a sheet name (unquoted) is that sheet's: Excel compares them without regard to case.
    std::function<bool(std::string_view sheetName)> isMovedSheet;
    CellBlockMove move;
};

// The formula with its references to the moved cells following them, as Excel rewrites formulas
// when cells are inserted or deleted: "SUM(B2:B9)" with a row inserted above row 5 is
// "SUM(B2:B10)"; a reference whose cells were all deleted becomes #REF! ("Data!#REF!"). References
// to other sheets, to ranges of sheets and to other workbooks stay.
std::string MoveFormulaReferences(std::string_view formula, const SheetCellMove& move);

// The formula with its references to a renamed sheet under the new name, given as a sheet prefix
// writes it ("'Q1 2024'", quoted where it must be).
std::string RenameSheetReferences(std::string_view formula, const std::function<bool(std::string_view)>& isRenamedSheet,
                                  std::string_view newPrefix);

// The formula with its references to the sheet of that name made #REF! ("Data!B2" becomes
// "#REF!B2"), as Excel leaves them when the sheet is deleted.
std::string WithoutSheetReferences(std::string_view formula,
                                   const std::function<bool(std::string_view)>& isDeletedSheet);

}  // namespace ooxml
