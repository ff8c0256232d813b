#include "excel/embedded/model/cells/cell_text.hpp"

#include "excel/embedded/model/cells/cell_content.hpp"
#include "excel/embedded/model/date_system.hpp"
#include "excel/embedded/text/general_format.hpp"
#include "excel/embedded/text/number_format_kind.hpp"
#include "excel/embedded/text/text_entry.hpp"

#include <fmt/format.h>

#include <cmath>
#include <cstdint>
#include <string>
#include <variant>

namespace excel::embedded {

namespace {

// The section of a format for the value: positive;negative;zero;text.
std::string_view SectionFor(std::string_view format, double value, bool& negativeSection) {
    std::vector<std::string_view> sections;
    size_t start = 0;
    bool quoted = false;
    for (size_t i = 0; i < format.size(); ++i) {
        if (format[i] == '"') {
            quoted = !quoted;
        } else if (format[i] == ';' && !quoted) {
            sections.push_back(format.substr(start, i - start));
            start = i + 1;
        }
    }
    sections.push_back(format.substr(start));
    negativeSection = value < 0 && sections.size() >= 2;
    if (value == 0 && sections.size() >= 3) {
        return sections[2];
    }
    return negativeSection ? sections[1] : sections[0];
}

std::string GroupThousands(const std::string& digits) {
    std::string grouped;
    const size_t n = digits.size();
    for (size_t i = 0; i < n; ++i) {
        grouped += digits[i];
        if ((n - i - 1) % 3 == 0 && i + 1 < n) {
            grouped += ',';
        }
    }
    return grouped;
}

// An automation Date (days since 1899-12-30) to a civil date.
void CivilFromDate(double date, int& year, int& month, int& day) {
    int64_t z = static_cast<int64_t>(std::floor(date)) - 25569 + 719468;  // days since 0000-03-01
    const int64_t era = (z >= 0 ? z : z - 146096) / 146097;
    const int64_t doe = z - era * 146097;
    const int64_t yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
    const int64_t doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
    const int64_t mp = (5 * doy + 2) / 153;
    day = static_cast<int>(doy - (153 * mp + 2) / 5 + 1);
    month = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
    year = static_cast<int>(yoe + era * 400 + (month <= 2 ? 1 : 0));
}

std::string FormatDate(double date, std::string_view format) {
    int year = 0;
    int month = 0;
    int day = 0;
    CivilFromDate(date, year, month, day);
    const auto seconds = static_cast<int64_t>(std::llround((date - std::floor(date)) * 86400.0));
    const int hour = static_cast<int>(seconds / 3600 % 24);
    const int minute = static_cast<int>(seconds / 60 % 60);
    const int second = static_cast<int>(seconds % 60);
    std::string out;
    bool afterHour = false;
    for (size_t i = 0; i < format.size();) {
        const char c = static_cast<char>(std::tolower(static_cast<unsigned char>(format[i])));
        size_t run = 1;
        while (i + run < format.size() && std::tolower(static_cast<unsigned char>(format[i + run])) == c) {
            ++run;
        }
        if (c == 'y') {
            out += run <= 2 ? fmt::format("{:02}", year % 100) : fmt::format("{}", year);
        } else if (c == 'm') {
            const int value = afterHour ? minute : month;
            out += run >= 2 ? fmt::format("{:02}", value) : fmt::format("{}", value);
        } else if (c == 'd') {
            out += run >= 2 ? fmt::format("{:02}", day) : fmt::format("{}", day);
        } else if (c == 'h') {
            out += run >= 2 ? fmt::format("{:02}", hour) : fmt::format("{}", hour);
            afterHour = true;
        } else if (c == 's') {
            out += run >= 2 ? fmt::format("{:02}", second) : fmt::format("{}", second);
        } else if (c == '"') {
            const size_t close = format.find('"', i + 1);
            out += format.substr(i + 1, close == std::string_view::npos ? std::string_view::npos : close - i - 1);
            i = close == std::string_view::npos ? format.size() : close + 1;
            continue;
        } else if (c == '\\' && i + 1 < format.size()) {
            out += format[i + 1];
            i += 2;
            continue;
        } else {
            out.append(format.substr(i, run));
        }
        i += run;
    }
    return out;
}

}  // namespace

std::string FormatNumber(double value, std::string_view numberFormat, bool date1904) {
    const NumberFormatKind kind = ClassifyNumberFormat(numberFormat);
    if (kind == NumberFormatKind::General || kind == NumberFormatKind::Text) {
        return FormatGeneral(value);
    }
    bool negativeSection = false;
    const std::string_view section = SectionFor(numberFormat, value, negativeSection);
    if (kind == NumberFormatKind::Date) {
        return FormatDate(DateFromSerial(value, date1904), section);
    }
    // prefix, digit placeholders (0 # ? , .), suffix; literals in quotes or after a backslash.
    std::string prefix;
    std::string suffix;
    int decimals = 0;
    bool thousands = false;
    bool percent = false;
    bool inDigits = false;
    bool seenDigits = false;
    bool afterPoint = false;
    for (size_t i = 0; i < section.size(); ++i) {
        const char c = section[i];
        std::string literal;
        if (c == '"') {
            const size_t close = section.find('"', i + 1);
            literal = std::string(
                section.substr(i + 1, close == std::string_view::npos ? std::string_view::npos : close - i - 1));
            i = close == std::string_view::npos ? section.size() : close;
        } else if (c == '\\' && i + 1 < section.size()) {
            literal = std::string(1, section[++i]);
        } else if (c == '[') {
            const size_t close = section.find(']', i + 1);
            const std::string_view inside = section.substr(i + 1, close == std::string_view::npos ? 0 : close - i - 1);
            if (inside.starts_with("$")) {
                literal = std::string(inside.substr(
                    1, inside.find('-') == std::string_view::npos ? std::string_view::npos : inside.find('-') - 1));
            }
            i = close == std::string_view::npos ? section.size() : close;
        } else if (c == '_' || c == '*') {
            ++i;
            continue;
        } else if (c == '0' || c == '#' || c == '?') {
            inDigits = seenDigits = true;
            decimals += afterPoint ? 1 : 0;
            continue;
        } else if (c == '.' && (inDigits || !seenDigits)) {
            afterPoint = inDigits = seenDigits = true;
            continue;
        } else if (c == ',' && inDigits) {
            thousands = true;
            continue;
        } else {
            if (c == '%') {
                percent = true;
            }
            literal = std::string(1, c);
        }
        inDigits = false;
        (seenDigits ? suffix : prefix) += literal;
    }
    const double shown = std::fabs(percent ? value * 100.0 : value);
    std::string digits = fmt::format("{:.{}f}", shown, decimals);
    std::string integral = digits.substr(0, digits.find('.'));
    const std::string fraction = decimals > 0 ? digits.substr(digits.find('.')) : "";
    if (thousands) {
        integral = GroupThousands(integral);
    }
    const bool negative = value < 0 && !negativeSection && std::stod(digits) != 0.0;
    return (negative ? "-" : "") + prefix + integral + fraction + suffix;
}

std::string DisplayText(const CellContent& content, std::string_view numberFormat, bool date1904) {
    return std::visit(ContentVisitor{
                          [](std::monostate) { return std::string(); },
                          [](bool value) { return std::string(value ? "TRUE" : "FALSE"); },
                          [](std::string_view text) { return std::string(text); },
                          [](CellError error) { return ErrorTextFromNumber(error.number); },
                          [&](double number) { return FormatNumber(number, numberFormat, date1904); },
                      },
                      content);
}

}  // namespace excel::embedded
