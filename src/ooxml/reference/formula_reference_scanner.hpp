#pragma once

#include "ooxml/reference/formula_reference.hpp"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace ooxml {

// What becomes of a reference: the text written in its place (sheet prefix included), or nothing
// to keep it as written.
using ReferenceRewrite = std::function<std::optional<std::string>(const FormulaReference&)>;

// The A1-style formula (without its "=") with each reference to cells passed to rewrite. String
// literals, names, function names, table references ("Sales[Qty]") and error values are not
// references; a reference's sheet prefix may be quoted, a range of sheets or another workbook's.
std::string RewriteFormulaReferences(std::string_view formula, const ReferenceRewrite& rewrite);

}  // namespace ooxml
