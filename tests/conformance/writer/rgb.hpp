#pragma once

#include <cstdint>

namespace conformance {

// An RGB Long as Excel's Color properties take it: 0x00BBGGRR.
constexpr int32_t Rgb(int32_t red, int32_t green, int32_t blue) {
    return red | (green << 8) | (blue << 16);
}

}  // namespace conformance
