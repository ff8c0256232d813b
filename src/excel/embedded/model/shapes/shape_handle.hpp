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

    ShapeModel& Shape() const;
    WorksheetModel& Sheet() const;
    const std::shared_ptr<WorksheetModel>& SheetPointer() const { return sheet_; }
    // The same for every view of one shape, as object identity compares it.
    const void* Identity() const { return shape_.get(); }

    ShapeBounds Bounds() const;
    void SetBounds(const ShapeBounds& bounds) const;
    // After any change: marks the workbook changed and sizes an auto-sized shape to its text
    // again, keeping its left and top.
    void Changed() const;
    // Takes the shape off its sheet; a comment's shape takes its comment with it.
    void Delete() const;

private:
    std::shared_ptr<WorksheetModel> sheet_;
    std::shared_ptr<ShapeModel> shape_;
};

}  // namespace excel::embedded
