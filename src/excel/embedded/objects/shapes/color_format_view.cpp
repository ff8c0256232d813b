#include "excel/embedded/objects/shapes/color_format_view.hpp"

#include "excel/embedded/model/workbook_model.hpp"

namespace excel::embedded {

ShapeColor& ColorFormatView::color() const {
    ShapeModel& shape = shape_.Shape();
    return part_ == Part::Fill ? shape.fill.color : shape.line.color;
}

void ColorFormatView::set(const ShapeColor& color) {
    ShapeModel& shape = shape_.Shape();
    if (part_ == Part::Fill) {
        shape.fill.color = color;
        shape.fill.visible = true;
    } else {
        shape.line.color = color;
        shape.line.visible = true;
    }
    shape_.Changed();
}

int32_t ColorFormatView::RGB() {
    return static_cast<int32_t>(RgbOf(color(), shape_.Sheet().Book().Colors()));
}

void ColorFormatView::SetRGB(int32_t rgb) {
    set(ShapeColorFromRgb(rgb));
}

int32_t ColorFormatView::ObjectThemeColor() {
    return color().objectThemeColor;
}

void ColorFormatView::SetObjectThemeColor(int32_t themeColor) {
    set(ShapeColorFromObjectTheme(themeColor));
}

double ColorFormatView::TintAndShade() {
    return color().color.tint;
}

void ColorFormatView::SetTintAndShade(double tint) {
    ShapeColor tinted = color();
    tinted.color = WithTint(tinted.color, tint);
    set(tinted);
}

}  // namespace excel::embedded
