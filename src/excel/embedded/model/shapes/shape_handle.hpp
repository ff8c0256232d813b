#pragma once

#include "excel/embedded/model/shapes/shape_model.hpp"
#include "excel/embedded/model/worksheet_model.hpp"

#include <memory>

namespace excel::embedded {

// What the views of a shape (Shape, Comment, TextFrame, FillFormat, ...) hold: the shape and its
// sheet. Using it after the shape was deleted, its sheet deleted or its workbook closed answers
// Object required, as Excel's objects do.
class ShapeHandle {
public:
    ShapeHandle(std::shared_ptr<WorksheetModel> sheet, std::shared_ptr<ShapeModel> shape)
        : sheet_(std::move(sheet)), shape_(std::move(shape)) {}
    // A text box of the chart in frame, a chart on the sheet.
    ShapeHandle(std::shared_ptr<WorksheetModel> sheet, std::shared_ptr<ShapeModel> shape,
                std::shared_ptr<ShapeModel> frame)
        : sheet_(std::move(sheet)), shape_(std::move(shape)), frame_(std::move(frame)) {}

    ShapeModel& Shape() const;
    WorksheetModel& Sheet() const;
    const std::shared_ptr<WorksheetModel>& SheetPointer() const { return sheet_; }
    const std::shared_ptr<ShapeModel>& Pointer() const { return shape_; }
    // The same for every view of one shape, as object identity compares it.
    const void* Identity() const { return shape_.get(); }

    ShapeBounds Bounds() const;
    void SetBounds(const ShapeBounds& bounds) const;
    // After any change: marks the workbook changed and sizes an auto-sized shape to its text
    // again, keeping its left and top.
    void Changed() const;
    // The shapes the shape is one of: its sheet's, or its chart's.
    ShapeList& Owner() const;
    // Takes the shape off its sheet or chart; a comment's shape takes its comment with it.
    void Delete() const;

private:
    std::shared_ptr<WorksheetModel> sheet_;
    std::shared_ptr<ShapeModel> shape_;
    std::shared_ptr<ShapeModel> frame_;  // the chart holding the shape; none for a sheet's own
};

}  // namespace excel::embedded
