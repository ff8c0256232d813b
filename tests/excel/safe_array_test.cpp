#include "excel/expect_runtime_error.hpp"

#include <excel/safe_array.hpp>
#include <excel/variant.hpp>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace {

using excel::Currency;
using excel::Date;
using excel::ErrorValue;
using excel::SafeArray;
using excel::SafeArrayBound;
using excel::Variant;
using excel::VarType;

class Thing : public excel::Object {};

TEST(SafeArrayShapeTest, BoundsPerDimension) {
    const SafeArray array(VarType::Long, {SafeArrayBound{-2, 5}, SafeArrayBound{1, 3}});
    EXPECT_EQ(array.Dimensions(), 2);
    EXPECT_EQ(array.LowerBound(1), -2);
    EXPECT_EQ(array.UpperBound(1), 2);
    EXPECT_EQ(array.Count(1), 5u);
    EXPECT_EQ(array.LowerBound(2), 1);
    EXPECT_EQ(array.UpperBound(2), 3);
    EXPECT_EQ(array.ElementCount(), 15u);
    EXPECT_TRUE(array.IsAllocated());
    EXPECT_EQ(array.ElementType(), VarType::Long);
}

TEST(SafeArrayShapeTest, MatrixIsOneBased) {
    const SafeArray matrix = SafeArray::Matrix(VarType::Variant, 3, 2);
    EXPECT_EQ(matrix.Dimensions(), 2);
    EXPECT_EQ(matrix.LowerBound(1), 1);
    EXPECT_EQ(matrix.UpperBound(1), 3);
    EXPECT_EQ(matrix.LowerBound(2), 1);
    EXPECT_EQ(matrix.UpperBound(2), 2);
}

TEST(SafeArrayShapeTest, UnallocatedArrayHasNoBounds) {
    const SafeArray unallocated(VarType::Double, {});
    EXPECT_FALSE(unallocated.IsAllocated());
    EXPECT_EQ(unallocated.Dimensions(), 0);
    EXPECT_EQ(unallocated.ElementCount(), 0u);
    ExpectSubscriptOutOfRange([&] { (void)unallocated.LowerBound(); });
    ExpectSubscriptOutOfRange([&] { (void)unallocated.UpperBound(); });
    ExpectSubscriptOutOfRange([&] { (void)unallocated.Count(); });
    ExpectSubscriptOutOfRange([&] { (void)unallocated.Get({0}); });
}

TEST(SafeArrayShapeTest, AskingForAMissingDimensionIsOutOfRange) {
    const SafeArray array(VarType::Double, {SafeArrayBound{0, 2}});
    ExpectSubscriptOutOfRange([&] { (void)array.LowerBound(0); });
    ExpectSubscriptOutOfRange([&] { (void)array.UpperBound(2); });
}

TEST(SafeArrayShapeTest, TooManyElementsRunOutOfMemory) {
    ExpectRuntimeError([] { (void)SafeArray::Matrix(VarType::Variant, 1048576, 16384); }, 7, "Out of memory");
}

TEST(SafeArrayShapeTest, ElementsStartAtTheTypesDefault) {
    EXPECT_EQ(SafeArray(VarType::Double, {SafeArrayBound{0, 1}}).Get({0}), Variant(0.0));
    EXPECT_EQ(SafeArray(VarType::Long, {SafeArrayBound{0, 1}}).Get({0}), Variant(0));
    EXPECT_EQ(SafeArray(VarType::Integer, {SafeArrayBound{0, 1}}).Get({0}), Variant(int16_t{0}));
    EXPECT_EQ(SafeArray(VarType::String, {SafeArrayBound{0, 1}}).Get({0}), Variant(""));
    EXPECT_EQ(SafeArray(VarType::Boolean, {SafeArrayBound{0, 1}}).Get({0}), Variant(false));
    EXPECT_EQ(SafeArray(VarType::Variant, {SafeArrayBound{0, 1}}).Get({0}), Variant());
    EXPECT_EQ(SafeArray(VarType::Object, {SafeArrayBound{0, 1}}).Get({0}), Variant(std::shared_ptr<excel::Object>()));
    EXPECT_EQ(SafeArray(VarType::Date, {SafeArrayBound{0, 1}}).Get({0}), Variant(Date{0}));
    EXPECT_EQ(SafeArray(VarType::Currency, {SafeArrayBound{0, 1}}).Get({0}), Variant(Currency{0}));
}

TEST(SafeArrayShapeTest, ElementTypesWithoutValuesAreRefused) {
    ExpectRuntimeError(
        [] {
            (void)SafeArray(VarType::Empty, {SafeArrayBound{0, 1}});
        },
        5, "Invalid procedure call or argument");
    ExpectRuntimeError(
        [] {
            (void)SafeArray(VarType::Null, {SafeArrayBound{0, 1}});
        },
        5, "Invalid procedure call or argument");
}

TEST(SafeArrayIndexTest, GetAndSetWithinTheBounds) {
    SafeArray array(VarType::Variant, {SafeArrayBound{-1, 3}, SafeArrayBound{5, 2}});
    array.Set({-1, 5}, Variant("first"));
    array.Set({1, 6}, Variant(42));
    EXPECT_EQ(array.Get({-1, 5}), Variant("first"));
    EXPECT_EQ(array.Get({1, 6}), Variant(42));
    EXPECT_EQ(array.Get({0, 5}), Variant());
}

TEST(SafeArrayIndexTest, OutsideTheBoundsIsSubscriptOutOfRange) {
    SafeArray array(VarType::Double, {SafeArrayBound{1, 3}, SafeArrayBound{1, 2}});
    ExpectSubscriptOutOfRange([&] { (void)array.Get({0, 1}); });
    ExpectSubscriptOutOfRange([&] { (void)array.Get({4, 1}); });
    ExpectSubscriptOutOfRange([&] { (void)array.Get({1, 3}); });
    ExpectSubscriptOutOfRange([&] { array.Set({1, 0}, Variant(1.0)); });
}

TEST(SafeArrayIndexTest, WrongNumberOfIndicesIsSubscriptOutOfRange) {
    SafeArray array = SafeArray::Matrix(VarType::Double, 2, 2);
    ExpectSubscriptOutOfRange([&] { (void)array.Get({1}); });
    ExpectSubscriptOutOfRange([&] { (void)array.Get({1, 1, 1}); });
}

TEST(SafeArrayIndexTest, StorageOrderHasTheFirstIndexFastest) {
    SafeArray matrix = SafeArray::Matrix(VarType::Long, 2, 3);
    int32_t value = 0;
    for (int32_t column = 1; column <= 3; ++column) {
        for (int32_t row = 1; row <= 2; ++row)
            matrix.Set({row, column}, Variant(++value));
    }
    const std::vector<Variant> expected{Variant(1), Variant(2), Variant(3), Variant(4), Variant(5), Variant(6)};
    EXPECT_EQ(matrix.Elements(), expected);
    EXPECT_EQ(matrix.At(1, 2), Variant(6));
    EXPECT_EQ(matrix.At(0, 1), Variant(3));
}

TEST(SafeArrayIndexTest, PutWritesByZeroBasedOffsets) {
    SafeArray matrix = SafeArray::Matrix(VarType::Variant, 2, 2);
    matrix.Put(1, 0, Variant("row 2, column 1"));
    EXPECT_EQ(matrix.Get({2, 1}), Variant("row 2, column 1"));
}

TEST(SafeArrayConversionTest, TypedElementsConvertOnSet) {
    SafeArray doubles(VarType::Double, {SafeArrayBound{0, 3}});
    doubles.Set({0}, Variant(3));
    doubles.Set({1}, Variant(" 2.5 "));
    doubles.Set({2}, Variant(true));
    EXPECT_EQ(doubles.Get({0}), Variant(3.0));
    EXPECT_EQ(doubles.Get({1}), Variant(2.5));
    EXPECT_EQ(doubles.Get({2}), Variant(-1.0));

    SafeArray longs(VarType::Long, {SafeArrayBound{0, 1}});
    longs.Set({0}, Variant(2.5));
    EXPECT_EQ(longs.Get({0}), Variant(2));

    SafeArray strings(VarType::String, {SafeArrayBound{0, 2}});
    strings.Set({0}, Variant(1.5));
    strings.Set({1}, Variant(false));
    EXPECT_EQ(strings.Get({0}), Variant("1.5"));
    EXPECT_EQ(strings.Get({1}), Variant("False"));

    SafeArray flags(VarType::Boolean, {SafeArrayBound{0, 1}});
    flags.Set({0}, Variant("true"));
    EXPECT_EQ(flags.Get({0}), Variant(true));

    SafeArray amounts(VarType::Currency, {SafeArrayBound{0, 1}});
    amounts.Set({0}, Variant(1.23456));
    EXPECT_EQ(amounts.Get({0}), Variant(Currency{12346}));

    SafeArray dates(VarType::Date, {SafeArrayBound{0, 1}});
    dates.Set({0}, Variant(45292.5));
    EXPECT_EQ(dates.Get({0}), Variant(Date{45292.5}));

    SafeArray singles(VarType::Single, {SafeArrayBound{0, 1}});
    singles.Set({0}, Variant(0.5));
    EXPECT_EQ(singles.Get({0}), Variant(0.5f));
}

TEST(SafeArrayConversionTest, VariantElementsKeepAnything) {
    SafeArray variants(VarType::Variant, {SafeArrayBound{0, 4}});
    variants.Set({0}, Variant::Null());
    variants.Set({1}, Variant(ErrorValue{2042}));
    variants.Set({2}, Variant({1.0, 2.0}));
    variants.Set({3}, Variant(int16_t{3}));
    EXPECT_TRUE(variants.Get({0}).IsNull());
    EXPECT_TRUE(variants.Get({1}).IsError());
    EXPECT_EQ(variants.Get({2}), Variant({1.0, 2.0}));
    EXPECT_EQ(variants.Get({3}).Type(), VarType::Integer);
}

TEST(SafeArrayConversionTest, UnconvertibleValuesAreRefused) {
    SafeArray doubles(VarType::Double, {SafeArrayBound{0, 1}});
    ExpectTypeMismatch([&] { doubles.Set({0}, Variant("abc")); });
    ExpectTypeMismatch([&] { doubles.Set({0}, Variant(ErrorValue{2042})); });
    ExpectInvalidUseOfNull([&] { doubles.Set({0}, Variant::Null()); });
    EXPECT_EQ(doubles.Get({0}), Variant(0.0));

    SafeArray integers(VarType::Integer, {SafeArrayBound{0, 1}});
    ExpectOverflow([&] { integers.Set({0}, Variant(40000)); });

    SafeArray bytes(VarType::Byte, {SafeArrayBound{0, 1}});
    bytes.Set({0}, Variant(255));
    EXPECT_EQ(bytes.Get({0}).ToInt(), 255);
    ExpectOverflow([&] { bytes.Set({0}, Variant(256)); });
    ExpectOverflow([&] { bytes.Set({0}, Variant(-1)); });

    SafeArray objects(VarType::Object, {SafeArrayBound{0, 1}});
    ExpectTypeMismatch([&] { objects.Set({0}, Variant(1)); });
    auto thing = std::make_shared<Thing>();
    objects.Set({0}, Variant(thing));
    EXPECT_EQ(objects.Get({0}).ToObject(), thing);

    SafeArray errors(VarType::Error, {SafeArrayBound{0, 1}});
    ExpectTypeMismatch([&] { errors.Set({0}, Variant(2042)); });

    SafeArray dates(VarType::Date, {SafeArrayBound{0, 1}});
    ExpectOverflow([&] { dates.Set({0}, Variant(3e6)); });

    SafeArray singles(VarType::Single, {SafeArrayBound{0, 1}});
    ExpectOverflow([&] { singles.Set({0}, Variant(1e39)); });
}

TEST(SafeArrayCopyTest, CopiesAreDeepAndCompareEqual) {
    SafeArray original(VarType::Variant, {SafeArrayBound{0, 2}});
    original.Set({0}, Variant({1.0, 2.0}));
    SafeArray copy = original;
    EXPECT_EQ(copy, original);
    copy.Set({1}, Variant("changed"));
    EXPECT_FALSE(copy == original);
    EXPECT_EQ(original.Get({1}), Variant());
}

TEST(SafeArrayEqualityTest, ElementTypeAndBoundsMatter) {
    const SafeArray doubles(VarType::Double, {SafeArrayBound{0, 2}});
    EXPECT_EQ(doubles, SafeArray(VarType::Double, {SafeArrayBound{0, 2}}));
    EXPECT_FALSE(doubles == SafeArray(VarType::Double, {SafeArrayBound{1, 2}}));
    EXPECT_FALSE(doubles == SafeArray(VarType::Double, {SafeArrayBound{0, 3}}));
    EXPECT_FALSE(doubles == SafeArray(VarType::Variant, {SafeArrayBound{0, 2}}));
    EXPECT_FALSE(doubles == SafeArray(VarType::Double, {SafeArrayBound{0, 1}, SafeArrayBound{0, 2}}));
}

}  // namespace
