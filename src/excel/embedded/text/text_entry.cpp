#include "excel/embedded/text/text_entry.hpp"

#include "excel/embedded/text/utf8_text.hpp"

#include <array>
#include <charconv>
#include <cmath>

namespace excel::embedded {

namespace {

struct CellError {
    std::string_view text;
    int32_t number;
};

constexpr std::array<CellError, 7> CellErrors{{
    {"#NULL!", 2000},
    {"#DIV/0!", 2007},
    {"#VALUE!", 2015},
    {"#REF!", 2023},
    {"#NAME?", 2029},
    {"#NUM!", 2036},
    {"#N/A", 2042},
}};

// Excel keeps 15 significant digits of what is typed; later digits become zeros.
constexpr int SignificantDigits = 15;
constexpr double LargestNumber = 9.99999999999999e307;

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

std::string_view TrimSpaces(std::string_view text) {
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return text;
}

bool ConsumePrefix(std::string_view& text, char c) {
    if (text.empty() || text.front() != c)
        return false;
    text.remove_prefix(1);
    return true;
}

bool ConsumeSuffix(std::string_view& text, char c) {
    if (text.empty() || text.back() != c)
        return false;
    text.remove_suffix(1);
    return true;
}

// The digits of a number as Excel reads them: an integer part, either plain or grouped by
// thousands separators ("1,234,567"), an optional fraction and, when `allowExponent`, an exponent.
// Writes the plain form to `plain` for from_chars.
struct DigitsShape {
    bool grouped = false;
    bool fraction = false;
    bool exponent = false;
};

std::optional<DigitsShape> ReadDigits(std::string_view text, bool allowExponent, std::string& plain) {
    DigitsShape shape;
    size_t i = 0;
    int significant = 0;
    size_t digitsSeen = 0;
    size_t groupLength = 0;
    const auto appendDigit = [&](char digit, bool integerPart) {
        ++digitsSeen;
        if (significant > 0 || digit != '0')
            ++significant;
        if (significant <= SignificantDigits)
            plain.push_back(digit);
        else if (integerPart)
            plain.push_back('0');
    };
    for (; i < text.size(); ++i) {
        if (IsDigit(text[i])) {
            appendDigit(text[i], true);
            ++groupLength;
        } else if (text[i] == ',' && digitsSeen > 0 && (!shape.grouped ? groupLength <= 3 : groupLength == 3)) {
            shape.grouped = true;
            groupLength = 0;
        } else {
            break;
        }
    }
    if (shape.grouped && groupLength != 3)
        return std::nullopt;
    if (i < text.size() && text[i] == '.') {
        shape.fraction = true;
        plain.push_back('.');
        for (++i; i < text.size() && IsDigit(text[i]); ++i)
            appendDigit(text[i], false);
    }
    if (digitsSeen == 0)
        return std::nullopt;
    if (allowExponent && !shape.grouped && i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
        shape.exponent = true;
        plain.push_back('e');
        ++i;
        if (i < text.size() && (text[i] == '+' || text[i] == '-'))
            plain.push_back(text[i++]);
        const size_t exponentStart = i;
        for (; i < text.size() && IsDigit(text[i]); ++i)
            plain.push_back(text[i]);
        if (i == exponentStart)
            return std::nullopt;
    }
    if (i != text.size())
        return std::nullopt;
    return shape;
}

// A number as Excel reads typed text (US locale): blanks around it, a sign or parentheses, a
// leading "$" or a trailing "%", thousands separators, a decimal point, an exponent.
bool ReadNumber(std::string_view text, TextEntry& entry) {
    text = TrimSpaces(text);
    bool negative = false;
    if (text.size() >= 2 && text.front() == '(' && text.back() == ')') {
        negative = true;
        text = text.substr(1, text.size() - 2);
    }
    bool currency = ConsumePrefix(text, '$');
    if (ConsumePrefix(text, '-')) {
        if (negative)
            return false;
        negative = true;
    } else if (ConsumePrefix(text, '+') && negative) {
        return false;
    }
    if (!currency)
        currency = ConsumePrefix(text, '$');
    const bool percent = !currency && ConsumeSuffix(text, '%');

    std::string plain;
    plain.reserve(text.size() + 2);
    if (negative)
        plain.push_back('-');
    const auto shape = ReadDigits(text, !currency && !percent, plain);
    if (!shape)
        return false;
    double value = 0;
    const auto [end, error] = std::from_chars(plain.data(), plain.data() + plain.size(), value);
    if (end != plain.data() + plain.size())
        return false;
    if (error == std::errc::result_out_of_range) {
        // A large negative exponent rounds to zero; a number too large stays text.
        if (plain.find("e-") == std::string::npos)
            return false;
        value = 0.0;
    } else if (error != std::errc() || std::abs(value) > LargestNumber) {
        return false;
    }

    entry.kind = TextEntry::Kind::Number;
    entry.number = percent ? value / 100.0 : value;
    if (percent)
        entry.impliedNumberFormat = shape->fraction ? "0.00%" : "0%";
    else if (currency)
        entry.impliedNumberFormat = shape->fraction ? "$#,##0.00" : "$#,##0";
    else if (shape->grouped)
        entry.impliedNumberFormat = shape->fraction ? "#,##0.00" : "#,##0";
    else if (shape->exponent)
        entry.impliedNumberFormat = "0.00E+00";
    return true;
}

}  // namespace

TextEntry ParseTextEntry(std::string_view input) {
    TextEntry entry;
    if (input.empty())
        return entry;
    if (input.front() == '\'') {
        entry.kind = TextEntry::Kind::Text;
        entry.text.assign(input.substr(1));
        entry.quotePrefix = true;
        return entry;
    }
    if (input.front() == '=' && input.size() > 1) {
        entry.kind = TextEntry::Kind::Formula;
        entry.text.assign(input.substr(1));
        return entry;
    }
    if (EqualsIgnoringCase(input, "TRUE") || EqualsIgnoringCase(input, "FALSE")) {
        entry.kind = TextEntry::Kind::Boolean;
        entry.boolean = input.size() == 4;
        return entry;
    }
    if (const auto errorNumber = ErrorNumberFromText(input)) {
        entry.kind = TextEntry::Kind::Error;
        entry.text = ErrorTextFromNumber(*errorNumber);
        return entry;
    }
    if (ReadNumber(input, entry))
        return entry;
    entry.kind = TextEntry::Kind::Text;
    entry.text.assign(input);
    return entry;
}

std::optional<int32_t> ErrorNumberFromText(std::string_view text) {
    for (const CellError& error : CellErrors) {
        if (EqualsIgnoringCase(text, error.text))
            return error.number;
    }
    return std::nullopt;
}

std::string ErrorTextFromNumber(int32_t number) {
    for (const CellError& error : CellErrors) {
        if (error.number == number)
            return std::string(error.text);
    }
    return {};
}

}  // namespace excel::embedded
