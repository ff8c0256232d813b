#pragma once

#include "ooxml/carried/element_order.hpp"

#include <array>
#include <string_view>

namespace ooxml {

inline constexpr std::array<std::string_view, 39> WorksheetElementNames{
    "sheetPr",         "dimension",     "sheetViews",       "sheetFormatPr", "cols",
    "sheetData",       "sheetCalcPr",   "sheetProtection",  "protectedRanges", "scenarios",
    "autoFilter",      "sortState",     "dataConsolidate",  "customSheetViews", "mergeCells",
    "phoneticPr",      "conditionalFormatting", "dataValidations", "hyperlinks", "printOptions",
    "pageMargins",     "pageSetup",     "headerFooter",     "rowBreaks",     "colBreaks",
    "customProperties", "cellWatches",  "ignoredErrors",    "smartTags",     "drawing",
    "legacyDrawing",   "legacyDrawingHF", "drawingHF",      "picture",       "oleObjects",
    "controls",        "webPublishItems", "tableParts",     "extLst",
};

// The children of <worksheet> in schema order.
inline constexpr ElementOrder WorksheetElementOrder{WorksheetElementNames};

}  // namespace ooxml
