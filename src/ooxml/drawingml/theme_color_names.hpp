#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace ooxml {

// DrawingML names the theme's colours where SpreadsheetML numbers them: 0 lt1, 1 dk1, 2 lt2,
// 3 dk2, 4..9 accent1..6, 10 hlink, 11 folHlink.
std::string_view ThemeColorName(int32_t index);

// The theme index of a scheme colour name; the mapped names bg1, tx1, bg2 and tx2 stand for lt1,
// dk1, lt2 and dk2. Nothing for names that are no theme colour (phClr).
std::optional<int32_t> ThemeColorIndex(std::string_view name);

}  // namespace ooxml
