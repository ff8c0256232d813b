#pragma once

#include <excel/variant.hpp>

#include <cstddef>
#include <cstdint>

namespace vos {

// Shape checks on arrays passed in variants. A variant that holds no array, or an array without
// dimensions or elements, is empty.
class ArrayServices {
public:
    bool IsEmpty(const excel::Variant& value) const;
    // Number of dimensions; 0 when empty.
    int32_t Dimensions(const excel::Variant& value) const;
    // Number of elements over all dimensions; 0 when empty.
    size_t ElementCount(const excel::Variant& value) const;
    // Lower bound of the first dimension. An empty array has none: asking fails with the
    // runtime's "Subscript out of range", as LBound does.
    int32_t LowerBound(const excel::Variant& value) const;

    // The same checks on a typed array passed by itself, as arrays of doubles are.
    bool IsEmpty(const excel::SafeArray& array) const;
    int32_t Dimensions(const excel::SafeArray& array) const;
    size_t ElementCount(const excel::SafeArray& array) const;
    int32_t LowerBound(const excel::SafeArray& array) const;
};

}  // namespace vos
