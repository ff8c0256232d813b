#include "excel/embedded/objects/charts/chart_border_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/format/color_model.hpp"
#include "excel/embedded/format/theme_colors.hpp"

namespace excel::embedded {

namespace {

constexpr uint32_t AutomaticBlack = 0;

bool IsLineStyle(int32_t style) {
    switch (style) {
        case xlContinuous:
        case xlDash:
        case xlDashDot:
        case xlDashDotDot:
        case xlDot:
        case xlDouble:
        case xlSlantDashDot:
        case xlLineStyleNone:
            return true;
        default:
            return false;
    }
}

}  // namespace

double ChartLineWeightPoints(int32_t weight) {
    switch (weight) {
        case xlHairline:
            return 0.25;
        case xlThin:
            return 1.0;
        case xlMedium:
            return 2.0;
        case xlThick:
            return 3.0;
        default:
            ThrowRefused("Unable to set the Weight property of the Border class");
    }
}

int32_t ChartLineWeightOf(double points) {
    if (points < 0.5) {
        return xlHairline;
    }
    if (points < 1.5) {
        return xlThin;
    }
    return points < 2.5 ? xlMedium : xlThick;
}

ShapeColor ChartBorderView::shownColor() const {
    const ChartLine& line = target_.Format().line;
    return line.kind == ChartLine::Kind::Solid ? line.color : target_.AutomaticColor();
}

void ChartBorderView::setColor(const ShapeColor& color) {
    target_.Edit([&](ChartElementFormat& format) {
        format.line.kind = ChartLine::Kind::Solid;
        format.line.color = color;
    });
}

Variant ChartBorderView::LineStyle() {
    const ChartLine& line = target_.Format().line;
    const bool shown =
        line.kind == ChartLine::Kind::Solid || (line.kind == ChartLine::Kind::Automatic && target_.automaticLineShown);
    return Variant(shown ? line.style : xlLineStyleNone);
}

void ChartBorderView::SetLineStyle(int32_t style) {
    if (!IsLineStyle(style)) {
        ThrowRefused("Unable to set the LineStyle property of the Border class");
    }
    const ShapeColor shown = shownColor();
    target_.Edit([&](ChartElementFormat& format) {
        if (style == xlLineStyleNone) {
            format.line.kind = ChartLine::Kind::None;
            return;
        }
        if (format.line.kind == ChartLine::Kind::None ||
            (format.line.kind == ChartLine::Kind::Automatic && !target_.automaticLineShown)) {
            format.line.kind = ChartLine::Kind::Solid;
            format.line.color = shown;
        }
        format.line.style = style;
    });
}

Variant ChartBorderView::Weight() {
    const ChartLine& line = target_.Format().line;
    return Variant(ChartLineWeightOf(line.weight.value_or(target_.automaticWeight)));
}

void ChartBorderView::SetWeight(int32_t weight) {
    const double points = ChartLineWeightPoints(weight);
    target_.Edit([&](ChartElementFormat& format) { format.line.weight = points; });
}

Variant ChartBorderView::Color() {
    return Variant(static_cast<int32_t>(RgbOf(shownColor().color, target_.chart.Colors(), AutomaticBlack)));
}

void ChartBorderView::SetColor(int32_t rgb) {
    setColor(ShapeColorFromRgb(rgb));
}

Variant ChartBorderView::ColorIndex() {
    const ChartLine& line = target_.Format().line;
    if (line.kind == ChartLine::Kind::Automatic) {
        return Variant(xlColorIndexAutomatic);
    }
    if (line.kind == ChartLine::Kind::None) {
        return Variant(xlColorIndexNone);
    }
    return Variant(ColorIndexOf(line.color.color, target_.chart.Colors(), xlColorIndexAutomatic));
}

void ChartBorderView::SetColorIndex(int32_t index) {
    if (index == xlColorIndexAutomatic) {
        target_.Edit([](ChartElementFormat& format) { format.line.kind = ChartLine::Kind::Automatic; });
    } else if (index == xlColorIndexNone) {
        target_.Edit([](ChartElementFormat& format) { format.line.kind = ChartLine::Kind::None; });
    } else {
        setColor(ShapeColor{ColorFromIndex(index), msoNotThemeColor});
    }
}

Variant ChartBorderView::ThemeColor() {
    return Variant(ThemeColorOf(shownColor().color));
}

void ChartBorderView::SetThemeColor(int32_t themeColor) {
    setColor(ShapeColorFromThemeIndex(ThemeIndexFromThemeColor(themeColor), 0.0));
}

Variant ChartBorderView::TintAndShade() {
    return Variant(TintOf(shownColor().color));
}

void ChartBorderView::SetTintAndShade(double tint) {
    ShapeColor color = shownColor();
    color.color = WithTint(color.color, tint);
    setColor(color);
}

}  // namespace excel::embedded
