#pragma once

#include "excel/embedded/model/cell_address.hpp"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace excel::embedded {

// A defined name's formula read as a sheet-qualified reference ("Sheet1!$A$1:$B$2"); nullopt for
// constants, expressions and unqualified references.
std::optional<ParsedReference> ReadSheetReference(std::string_view formula);

// The formula of a reference to the areas of a sheet, absolute: "Sheet1!$A$1,Sheet1!$C$3".
std::string WriteSheetReference(std::string_view sheet, const std::vector<CellBlock>& areas);

}  // namespace excel::embedded
