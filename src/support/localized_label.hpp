#pragma once

#include <excel/variant.hpp>

#include <cstdint>
#include <optional>
#include <string>

namespace vos {

// Offsets of the labels within a language's block of the label table.
inline constexpr int16_t DateLabel = 0;
inline constexpr int16_t PerformedByLabel = 1;

// The label at that offset in the language's block of the label table. Languages map to blocks
// by Windows primary language id; an id without a block of its own (English 9, and 1033, which
// is a locale and not a primary id) reads the English block. Italian (16) maps to a block that
// holds no strings, so its labels fail with the runtime's "Resource not found"; there is no
// fallback. The label's markers are then expanded as ExpandLabelMarkers does.
std::string GetLocalizedLabel(int16_t labelOffset, int32_t languageId, const std::optional<excel::Variant>& argument0 = {},
                              const std::optional<excel::Variant>& argument1 = {},
                              const std::optional<excel::Variant>& argument2 = {});

// Replaces every "{0}", "{1}" and "{2}" by the text of the matching argument when that argument
// is given (a marker whose argument is missing stays), then every "{CR}", in any capitalisation,
// by a line break (CR LF).
std::string ExpandLabelMarkers(std::string text, const std::optional<excel::Variant>& argument0 = {},
                               const std::optional<excel::Variant>& argument1 = {},
                               const std::optional<excel::Variant>& argument2 = {});

}  // namespace vos
