#pragma once

#include "excel/embedded/objects/charts/chart_format_target.hpp"

#include <excel/interior.hpp>

namespace excel::embedded {

// The fill of a chart element. Setting a colour fills it with that colour; ColorIndex
// xlColorIndexNone removes the fill and xlColorIndexAutomatic gives it back to the chart's style.
// Charts draw no patterns: a pattern other than solid is refused.
class ChartInteriorView final : public excel::Interior {
public:
    explicit ChartInteriorView(ChartFormatTarget target) : target_(std::move(target)) {}

    Variant Color() override;
    void SetColor(int32_t rgb) override;
    Variant ColorIndex() override;
    void SetColorIndex(int32_t index) override;
    Variant ThemeColor() override;
    void SetThemeColor(int32_t themeColor) override;
    Variant TintAndShade() override;
    void SetTintAndShade(double tint) override;
    Variant Pattern() override;
    void SetPattern(int32_t pattern) override;
    Variant PatternColor() override;
    void SetPatternColor(int32_t rgb) override;
    Variant PatternColorIndex() override;
    void SetPatternColorIndex(int32_t index) override;

private:
    ShapeColor shownColor() const;
    void setColor(const ShapeColor& color);
    void setKind(ChartFill::Kind kind);

    ChartFormatTarget target_;
};

// The colour a chart fill shows: its own, or the chart style's for an automatic or absent fill.
ShapeColor ShownFillColor(const ChartFormatTarget& target);

}  // namespace excel::embedded
