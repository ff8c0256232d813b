#pragma once

#include "ooxml/document/workbook_document.hpp"

#include <string>
#include <string_view>

namespace ooxml {

// The core properties part (docProps/core.xml): creator, last author, created and modified.
// Throws PackageError(Corrupt).
DocumentProperties ReadDocumentProperties(std::string& xml, std::string_view partName);

}  // namespace ooxml
