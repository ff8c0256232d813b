#pragma once

#include <ctime>
#include <optional>
#include <string_view>

namespace ooxml {

// An ISO 8601 / W3C date-time ("2024-03-05T14:30:00Z", "2024-03-05T14:30:00.25+01:00",
// "2024-03-05") as seconds since 1970-01-01 UTC; a time without a zone is taken as UTC and
// fractions of a second are dropped. Nothing when the text is not such a date-time.
std::optional<std::time_t> ParseIsoDateTime(std::string_view text);

}  // namespace ooxml
