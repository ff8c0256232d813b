#pragma once

#include "ooxml/document/workbook_document.hpp"

#include <string>

namespace ooxml {

// Reads an .xlsx package: everything WritePackage writes, and from files made by Excel at least
// their cells, formats, names and sheets. Throws PackageError.
WorkbookDocument ReadPackage(const std::string& path);

}  // namespace ooxml
