#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace chart_comparison {

// An element or attribute Excel 2007 leaves out when it holds Excel's default and the engine
// writes out.
struct AllowedAddition {
    // The last steps of its path, "c:gapWidth" or "c:chart/c:title/c:overlay", and "@name" after
    // them for an attribute ("a:rPr@i"); a step "*" stands for any element.
    std::string_view where;
    // The attribute's value; for an element (which must have no children), its val attribute, or
    // all its attributes as "name=value" in the order of their names, separated by spaces.
    std::string_view value;
    std::string_view reason;
};

// The differences between Excel's chart part and ours, one line each, after both are brought to
// the same form: axis ids numbered by the order of the axes, namespace declarations and attribute
// order left aside, numbers read as numbers, the style choice reduced to the c:style that Excel
// 2007 would read, print settings dropped. An element or attribute only ours has is no difference
// when the allowed additions name it with its value.
//
// A line reads "<path>: <what>", the path running from c:chartSpace's child with "[n]" where an
// element has siblings of its name. <what> is "missing" (only Excel has the element) or "added"
// (only ours), followed by " 'x'" with the element's value as AllowedAddition words it; "@attr Excel 'x', ours 'y'" (an
// attribute, "-" when absent); "text Excel 'x', ours 'y'"; or "order Excel (a b), ours (b a)"
// (the children both have, in another order).
std::vector<std::string> ChartPartDifferences(const std::string& excel, const std::string& ours,
                                              std::span<const AllowedAddition> allowed);

}  // namespace chart_comparison
