#include "excel/embedded/text/general_format.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using excel::embedded::FormatGeneral;

TEST(GeneralFormatTest, Integers) {
    EXPECT_EQ(FormatGeneral(0), "0");
    EXPECT_EQ(FormatGeneral(-0.0), "0");
    EXPECT_EQ(FormatGeneral(1), "1");
    EXPECT_EQ(FormatGeneral(-42), "-42");
    EXPECT_EQ(FormatGeneral(12345678901), "12345678901");
    EXPECT_EQ(FormatGeneral(-1234567890), "-1234567890");
}

TEST(GeneralFormatTest, IntegersTooWideGoScientific) {
    EXPECT_EQ(FormatGeneral(123456789012), "1.23457E+11");
    EXPECT_EQ(FormatGeneral(-12345678901), "-1.2346E+10");
    EXPECT_EQ(FormatGeneral(100000000000), "1E+11");
    EXPECT_EQ(FormatGeneral(99999999999.7), "1E+11");
    EXPECT_EQ(FormatGeneral(1e15), "1E+15");
    EXPECT_EQ(FormatGeneral(1.5e300), "1.5E+300");
}

TEST(GeneralFormatTest, DecimalsFillTheCell) {
    EXPECT_EQ(FormatGeneral(1.0 / 3.0), "0.333333333");
    EXPECT_EQ(FormatGeneral(2.0 / 3.0), "0.666666667");
    EXPECT_EQ(FormatGeneral(-1.0 / 3.0), "-0.33333333");
    EXPECT_EQ(FormatGeneral(1.5), "1.5");
    EXPECT_EQ(FormatGeneral(0.1 + 0.2), "0.3");
    EXPECT_EQ(FormatGeneral(123.456789012), "123.456789");
    EXPECT_EQ(FormatGeneral(1234567.891234), "1234567.891");
    EXPECT_EQ(FormatGeneral(3.14159265358979), "3.141592654");
    EXPECT_EQ(FormatGeneral(12345678901.5), "12345678902");
}

TEST(GeneralFormatTest, SmallNumbers) {
    EXPECT_EQ(FormatGeneral(0.0001), "0.0001");
    EXPECT_EQ(FormatGeneral(0.000123456789), "0.000123457");
    EXPECT_EQ(FormatGeneral(0.00001), "1E-05");
    EXPECT_EQ(FormatGeneral(0.0000123456), "1.23456E-05");
    EXPECT_EQ(FormatGeneral(-0.0000123456), "-1.2346E-05");
    EXPECT_EQ(FormatGeneral(1e-10), "1E-10");
    EXPECT_EQ(FormatGeneral(2.5e-300), "2.5E-300");
}

TEST(GeneralFormatTest, NeverWiderThanElevenCharacters) {
    for (double value : {1.0 / 7.0, -1.0 / 7.0, 98765432109.87, -98765432109.87, 1.23456789e-7, -9.87654321e200,
                         123456.789012345, 0.000999999999999}) {
        EXPECT_LE(FormatGeneral(value).size(), 11u) << value;
    }
}

TEST(GeneralFormatTest, NotANumberShowsAsNumError) {
    EXPECT_EQ(FormatGeneral(std::numeric_limits<double>::quiet_NaN()), "#NUM!");
    EXPECT_EQ(FormatGeneral(std::numeric_limits<double>::infinity()), "#NUM!");
}

}  // namespace
