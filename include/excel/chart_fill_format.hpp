#pragma once

#include <excel/fwd.hpp>
#include <excel/object.hpp>

#include <cstdint>
#include <memory>

namespace excel {

// The fill of a chart element: solid, or a gradient of one colour.
class ChartFillFormat : public Object {
public:
    virtual int32_t Type() = 0;     // an MsoFillType
    virtual int32_t Visible() = 0;  // an MsoTriState
    virtual void SetVisible(int32_t visible) = 0;
    virtual std::shared_ptr<excel::ColorFormat> ForeColor() = 0;
    virtual void Solid() = 0;
    // A gradient from the fill's colour to black (degree 0) or white (1) in the MsoGradientStyle;
    // variant 1 or 2 runs one way or the other, 3 or 4 from the middle out or in.
    virtual void OneColorGradient(int32_t style, int32_t variant, double degree) = 0;
    virtual int32_t GradientStyle() = 0;
    virtual int32_t GradientVariant() = 0;
    virtual double GradientDegree() = 0;
};

}  // namespace excel
