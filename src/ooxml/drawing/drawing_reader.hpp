#pragma once

#include "ooxml/document/workbook_document.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace ooxml {

// The text boxes of a drawing part, in z-order: the shapes marked as text boxes in two-cell,
// one-cell and absolute anchors. The anchors of pictures, charts, groups, connectors and other
// shapes go to carried.drawing as they are, each in the slot of the number of text boxes below it,
// and the highest id of their shapes to carried.highestShapeId.
// Throws PackageError(Corrupt) when the part is not well-formed.
std::vector<DrawingShape> ReadDrawing(std::string& xml, std::string_view partName, CarriedWorksheet& carried);

}  // namespace ooxml
