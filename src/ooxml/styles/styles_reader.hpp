#pragma once

#include "ooxml/document/workbook_document.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ooxml {

struct StylesPart {
    std::vector<CellFormat> formats;               // one per cellXfs entry, at least one
    std::vector<std::optional<uint32_t>> palette;  // the indexed colours the package lists
    // The named styles and their formats, the number formats declared, the differential formats
    // (of conditional formats and tables), table styles, colours and extensions, as the file
    // wrote them.
    CarriedStyles carried;
    std::size_t differentialFormats = 0;  // the entries of dxfs, which conditional formats refer to
};

// Resolves every cellXfs entry of the styles part into a complete CellFormat, and keeps the rest. Throws
// PackageError(Corrupt).
StylesPart ReadStyles(std::string& xml, std::string_view partName);

}  // namespace ooxml
