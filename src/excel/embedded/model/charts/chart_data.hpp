#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace excel::embedded {

// A value of a series' own data: a number, a text, or blank.
using ChartValue = std::variant<std::monostate, double, std::string>;

// Where a series takes a name, categories or values from: cells (a reference such as
// "Sheet1!$B$2:$B$9", as the series formula shows it without "="), or values of its own; or, for
// an opened chart, data in a form the engine does not read (levels of categories), kept as the
// file had it.
struct ChartData {
    enum class Kind : uint8_t { None, Reference, Literal, Kept };
    Kind kind = Kind::None;
    std::string reference;
    std::vector<ChartValue> values;  // Literal

    friend bool operator==(const ChartData&, const ChartData&) = default;
};

ChartData ReferenceData(std::string reference);
ChartData LiteralData(std::vector<ChartValue> values);

// Excel's text forms of series data: "={1,2,3}" or "1,2,3" (numbers, quoted texts), with the
// curly braces optional. None when the text is not such a list.
std::optional<std::vector<ChartValue>> ParseLiteralList(std::string_view text);

}  // namespace excel::embedded
