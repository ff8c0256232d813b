#include "ooxml/chart/chart_values.hpp"

#include "ooxml/carried/carried_attributes.hpp"
#include "ooxml/xml/xml_node_access.hpp"

#include <cmath>
#include <limits>

namespace ooxml {

std::string ValueText(pugi::xml_node element, std::string_view fallback) {
    const pugi::xml_attribute value = Attribute(element, "val");
    return std::string(value ? std::string_view(value.value()) : fallback);
}

bool BooleanValue(pugi::xml_node element) {
    const pugi::xml_attribute value = Attribute(element, "val");
    return !value || ParseBoolean(value.value()).value_or(true);
}

std::optional<double> DoubleValue(pugi::xml_node element) {
    return AttributeDouble(element, "val");
}

std::optional<uint32_t> UnsignedValue(pugi::xml_node element) {
    return AttributeUnsigned(element, "val");
}

std::optional<int32_t> IntegerAttribute(pugi::xml_node element, std::string_view name) {
    const std::optional<double> value = AttributeDouble(element, name);
    if (!value || *value != std::trunc(*value) || *value < std::numeric_limits<int32_t>::min() ||
        *value > std::numeric_limits<int32_t>::max()) {
        return std::nullopt;
    }
    return static_cast<int32_t>(*value);
}

std::optional<int32_t> IntegerValue(pugi::xml_node element) {
    return IntegerAttribute(element, "val");
}

std::string ChildrenMarkup(pugi::xml_node element) {
    std::string markup;
    for (pugi::xml_node child = element.first_child(); child; child = child.next_sibling()) {
        markup += ElementMarkup(child);
    }
    return markup;
}

}  // namespace ooxml
