#pragma once

#include "ooxml/document/workbook_document.hpp"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ooxml {

// Reads the chart part a graphic frame's relationship id leads to; null when the chart is not read
// into a document, and its anchor stays carried.
using ChartFrameLoader = std::function<std::shared_ptr<const ChartDocument>(std::string_view relationshipId)>;

// The text boxes and chart frames of a drawing part, in z-order: the shapes marked as text boxes
// in two-cell, one-cell and absolute anchors, and the graphic frames of two-cell anchors whose
// chart loadChart reads. The anchors of pictures, other charts, groups, connectors and other
// shapes go to carried.drawing as they are, each in the slot of the number of shapes below it, and
// the highest id of their shapes to carried.highestShapeId.
// Throws PackageError(Corrupt) when the part is not well-formed.
std::vector<DrawingShape> ReadDrawing(std::string& xml, std::string_view partName, CarriedWorksheet& carried,
                                      const ChartFrameLoader& loadChart = {});

}  // namespace ooxml
