#include "excel/embedded/model/shapes/shape_handle.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/model/charts/chart_model.hpp"
#include "excel/embedded/model/shapes/shape_placement.hpp"
#include "excel/embedded/model/workbook_model.hpp"
#include "excel/embedded/text/text_fit.hpp"

namespace excel::embedded {

ShapeModel& ShapeHandle::Shape() const {
    sheet_->Book();
    if (shape_->deleted || (frame_ != nullptr && frame_->deleted)) {
        ThrowObjectRequired();
    }
    return *shape_;
}

WorksheetModel& ShapeHandle::Sheet() const {
    Shape();
    return *sheet_;
}

ShapeBounds ShapeHandle::Bounds() const {
    return BoundsOf(Sheet(), Shape());
}

void ShapeHandle::SetBounds(const ShapeBounds& bounds) const {
    Place(Sheet(), Shape(), bounds);
    sheet_->Book().SetSaved(false);
}

ShapeList& ShapeHandle::Owner() const {
    Shape();
    return frame_ != nullptr ? frame_->chart->shapes : sheet_->Shapes();
}

void ShapeHandle::Delete() const {
    Owner().Remove(Shape());
    sheet_->Book().SetSaved(false);
}

void ShapeHandle::Changed() const {
    ShapeModel& shape = Shape();
    sheet_->Book().SetSaved(false);
    if (!shape.text.autoSize) {
        return;
    }
    const ShapeBounds bounds = Bounds();
    const TextExtent extent = FitToText(shape.text, bounds.width);
    Place(*sheet_, shape, ShapeBounds{bounds.left, bounds.top, extent.width, extent.height});
}

}  // namespace excel::embedded
