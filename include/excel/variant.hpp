#pragma once

#include <excel/object.hpp>
#include <excel/var_type.hpp>
#include <excel/export.hpp>

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

namespace excel {

class SafeArray;

// A currency amount: the value times 10,000, as the automation runtime stores it.
struct Currency {
    int64_t scaled = 0;
    friend bool operator==(Currency, Currency) = default;
};

// A date as an OLE automation date: days since 1899-12-30, time as the fraction.
struct Date {
    double serial = 0.0;
    friend bool operator==(Date, Date) = default;
};

// An error value (VT_ERROR). Excel's cell errors are 0x800A0000 + 2000-range numbers, e.g. #NAME?
// is CVErr(xlErrName) = 0x800A07ED.
struct ErrorValue {
    int32_t code = 0;
    friend bool operator==(ErrorValue, ErrorValue) = default;
};

// The automation VARIANT: empty, null, error, Boolean, 16/32-bit integer, single, double,
// currency, date, string, object or array. Copies are deep, arrays included.
class VOS_EXPORT Variant {
public:
    Variant() = default;
    Variant(double value) : value_(value) {}
    Variant(float value) : value_(value) {}
    Variant(int32_t value) : value_(value) {}
    Variant(int16_t value) : value_(value) {}
    Variant(bool value) : value_(value) {}
    Variant(const char* value) : value_(std::string(value)) {}
    Variant(std::string value) : value_(std::move(value)) {}
    Variant(std::string_view value) : value_(std::string(value)) {}
    Variant(Currency value) : value_(value) {}
    Variant(Date value) : value_(value) {}
    Variant(ErrorValue value) : value_(value) {}
    Variant(std::shared_ptr<Object> object) : value_(std::move(object)) {}
    template <class T>
        requires std::is_base_of_v<Object, T>
    Variant(std::shared_ptr<T> object) : value_(std::shared_ptr<Object>(std::move(object))) {}
    Variant(SafeArray array);
    // A one-dimensional array, lower bound 0 as VBA's Array() gives.
    Variant(const std::vector<double>& values);
    Variant(const std::vector<std::string>& values);
    Variant(std::initializer_list<double> values) : Variant(std::vector<double>(values)) {}

    Variant(const Variant& other);
    Variant(Variant&& other) noexcept = default;
    Variant& operator=(const Variant& other);
    Variant& operator=(Variant&& other) noexcept;
    ~Variant();

    static Variant Null();

    VarType Type() const;
    bool IsEmpty() const { return value_.index() == 0; }
    bool IsNull() const { return std::holds_alternative<NullTag>(value_); }
    bool IsError() const { return std::holds_alternative<ErrorValue>(value_); }
    bool IsArray() const { return std::holds_alternative<std::unique_ptr<SafeArray>>(value_); }
    bool IsObject() const { return std::holds_alternative<std::shared_ptr<Object>>(value_); }
    bool IsString() const { return std::holds_alternative<std::string>(value_); }
    // True for the numeric types, Boolean and date (what can take part in arithmetic).
    bool IsNumeric() const;

    // Automation conversions; each throws the runtime's type mismatch (or overflow) where VBA would.
    double ToDouble() const;
    int32_t ToInt() const;      // CLng: rounds half to even
    int16_t ToShort() const;    // CInt
    bool ToBool() const;
    std::string ToString() const;  // CStr: numbers in the general format, Booleans "True"/"False"
    int32_t ErrorCode() const;     // the code of an error value; type mismatch otherwise
    std::shared_ptr<Object> ToObject() const;  // empty pointer for Nothing; type mismatch for non-objects
    template <class T>
    std::shared_ptr<T> As() const {
        return std::dynamic_pointer_cast<T>(ToObject());
    }

    const SafeArray& Array() const;  // type mismatch unless an array is held
    SafeArray& Array();

    // Same type and same value (arrays element by element, objects by identity).
    friend VOS_EXPORT bool operator==(const Variant& a, const Variant& b);

private:
    struct NullTag {
        friend bool operator==(NullTag, NullTag) = default;
    };
    std::variant<std::monostate, NullTag, int16_t, int32_t, float, double, Currency, Date, std::string,
                 std::shared_ptr<Object>, ErrorValue, bool, std::unique_ptr<SafeArray>>
        value_;
};

}  // namespace excel

// Variant holds SafeArray by unique_ptr; the definition must be complete in every translation unit
// that uses Variant, so the header brings it along.
#include <excel/safe_array.hpp>
