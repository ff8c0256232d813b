#include "worksheet/long_date_time.hpp"

#include <fmt/format.h>

#include <array>
#include <chrono>
#include <cstddef>

namespace vos {

namespace {

constexpr std::array<const char*, 7> DayNames = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                 "Thursday", "Friday", "Saturday"};
constexpr std::array<const char*, 12> MonthNames = {"January",   "February", "March",    "April",
                                                    "May",       "June",     "July",     "August",
                                                    "September", "October",  "November", "December"};

// Hours on the 12-hour clock: midnight and noon are 12.
int TwelveHour(int hour) {
    const int hourOfHalfDay = hour % 12;
    return hourOfHalfDay == 0 ? 12 : hourOfHalfDay;
}

}  // namespace

std::string LongDateTimeText(const std::tm& moment) {
    return fmt::format("{}, {} {}, {} {}:{:02}:{:02} {}", DayNames[static_cast<size_t>(moment.tm_wday)],
                       MonthNames[static_cast<size_t>(moment.tm_mon)], moment.tm_mday, moment.tm_year + 1900,
                       TwelveHour(moment.tm_hour), moment.tm_min, moment.tm_sec, moment.tm_hour < 12 ? "AM" : "PM");
}

std::string CurrentLongDateTimeText() {
    const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &now);
#else
    localtime_r(&now, &local);
#endif
    return LongDateTimeText(local);
}

}  // namespace vos
