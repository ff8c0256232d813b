#include <excel/automation_error.hpp>
#include <excel/safe_array.hpp>
#include <excel/variant.hpp>

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>
#include <optional>
#include <utility>

namespace excel {

namespace {

constexpr int32_t OverflowError = 6;
constexpr int32_t TypeMismatchError = 13;
constexpr int32_t InvalidUseOfNullError = 94;

std::string_view TrimBlanks(std::string_view text) {
    const auto isBlank = [](char c) { return c == ' ' || c == '\t'; };
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

bool EqualsIgnoringAsciiCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size())
        return false;
    for (size_t i = 0; i < a.size(); ++i) {
        const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
        if (lower(a[i]) != lower(b[i]))
            return false;
    }
    return true;
}

// "&H1F" / "&O17": values up to &HFFFF read as a 16-bit Integer (so "&HFFFF" is -1), larger ones
// as a 32-bit Long, as the runtime reads such literals.
std::optional<double> ParseRadixNumber(std::string_view digits, int radix) {
    if (digits.empty())
        return std::nullopt;
    uint64_t value = 0;
    for (char c : digits) {
        int digit = -1;
        if (c >= '0' && c <= '9')
            digit = c - '0';
        else if (c >= 'a' && c <= 'f')
            digit = c - 'a' + 10;
        else if (c >= 'A' && c <= 'F')
            digit = c - 'A' + 10;
        if (digit < 0 || digit >= radix)
            return std::nullopt;
        value = value * static_cast<uint64_t>(radix) + static_cast<uint64_t>(digit);
        if (value > 0xFFFFFFFFu)
            ThrowRuntimeError(OverflowError);
    }
    if (value <= 0xFFFF) {
        return static_cast<double>(static_cast<int16_t>(static_cast<uint16_t>(value)));
    }
    return static_cast<double>(static_cast<int32_t>(static_cast<uint32_t>(value)));
}

// The runtime's reading of a string as a number (US locale): blanks around, a sign or
// parentheses, thousands separators in the integer part, a decimal point, an exponent; or a
// hexadecimal/octal literal. Nullopt when the text is no number; overflow when it is too large.
std::optional<double> ParseAutomationNumber(std::string_view text) {
    text = TrimBlanks(text);
    if (text.size() > 2 && text[0] == '&') {
        const char radix = text[1];
        if (radix == 'H' || radix == 'h')
            return ParseRadixNumber(text.substr(2), 16);
        if (radix == 'O' || radix == 'o')
            return ParseRadixNumber(text.substr(2), 8);
        return std::nullopt;
    }
    bool negative = false;
    if (text.size() >= 2 && text.front() == '(' && text.back() == ')') {
        negative = true;
        text = TrimBlanks(text.substr(1, text.size() - 2));
    }
    if (!text.empty() && (text[0] == '-' || text[0] == '+')) {
        if (negative && text[0] == '-')
            return std::nullopt;
        negative = negative || text[0] == '-';
        text.remove_prefix(1);
    }
    std::string clean;
    clean.reserve(text.size() + 1);
    if (negative)
        clean.push_back('-');
    size_t i = 0;
    size_t digits = 0;
    for (; i < text.size(); ++i) {
        const char c = text[i];
        if (c >= '0' && c <= '9') {
            clean.push_back(c);
            ++digits;
        } else if (c != ',' || digits == 0) {
            break;
        }
    }
    if (i < text.size() && text[i] == '.') {
        clean.push_back('.');
        for (++i; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i, ++digits)
            clean.push_back(text[i]);
    }
    if (digits == 0)
        return std::nullopt;
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E' || text[i] == 'd' || text[i] == 'D')) {
        clean.push_back('e');
        ++i;
        if (i < text.size() && (text[i] == '+' || text[i] == '-'))
            clean.push_back(text[i++]);
        const size_t exponentStart = i;
        for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i)
            clean.push_back(text[i]);
        if (i == exponentStart)
            return std::nullopt;
    }
    if (i != text.size())
        return std::nullopt;
    double value = 0;
    const auto [end, error] = std::from_chars(clean.data(), clean.data() + clean.size(), value);
    if (error == std::errc::result_out_of_range) {
        // Too small (a large negative exponent) rounds to zero; too large is the runtime's overflow.
        if (clean.find("e-") == std::string::npos)
            ThrowRuntimeError(OverflowError);
        return 0.0;
    }
    if (error != std::errc() || end != clean.data() + clean.size())
        return std::nullopt;
    if (!std::isfinite(value))
        ThrowRuntimeError(OverflowError);
    return value;
}

// A number as CStr prints it: at most `significantDigits` significant digits, no trailing zeros,
// and the exponent form ("1.23456789012346E+15", "1E-05") outside 1E-4 .. 10^significantDigits.
std::string FormatAutomationNumber(double value, int significantDigits) {
    if (value == 0)
        return "0";
    std::array<char, 64> buffer{};
    const int length = std::snprintf(buffer.data(), buffer.size(), "%.*e", significantDigits - 1, value);
    const std::string_view printed(buffer.data(), static_cast<size_t>(length));
    const bool negative = printed[0] == '-';
    const size_t mantissaStart = negative ? 1 : 0;
    const size_t exponentMark = printed.find('e');
    std::string digits;
    digits.reserve(static_cast<size_t>(significantDigits));
    for (size_t i = mantissaStart; i < exponentMark; ++i) {
        if (printed[i] != '.')
            digits.push_back(printed[i]);
    }
    while (digits.size() > 1 && digits.back() == '0')
        digits.pop_back();
    int exponent = 0;
    std::from_chars(printed.data() + exponentMark + (printed[exponentMark + 1] == '+' ? 2 : 1),
                    printed.data() + printed.size(), exponent);

    std::string text;
    text.reserve(static_cast<size_t>(significantDigits) + 8);
    if (negative)
        text.push_back('-');
    const auto digitCount = static_cast<int>(digits.size());
    if (exponent >= significantDigits || exponent < -4) {
        text.push_back(digits[0]);
        if (digitCount > 1) {
            text.push_back('.');
            text.append(digits, 1);
        }
        text.append(exponent < 0 ? "E-" : "E+");
        const int magnitude = std::abs(exponent);
        if (magnitude < 10)
            text.push_back('0');
        text.append(std::to_string(magnitude));
    } else if (exponent < 0) {
        text.append("0.");
        text.append(static_cast<size_t>(-exponent - 1), '0');
        text.append(digits);
    } else {
        const int integerDigits = exponent + 1;
        text.append(digits, 0, static_cast<size_t>(std::min(integerDigits, digitCount)));
        if (digitCount < integerDigits)
            text.append(static_cast<size_t>(integerDigits - digitCount), '0');
        if (digitCount > integerDigits) {
            text.push_back('.');
            text.append(digits, static_cast<size_t>(integerDigits));
        }
    }
    return text;
}

std::string FormatCurrency(int64_t scaled) {
    const bool negative = scaled < 0;
    const uint64_t magnitude = negative ? 0 - static_cast<uint64_t>(scaled) : static_cast<uint64_t>(scaled);
    std::string text = negative ? "-" : "";
    text.append(std::to_string(magnitude / 10000));
    uint64_t fraction = magnitude % 10000;
    if (fraction != 0) {
        std::string decimals = std::to_string(fraction + 10000).substr(1);
        while (decimals.back() == '0')
            decimals.pop_back();
        text.push_back('.');
        text.append(decimals);
    }
    return text;
}

struct CivilDate {
    int64_t year;
    unsigned month;
    unsigned day;
};

// Days since 1970-01-01 to the proleptic Gregorian calendar date.
CivilDate CivilFromDays(int64_t days) {
    days += 719468;
    const int64_t era = (days >= 0 ? days : days - 146096) / 146097;
    const auto dayOfEra = static_cast<unsigned>(days - era * 146097);
    const unsigned yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const unsigned dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const unsigned shiftedMonth = (5 * dayOfYear + 2) / 153;
    const unsigned day = dayOfYear - (153 * shiftedMonth + 2) / 5 + 1;
    const unsigned month = shiftedMonth < 10 ? shiftedMonth + 3 : shiftedMonth - 9;
    return {static_cast<int64_t>(yearOfEra) + era * 400 + (month <= 2 ? 1 : 0), month, day};
}

// A date as CStr prints it in the US locale: "m/d/yyyy", " h:mm:ss AM/PM" when there is a time,
// and only the time on day 0 (1899-12-30).
std::string FormatAutomationDate(double serial) {
    constexpr int64_t SerialOfUnixEpoch = 25569;
    constexpr int64_t SecondsPerDay = 86400;
    auto days = static_cast<int64_t>(std::trunc(serial));
    auto seconds = static_cast<int64_t>(std::llround(std::abs(serial - std::trunc(serial)) * SecondsPerDay));
    if (seconds == SecondsPerDay) {
        seconds = 0;
        days += serial < 0 ? -1 : 1;
    }
    std::string text;
    if (days != 0 || seconds == 0) {
        const CivilDate date = CivilFromDays(days - SerialOfUnixEpoch);
        text = std::to_string(date.month) + '/' + std::to_string(date.day) + '/' + std::to_string(date.year);
        if (days != 0 && seconds == 0)
            return text;
        if (days != 0)
            text.push_back(' ');
        else
            text.clear();
    }
    const int64_t hour = seconds / 3600;
    std::array<char, 32> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "%d:%02d:%02d %s", static_cast<int>(hour % 12 == 0 ? 12 : hour % 12),
                  static_cast<int>(seconds / 60 % 60), static_cast<int>(seconds % 60), hour < 12 ? "AM" : "PM");
    text.append(buffer.data());
    return text;
}

// Rounds half to even and checks the result fits the integer type, as CLng and CInt do.
template <class Integer>
Integer RoundToInteger(double value) {
    const double rounded = std::nearbyint(value);
    if (!(rounded >= static_cast<double>(std::numeric_limits<Integer>::min()) &&
          rounded <= static_cast<double>(std::numeric_limits<Integer>::max()))) {
        ThrowRuntimeError(OverflowError);
    }
    return static_cast<Integer>(rounded);
}

template <class Integer>
Integer RoundCurrencyToInteger(Currency amount) {
    int64_t whole = amount.scaled / 10000;
    const int64_t remainder = amount.scaled % 10000;
    const int64_t step = remainder < 0 ? -1 : 1;
    if (std::abs(remainder) > 5000 || (std::abs(remainder) == 5000 && whole % 2 != 0))
        whole += step;
    if (whole < std::numeric_limits<Integer>::min() || whole > std::numeric_limits<Integer>::max()) {
        ThrowRuntimeError(OverflowError);
    }
    return static_cast<Integer>(whole);
}

}  // namespace

Variant::Variant(SafeArray array) : value_(std::make_unique<SafeArray>(std::move(array))) {}

namespace {

template <class Element, class Source>
SafeArray OneDimensionalArray(VarType elementType, const std::vector<Source>& values) {
    SafeArray array(elementType, {SafeArrayBound{0, static_cast<uint32_t>(values.size())}});
    for (size_t i = 0; i < values.size(); ++i)
        array.Put(static_cast<uint32_t>(i), 0, Variant(Element(values[i])));
    return array;
}

}  // namespace

Variant::Variant(const std::vector<double>& values) : Variant(OneDimensionalArray<double>(VarType::Double, values)) {}

Variant::Variant(const std::vector<std::string>& values)
    : Variant(OneDimensionalArray<std::string>(VarType::String, values)) {}

Variant::Variant(const Variant& other) {
    std::visit(
        [this](const auto& held) {
            using Held = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, std::unique_ptr<SafeArray>>) {
                value_.emplace<Held>(held ? std::make_unique<SafeArray>(*held) : nullptr);
            } else {
                value_.emplace<Held>(held);
            }
        },
        other.value_);
}

Variant& Variant::operator=(const Variant& other) {
    if (this != &other) {
        Variant copy(other);
        value_ = std::move(copy.value_);
    }
    return *this;
}

Variant& Variant::operator=(Variant&& other) noexcept = default;

Variant::~Variant() = default;

Variant Variant::Null() {
    Variant null;
    null.value_ = NullTag{};
    return null;
}

VarType Variant::Type() const {
    if (const auto* array = std::get_if<std::unique_ptr<SafeArray>>(&value_)) {
        const auto element = *array ? static_cast<uint16_t>((*array)->ElementType()) : uint16_t{0};
        return static_cast<VarType>(static_cast<uint16_t>(VarType::Array) | element);
    }
    // The alternatives are declared in VarType order, Empty (0) to Boolean (11).
    return static_cast<VarType>(value_.index());
}

bool Variant::IsNumeric() const {
    switch (Type()) {
        case VarType::Integer:
        case VarType::Long:
        case VarType::Single:
        case VarType::Double:
        case VarType::Currency:
        case VarType::Date:
        case VarType::Boolean:
            return true;
        default:
            return false;
    }
}

double Variant::ToDouble() const {
    return std::visit(
        [](const auto& held) -> double {
            using Held = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, std::monostate>) {
                return 0.0;
            } else if constexpr (std::is_same_v<Held, NullTag>) {
                ThrowRuntimeError(InvalidUseOfNullError);
            } else if constexpr (std::is_same_v<Held, bool>) {
                return held ? -1.0 : 0.0;
            } else if constexpr (std::is_arithmetic_v<Held>) {
                return static_cast<double>(held);
            } else if constexpr (std::is_same_v<Held, Currency>) {
                return static_cast<double>(held.scaled) / 10000.0;
            } else if constexpr (std::is_same_v<Held, Date>) {
                return held.serial;
            } else if constexpr (std::is_same_v<Held, std::string>) {
                if (const auto number = ParseAutomationNumber(held))
                    return *number;
                ThrowRuntimeError(TypeMismatchError);
            } else {
                ThrowRuntimeError(TypeMismatchError);
            }
        },
        value_);
}

int32_t Variant::ToInt() const {
    if (const auto* amount = std::get_if<Currency>(&value_))
        return RoundCurrencyToInteger<int32_t>(*amount);
    return RoundToInteger<int32_t>(ToDouble());
}

int16_t Variant::ToShort() const {
    if (const auto* amount = std::get_if<Currency>(&value_))
        return RoundCurrencyToInteger<int16_t>(*amount);
    return RoundToInteger<int16_t>(ToDouble());
}

bool Variant::ToBool() const {
    if (const auto* text = std::get_if<std::string>(&value_)) {
        const std::string_view trimmed = TrimBlanks(*text);
        if (EqualsIgnoringAsciiCase(trimmed, "True"))
            return true;
        if (EqualsIgnoringAsciiCase(trimmed, "False"))
            return false;
    }
    if (const auto* flag = std::get_if<bool>(&value_))
        return *flag;
    if (const auto* amount = std::get_if<Currency>(&value_))
        return amount->scaled != 0;
    return ToDouble() != 0.0;
}

std::string Variant::ToString() const {
    return std::visit(
        [](const auto& held) -> std::string {
            using Held = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, std::monostate>) {
                return {};
            } else if constexpr (std::is_same_v<Held, NullTag>) {
                ThrowRuntimeError(InvalidUseOfNullError);
            } else if constexpr (std::is_same_v<Held, bool>) {
                return held ? "True" : "False";
            } else if constexpr (std::is_same_v<Held, int16_t> || std::is_same_v<Held, int32_t>) {
                return std::to_string(held);
            } else if constexpr (std::is_same_v<Held, float>) {
                return FormatAutomationNumber(held, 7);
            } else if constexpr (std::is_same_v<Held, double>) {
                return FormatAutomationNumber(held, 15);
            } else if constexpr (std::is_same_v<Held, Currency>) {
                return FormatCurrency(held.scaled);
            } else if constexpr (std::is_same_v<Held, Date>) {
                return FormatAutomationDate(held.serial);
            } else if constexpr (std::is_same_v<Held, std::string>) {
                return held;
            } else if constexpr (std::is_same_v<Held, ErrorValue>) {
                // CVErr(2042) prints as "Error 2042": the number without the 0x800A facility.
                const auto code = static_cast<uint32_t>(held.code);
                const uint32_t number = (code & 0xFFFF0000u) == 0x800A0000u ? code & 0xFFFFu : code;
                return "Error " + std::to_string(number);
            } else {
                ThrowRuntimeError(TypeMismatchError);
            }
        },
        value_);
}

int32_t Variant::ErrorCode() const {
    if (const auto* error = std::get_if<ErrorValue>(&value_))
        return error->code;
    ThrowRuntimeError(TypeMismatchError);
}

std::shared_ptr<Object> Variant::ToObject() const {
    if (const auto* object = std::get_if<std::shared_ptr<Object>>(&value_))
        return *object;
    ThrowRuntimeError(TypeMismatchError);
}

const SafeArray& Variant::Array() const {
    const auto* array = std::get_if<std::unique_ptr<SafeArray>>(&value_);
    if (array == nullptr || !*array)
        ThrowRuntimeError(TypeMismatchError);
    return **array;
}

SafeArray& Variant::Array() {
    return const_cast<SafeArray&>(std::as_const(*this).Array());
}

bool operator==(const Variant& a, const Variant& b) {
    if (a.value_.index() != b.value_.index())
        return false;
    if (a.IsArray())
        return a.Array() == b.Array();
    return a.value_ == b.value_;
}

}  // namespace excel
