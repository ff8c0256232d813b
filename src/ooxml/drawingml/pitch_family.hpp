#pragma once

#include <cstdint>

namespace ooxml {

// DrawingML stores a font's family as the pitch-and-family byte of a Windows font: the family
// (1 Roman, 2 Swiss, 3 Modern, 4 Script, 5 Decorative) in the high four bits, the pitch in the
// low ones, left at the default here.
constexpr int32_t PitchFamily(int32_t family) {
    return (family & 0x0F) << 4;
}

constexpr int32_t FamilyOfPitchFamily(uint32_t pitchFamily) {
    return static_cast<int32_t>((pitchFamily >> 4) & 0x0F);
}

}  // namespace ooxml
