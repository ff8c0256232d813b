#include "excel/embedded/objects/shapes/line_format_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/objects/shapes/color_format_view.hpp"
#include "excel/embedded/objects/shapes/tri_state.hpp"

namespace excel::embedded {

namespace {
// The widest outline a shape takes, in points.
constexpr double MaxLineWeight = 1584.0;
}  // namespace

std::shared_ptr<excel::ColorFormat> LineFormatView::ForeColor() {
    shape_.Shape();
    return std::make_shared<ColorFormatView>(shape_, ColorFormatView::Part::Line);
}

double LineFormatView::Weight() {
    return shape_.Shape().line.weight;
}

void LineFormatView::SetWeight(double points) {
    if (!(points >= 0.0 && points <= MaxLineWeight)) {
        ThrowRefused("The specified value is out of range.");
    }
    ShapeLine& line = shape_.Shape().line;
    line.weight = points;
    line.visible = true;
    shape_.Changed();
}

int32_t LineFormatView::Visible() {
    return TriStateOf(shape_.Shape().line.visible);
}

void LineFormatView::SetVisible(int32_t visible) {
    shape_.Shape().line.visible = BoolFromTriState(visible);
    shape_.Changed();
}

}  // namespace excel::embedded
