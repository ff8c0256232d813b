#pragma once

#include <cstddef>

namespace excel::embedded {

// What Excel lets a cell hold, in UTF-16 code units: a text of 32,767 characters, and a formula
// of 8,192 after its "=". Both writing a cell and opening a file hold to them.
inline constexpr std::size_t kMaxCellCharacters = 32767;
inline constexpr std::size_t kMaxFormulaCharacters = 8192;

}  // namespace excel::embedded
