#include "excel/embedded/objects/charts/chart_fill_format_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/format/color_model.hpp"
#include "excel/embedded/objects/charts/chart_interior_view.hpp"

namespace excel::embedded {

namespace {

constexpr int32_t LastGradientStyle = msoGradientFromCenter;
constexpr int32_t LastGradientVariant = 4;

[[noreturn]] void RefuseGradient() {
    ThrowRefused("The specified value is out of range.");
}

}  // namespace

int32_t ChartFillFormatView::Type() {
    const ChartFill& fill = target_.Format().fill;
    return fill.kind == ChartFill::Kind::Gradient ? msoFillGradient : msoFillSolid;
}

int32_t ChartFillFormatView::Visible() {
    const ChartFill& fill = target_.Format().fill;
    const bool shown = fill.kind == ChartFill::Kind::Solid || fill.kind == ChartFill::Kind::Gradient ||
                       (fill.kind == ChartFill::Kind::Automatic && target_.automaticFillShown);
    return shown ? msoTrue : msoFalse;
}

void ChartFillFormatView::SetVisible(int32_t visible) {
    const ShapeColor shown = ShownFillColor(target_);
    target_.Edit([&](ChartElementFormat& format) {
        if (visible == msoFalse) {
            format.fill.kind = ChartFill::Kind::None;
        } else if (format.fill.kind == ChartFill::Kind::None) {
            format.fill.kind = ChartFill::Kind::Solid;
            format.fill.color = shown;
        }
    });
}

std::shared_ptr<excel::ColorFormat> ChartFillFormatView::ForeColor() {
    target_.Format();
    return std::make_shared<ChartFillColorView>(target_);
}

void ChartFillFormatView::Solid() {
    const ShapeColor shown = ShownFillColor(target_);
    target_.Edit([&](ChartElementFormat& format) {
        format.fill.kind = ChartFill::Kind::Solid;
        format.fill.color = shown;
    });
}

void ChartFillFormatView::OneColorGradient(int32_t style, int32_t variant, double degree) {
    if (style < msoGradientHorizontal || style > LastGradientStyle || style == 6 || variant < 1 ||
        variant > LastGradientVariant || !(degree >= 0.0 && degree <= 1.0)) {
        RefuseGradient();
    }
    const ShapeColor shown = ShownFillColor(target_);
    target_.Edit([&](ChartElementFormat& format) {
        format.fill.kind = ChartFill::Kind::Gradient;
        format.fill.color = shown;
        format.fill.gradientStyle = style;
        format.fill.gradientVariant = variant;
        format.fill.gradientDegree = degree;
    });
}

int32_t ChartFillFormatView::GradientStyle() {
    return target_.Format().fill.gradientStyle;
}

int32_t ChartFillFormatView::GradientVariant() {
    return target_.Format().fill.gradientVariant;
}

double ChartFillFormatView::GradientDegree() {
    return target_.Format().fill.gradientDegree;
}

int32_t ChartFillColorView::RGB() {
    return static_cast<int32_t>(RgbOf(ShownFillColor(target_).color, target_.chart.Colors(), 0xFFFFFF));
}

void ChartFillColorView::set(const ShapeColor& color) {
    target_.Edit([&](ChartElementFormat& format) {
        if (format.fill.kind != ChartFill::Kind::Gradient) {
            format.fill.kind = ChartFill::Kind::Solid;
        }
        format.fill.color = color;
    });
}

void ChartFillColorView::SetRGB(int32_t rgb) {
    set(ShapeColorFromRgb(rgb));
}

int32_t ChartFillColorView::ObjectThemeColor() {
    return ShownFillColor(target_).objectThemeColor;
}

void ChartFillColorView::SetObjectThemeColor(int32_t themeColor) {
    set(ShapeColorFromObjectTheme(themeColor));
}

double ChartFillColorView::TintAndShade() {
    return TintOf(ShownFillColor(target_).color);
}

void ChartFillColorView::SetTintAndShade(double tint) {
    ShapeColor color = ShownFillColor(target_);
    color.color = WithTint(color.color, tint);
    set(color);
}

}  // namespace excel::embedded
