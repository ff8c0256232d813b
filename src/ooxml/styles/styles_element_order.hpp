#pragma once

#include "ooxml/carried/element_order.hpp"

#include <array>
#include <string_view>

namespace ooxml {

inline constexpr std::array<std::string_view, 11> StylesElementNames{
    "numFmts", "fonts", "fills", "borders", "cellStyleXfs", "cellXfs", "cellStyles", "dxfs", "tableStyles", "colors",
    "extLst",
};

// The children of <styleSheet> in schema order.
inline constexpr ElementOrder StylesElementOrder{StylesElementNames};

}  // namespace ooxml
