#include "excel/embedded/objects/shapes/shape_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/objects/charts/chart_view.hpp"
#include "excel/embedded/model/shapes/shape_placement.hpp"
#include "excel/embedded/model/workbook_model.hpp"
#include "excel/embedded/objects/book/worksheet_view.hpp"
#include "excel/embedded/objects/range/range_view.hpp"
#include "excel/embedded/objects/shapes/fill_format_view.hpp"
#include "excel/embedded/objects/shapes/line_format_view.hpp"
#include "excel/embedded/objects/shapes/text_frame2_view.hpp"
#include "excel/embedded/objects/shapes/text_frame_view.hpp"
#include "excel/embedded/objects/shapes/tri_state.hpp"

namespace excel::embedded {

std::shared_ptr<excel::Worksheet> ShapeView::Parent() {
    shape_.Shape();
    return std::make_shared<WorksheetView>(shape_.SheetPointer());
}

std::string ShapeView::Name() {
    return shape_.Shape().name;
}

void ShapeView::SetName(const std::string& name) {
    if (name.empty()) {
        ThrowRefused("Invalid name.");
    }
    shape_.Shape().name = name;
    shape_.Changed();
}

int32_t ShapeView::Type() {
    return shape_.Shape().type;
}

int32_t ShapeView::ID() {
    return static_cast<int32_t>(shape_.Shape().id);
}

void ShapeView::reshape(double ShapeBounds::*member, double points, bool isSize) {
    if (isSize && !(points >= 0.0)) {
        ThrowRefused("The specified value is out of range.");
    }
    ShapeBounds bounds = shape_.Bounds();
    bounds.*member = points;
    shape_.SetBounds(bounds);
}

double ShapeView::Left() {
    return shape_.Bounds().left;
}

void ShapeView::SetLeft(double points) {
    reshape(&ShapeBounds::left, points, false);
}

double ShapeView::Top() {
    return shape_.Bounds().top;
}

void ShapeView::SetTop(double points) {
    reshape(&ShapeBounds::top, points, false);
}

double ShapeView::Width() {
    return shape_.Bounds().width;
}

void ShapeView::SetWidth(double points) {
    reshape(&ShapeBounds::width, points, true);
}

double ShapeView::Height() {
    return shape_.Bounds().height;
}

void ShapeView::SetHeight(double points) {
    reshape(&ShapeBounds::height, points, true);
}

int32_t ShapeView::Placement() {
    return shape_.Shape().placement;
}

void ShapeView::SetPlacement(int32_t placement) {
    if (placement != xlMoveAndSize && placement != xlMove && placement != xlFreeFloating) {
        ThrowRefused("Unable to set the Placement property of the Shape class");
    }
    const ShapeBounds bounds = shape_.Bounds();
    shape_.Shape().placement = placement;
    shape_.SetBounds(bounds);
}

int32_t ShapeView::Visible() {
    return TriStateOf(shape_.Shape().visible);
}

void ShapeView::SetVisible(int32_t visible) {
    shape_.Shape().visible = BoolFromTriState(visible);
    shape_.Changed();
}

std::shared_ptr<excel::FillFormat> ShapeView::Fill() {
    shape_.Shape();
    return std::make_shared<FillFormatView>(shape_);
}

std::shared_ptr<excel::LineFormat> ShapeView::Line() {
    shape_.Shape();
    return std::make_shared<LineFormatView>(shape_);
}

std::shared_ptr<excel::TextFrame> ShapeView::TextFrame() {
    shape_.Shape();
    return std::make_shared<TextFrameView>(shape_);
}

std::shared_ptr<excel::TextFrame2> ShapeView::TextFrame2() {
    shape_.Shape();
    return std::make_shared<TextFrame2View>(shape_);
}

std::shared_ptr<excel::Range> ShapeView::cellAt(double x, double y) {
    const CellPoint point = CellPointAt(shape_.Sheet(), x, y);
    return RangeView::Make(shape_.SheetPointer(), {CellBlock{point.row, point.column, point.row, point.column}});
}

std::shared_ptr<excel::Chart> ShapeView::Chart() {
    if (shape_.Shape().chart == nullptr) {
        ThrowRefused("This member can only be accessed for a chart object");
    }
    return std::make_shared<ChartView>(ChartHandle{shape_});
}

std::shared_ptr<excel::Range> ShapeView::TopLeftCell() {
    const ShapeBounds bounds = shape_.Bounds();
    return cellAt(bounds.left, bounds.top);
}

std::shared_ptr<excel::Range> ShapeView::BottomRightCell() {
    const ShapeBounds bounds = shape_.Bounds();
    return cellAt(bounds.left + bounds.width, bounds.top + bounds.height);
}

std::string ShapeView::OnAction() {
    return shape_.Shape().onAction;
}

void ShapeView::SetOnAction(const std::string& macro) {
    shape_.Shape().onAction = macro;
    shape_.Changed();
}

void ShapeView::Delete() {
    shape_.Delete();
}

}  // namespace excel::embedded
