#pragma once

#include "ooxml/carried/carried_attributes.hpp"
#include "ooxml/carried/carried_element_collector.hpp"
#include "ooxml/xml/xml_node_access.hpp"

#include <pugixml.hpp>

#include <string_view>
#include <vector>

namespace ooxml {

// Reads a chart element's children in the file's order: read(child, localName) takes a child and
// says so; those it does not take are carried as written, in their slot of the element's order.
template <typename Read>
void ReadChartChildren(pugi::xml_node element, ElementOrder order, std::vector<CarriedElement>& carried, Read&& read) {
    CarriedElementCollector collector(order, carried);
    for (pugi::xml_node child = element.first_child(); child; child = child.next_sibling()) {
        if (child.type() != pugi::node_element) {
            continue;
        }
        const std::string_view name = LocalName(child);
        if (read(child, name)) {
            collector.Pass(name);
        } else {
            collector.Carry(name, ElementMarkup(child));
        }
    }
}

}  // namespace ooxml
