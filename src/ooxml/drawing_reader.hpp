#pragma once

#include "ooxml/workbook_document.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace ooxml {

// The text boxes of a drawing part, in z-order: the shapes marked as text boxes in two-cell
// anchors. Pictures, charts, groups, connectors, other shapes and other anchors are passed over.
// Throws PackageError(Corrupt) when the part is not well-formed.
std::vector<TextBoxShape> ReadDrawing(std::string& xml, std::string_view partName);

}  // namespace ooxml
