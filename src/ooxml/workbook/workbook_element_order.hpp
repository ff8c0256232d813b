#pragma once

#include "ooxml/carried/element_order.hpp"

#include <array>
#include <string_view>

namespace ooxml {

inline constexpr std::array<std::string_view, 19> WorkbookElementNames{
    "fileVersion",   "fileSharing", "workbookPr",          "workbookProtection", "bookViews",
    "sheets",        "functionGroups", "externalReferences", "definedNames",     "calcPr",
    "oleSize",       "customWorkbookViews", "pivotCaches",  "smartTagPr",         "smartTagTypes",
    "webPublishing", "fileRecoveryPr", "webPublishObjects",  "extLst",
};

// The children of <workbook> in schema order.
inline constexpr ElementOrder WorkbookElementOrder{WorkbookElementNames};

}  // namespace ooxml
