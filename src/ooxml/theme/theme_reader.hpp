#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace ooxml {

// The colour scheme of a theme part (<a:clrScheme> of <a:themeElements>) as 0x00RRGGBB, in the
// order cells index theme colours: lt1, dk1, lt2, dk2, accent1..accent6, hlink, folHlink. A
// colour is an <a:srgbClr> or an <a:sysClr> with the colour it last had. Nothing when the part
// is no well-formed XML, has no colour scheme, or one of the twelve colours is missing or of
// another kind: the theme is kept as it is all the same, and the caller falls back on its own.
std::optional<std::array<uint32_t, 12>> ReadThemeColors(std::string_view xml);

}  // namespace ooxml
