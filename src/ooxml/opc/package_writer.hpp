#pragma once

#include "ooxml/document/workbook_document.hpp"

#include <string>

namespace ooxml {

// Writes the workbook as an .xlsx package at path. The package is written to a temporary file in
// the same folder and renamed over path only when complete, so a failed save leaves any existing
// file untouched. Throws PackageError.
void WritePackage(const WorkbookDocument& document, const std::string& path);

}  // namespace ooxml
