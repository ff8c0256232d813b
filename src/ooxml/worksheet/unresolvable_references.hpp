#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ooxml {

// What the saved package holds for formulas to refer to beyond its sheets and names: links to
// other workbooks ("[1]" is the first) and tables by name.
struct ReferenceTargets {
    uint32_t externalWorkbooks = 0;
    std::vector<std::string> tables;

    bool HasTable(std::string_view name) const;
};

// The formula with every reference the saved package cannot resolve replaced by #REF!: references
// into another workbook ("[1]Data!$A$1:$B$4", "'[2]Rates 2024'!X", "[3]!Total") beyond the links it
// holds, and references to tables ("Sales[Amount]", "Sales[[#This Row],[Qty]]") it does not hold:
// Excel repairs a file whose formulas name a workbook index or a table it does not list. "[0]", the
// workbook itself, is kept; string literals are left alone.
std::string WithoutUnresolvableReferences(std::string_view formula, const ReferenceTargets& targets);

}  // namespace ooxml
