#include "excel/embedded/objects/charts/chart_interior_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/format/color_model.hpp"
#include "excel/embedded/format/theme_colors.hpp"

namespace excel::embedded {

namespace {

constexpr uint32_t AutomaticWhite = 0xFFFFFF;

}  // namespace

ShapeColor ShownFillColor(const ChartFormatTarget& target) {
    const ChartFill& fill = target.Format().fill;
    const bool own = fill.kind == ChartFill::Kind::Solid || fill.kind == ChartFill::Kind::Gradient;
    return own ? fill.color : target.AutomaticColor();
}

ShapeColor ChartInteriorView::shownColor() const {
    return ShownFillColor(target_);
}

void ChartInteriorView::setColor(const ShapeColor& color) {
    target_.Edit([&](ChartElementFormat& format) {
        format.fill.kind = ChartFill::Kind::Solid;
        format.fill.color = color;
    });
}

void ChartInteriorView::setKind(ChartFill::Kind kind) {
    target_.Edit([&](ChartElementFormat& format) { format.fill.kind = kind; });
}

Variant ChartInteriorView::Color() {
    return Variant(static_cast<int32_t>(RgbOf(shownColor().color, target_.chart.Colors(), AutomaticWhite)));
}

void ChartInteriorView::SetColor(int32_t rgb) {
    setColor(ShapeColorFromRgb(rgb));
}

Variant ChartInteriorView::ColorIndex() {
    const ChartFill& fill = target_.Format().fill;
    if (fill.kind == ChartFill::Kind::Automatic) {
        return Variant(xlColorIndexAutomatic);
    }
    if (fill.kind == ChartFill::Kind::None) {
        return Variant(xlColorIndexNone);
    }
    return Variant(ColorIndexOf(fill.color.color, target_.chart.Colors(), xlColorIndexAutomatic));
}

void ChartInteriorView::SetColorIndex(int32_t index) {
    if (index == xlColorIndexAutomatic) {
        setKind(ChartFill::Kind::Automatic);
    } else if (index == xlColorIndexNone) {
        setKind(ChartFill::Kind::None);
    } else {
        setColor(ShapeColor{ColorFromIndex(index), msoNotThemeColor});
    }
}

Variant ChartInteriorView::ThemeColor() {
    return Variant(ThemeColorOf(shownColor().color));
}

void ChartInteriorView::SetThemeColor(int32_t themeColor) {
    setColor(ShapeColorFromThemeIndex(ThemeIndexFromThemeColor(themeColor), 0.0));
}

Variant ChartInteriorView::TintAndShade() {
    return Variant(TintOf(shownColor().color));
}

void ChartInteriorView::SetTintAndShade(double tint) {
    ShapeColor color = shownColor();
    color.color = WithTint(color.color, tint);
    setColor(color);
}

Variant ChartInteriorView::Pattern() {
    const ChartFill& fill = target_.Format().fill;
    switch (fill.kind) {
        case ChartFill::Kind::None:
            return Variant(xlNone);
        case ChartFill::Kind::Gradient:
            return Variant(xlPatternLinearGradient);
        case ChartFill::Kind::Automatic:
            return Variant(target_.automaticFillShown ? xlSolid : xlNone);
        case ChartFill::Kind::Solid:
            break;
    }
    return Variant(xlSolid);
}

void ChartInteriorView::SetPattern(int32_t pattern) {
    if (pattern == xlNone) {
        setKind(ChartFill::Kind::None);
    } else if (pattern == xlSolid) {
        setColor(shownColor());
    } else if (pattern == xlPatternAutomatic) {
        setKind(ChartFill::Kind::Automatic);
    } else {
        ThrowRefused("Unable to set the Pattern property of the Interior class");
    }
}

Variant ChartInteriorView::PatternColor() {
    return Color();
}

void ChartInteriorView::SetPatternColor(int32_t) {
    ThrowRefused("Unable to set the PatternColor property of the Interior class");
}

Variant ChartInteriorView::PatternColorIndex() {
    return Variant(xlColorIndexAutomatic);
}

void ChartInteriorView::SetPatternColorIndex(int32_t) {
    ThrowRefused("Unable to set the PatternColorIndex property of the Interior class");
}

}  // namespace excel::embedded
