#include <excel/automation_error.hpp>
#include <excel/safe_array.hpp>

#include <cmath>
#include <limits>

namespace excel {

namespace {

constexpr int32_t InvalidProcedureCallError = 5;
constexpr int32_t OverflowError = 6;
constexpr int32_t OutOfMemoryError = 7;
constexpr int32_t SubscriptOutOfRangeError = 9;
constexpr int32_t TypeMismatchError = 13;

// The runtime's date range: 1 January 100 to 31 December 9999.
constexpr double FirstDateSerial = -657434.0;
constexpr double LastDateSerial = 2958466.0;

// The most elements one array may hold; beyond it the runtime runs out of memory.
constexpr uint64_t MaxElements = std::numeric_limits<int32_t>::max();

Variant DefaultElement(VarType elementType) {
    switch (elementType) {
        case VarType::Integer:
        case VarType::Byte:
            return Variant(int16_t{0});
        case VarType::Long:
            return Variant(int32_t{0});
        case VarType::Single:
            return Variant(0.0f);
        case VarType::Double:
            return Variant(0.0);
        case VarType::Currency:
            return Variant(Currency{});
        case VarType::Date:
            return Variant(Date{});
        case VarType::String:
            return Variant(std::string());
        case VarType::Object:
            return Variant(std::shared_ptr<Object>());
        case VarType::Error:
            return Variant(ErrorValue{});
        case VarType::Boolean:
            return Variant(false);
        case VarType::Variant:
            return Variant();
        default:
            ThrowRuntimeError(InvalidProcedureCallError);
    }
}

Currency ToCurrency(const Variant& value) {
    const double scaled = std::nearbyint(value.ToDouble() * 10000.0);
    if (!(std::abs(scaled) < 9.2233720368547758e18))
        ThrowRuntimeError(OverflowError);
    return Currency{static_cast<int64_t>(scaled)};
}

// What storing a value into an element of the given type keeps: the value converted as the
// runtime converts on assignment to a typed array element. A Byte element is kept as a 16-bit
// integer in 0..255, Variant having no byte alternative.
Variant ConvertToElementType(VarType elementType, Variant value) {
    if (elementType == VarType::Variant || value.Type() == elementType)
        return value;
    switch (elementType) {
        case VarType::Integer:
            return Variant(value.ToShort());
        case VarType::Byte: {
            const int16_t number = value.ToShort();
            if (number < 0 || number > 255)
                ThrowRuntimeError(OverflowError);
            return Variant(number);
        }
        case VarType::Long:
            return Variant(value.ToInt());
        case VarType::Single: {
            const double number = value.ToDouble();
            if (std::abs(number) > static_cast<double>(std::numeric_limits<float>::max())) {
                ThrowRuntimeError(OverflowError);
            }
            return Variant(static_cast<float>(number));
        }
        case VarType::Double:
            return Variant(value.ToDouble());
        case VarType::Currency:
            return Variant(ToCurrency(value));
        case VarType::Date: {
            const double serial = value.ToDouble();
            if (!(serial >= FirstDateSerial && serial < LastDateSerial))
                ThrowRuntimeError(OverflowError);
            return Variant(Date{serial});
        }
        case VarType::String:
            return Variant(value.ToString());
        case VarType::Object:
            return Variant(value.ToObject());
        case VarType::Boolean:
            return Variant(value.ToBool());
        default:
            ThrowRuntimeError(TypeMismatchError);
    }
}

}  // namespace

SafeArray::SafeArray(VarType elementType, std::vector<SafeArrayBound> bounds)
    : elementType_(elementType), bounds_(std::move(bounds)) {
    uint64_t elementCount = bounds_.empty() ? 0 : 1;
    for (const SafeArrayBound& bound : bounds_) {
        elementCount *= bound.count;
        if (elementCount > MaxElements)
            ThrowRuntimeError(OutOfMemoryError);
    }
    elements_.assign(static_cast<size_t>(elementCount), DefaultElement(elementType));
}

SafeArray SafeArray::Matrix(VarType elementType, uint32_t rows, uint32_t columns) {
    return SafeArray(elementType, {SafeArrayBound{1, rows}, SafeArrayBound{1, columns}});
}

SafeArray SafeArray::Doubles(std::span<const double> values, int32_t lowerBound) {
    SafeArray array(VarType::Double, {SafeArrayBound{lowerBound, static_cast<uint32_t>(values.size())}});
    for (size_t i = 0; i < values.size(); ++i)
        array.Put(static_cast<uint32_t>(i), 0, Variant(values[i]));
    return array;
}

int32_t SafeArray::LowerBound(int32_t dimension) const {
    if (dimension < 1 || dimension > Dimensions())
        ThrowRuntimeError(SubscriptOutOfRangeError);
    return bounds_[static_cast<size_t>(dimension - 1)].lowerBound;
}

int32_t SafeArray::UpperBound(int32_t dimension) const {
    return LowerBound(dimension) + static_cast<int32_t>(Count(dimension)) - 1;
}

uint32_t SafeArray::Count(int32_t dimension) const {
    if (dimension < 1 || dimension > Dimensions())
        ThrowRuntimeError(SubscriptOutOfRangeError);
    return bounds_[static_cast<size_t>(dimension - 1)].count;
}

const Variant& SafeArray::Get(std::span<const int32_t> indices) const {
    return elements_[offsetOf(indices)];
}

void SafeArray::Set(std::span<const int32_t> indices, Variant value) {
    elements_[offsetOf(indices)] = ConvertToElementType(elementType_, std::move(value));
}

void SafeArray::Put(uint32_t row, uint32_t column, Variant value) {
    elements_[row + static_cast<size_t>(column) * rowCount()] = ConvertToElementType(elementType_, std::move(value));
}

size_t SafeArray::offsetOf(std::span<const int32_t> indices) const {
    if (indices.size() != bounds_.size())
        ThrowRuntimeError(SubscriptOutOfRangeError);
    size_t offset = 0;
    size_t stride = 1;
    for (size_t dimension = 0; dimension < bounds_.size(); ++dimension) {
        const SafeArrayBound& bound = bounds_[dimension];
        const int64_t position = static_cast<int64_t>(indices[dimension]) - bound.lowerBound;
        if (position < 0 || position >= static_cast<int64_t>(bound.count))
            ThrowRuntimeError(SubscriptOutOfRangeError);
        offset += static_cast<size_t>(position) * stride;
        stride *= bound.count;
    }
    return offset;
}

bool operator==(const SafeArray& a, const SafeArray& b) {
    return a.elementType_ == b.elementType_ && a.bounds_ == b.bounds_ && a.elements_ == b.elements_;
}

}  // namespace excel
