#pragma once

#include "ooxml/document/chart_document.hpp"

#include <functional>
#include <optional>
#include <string_view>

namespace ooxml {

// Reads the chart drawing (c:userShapes) of the given relationship id into the chart's shapes and
// drawingCarried; false when it cannot, and the element is then carried with its relationship.
using ChartDrawingLoader = std::function<bool(std::string_view relationshipId, ChartDocument& chart)>;

// Reads a chart part (c:chartSpace). What the document does not model is carried in its slot; an
// element Excel leaves out when it holds Excel's default takes that default. None when the part
// is not well formed, when its root does not bind the c, a and r prefixes as Excel does (the
// carried markup relies on them), or when it holds what cannot be kept in place: the part then
// stays carried as it is.
std::optional<ChartDocument> ReadChart(std::string_view xml, const ChartDrawingLoader& loadDrawing);

}  // namespace ooxml
