#include "support/support_services.hpp"

#include <excel/automation_error.hpp>
#include <excel/safe_array.hpp>

#include <gtest/gtest.h>

namespace {

const vos::ArrayServices& arrays = vos::Support().Arrays();

excel::Variant DoublesFrom(int32_t lowerBound, uint32_t count) {
    return excel::SafeArray(excel::VarType::Double, {{lowerBound, count}});
}

}  // namespace

TEST(ArrayServices, AOneDimensionalArrayReportsItsShape) {
    const excel::Variant values = DoublesFrom(1, 5);
    EXPECT_FALSE(arrays.IsEmpty(values));
    EXPECT_EQ(arrays.Dimensions(values), 1);
    EXPECT_EQ(arrays.ElementCount(values), 5u);
    EXPECT_EQ(arrays.LowerBound(values), 1);
    EXPECT_EQ(arrays.LowerBound(excel::Variant(std::vector<double>{1, 2})), 0);
}

TEST(ArrayServices, ATwoDimensionalArrayCountsAllElements) {
    const excel::Variant matrix = excel::SafeArray::Matrix(excel::VarType::Variant, 3, 2);
    EXPECT_EQ(arrays.Dimensions(matrix), 2);
    EXPECT_EQ(arrays.ElementCount(matrix), 6u);
}

TEST(ArrayServices, NoArrayOrNoElementsIsEmpty) {
    EXPECT_TRUE(arrays.IsEmpty(excel::Variant()));
    EXPECT_TRUE(arrays.IsEmpty(excel::Variant(3.0)));
    EXPECT_TRUE(arrays.IsEmpty(DoublesFrom(1, 0)));
    EXPECT_EQ(arrays.Dimensions(excel::Variant()), 0);
    EXPECT_EQ(arrays.ElementCount(DoublesFrom(1, 0)), 0u);
}

TEST(ArrayServices, AnEmptyArrayHasNoLowerBound) {
    try {
        arrays.LowerBound(DoublesFrom(1, 0));
        ADD_FAILURE() << "expected Subscript out of range";
    } catch (const excel::AutomationError& error) {
        EXPECT_EQ(error.code(), excel::hresult::SubscriptOutOfRange);
    }
}
