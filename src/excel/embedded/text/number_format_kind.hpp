#pragma once

#include <string_view>

namespace excel::embedded {

enum class NumberFormatKind { General, Number, Date, Currency, Text };

// What a number format shows a number as: dates and times (d, m, y, h, s outside quotes and
// brackets), currency (a currency symbol), text ("@"), or plain numbers.
NumberFormatKind ClassifyNumberFormat(std::string_view format);

}  // namespace excel::embedded
