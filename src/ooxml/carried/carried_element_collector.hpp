#pragma once

#include "ooxml/carried/element_order.hpp"
#include "ooxml/document/carried_content.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace ooxml {

// Gives the children of a part's root their slots as a reader meets them, in the file's order,
// and keeps those the reader does not take. An element the order does not list (from a later
// version of the format) takes the slot of the element before it, so it is put back after it.
class CarriedElementCollector {
public:
    CarriedElementCollector(ElementOrder order, std::vector<CarriedElement>& out) : order_(order), out_(out) {}

    // Notes an element the reader takes itself.
    void Pass(std::string_view localName);
    // Keeps an element the reader does not take.
    void Carry(std::string_view localName, std::string xml);

private:
    ElementOrder order_;
    std::vector<CarriedElement>& out_;
    uint16_t slot_ = 0;
};

}  // namespace ooxml
