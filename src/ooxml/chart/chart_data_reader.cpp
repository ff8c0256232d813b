#include "ooxml/chart/chart_data_reader.hpp"

#include "ooxml/chart/chart_values.hpp"
#include "ooxml/xml/xml_node_access.hpp"

#include <algorithm>
#include <initializer_list>

namespace ooxml {

namespace {

bool OnlyChildren(pugi::xml_node element, std::initializer_list<std::string_view> names) {
    return std::all_of(element.children().begin(), element.children().end(), [names](pugi::xml_node child) {
        return child.type() != pugi::node_element ||
               std::find(names.begin(), names.end(), LocalName(child)) != names.end();
    });
}

// A point with nothing but its index and value.
bool PlainPoint(pugi::xml_node point) {
    return OnlyChildren(point, {"v"}) &&
           std::all_of(point.attributes().begin(), point.attributes().end(),
                       [](pugi::xml_attribute attribute) { return LocalName(attribute.name()) == "idx"; });
}

// A cache or literal: its format code, point count and points.
bool PlainValues(pugi::xml_node values) {
    if (!OnlyChildren(values, {"formatCode", "ptCount", "pt"})) {
        return false;
    }
    bool plain = true;
    ForEachChild(values, "pt", [&plain](pugi::xml_node point) { plain = plain && PlainPoint(point); });
    return plain;
}

bool Plain(pugi::xml_node data, std::string_view cache) {
    if (cache.empty()) {
        return PlainValues(data);
    }
    return OnlyChildren(data, {"f", std::string_view(cache)}) && PlainValues(FirstChild(data, cache));
}

void ReadValues(pugi::xml_node values, ChartData& data) {
    data.formatCode = FirstChild(values, "formatCode").child_value();
    data.pointCount = UnsignedValue(FirstChild(values, "ptCount")).value_or(0);
    ForEachChild(values, "pt", [&data](pugi::xml_node point) {
        data.points.emplace_back(AttributeUnsigned(point, "idx").value_or(0), FirstChild(point, "v").child_value());
    });
}

struct DataKind {
    std::string_view element;
    ChartData::Kind kind;
    std::string_view cache;  // a reference's cache; none for a literal
};

constexpr DataKind DataKinds[] = {
    {"numRef", ChartData::Kind::NumberReference, "numCache"},
    {"strRef", ChartData::Kind::StringReference, "strCache"},
    {"numLit", ChartData::Kind::NumberLiteral, ""},
    {"strLit", ChartData::Kind::StringLiteral, ""},
};

}  // namespace

ChartData ReadChartData(pugi::xml_node source) {
    ChartData data;
    pugi::xml_node element = source.first_child();
    while (element && element.type() != pugi::node_element) {
        element = element.next_sibling();
    }
    if (!element) {
        return data;
    }
    const auto kind = std::find_if(std::begin(DataKinds), std::end(DataKinds),
                                   [element](const DataKind& known) { return known.element == LocalName(element); });
    if (kind == std::end(DataKinds) || !Plain(element, kind->cache) || element.next_sibling()) {
        data.kind = ChartData::Kind::Other;
        data.markup = ChildrenMarkup(source);
        return data;
    }
    data.kind = kind->kind;
    if (kind->cache.empty()) {
        ReadValues(element, data);
    } else {
        data.formula = FirstChild(element, "f").child_value();
        ReadValues(FirstChild(element, kind->cache), data);
    }
    return data;
}

}  // namespace ooxml
