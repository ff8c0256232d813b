#pragma once

#include "ooxml/xml/xml_node_access.hpp"

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace ooxml {

// Excel groups rows and columns up to seven levels deep.
inline constexpr uint8_t MaxOutlineLevel = 7;

// A row's or column's outlineLevel attribute; 0 (not grouped) when it is no level.
inline uint8_t ParseOutlineLevel(std::string_view text) {
    return static_cast<uint8_t>(std::min<uint32_t>(ParseUnsigned(text).value_or(0), MaxOutlineLevel));
}

}  // namespace ooxml
