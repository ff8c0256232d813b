#pragma once

#include "ooxml/document/carried_content.hpp"
#include "ooxml/document/sheet_document.hpp"
#include "ooxml/reference/formula_reference_mover.hpp"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace ooxml {

// The sheet's carried content with its cell references moved as the sheet's cells moved: the
// ranges of conditional formats (also those of the extensions), data validation, hyperlinks, the
// sheet's filter and sort, ignored errors and protected ranges, and the cells the carried drawing
// objects, form controls, embedded objects and legacy shapes are anchored to (MoveAnchorsIn). A range whose cells were
// all deleted goes, and so does an element left without ranges. The formulas inside the rules move with the workbook's
// other carried formulas (RewriteCarriedFormulas).
CarriedWorksheet MoveCarriedReferences(const CarriedWorksheet& carried, const CellBlockMove& move);

// A table part (xl/tables/tableN.xml) with its range, and its filter's and sort's, moved; nothing
// when the table's cells were all deleted.
std::optional<std::string> MoveTableReferences(std::string_view tablePart, const CellBlockMove& move);

}  // namespace ooxml
