#pragma once

#include "ooxml/document/workbook_document.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace ooxml {

// The text boxes of a drawing part, in z-order: the shapes marked as text boxes in two-cell,
// one-cell and absolute anchors. Pictures, charts, groups, connectors and other shapes are passed
// over.
// Throws PackageError(Corrupt) when the part is not well-formed.
std::vector<TextBoxShape> ReadDrawing(std::string& xml, std::string_view partName);

}  // namespace ooxml
