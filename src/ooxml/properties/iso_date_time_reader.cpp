#include "ooxml/properties/iso_date_time_reader.hpp"

#include <cstdint>

namespace ooxml {

namespace {

class Cursor {
public:
    explicit Cursor(std::string_view text) : text_(text) {}

    bool Digits(std::size_t count, int64_t& value) {
        if (at_ + count > text_.size()) {
            return false;
        }
        value = 0;
        for (std::size_t i = 0; i < count; ++i) {
            const char c = text_[at_ + i];
            if (c < '0' || c > '9') {
                return false;
            }
            value = value * 10 + (c - '0');
        }
        at_ += count;
        return true;
    }

    bool Take(char c) {
        if (at_ < text_.size() && text_[at_] == c) {
            ++at_;
            return true;
        }
        return false;
    }

    void SkipDigits() {
        while (at_ < text_.size() && text_[at_] >= '0' && text_[at_] <= '9') {
            ++at_;
        }
    }

    bool AtEnd() const { return at_ == text_.size(); }

private:
    std::string_view text_;
    std::size_t at_ = 0;
};

// Days from 1970-01-01 to a date of the proleptic Gregorian calendar.
int64_t DaysFromCivil(int64_t year, int64_t month, int64_t day) {
    year -= month <= 2 ? 1 : 0;
    const int64_t era = (year >= 0 ? year : year - 399) / 400;
    const int64_t yearOfEra = year - era * 400;
    const int64_t dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    const int64_t dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * 146097 + dayOfEra - 719468;
}

bool InRange(int64_t value, int64_t low, int64_t high) {
    return value >= low && value <= high;
}

}  // namespace

std::optional<std::time_t> ParseIsoDateTime(std::string_view text) {
    Cursor cursor(text);
    int64_t year = 0, month = 0, day = 0;
    if (!cursor.Digits(4, year) || !cursor.Take('-') || !cursor.Digits(2, month) || !cursor.Take('-') ||
        !cursor.Digits(2, day) || !InRange(month, 1, 12) || !InRange(day, 1, 31)) {
        return std::nullopt;
    }
    int64_t seconds = DaysFromCivil(year, month, day) * 86400;
    if (cursor.AtEnd()) {
        return static_cast<std::time_t>(seconds);
    }
    int64_t hour = 0, minute = 0, second = 0;
    if (!cursor.Take('T') || !cursor.Digits(2, hour) || !cursor.Take(':') || !cursor.Digits(2, minute)) {
        return std::nullopt;
    }
    if (cursor.Take(':')) {
        if (!cursor.Digits(2, second)) {
            return std::nullopt;
        }
        if (cursor.Take('.')) {
            cursor.SkipDigits();
        }
    }
    if (!InRange(hour, 0, 24) || !InRange(minute, 0, 59) || !InRange(second, 0, 60)) {
        return std::nullopt;
    }
    seconds += hour * 3600 + minute * 60 + second;
    const int64_t sign = cursor.Take('+') ? 1 : cursor.Take('-') ? -1 : 0;
    if (sign != 0) {
        int64_t zoneHours = 0, zoneMinutes = 0;
        if (!cursor.Digits(2, zoneHours) || !cursor.Take(':') || !cursor.Digits(2, zoneMinutes) ||
            !InRange(zoneHours, 0, 14) || !InRange(zoneMinutes, 0, 59)) {
            return std::nullopt;
        }
        seconds -= sign * (zoneHours * 3600 + zoneMinutes * 60);
    } else {
        cursor.Take('Z');
    }
    if (!cursor.AtEnd()) {
        return std::nullopt;
    }
    return static_cast<std::time_t>(seconds);
}

}  // namespace ooxml
