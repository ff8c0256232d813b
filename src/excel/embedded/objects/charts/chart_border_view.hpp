#pragma once

#include "excel/embedded/objects/charts/chart_format_target.hpp"

#include <excel/border.hpp>

namespace excel::embedded {

// The line of a chart element (its border, a series' line, an axis): weights are Excel's
// xlHairline, xlThin, xlMedium and xlThick; setting a style or a colour shows the line.
class ChartBorderView final : public excel::Border {
public:
    explicit ChartBorderView(ChartFormatTarget target) : target_(std::move(target)) {}

    Variant LineStyle() override;
    void SetLineStyle(int32_t style) override;
    Variant Weight() override;
    void SetWeight(int32_t weight) override;
    Variant Color() override;
    void SetColor(int32_t rgb) override;
    Variant ColorIndex() override;
    void SetColorIndex(int32_t index) override;
    Variant ThemeColor() override;
    void SetThemeColor(int32_t themeColor) override;
    Variant TintAndShade() override;
    void SetTintAndShade(double tint) override;

private:
    ShapeColor shownColor() const;
    void setColor(const ShapeColor& color);

    ChartFormatTarget target_;
};

// The weight in points an XlBorderWeight stands for in a chart, and back.
double ChartLineWeightPoints(int32_t weight);
int32_t ChartLineWeightOf(double points);

}  // namespace excel::embedded
