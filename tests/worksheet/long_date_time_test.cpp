#include "worksheet/long_date_time.hpp"

#include <gtest/gtest.h>

namespace {

std::tm Moment(int year, int month, int day, int weekday, int hour, int minute, int second) {
    std::tm moment{};
    moment.tm_year = year - 1900;
    moment.tm_mon = month - 1;
    moment.tm_mday = day;
    moment.tm_wday = weekday;
    moment.tm_hour = hour;
    moment.tm_min = minute;
    moment.tm_sec = second;
    return moment;
}

}  // namespace

TEST(LongDateTimeTest, AnAfternoonReadsInTwelveHourTime) {
    EXPECT_EQ(vos::LongDateTimeText(Moment(2026, 11, 21, 6, 15, 4, 5)), "Saturday, November 21, 2026 3:04:05 PM");
}

TEST(LongDateTimeTest, MidnightAndNoonAreTwelve) {
    EXPECT_EQ(vos::LongDateTimeText(Moment(2025, 1, 5, 0, 0, 0, 9)), "Sunday, January 5, 2025 12:00:09 AM");
    EXPECT_EQ(vos::LongDateTimeText(Moment(2024, 2, 29, 4, 12, 30, 0)), "Thursday, February 29, 2024 12:30:00 PM");
}

TEST(LongDateTimeTest, TheLastMinuteOfTheDay) {
    EXPECT_EQ(vos::LongDateTimeText(Moment(1999, 12, 31, 5, 23, 59, 59)), "Friday, December 31, 1999 11:59:59 PM");
}
