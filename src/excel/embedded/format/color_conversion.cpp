#include "excel/embedded/format/color_conversion.hpp"

namespace excel::embedded {

namespace {

uint32_t SwapRedAndBlue(uint32_t color) {
    return ((color & 0xFFu) << 16) | (color & 0xFF00u) | ((color >> 16) & 0xFFu);
}

}  // namespace

uint32_t ArgbFromRgbLong(uint32_t rgbLong) {
    return 0xFF000000u | SwapRedAndBlue(rgbLong);
}

uint32_t RgbLongFromArgb(uint32_t argb) {
    return SwapRedAndBlue(argb);
}

}  // namespace excel::embedded
