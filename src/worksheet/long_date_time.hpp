#pragma once

#include <ctime>
#include <string>

namespace vos {

// The moment as the English "Long Date", a space and "Long Time" read:
// "Saturday, November 21, 2026 3:04:05 PM".
std::string LongDateTimeText(const std::tm& moment);

// The current local date and time in that form.
std::string CurrentLongDateTimeText();

}  // namespace vos
