#pragma once

#include "ooxml/document/workbook_document.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace ooxml {

// The comments of a comments part in row, then column order, with their authors and text. Until
// the legacy drawing gives a comment its shape, it has the shape Excel gives a new comment on a
// sheet of standard row heights and column widths: hidden, to the right of its cell. A comment on
// a cell outside the sheet, or on a cell that already has one, is left out. Throws
// PackageError(Corrupt) when the part is not well-formed.
std::vector<CellComment> ReadComments(std::string& xml, std::string_view partName);

}  // namespace ooxml
