#include "support/array_services.hpp"

#include <excel/automation_error.hpp>
#include <excel/safe_array.hpp>

namespace vos {

namespace {

constexpr int32_t SubscriptOutOfRange = 9;

}  // namespace

bool ArrayServices::IsEmpty(const excel::Variant& value) const {
    return !value.IsArray() || IsEmpty(value.Array());
}

int32_t ArrayServices::Dimensions(const excel::Variant& value) const {
    return IsEmpty(value) ? 0 : Dimensions(value.Array());
}

size_t ArrayServices::ElementCount(const excel::Variant& value) const {
    return IsEmpty(value) ? 0 : ElementCount(value.Array());
}

int32_t ArrayServices::LowerBound(const excel::Variant& value) const {
    if (!value.IsArray())
        excel::ThrowRuntimeError(SubscriptOutOfRange);
    return LowerBound(value.Array());
}

bool ArrayServices::IsEmpty(const excel::SafeArray& array) const {
    return !array.IsAllocated() || array.ElementCount() == 0;
}

int32_t ArrayServices::Dimensions(const excel::SafeArray& array) const {
    return IsEmpty(array) ? 0 : array.Dimensions();
}

size_t ArrayServices::ElementCount(const excel::SafeArray& array) const {
    return IsEmpty(array) ? 0 : array.ElementCount();
}

int32_t ArrayServices::LowerBound(const excel::SafeArray& array) const {
    if (IsEmpty(array))
        excel::ThrowRuntimeError(SubscriptOutOfRange);
    return array.LowerBound(1);
}

}  // namespace vos
