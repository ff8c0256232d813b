#include "excel/embedded/model/shapes/shape_placement.hpp"

#include "excel/embedded/model/worksheet_model.hpp"

#include <algorithm>
#include <cmath>

namespace excel::embedded {

namespace {

struct AxisPoint {
    int32_t index;
    double offset;
};

// The cell of count equal cells of size each, starting at first and at start points, holding the
// coordinate; none when it lies beyond them.
std::optional<AxisPoint> InEqualCells(int32_t first, int32_t count, double size, double start, double coordinate) {
    if (!(size > 0.0) || coordinate >= start + count * size) {
        return std::nullopt;
    }
    const auto steps = std::min(static_cast<int32_t>(std::floor((coordinate - start) / size)), count - 1);
    return AxisPoint{first + steps, coordinate - start - steps * size};
}

AxisPoint ColumnAt(const WorksheetModel& sheet, double x) {
    std::optional<AxisPoint> found;
    double start = 0.0;
    sheet.Columns().ForEachSpan(1, MaxColumn, [&](int32_t first, int32_t last, const ColumnInfo&) {
        if (found) {
            return;
        }
        const double width = sheet.ColumnPoints(first);
        found = InEqualCells(first, last - first + 1, width, start, x);
        start += (last - first + 1) * width;
    });
    if (found) {
        return *found;
    }
    const double lastWidth = sheet.ColumnPoints(MaxColumn);
    return AxisPoint{MaxColumn, std::min(x - (start - lastWidth), lastWidth)};
}

double XOf(const WorksheetModel& sheet, const CellPoint& point) {
    return sheet.ColumnsPoints(1, point.column - 1) + std::min(point.columnOffset, sheet.ColumnPoints(point.column));
}

double YOf(const WorksheetModel& sheet, const CellPoint& point) {
    return sheet.RowsPoints(1, point.row - 1) + std::min(point.rowOffset, sheet.RowsPoints(point.row, point.row));
}

bool WholeBand(const BlockShift& shift) {
    return shift.bandFirst == 1 && shift.bandLast == (shift.vertical ? MaxColumn : MaxRow);
}

// Moves one coordinate of a corner. The bottom or right corner on a boundary (offset 0) belongs
// to the cell before it, so cells inserted right after a shape do not stretch it.
void ShiftAxis(int32_t& index, double& offset, const BlockShift& shift, bool endCorner) {
    const int32_t limit = shift.vertical ? MaxRow : MaxColumn;
    const int32_t held = endCorner && offset == 0.0 && index > 1 ? index - 1 : index;
    if (shift.insert) {
        if (held >= shift.at) {
            index = std::min(index + shift.count, limit);
        }
        return;
    }
    const int32_t lastDeleted = shift.at + shift.count - 1;
    if (held > lastDeleted) {
        index -= shift.count;
    } else if (held >= shift.at) {
        index = shift.at;
        offset = 0.0;
    }
}

void ShiftCorner(CellPoint& corner, const BlockShift& shift, bool endCorner) {
    if (shift.vertical) {
        ShiftAxis(corner.row, corner.rowOffset, shift, endCorner);
    } else {
        ShiftAxis(corner.column, corner.columnOffset, shift, endCorner);
    }
}

}  // namespace

CellPoint CellPointAt(const WorksheetModel& sheet, double x, double y) {
    const AxisPoint column = ColumnAt(sheet, std::max(x, 0.0));
    const RowPoint row = sheet.RowAt(std::max(y, 0.0));
    return CellPoint{column.index, column.offset, row.row, row.offset};
}

ShapeBounds BoundsOf(const WorksheetModel& sheet, const ShapeModel& shape) {
    if (shape.inChart) {
        return shape.bounds;
    }
    switch (shape.placement) {
        case xlMoveAndSize: {
            const double left = XOf(sheet, shape.from);
            const double top = YOf(sheet, shape.from);
            return ShapeBounds{left, top, XOf(sheet, shape.to) - left, YOf(sheet, shape.to) - top};
        }
        case xlMove:
            return ShapeBounds{XOf(sheet, shape.from), YOf(sheet, shape.from), shape.bounds.width,
                               shape.bounds.height};
        default:
            return shape.bounds;
    }
}

void Place(const WorksheetModel& sheet, ShapeModel& shape, const ShapeBounds& bounds) {
    shape.bounds = bounds;
    if (shape.inChart) {
        return;
    }
    shape.from = CellPointAt(sheet, bounds.left, bounds.top);
    shape.to = CellPointAt(sheet, bounds.left + bounds.width, bounds.top + bounds.height);
}

void ShiftAnchors(ShapeModel& shape, const BlockShift& shift) {
    if (!WholeBand(shift) || shape.placement == xlFreeFloating) {
        return;
    }
    ShiftCorner(shape.from, shift, false);
    if (shape.placement == xlMoveAndSize) {
        ShiftCorner(shape.to, shift, true);
    }
}

}  // namespace excel::embedded
