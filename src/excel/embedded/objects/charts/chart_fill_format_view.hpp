#pragma once

#include "excel/embedded/objects/charts/chart_format_target.hpp"

#include <excel/chart_fill_format.hpp>
#include <excel/color_format.hpp>

namespace excel::embedded {

class ChartFillFormatView final : public excel::ChartFillFormat {
public:
    explicit ChartFillFormatView(ChartFormatTarget target) : target_(std::move(target)) {}

    int32_t Type() override;
    int32_t Visible() override;
    void SetVisible(int32_t visible) override;
    std::shared_ptr<excel::ColorFormat> ForeColor() override;
    void Solid() override;
    void OneColorGradient(int32_t style, int32_t variant, double degree) override;
    int32_t GradientStyle() override;
    int32_t GradientVariant() override;
    double GradientDegree() override;

private:
    ChartFormatTarget target_;
};

// The colour of a chart fill; setting it keeps a gradient a gradient, and fills an empty fill.
class ChartFillColorView final : public excel::ColorFormat {
public:
    explicit ChartFillColorView(ChartFormatTarget target) : target_(std::move(target)) {}

    int32_t RGB() override;
    void SetRGB(int32_t rgb) override;
    int32_t ObjectThemeColor() override;
    void SetObjectThemeColor(int32_t themeColor) override;
    double TintAndShade() override;
    void SetTintAndShade(double tint) override;

private:
    void set(const ShapeColor& color);

    ChartFormatTarget target_;
};

}  // namespace excel::embedded
