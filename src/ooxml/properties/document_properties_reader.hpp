#pragma once

#include "ooxml/document/workbook_document.hpp"

#include <string>
#include <string_view>

namespace ooxml {

// The core properties part (docProps/core.xml): creator, last author, created and modified. The
// elements but the last author and the modification time, which saving sets anew, go to carried
// as they are. Throws PackageError(Corrupt).
DocumentProperties ReadDocumentProperties(std::string& xml, std::string_view partName, CarriedMarkup& carried);

// The extended properties part (docProps/app.xml): what the engine does not write itself (the
// company, manager, hyperlink base, template, ...) goes to carried. Throws PackageError(Corrupt).
void ReadAppProperties(std::string& xml, std::string_view partName, CarriedMarkup& carried);

}  // namespace ooxml
