#pragma once

#include <string_view>

namespace vos {

// The sheet a new report workbook is made with, because a workbook cannot be without sheets; it
// goes as soon as a report sheet exists, and comes back when every sheet has been deleted.
inline constexpr std::string_view PlaceholderSheetName = "_ReportPlaceholder_";

}  // namespace vos
