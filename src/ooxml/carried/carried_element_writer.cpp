#include "ooxml/carried/carried_element_writer.hpp"

#include <algorithm>

namespace ooxml {

CarriedElementWriter::CarriedElementWriter(XmlWriter& xml, const std::vector<CarriedElement>* elements) : xml_(xml) {
    if (elements != nullptr) {
        for (const CarriedElement& element : *elements) {
            pending_.push_back(&element);
        }
        std::stable_sort(pending_.begin(), pending_.end(),
                         [](const CarriedElement* a, const CarriedElement* b) { return a->slot < b->slot; });
    }
}

void CarriedElementWriter::Before(uint16_t slot) {
    while (next_ < pending_.size() && pending_[next_]->slot < slot) {
        xml_.Raw(pending_[next_++]->xml);
    }
}

void CarriedElementWriter::Through(uint16_t slot) {
    Before(static_cast<uint16_t>(slot + 1));
}

void CarriedElementWriter::Rest() {
    Before(UINT16_MAX);
}

void CarriedElementWriter::Drop(std::string_view localName) {
    std::erase_if(pending_, [localName](const CarriedElement* element) { return element->name == localName; });
}

bool CarriedElementWriter::Carries(std::string_view localName) const {
    return std::any_of(pending_.begin(), pending_.end(),
                       [localName](const CarriedElement* element) { return element->name == localName; });
}

}  // namespace ooxml
