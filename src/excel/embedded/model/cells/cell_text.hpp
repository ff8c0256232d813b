#pragma once

#include "excel/embedded/model/cells/cell_content.hpp"

#include <string>
#include <string_view>

namespace excel::embedded {

// The text a cell's content shows (Range.Text) under its number format. General, "@", fixed decimals,
// thousands separators, percentages, literal prefixes and suffixes and simple date codes are
// rendered; a format beyond that shows the General text. Dates are read in the workbook's date
// system (date1904: serial 0 is 1904-01-01).
std::string DisplayText(const CellContent& content, std::string_view numberFormat, bool date1904);

// A number under a format (the numeric part of DisplayText).
std::string FormatNumber(double value, std::string_view numberFormat, bool date1904);

}  // namespace excel::embedded
