#pragma once

// The value elements of a chart (<c:barDir val="col"/>, <c:gapWidth val="150"/>): a chart element's
// values sit in the val attribute of a child of their own.

#include <pugixml.hpp>

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace ooxml {

// Raised while reading a chart that holds what the document cannot keep in its place; the chart
// part then stays carried as the file wrote it.
class UnreadableChart : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// The element's val; fallback when it has none (the schema's default for a val left out).
std::string ValueText(pugi::xml_node element, std::string_view fallback);
// A boolean element: one without val is true.
bool BooleanValue(pugi::xml_node element);
std::optional<double> DoubleValue(pugi::xml_node element);
std::optional<uint32_t> UnsignedValue(pugi::xml_node element);
std::optional<int32_t> IntegerValue(pugi::xml_node element);
std::optional<int32_t> IntegerAttribute(pugi::xml_node element, std::string_view name);

// The element's children as written, one after the other: the markup of a formatting element a
// writer writes back while nothing changes it.
std::string ChildrenMarkup(pugi::xml_node element);

}  // namespace ooxml
