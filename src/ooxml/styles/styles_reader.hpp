#pragma once

#include "ooxml/document/workbook_document.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ooxml {

struct StylesPart {
    std::vector<CellFormat> formats;               // one per cellXfs entry, at least one
    std::vector<std::optional<uint32_t>> palette;  // the indexed colours the package lists
    // The differential formats (of conditional formats and tables), table styles, colours and
    // extensions, as the file wrote them.
    CarriedMarkup carried;
};

// Resolves every cellXfs entry of the styles part into a complete CellFormat. Throws
// PackageError(Corrupt).
StylesPart ReadStyles(std::string& xml, std::string_view partName);

}  // namespace ooxml
