#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>
#include <excel/variant.hpp>

#include <cstdint>

namespace excel {

// The fill of a range. Setting a colour makes the pattern solid, as in Excel; ColorIndex
// xlColorIndexNone removes the fill.
class Interior : public Object {
public:
    virtual Variant Color() = 0;
    virtual void SetColor(int32_t rgb) = 0;
    virtual Variant ColorIndex() = 0;
    virtual void SetColorIndex(int32_t index) = 0;
    virtual Variant ThemeColor() = 0;
    virtual void SetThemeColor(int32_t themeColor) = 0;
    virtual Variant TintAndShade() = 0;
    virtual void SetTintAndShade(double tint) = 0;
    virtual Variant Pattern() = 0;
    virtual void SetPattern(int32_t pattern) = 0;
    virtual Variant PatternColor() = 0;
    virtual void SetPatternColor(int32_t rgb) = 0;
    virtual Variant PatternColorIndex() = 0;
    virtual void SetPatternColorIndex(int32_t index) = 0;
};

}  // namespace excel
