#pragma once

#include "ooxml/document/sheet_document.hpp"

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace ooxml {

// Where a block of a sheet's cells went when cells were inserted or deleted: moved, grown,
// shrunk, or nothing when all of it was deleted.
using CellBlockMove = std::function<std::optional<CellBlock>(const CellBlock&)>;

// What became of a sheet that formulas name: its cells moved, it was renamed, or it was deleted.
struct SheetChange {
    // Whether a sheet name (unquoted) is this sheet's: Excel compares them without regard to case.
    std::function<bool(std::string_view sheetName)> isSheet;
    CellBlockMove move;  // none when its cells stayed where they were
    std::string prefix;  // how a formula names it now ("'Q1 2024'"); empty when as before
    bool deleted = false;
};

// The formula with its references to the changed sheets rewritten as Excel rewrites them:
// references to moved cells follow them ("SUM(B2:B9)" with a row inserted above row 5 is
// "SUM(B2:B10)", and "Data!#REF!" where all were deleted), a renamed sheet is named anew, and a
// deleted one leaves #REF! in its place ("#REF!B2"). References without a sheet name are to
// ownSheet (none: to a sheet that did not change); references to ranges of sheets and to other
// workbooks stay.
std::string ChangeSheetReferences(std::string_view formula, std::span<const SheetChange> changes,
                                  const SheetChange* ownSheet);

}  // namespace ooxml
