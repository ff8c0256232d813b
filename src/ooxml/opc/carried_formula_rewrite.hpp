#pragma once

#include "ooxml/document/workbook_document.hpp"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace ooxml {

// A formula of the opened file in the saved workbook's terms. sheet is the index among the
// document's sheets of the sheet the formula is on, whose cells its references without a sheet
// name are to; none for a formula on no sheet (a chart's, a pivot cache's).
using CarriedFormulaRewrite = std::function<std::string(std::string_view formula, std::optional<std::size_t> sheet)>;

// Rewrites the formulas the opened file's carried content holds: those of each sheet's conditional
// formats, data validation and hyperlinks to places in the workbook, the series and titles of the
// charts, and the sources of the pivot caches. Charts and pivot caches that change are written
// from document.movedParts.
void RewriteCarriedFormulas(WorkbookDocument& document, const CarriedFormulaRewrite& rewrite);

}  // namespace ooxml
