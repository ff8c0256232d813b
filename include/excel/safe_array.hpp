#pragma once

#include <excel/var_type.hpp>
#include <excel/variant.hpp>
#include <excel/export.hpp>

#include <cstdint>
#include <initializer_list>
#include <span>
#include <vector>

namespace excel {

struct SafeArrayBound {
    int32_t lowerBound = 0;
    uint32_t count = 0;
    friend bool operator==(const SafeArrayBound&, const SafeArrayBound&) = default;
};

// An automation SAFEARRAY: an element type, a number of dimensions and each dimension's lower
// bound and element count. An array made with no bounds is unallocated (VBA's "Dim a() As Double"
// before ReDim): it has 0 dimensions and asking for its bounds fails with subscript out of range.
// Indices are given in dimension order; Get/Set check them against the bounds (runtime error 9).
// Setting an element converts the value to the element type (type mismatch where it cannot).
class VOS_EXPORT SafeArray {
public:
    SafeArray(VarType elementType, std::vector<SafeArrayBound> bounds);

    // A rows x columns array with lower bounds 1, the shape Excel's Range.Value uses.
    static SafeArray Matrix(VarType elementType, uint32_t rows, uint32_t columns);
    // A one-dimensional array of doubles from lowerBound on, as VBA's "Dim a(1 To n) As Double".
    static SafeArray Doubles(std::span<const double> values, int32_t lowerBound = 1);

    VarType ElementType() const { return elementType_; }
    int32_t Dimensions() const { return static_cast<int32_t>(bounds_.size()); }
    // Dimensions are numbered from 1, as VBA's LBound(a, d) numbers them.
    int32_t LowerBound(int32_t dimension = 1) const;
    int32_t UpperBound(int32_t dimension = 1) const;
    uint32_t Count(int32_t dimension = 1) const;
    size_t ElementCount() const { return elements_.size(); }
    bool IsAllocated() const { return !bounds_.empty(); }

    const Variant& Get(std::span<const int32_t> indices) const;
    const Variant& Get(std::initializer_list<int32_t> indices) const {
        return Get(std::span<const int32_t>(indices.begin(), indices.size()));
    }
    void Set(std::span<const int32_t> indices, Variant value);
    void Set(std::initializer_list<int32_t> indices, Variant value) {
        Set(std::span<const int32_t>(indices.begin(), indices.size()), std::move(value));
    }

    // Elements in storage order: the first index varies fastest, as in a COM SAFEARRAY.
    const std::vector<Variant>& Elements() const { return elements_; }
    // Unchecked fast access for 2-D arrays, zero-based offsets from the lower bounds.
    const Variant& At(uint32_t row, uint32_t column) const { return elements_[row + static_cast<size_t>(column) * rowCount()]; }
    void Put(uint32_t row, uint32_t column, Variant value);

    friend VOS_EXPORT bool operator==(const SafeArray& a, const SafeArray& b);

private:
    size_t offsetOf(std::span<const int32_t> indices) const;
    size_t rowCount() const { return bounds_.empty() ? 0 : bounds_[0].count; }

    VarType elementType_;
    std::vector<SafeArrayBound> bounds_;
    std::vector<Variant> elements_;
};

}  // namespace excel
