#pragma once

#include <string>
#include <string_view>

namespace ooxml {

// Part names in relationship targets and content types are URIs: "%20" stands for a space.
// A "%" not followed by two hex digits is kept as it is.
std::string PercentDecoded(std::string_view text);

}  // namespace ooxml
