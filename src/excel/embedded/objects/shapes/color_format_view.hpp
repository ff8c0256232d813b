#pragma once

#include "excel/embedded/model/shapes/shape_handle.hpp"

#include <excel/color_format.hpp>

namespace excel::embedded {

// The colour of a shape's fill or outline. Setting it makes the fill or outline visible.
class ColorFormatView final : public excel::ColorFormat {
public:
    enum class Part { Fill, Line };

    ColorFormatView(ShapeHandle shape, Part part) : shape_(std::move(shape)), part_(part) {}

    int32_t RGB() override;
    void SetRGB(int32_t rgb) override;
    int32_t ObjectThemeColor() override;
    void SetObjectThemeColor(int32_t themeColor) override;
    double TintAndShade() override;
    void SetTintAndShade(double tint) override;

private:
    ShapeColor& color() const;
    void set(const ShapeColor& color);

    ShapeHandle shape_;
    Part part_;
};

}  // namespace excel::embedded
