#include "excel/embedded/text/general_format.hpp"

#include <array>
#include <cmath>
#include <cstdio>

namespace excel::embedded {

namespace {

// The characters a standard-width column shows of a General number.
constexpr int CellCharacters = 11;

// Numbers below this magnitude show in scientific form even when they would fit.
constexpr int SmallestFixedExponent = -4;

std::string Printed(const char* format, int precision, double value) {
    std::array<char, 48> buffer{};
    const int length = std::snprintf(buffer.data(), buffer.size(), format, precision, value);
    return std::string(buffer.data(), static_cast<size_t>(length));
}

// The power of ten of the leading digit once rounded to 15 significant digits.
int DecimalExponent(double magnitude) {
    const std::string printed = Printed("%.*e", 14, magnitude);
    return std::stoi(printed.substr(printed.find('e') + 1));
}

void StripTrailingZeros(std::string& digits) {
    if (digits.find('.') == std::string::npos)
        return;
    while (digits.back() == '0')
        digits.pop_back();
    if (digits.back() == '.')
        digits.pop_back();
}

// "1.23457E+11": as many mantissa digits as fit in `width`, trailing zeros dropped.
std::string Scientific(double magnitude, int width) {
    for (int decimals = width;; --decimals) {
        const std::string printed = Printed("%.*e", decimals, magnitude);
        const size_t mark = printed.find('e');
        std::string mantissa = printed.substr(0, mark);
        StripTrailingZeros(mantissa);
        const int exponent = std::stoi(printed.substr(mark + 1));  // "e+11" -> 11
        std::string text = mantissa + (exponent < 0 ? "E-" : "E+");
        const std::string exponentDigits = std::to_string(std::abs(exponent));
        if (exponentDigits.size() < 2)
            text.push_back('0');
        text.append(exponentDigits);
        if (static_cast<int>(text.size()) <= width || decimals == 0)
            return text;
    }
}

// "0.333333333": the integer digits and as many decimals as fit; empty when the integer part
// alone is too wide.
std::string Fixed(double magnitude, int width) {
    const int integerDigits = magnitude < 1.0 ? 1 : static_cast<int>(std::floor(std::log10(magnitude))) + 1;
    if (integerDigits > width)
        return {};
    const int decimals = std::max(0, width - integerDigits - 1);
    std::string text = Printed("%.*f", decimals, magnitude);
    StripTrailingZeros(text);
    if (static_cast<int>(text.size()) > width)
        return {};  // rounding carried into another digit
    return text;
}

}  // namespace

std::string FormatGeneral(double value) {
    if (std::isnan(value) || std::isinf(value))
        return "#NUM!";
    if (value == 0)
        return "0";
    const bool negative = value < 0;
    const double magnitude = std::abs(value);
    const int width = CellCharacters - (negative ? 1 : 0);
    std::string text;
    if (DecimalExponent(magnitude) >= SmallestFixedExponent)
        text = Fixed(magnitude, width);
    if (text.empty())
        text = Scientific(magnitude, width);
    return negative ? "-" + text : text;
}

}  // namespace excel::embedded
