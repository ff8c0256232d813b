#include "support/array_services.hpp"

#include <excel/automation_error.hpp>
#include <excel/safe_array.hpp>

namespace vos {

namespace {

constexpr int32_t SubscriptOutOfRange = 9;

}  // namespace

bool ArrayServices::IsEmpty(const excel::Variant& value) const {
    return !value.IsArray() || !value.Array().IsAllocated() || value.Array().ElementCount() == 0;
}

int32_t ArrayServices::Dimensions(const excel::Variant& value) const {
    return IsEmpty(value) ? 0 : value.Array().Dimensions();
}

size_t ArrayServices::ElementCount(const excel::Variant& value) const {
    return IsEmpty(value) ? 0 : value.Array().ElementCount();
}

int32_t ArrayServices::LowerBound(const excel::Variant& value) const {
    if (IsEmpty(value))
        excel::ThrowRuntimeError(SubscriptOutOfRange);
    return value.Array().LowerBound(1);
}

}  // namespace vos
