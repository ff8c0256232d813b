#pragma once

#include "ooxml/document/workbook_document.hpp"

#include <string>

namespace ooxml {

struct ReadOptions {
    // The charts of the sheets' drawings are read into chart documents (a DrawingShape's chart).
    // Off, they stay carried parts with their anchors, as the file has them.
    bool readCharts = true;
};

// Reads an .xlsx package: everything WritePackage writes, and from files made by Excel at least
// their cells, formats, names and sheets. Throws PackageError.
WorkbookDocument ReadPackage(const std::string& path, const ReadOptions& options = {});

}  // namespace ooxml
