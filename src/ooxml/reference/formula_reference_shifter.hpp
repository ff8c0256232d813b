#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ooxml {

// Moves the relative references of an A1-style formula by the given offsets, as Excel does when
// it fills a shared formula from its first cell into the others: "B2*$C$1" shifted one row down
// is "B3*$C$1". Absolute parts, strings, sheet names, function names and table references stay;
// a reference pushed off the sheet becomes #REF!.
std::string ShiftFormulaReferences(std::string_view formula, int32_t rowOffset, int32_t columnOffset);

}  // namespace ooxml
