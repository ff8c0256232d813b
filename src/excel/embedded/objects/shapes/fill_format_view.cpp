#include "excel/embedded/objects/shapes/fill_format_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/objects/shapes/color_format_view.hpp"
#include "excel/embedded/objects/shapes/tri_state.hpp"

namespace excel::embedded {

std::shared_ptr<excel::ColorFormat> FillFormatView::ForeColor() {
    shape_.Shape();
    return std::make_shared<ColorFormatView>(shape_, ColorFormatView::Part::Fill);
}

int32_t FillFormatView::Visible() {
    return TriStateOf(shape_.Shape().fill.visible);
}

void FillFormatView::SetVisible(int32_t visible) {
    shape_.Shape().fill.visible = BoolFromTriState(visible);
    shape_.Changed();
}

double FillFormatView::Transparency() {
    return shape_.Shape().fill.transparency;
}

void FillFormatView::SetTransparency(double transparency) {
    if (!(transparency >= 0.0 && transparency <= 1.0)) {
        ThrowRefused("The specified value is out of range.");
    }
    shape_.Shape().fill.transparency = transparency;
    shape_.Changed();
}

}  // namespace excel::embedded
