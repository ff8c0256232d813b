#pragma once

#include <string>
#include <string_view>

namespace excel::embedded {

// 1 to 31 characters (UTF-8 code points), none of : \ / ? * [ ], not beginning or ending with an
// apostrophe, and not "History", which Excel reserves.
bool IsValidSheetName(std::string_view name);

// Excel treats sheet names that differ only in case as the same name.
bool SameSheetName(std::string_view a, std::string_view b);

// Whether a formula must quote the name: anything but letters, digits, underscores and periods,
// a leading digit, or a name that reads as a cell reference (A1 or R1C1 style).
bool SheetNameNeedsQuotes(std::string_view name);

// The name as a formula prefix writes it: "Sheet1", "'My Sheet'", "'It''s'".
std::string QualifiedSheetName(std::string_view name);

}  // namespace excel::embedded
