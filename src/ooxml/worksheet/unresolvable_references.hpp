#pragma once

#include <string>
#include <string_view>

namespace ooxml {

// The formula with every reference the saved package cannot resolve replaced by #REF!: references
// into another workbook ("[1]Data!$A$1:$B$4", "'[2]Rates 2024'!X", "[3]!Total") and references to
// tables ("Sales[Amount]", "Sales[[#This Row],[Qty]]"). The package carries neither links to other
// workbooks nor tables, and Excel repairs a file whose formulas name a workbook index or a table it
// does not list. "[0]", the workbook itself, is kept; string literals are left alone.
std::string WithoutUnresolvableReferences(std::string_view formula);

}  // namespace ooxml
