#pragma once

#include <excel/variant.hpp>

#include <optional>

namespace excel::embedded {

// The value every item shows, or Null when they differ (how Excel reads a mixed range).
template <class Items, class Project>
Variant CommonValue(const Items& items, Project&& project) {
    std::optional<Variant> common;
    for (const auto& item : items) {
        Variant value = project(item);
        if (!common) {
            common = std::move(value);
        } else if (!(*common == value)) {
            return Variant::Null();
        }
    }
    return common ? *common : Variant::Null();
}

}  // namespace excel::embedded
