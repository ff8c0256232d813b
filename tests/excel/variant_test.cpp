#include "excel/expect_runtime_error.hpp"

#include <excel/safe_array.hpp>
#include <excel/variant.hpp>

#include <gtest/gtest.h>

#include <limits>
#include <memory>

namespace {

using excel::Currency;
using excel::Date;
using excel::ErrorValue;
using excel::SafeArray;
using excel::Variant;
using excel::VarType;

class Thing : public excel::Object {};

// CVErr(xlErrNA)
const ErrorValue NotAvailable{static_cast<int32_t>(0x800A07FA)};

TEST(VariantTypeTest, ReportsTheHeldType) {
    EXPECT_EQ(Variant().Type(), VarType::Empty);
    EXPECT_EQ(Variant::Null().Type(), VarType::Null);
    EXPECT_EQ(Variant(int16_t{1}).Type(), VarType::Integer);
    EXPECT_EQ(Variant(1).Type(), VarType::Long);
    EXPECT_EQ(Variant(1.5f).Type(), VarType::Single);
    EXPECT_EQ(Variant(1.5).Type(), VarType::Double);
    EXPECT_EQ(Variant(Currency{15000}).Type(), VarType::Currency);
    EXPECT_EQ(Variant(Date{45000}).Type(), VarType::Date);
    EXPECT_EQ(Variant("x").Type(), VarType::String);
    EXPECT_EQ(Variant(std::make_shared<Thing>()).Type(), VarType::Object);
    EXPECT_EQ(Variant(NotAvailable).Type(), VarType::Error);
    EXPECT_EQ(Variant(true).Type(), VarType::Boolean);
}

TEST(VariantTypeTest, ArraysReportTheArrayFlagWithTheElementType) {
    EXPECT_EQ(static_cast<int>(Variant(std::vector<double>{1, 2}).Type()), 8192 + 5);
    EXPECT_EQ(static_cast<int>(Variant(SafeArray::Matrix(VarType::Variant, 2, 2)).Type()), 8192 + 12);
}

TEST(VariantTypeTest, Predicates) {
    EXPECT_TRUE(Variant().IsEmpty());
    EXPECT_FALSE(Variant(0).IsEmpty());
    EXPECT_TRUE(Variant::Null().IsNull());
    EXPECT_TRUE(Variant(NotAvailable).IsError());
    EXPECT_TRUE(Variant("a").IsString());
    EXPECT_TRUE(Variant(std::shared_ptr<excel::Object>()).IsObject());
    EXPECT_TRUE(Variant({1.0, 2.0}).IsArray());
    for (const Variant& numeric : {Variant(int16_t{1}), Variant(1), Variant(1.0f), Variant(1.0), Variant(Currency{1}),
                                   Variant(Date{1}), Variant(true)}) {
        EXPECT_TRUE(numeric.IsNumeric()) << static_cast<int>(numeric.Type());
    }
    for (const Variant& other : {Variant(), Variant::Null(), Variant("1"), Variant(NotAvailable)}) {
        EXPECT_FALSE(other.IsNumeric()) << static_cast<int>(other.Type());
    }
}

TEST(VariantToDoubleTest, ConvertsNumbersBooleansCurrencyAndDates) {
    EXPECT_EQ(Variant().ToDouble(), 0.0);
    EXPECT_EQ(Variant(int16_t{-7}).ToDouble(), -7.0);
    EXPECT_EQ(Variant(123456789).ToDouble(), 123456789.0);
    EXPECT_EQ(Variant(0.5f).ToDouble(), 0.5);
    EXPECT_EQ(Variant(2.25).ToDouble(), 2.25);
    EXPECT_EQ(Variant(Currency{12345}).ToDouble(), 1.2345);
    EXPECT_EQ(Variant(Date{45000.75}).ToDouble(), 45000.75);
    EXPECT_EQ(Variant(true).ToDouble(), -1.0);
    EXPECT_EQ(Variant(false).ToDouble(), 0.0);
}

TEST(VariantToDoubleTest, ParsesNumericStrings) {
    EXPECT_EQ(Variant("12").ToDouble(), 12.0);
    EXPECT_EQ(Variant("  1.5  ").ToDouble(), 1.5);
    EXPECT_EQ(Variant("-3").ToDouble(), -3.0);
    EXPECT_EQ(Variant("+4").ToDouble(), 4.0);
    EXPECT_EQ(Variant("1e3").ToDouble(), 1000.0);
    EXPECT_EQ(Variant("2.5E-2").ToDouble(), 0.025);
    EXPECT_EQ(Variant(".5").ToDouble(), 0.5);
    EXPECT_EQ(Variant("1,234.5").ToDouble(), 1234.5);
    EXPECT_EQ(Variant("(12)").ToDouble(), -12.0);
    EXPECT_EQ(Variant("&H1F").ToDouble(), 31.0);
    EXPECT_EQ(Variant("&hff").ToDouble(), 255.0);
    EXPECT_EQ(Variant("&HFFFF").ToDouble(), -1.0);  // a 16-bit literal
    EXPECT_EQ(Variant("&H10000").ToDouble(), 65536.0);
    EXPECT_EQ(Variant("&HFFFFFFFF").ToDouble(), -1.0);
    EXPECT_EQ(Variant("&O17").ToDouble(), 15.0);
}

TEST(VariantToDoubleTest, RefusesNonNumericValues) {
    for (const char* text : {"", "   ", "abc", "1a", "1.2.3", "e5", "1e", "--1", ",1", "&H", "&HG", "&Q1", "True"}) {
        ExpectTypeMismatch([text] { (void)Variant(text).ToDouble(); });
    }
    ExpectTypeMismatch([] { (void)Variant(NotAvailable).ToDouble(); });
    ExpectTypeMismatch([] { (void)Variant(std::make_shared<Thing>()).ToDouble(); });
    ExpectTypeMismatch([] { (void)Variant({1.0}).ToDouble(); });
}

TEST(VariantToDoubleTest, NullIsAnInvalidUse) {
    ExpectInvalidUseOfNull([] { (void)Variant::Null().ToDouble(); });
    ExpectInvalidUseOfNull([] { (void)Variant::Null().ToInt(); });
    ExpectInvalidUseOfNull([] { (void)Variant::Null().ToShort(); });
    ExpectInvalidUseOfNull([] { (void)Variant::Null().ToBool(); });
    ExpectInvalidUseOfNull([] { (void)Variant::Null().ToString(); });
}

TEST(VariantToDoubleTest, HugeNumericStringsOverflow) {
    ExpectOverflow([] { (void)Variant("1e400").ToDouble(); });
    ExpectOverflow([] { (void)Variant("&H100000000").ToDouble(); });
    EXPECT_EQ(Variant("1e-400").ToDouble(), 0.0);
}

TEST(VariantToIntTest, RoundsHalfToEven) {
    EXPECT_EQ(Variant(0.5).ToInt(), 0);
    EXPECT_EQ(Variant(1.5).ToInt(), 2);
    EXPECT_EQ(Variant(2.5).ToInt(), 2);
    EXPECT_EQ(Variant(2.5000001).ToInt(), 3);
    EXPECT_EQ(Variant(-2.5).ToInt(), -2);
    EXPECT_EQ(Variant(-3.5).ToInt(), -4);
    EXPECT_EQ(Variant(1.4).ToInt(), 1);
    EXPECT_EQ(Variant("3.5").ToInt(), 4);
    EXPECT_EQ(Variant(Currency{25000}).ToInt(), 2);
    EXPECT_EQ(Variant(Currency{35000}).ToInt(), 4);
    EXPECT_EQ(Variant(Currency{-25001}).ToInt(), -3);
    EXPECT_EQ(Variant(Date{45000.5}).ToInt(), 45000);
}

TEST(VariantToIntTest, ConvertsEmptyBooleansAndIntegers) {
    EXPECT_EQ(Variant().ToInt(), 0);
    EXPECT_EQ(Variant(true).ToInt(), -1);
    EXPECT_EQ(Variant(false).ToInt(), 0);
    EXPECT_EQ(Variant(int16_t{-300}).ToInt(), -300);
    EXPECT_EQ(Variant(std::numeric_limits<int32_t>::min()).ToInt(), std::numeric_limits<int32_t>::min());
}

TEST(VariantToIntTest, OverflowsOutsideTheLongRange) {
    EXPECT_EQ(Variant(2147483647.0).ToInt(), 2147483647);
    EXPECT_EQ(Variant(2147483647.4).ToInt(), 2147483647);
    EXPECT_EQ(Variant(-2147483648.5).ToInt(), std::numeric_limits<int32_t>::min());  // rounds to even
    ExpectOverflow([] { (void)Variant(2147483647.5).ToInt(); });
    ExpectOverflow([] { (void)Variant(-2147483649.0).ToInt(); });
    ExpectOverflow([] { (void)Variant("1e10").ToInt(); });
    ExpectOverflow([] { (void)Variant(std::numeric_limits<double>::quiet_NaN()).ToInt(); });
    ExpectOverflow([] { (void)Variant(Currency{21474836480000}).ToInt(); });
}

TEST(VariantToIntTest, RefusesNonNumericValues) {
    ExpectTypeMismatch([] { (void)Variant("twelve").ToInt(); });
    ExpectTypeMismatch([] { (void)Variant(NotAvailable).ToInt(); });
    ExpectTypeMismatch([] { (void)Variant(NotAvailable).ToShort(); });
}

TEST(VariantToShortTest, RoundsAndOverflowsOutsideTheIntegerRange) {
    EXPECT_EQ(Variant(32767.0).ToShort(), 32767);
    EXPECT_EQ(Variant(-32768.0).ToShort(), -32768);
    EXPECT_EQ(Variant(-32768.5).ToShort(), -32768);
    EXPECT_EQ(Variant(6.5).ToShort(), 6);
    EXPECT_EQ(Variant(7.5).ToShort(), 8);
    EXPECT_EQ(Variant("  -12 ").ToShort(), -12);
    EXPECT_EQ(Variant(true).ToShort(), -1);
    ExpectOverflow([] { (void)Variant(32767.5).ToShort(); });
    ExpectOverflow([] { (void)Variant(40000).ToShort(); });
    ExpectOverflow([] { (void)Variant(Currency{327680000}).ToShort(); });
}

TEST(VariantToBoolTest, NumbersAreTrueWhenNotZero) {
    EXPECT_FALSE(Variant().ToBool());
    EXPECT_FALSE(Variant(0).ToBool());
    EXPECT_TRUE(Variant(-1).ToBool());
    EXPECT_TRUE(Variant(0.001).ToBool());
    EXPECT_FALSE(Variant(0.0).ToBool());
    EXPECT_TRUE(Variant(Currency{1}).ToBool());
    EXPECT_FALSE(Variant(Currency{0}).ToBool());
    EXPECT_TRUE(Variant(true).ToBool());
}

TEST(VariantToBoolTest, ReadsTrueFalseInAnyCaseAndNumericStrings) {
    EXPECT_TRUE(Variant("True").ToBool());
    EXPECT_TRUE(Variant("TRUE").ToBool());
    EXPECT_TRUE(Variant("tRuE").ToBool());
    EXPECT_FALSE(Variant("false").ToBool());
    EXPECT_FALSE(Variant(" False ").ToBool());
    EXPECT_TRUE(Variant("2").ToBool());
    EXPECT_FALSE(Variant("0").ToBool());
    EXPECT_FALSE(Variant("0.0").ToBool());
    ExpectTypeMismatch([] { (void)Variant("yes").ToBool(); });
    ExpectTypeMismatch([] { (void)Variant("").ToBool(); });
    ExpectTypeMismatch([] { (void)Variant(NotAvailable).ToBool(); });
}

TEST(VariantToStringTest, SimpleValues) {
    EXPECT_EQ(Variant().ToString(), "");
    EXPECT_EQ(Variant(true).ToString(), "True");
    EXPECT_EQ(Variant(false).ToString(), "False");
    EXPECT_EQ(Variant(int16_t{-5}).ToString(), "-5");
    EXPECT_EQ(Variant(2147483647).ToString(), "2147483647");
    EXPECT_EQ(Variant("as is").ToString(), "as is");
}

TEST(VariantToStringTest, DoublesShowUpTo15SignificantDigits) {
    EXPECT_EQ(Variant(0.0).ToString(), "0");
    EXPECT_EQ(Variant(-0.0).ToString(), "0");
    EXPECT_EQ(Variant(1.0).ToString(), "1");
    EXPECT_EQ(Variant(1.5).ToString(), "1.5");
    EXPECT_EQ(Variant(-2.25).ToString(), "-2.25");
    EXPECT_EQ(Variant(0.1 + 0.2).ToString(), "0.3");
    EXPECT_EQ(Variant(1.0 / 3.0).ToString(), "0.333333333333333");
    EXPECT_EQ(Variant(2.0 / 3.0).ToString(), "0.666666666666667");
    EXPECT_EQ(Variant(100.0).ToString(), "100");
    EXPECT_EQ(Variant(123456789012345.0).ToString(), "123456789012345");
    EXPECT_EQ(Variant(0.0001).ToString(), "0.0001");
    EXPECT_EQ(Variant(0.000123).ToString(), "0.000123");
}

TEST(VariantToStringTest, DoublesUseTheExponentFormOutsideTheFixedRange) {
    EXPECT_EQ(Variant(1234567890123456.0).ToString(), "1.23456789012346E+15");
    EXPECT_EQ(Variant(1e15).ToString(), "1E+15");
    EXPECT_EQ(Variant(0.00001).ToString(), "1E-05");
    EXPECT_EQ(Variant(-0.0000125).ToString(), "-1.25E-05");
    EXPECT_EQ(Variant(1.5e300).ToString(), "1.5E+300");
    EXPECT_EQ(Variant(2.5e-120).ToString(), "2.5E-120");
}

TEST(VariantToStringTest, SinglesShowUpTo7SignificantDigits) {
    EXPECT_EQ(Variant(0.1f).ToString(), "0.1");
    EXPECT_EQ(Variant(1234567.0f).ToString(), "1234567");
    EXPECT_EQ(Variant(12345678.0f).ToString(), "1.234568E+07");
    EXPECT_EQ(Variant(1.0f / 3.0f).ToString(), "0.3333333");
}

TEST(VariantToStringTest, CurrencyShowsUpToFourDecimals) {
    EXPECT_EQ(Variant(Currency{12345}).ToString(), "1.2345");
    EXPECT_EQ(Variant(Currency{10000}).ToString(), "1");
    EXPECT_EQ(Variant(Currency{15000}).ToString(), "1.5");
    EXPECT_EQ(Variant(Currency{-5}).ToString(), "-0.0005");
    EXPECT_EQ(Variant(Currency{0}).ToString(), "0");
    EXPECT_EQ(Variant(Currency{std::numeric_limits<int64_t>::min()}).ToString(), "-922337203685477.5808");
}

TEST(VariantToStringTest, DatesUseTheUsDefaultFormat) {
    EXPECT_EQ(Variant(Date{45292}).ToString(), "1/1/2024");
    EXPECT_EQ(Variant(Date{45657}).ToString(), "12/31/2024");
    EXPECT_EQ(Variant(Date{1}).ToString(), "12/31/1899");
    EXPECT_EQ(Variant(Date{60}).ToString(), "2/28/1900");
    EXPECT_EQ(Variant(Date{61}).ToString(), "3/1/1900");
    EXPECT_EQ(Variant(Date{-1}).ToString(), "12/29/1899");
    EXPECT_EQ(Variant(Date{45292.5}).ToString(), "1/1/2024 12:00:00 PM");
    EXPECT_EQ(Variant(Date{45292.0 + (13 * 3600 + 5 * 60 + 9) / 86400.0}).ToString(), "1/1/2024 1:05:09 PM");
    EXPECT_EQ(Variant(Date{45292.0 + 30.0 / 86400.0}).ToString(), "1/1/2024 12:00:30 AM");
    EXPECT_EQ(Variant(Date{-1.25}).ToString(), "12/29/1899 6:00:00 AM");
}

TEST(VariantToStringTest, TimesAloneOnDayZero) {
    EXPECT_EQ(Variant(Date{0.5}).ToString(), "12:00:00 PM");
    EXPECT_EQ(Variant(Date{0.75}).ToString(), "6:00:00 PM");
    EXPECT_EQ(Variant(Date{(9 * 3600 + 30 * 60) / 86400.0}).ToString(), "9:30:00 AM");
    EXPECT_EQ(Variant(Date{0}).ToString(), "12:00:00 AM");
}

TEST(VariantToStringTest, ErrorValuesPrintTheirNumber) {
    EXPECT_EQ(Variant(NotAvailable).ToString(), "Error 2042");
    EXPECT_EQ(Variant(ErrorValue{2007}).ToString(), "Error 2007");
}

TEST(VariantToStringTest, RefusesObjectsAndArrays) {
    ExpectTypeMismatch([] { (void)Variant(std::make_shared<Thing>()).ToString(); });
    ExpectTypeMismatch([] { (void)Variant({1.0}).ToString(); });
}

TEST(VariantAccessTest, ErrorCodeOnlyForErrors) {
    EXPECT_EQ(Variant(NotAvailable).ErrorCode(), static_cast<int32_t>(0x800A07FA));
    ExpectTypeMismatch([] { (void)Variant(2042).ErrorCode(); });
}

TEST(VariantAccessTest, ObjectsComeBackTyped) {
    auto thing = std::make_shared<Thing>();
    const Variant held(thing);
    EXPECT_EQ(held.ToObject(), thing);
    EXPECT_EQ(held.As<Thing>(), thing);
    EXPECT_EQ(Variant(std::shared_ptr<excel::Object>()).ToObject(), nullptr);
    ExpectTypeMismatch([] { (void)Variant(1).ToObject(); });
    ExpectTypeMismatch([] { (void)Variant().ToObject(); });
}

TEST(VariantAccessTest, ArrayOnlyForArrays) {
    ExpectTypeMismatch([] { (void)Variant(1.0).Array(); });
    Variant array({1.0, 2.0});
    array.Array().Set({1}, Variant(5.0));
    EXPECT_EQ(array.Array().Get({1}), Variant(5.0));
}

TEST(VariantArrayTest, VectorsMakeZeroBasedTypedArrays) {
    const Variant numbers(std::vector<double>{1.5, 2.5, 3.5});
    ASSERT_TRUE(numbers.IsArray());
    const SafeArray& array = numbers.Array();
    EXPECT_EQ(array.ElementType(), VarType::Double);
    EXPECT_EQ(array.Dimensions(), 1);
    EXPECT_EQ(array.LowerBound(), 0);
    EXPECT_EQ(array.UpperBound(), 2);
    EXPECT_EQ(array.Get({2}), Variant(3.5));

    const Variant texts(std::vector<std::string>{"a", "b"});
    EXPECT_EQ(texts.Array().ElementType(), VarType::String);
    EXPECT_EQ(texts.Array().UpperBound(), 1);
    EXPECT_EQ(texts.Array().Get({0}), Variant("a"));

    const Variant listed{4.0, 5.0};
    EXPECT_EQ(listed, Variant(std::vector<double>{4.0, 5.0}));
}

TEST(VariantArrayTest, EmptyVectorsGiveAnArrayWithNoElements) {
    const Variant empty(std::vector<double>{});
    EXPECT_EQ(empty.Array().LowerBound(), 0);
    EXPECT_EQ(empty.Array().UpperBound(), -1);
    EXPECT_EQ(empty.Array().ElementCount(), 0u);
}

TEST(VariantCopyTest, CopiesAreDeep) {
    Variant original({1.0, 2.0});
    Variant copy = original;
    copy.Array().Set({0}, Variant(9.0));
    EXPECT_EQ(original.Array().Get({0}), Variant(1.0));
    EXPECT_EQ(copy.Array().Get({0}), Variant(9.0));

    Variant assigned;
    assigned = original;
    EXPECT_EQ(assigned, original);
    original.Array().Set({1}, Variant(7.0));
    EXPECT_NE(assigned, original);
}

TEST(VariantCopyTest, SelfAssignmentKeepsTheValue) {
    Variant value({1.0, 2.0});
    const Variant& alias = value;
    value = alias;
    EXPECT_EQ(value, Variant({1.0, 2.0}));
}

TEST(VariantCopyTest, MovesTransferTheArray) {
    Variant source({1.0, 2.0});
    Variant target(std::move(source));
    EXPECT_EQ(target, Variant({1.0, 2.0}));
    Variant other;
    other = std::move(target);
    EXPECT_EQ(other, Variant({1.0, 2.0}));
}

TEST(VariantEqualityTest, SameTypeAndValue) {
    EXPECT_EQ(Variant(), Variant());
    EXPECT_EQ(Variant::Null(), Variant::Null());
    EXPECT_NE(Variant(), Variant::Null());
    EXPECT_EQ(Variant(1), Variant(1));
    EXPECT_NE(Variant(1), Variant(1.0));  // Long and Double differ in type
    EXPECT_NE(Variant(1), Variant(int16_t{1}));
    EXPECT_EQ(Variant("a"), Variant(std::string("a")));
    EXPECT_NE(Variant("a"), Variant("A"));
    EXPECT_EQ(Variant(NotAvailable), Variant(NotAvailable));
    EXPECT_NE(Variant(Date{1}), Variant(1.0));
}

TEST(VariantEqualityTest, ObjectsCompareByIdentity) {
    auto first = std::make_shared<Thing>();
    auto second = std::make_shared<Thing>();
    EXPECT_EQ(Variant(first), Variant(first));
    EXPECT_NE(Variant(first), Variant(second));
}

}  // namespace
