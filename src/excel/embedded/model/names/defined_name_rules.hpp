#pragma once

#include <string_view>

namespace excel::embedded {

// Excel's rules for a defined name: 1 to 255 characters; the first a letter, underscore or
// backslash; the rest letters, digits, underscores, periods, backslashes or question marks; and
// not readable as a cell reference in A1 or R1C1 form ("A1", "R1C1", "R", "C").
bool IsValidDefinedName(std::string_view name);

// Defined names are case-insensitive.
bool SameDefinedName(std::string_view a, std::string_view b);

}  // namespace excel::embedded
