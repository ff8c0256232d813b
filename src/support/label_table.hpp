#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace vos {

// The localized label strings, keyed as string resources are: language block base + label
// offset. The Windows build emits the same table as the library's string-table resource.
std::optional<std::string_view> FindLabelString(int32_t identifier);

}  // namespace vos
