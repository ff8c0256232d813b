#pragma once

#include "ooxml/document/carried_content.hpp"
#include "ooxml/xml/xml_writer.hpp"

#include <cstdint>
#include <vector>

namespace ooxml {

// Puts a rewritten part's carried elements back among the ones its writer writes: before writing
// the element of a slot, the writer lets the carried elements of the slots before it out.
class CarriedElementWriter {
public:
    // elements may be null: a part with nothing carried.
    CarriedElementWriter(XmlWriter& xml, const std::vector<CarriedElement>* elements);

    // Writes the carried elements of the slots before slot.
    void Before(uint16_t slot);
    // Writes the carried elements of slot and those before it.
    void Through(uint16_t slot);
    // Writes the carried elements left.
    void Rest();
    // Leaves out the carried elements of that name: the writer writes its own instead.
    void Drop(std::string_view localName);
    // Whether the file's own element of that name is carried (so the writer does not write one).
    bool Carries(std::string_view localName) const;

private:
    XmlWriter& xml_;
    std::vector<const CarriedElement*> pending_;  // by slot, then in the file's order
    std::size_t next_ = 0;
};

}  // namespace ooxml
