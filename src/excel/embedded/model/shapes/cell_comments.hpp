#pragma once

#include "excel/embedded/model/cell_address.hpp"
#include "excel/embedded/model/shapes/shape_model.hpp"

#include <memory>
#include <string>

namespace excel::embedded {

class WorksheetModel;

// A new comment on the cell as Excel makes one: Tahoma 9 text on a pale yellow (#FFFFE1) note
// with a black 0.75 pt outline, 96 x 55.5 points, hidden, placed 11.25 points (15 pixels) right
// of the cell and 7.5 points above its top, but not above the sheet's top edge.
std::shared_ptr<ShapeModel> AddCellComment(WorksheetModel& sheet, int32_t row, int32_t column,
                                           const std::string& author, const std::string& text);

// Removes the comments of the cells of the block.
void RemoveCellComments(WorksheetModel& sheet, const CellBlock& block);

}  // namespace excel::embedded
