#pragma once

#include "excel/embedded/model/block_shift.hpp"
#include "excel/embedded/model/shapes/shape_model.hpp"

namespace excel::embedded {

class WorksheetModel;

// The cell under a point (points from the sheet's top-left corner) and the offset into it. A
// point on the boundary between two cells lies in the cell that starts there, as drawings anchor
// it; points beyond the sheet's last row or column lie in it.
CellPoint CellPointAt(const WorksheetModel& sheet, double x, double y);

// Where the shape is now, in points, as its placement holds it.
ShapeBounds BoundsOf(const WorksheetModel& sheet, const ShapeModel& shape);

// Puts the shape at the bounds, anchoring it to the cells under its corners.
void Place(const WorksheetModel& sheet, ShapeModel& shape, const ShapeBounds& bounds);

// Moves the shape's anchors as inserting or deleting whole rows or columns moves their cells: a
// corner in deleted cells moves to where they were. A corner exactly on the boundary above (or
// left of) the inserted cells stays where it is.
void ShiftAnchors(ShapeModel& shape, const BlockShift& shift);

}  // namespace excel::embedded
