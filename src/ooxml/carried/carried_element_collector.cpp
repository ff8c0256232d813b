#include "ooxml/carried/carried_element_collector.hpp"

namespace ooxml {

void CarriedElementCollector::Pass(std::string_view localName) {
    if (const std::optional<uint16_t> slot = order_.SlotOf(localName)) {
        slot_ = *slot;
    }
}

void CarriedElementCollector::Carry(std::string_view localName, std::string xml) {
    Pass(localName);
    out_.push_back({slot_, std::string(localName), std::move(xml)});
}

}  // namespace ooxml
