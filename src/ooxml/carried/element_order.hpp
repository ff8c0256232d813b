#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace ooxml {

// The children of a part's root element in the order its schema requires them, by local name. A
// child's slot is its index here; carried elements are put back among the written ones by slot.
class ElementOrder {
public:
    constexpr explicit ElementOrder(std::span<const std::string_view> names) : names_(names) {}

    std::optional<uint16_t> SlotOf(std::string_view localName) const;
    // The slot of a name the order lists; a name it does not list is a mistake in the caller.
    uint16_t Slot(std::string_view localName) const;

private:
    std::span<const std::string_view> names_;
};

}  // namespace ooxml
