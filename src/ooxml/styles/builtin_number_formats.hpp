#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace ooxml {

// Excel's built-in number formats (ids 0..49), which a package refers to by id without writing
// their codes. Codes are those an English (United States) Excel reports; ids whose code depends
// on the locale or is unassigned are left out, so such formats are written as custom ones.

// The built-in id of a format code, if it is one.
std::optional<uint32_t> BuiltinNumberFormatId(std::string_view code);

// The code of a built-in id, or an empty view when the id is not a known built-in.
std::string_view BuiltinNumberFormatCode(uint32_t id);

// The first id a package may give a format of its own.
inline constexpr uint32_t kFirstCustomNumberFormatId = 164;

}  // namespace ooxml
