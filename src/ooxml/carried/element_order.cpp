#include "ooxml/carried/element_order.hpp"

#include <algorithm>
#include <cassert>

namespace ooxml {

std::optional<uint16_t> ElementOrder::SlotOf(std::string_view localName) const {
    const auto found = std::find(names_.begin(), names_.end(), localName);
    if (found == names_.end()) {
        return std::nullopt;
    }
    return static_cast<uint16_t>(found - names_.begin());
}

uint16_t ElementOrder::Slot(std::string_view localName) const {
    const std::optional<uint16_t> slot = SlotOf(localName);
    assert(slot.has_value());
    return slot.value_or(0);
}

}  // namespace ooxml
