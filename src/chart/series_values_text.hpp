#pragma once

#include <excel/safe_array.hpp>

#include <string>

namespace vos {

// The number in the shorter of two forms: as the automation runtime prints it ("1250000",
// "0.125") or in the exponent form "#.########E+0" ("1.25E+6"); a tie goes to the exponent form.
std::string ShortestNumberText(double value);

// A one-dimensional array of numbers as a comma-separated text a series' Values accepts, each
// number in its shortest form. The comma goes before every element whose index is above 1, so a
// 0-based array runs its first two numbers together: tornado arrays are 1-based.
std::string SeriesValuesText(const excel::SafeArray& values);

}  // namespace vos
