#pragma once

#include <string>
#include <string_view>

namespace ooxml {

// The formula with every reference into another workbook ("[1]Data!$A$1:$B$4", "'[2]Rates 2024'!X",
// "[3]!Total") replaced by #REF!. A saved package carries no links to other workbooks, and Excel
// repairs a file whose formulas name a workbook index it does not list. "[0]", the workbook itself,
// is kept; string literals are left alone.
std::string WithoutExternalWorkbookReferences(std::string_view formula);

}  // namespace ooxml
