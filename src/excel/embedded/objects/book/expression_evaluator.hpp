#pragma once

#include "excel/embedded/model/worksheet_model.hpp"

#include <excel/variant.hpp>

#include <memory>
#include <string_view>

namespace excel::embedded {

// Worksheet.Evaluate for what the engine can evaluate without calculating: constants (numbers,
// quoted text, TRUE/FALSE, error values), A1 references (a Range), and defined names (the sheet's
// local name first, then the workbook-level one), followed through to what they hold. An unknown
// name gives #NAME?; any other expression (operators, functions) gives #VALUE!.
Variant EvaluateExpression(const std::shared_ptr<WorksheetModel>& sheet, std::string_view expression);

}  // namespace excel::embedded
