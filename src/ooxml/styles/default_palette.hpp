#pragma once

#include <array>
#include <cstdint>

namespace ooxml {

// Excel's standard 56-colour palette, 0x00RRGGBB, in ColorIndex order (ColorIndex 1 first; the
// package's indexed colour is ColorIndex + 7).
const std::array<uint32_t, 56>& DefaultPalette();

}  // namespace ooxml
