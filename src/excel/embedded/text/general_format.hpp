#pragma once

#include <string>

namespace excel::embedded {

// The text Excel's General format shows for a number in a standard-width cell: at most 11
// characters, switching to scientific form ("1.23457E+11") when the digits do not fit.
std::string FormatGeneral(double value);

}  // namespace excel::embedded
