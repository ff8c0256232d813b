#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>

#include <cstdint>

// windows.h defines RGB as a macro; the member of the same name is declared without it.
#pragma push_macro("RGB")
#undef RGB

namespace excel {

// The colour of a shape's fill or outline: an RGB Long (0x00BBGGRR), or a colour of the theme
// named by an MsoThemeColorIndex. Reading RGB of a theme colour answers the colour it resolves to.
class ColorFormat : public Object {
public:
    virtual int32_t RGB() = 0;
    virtual void SetRGB(int32_t rgb) = 0;
    virtual int32_t ObjectThemeColor() = 0;  // msoNotThemeColor for an RGB colour
    virtual void SetObjectThemeColor(int32_t themeColor) = 0;
    virtual double TintAndShade() = 0;  // -1 (darker) to 1 (lighter)
    virtual void SetTintAndShade(double tint) = 0;
};

}  // namespace excel

#pragma pop_macro("RGB")
