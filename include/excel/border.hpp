#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>
#include <excel/variant.hpp>

#include <cstdint>

namespace excel {

// One border line of a range: an edge (xlEdgeLeft..xlEdgeRight), the lines between its cells
// (xlInsideVertical, xlInsideHorizontal) or a diagonal. Setting an edge also sets the touching
// edge of the neighbouring cell, as Excel shows them as one line.
class Border : public Object {
public:
    virtual Variant LineStyle() = 0;
    virtual void SetLineStyle(int32_t style) = 0;
    virtual Variant Weight() = 0;
    virtual void SetWeight(int32_t weight) = 0;
    virtual Variant Color() = 0;
    virtual void SetColor(int32_t rgb) = 0;
    virtual Variant ColorIndex() = 0;
    virtual void SetColorIndex(int32_t index) = 0;
    virtual Variant ThemeColor() = 0;
    virtual void SetThemeColor(int32_t themeColor) = 0;
    virtual Variant TintAndShade() = 0;
    virtual void SetTintAndShade(double tint) = 0;
};

}  // namespace excel
