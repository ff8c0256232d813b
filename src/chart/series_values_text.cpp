#include "chart/series_values_text.hpp"

#include <excel/variant.hpp>

#include <cmath>
#include <cstdio>

namespace vos {

namespace {

constexpr int MantissaDecimals = 8;

// The number as "#.########E+0" formats it: one digit before the point, up to eight after it
// without trailing zeros, the point always shown, and a signed exponent.
std::string ExponentText(double value) {
    if (value == 0.0)
        return "0.E+0";
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.*e", MantissaDecimals, value);
    std::string text(buffer);
    const size_t exponentAt = text.find('e');
    std::string mantissa = text.substr(0, exponentAt);
    while (mantissa.back() == '0')
        mantissa.pop_back();
    const int exponent = std::stoi(text.substr(exponentAt + 1));
    return mantissa + (exponent < 0 ? "E-" : "E+") + std::to_string(std::abs(exponent));
}

}  // namespace

std::string ShortestNumberText(double value) {
    std::string plain = excel::Variant(value).ToString();
    std::string exponent = ExponentText(value);
    return exponent.size() <= plain.size() ? exponent : plain;
}

std::string SeriesValuesText(const excel::SafeArray& values) {
    std::string text;
    for (int32_t index = values.LowerBound(); index <= values.UpperBound(); ++index) {
        if (index > 1)
            text += ',';
        text += ShortestNumberText(values.Get({index}).ToDouble());
    }
    return text;
}

}  // namespace vos
