#include "support/scale_service.hpp"

#include <excel/automation_error.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <ostream>
#include <string>

namespace {

using vos::NiceScaleReply;
using vos::ScaleService;

constexpr int32_t InvalidProcedureCallCode = static_cast<int32_t>(0x800A0005);
constexpr int32_t OverflowCode = static_cast<int32_t>(0x800A0006);
constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double Largest = std::numeric_limits<double>::max();

double UnitOf(const NiceScaleReply& reply) {
    return (reply.maximum - reply.minimum) / (reply.tickCount - 1);
}

// The 1, 2 or 5 times a power of ten that the reply's unit stands for, or 0 when there is none.
// The ends are doubles, so the unit read back from them carries their rounding error.
double RoundUnitOf(const NiceScaleReply& reply) {
    const double unit = UnitOf(reply);
    if (!(unit > 0.0) || !std::isfinite(unit)) {
        return 0.0;
    }
    const double endsNoise = 4 * std::numeric_limits<double>::epsilon() *
                             std::max(std::abs(reply.minimum), std::abs(reply.maximum)) / (reply.tickCount - 1);
    const int exponent = static_cast<int>(std::floor(std::log10(unit)));
    for (int candidateExponent = exponent - 1; candidateExponent <= exponent + 1; ++candidateExponent) {
        for (double mantissa : {1.0, 2.0, 5.0}) {
            const double candidate = mantissa * std::pow(10.0, candidateExponent);
            if (std::abs(unit - candidate) <= 1e-12 * candidate + endsNoise) {
                return candidate;
            }
        }
    }
    return 0.0;
}

// True when value is the double nearest to a decimal of at most 15 significant digits, as an
// end computed by repeated binary multiplication (0.1 * 3 = 0.30000000000000004) is not.
bool IsShortDecimal(double value) {
    char text[64];
    std::snprintf(text, sizeof(text), "%.15g", value);
    return std::strtod(text, nullptr) == value;
}

bool IsWholeMultiple(double value, double unit) {
    const double count = value / unit;
    return std::abs(count - std::round(count)) <= 1e-9 * std::max(1.0, std::abs(count));
}

NiceScaleReply Scale(double dataMinimum, double dataMaximum, bool gapBelow = false, bool gapAbove = false) {
    return ScaleService{}.NiceScale(dataMinimum, dataMaximum, gapBelow, gapAbove);
}

int32_t ErrorCodeOf(double dataMinimum, double dataMaximum, bool gapBelow = false, bool gapAbove = false) {
    try {
        Scale(dataMinimum, dataMaximum, gapBelow, gapAbove);
    } catch (const excel::AutomationError& error) {
        return error.code();
    }
    return 0;
}

struct ScaleCase {
    const char* name;
    double first;
    double second;
    bool gapBelow;
    bool gapAbove;
};

std::ostream& operator<<(std::ostream& out, const ScaleCase& scaleCase) {
    return out << scaleCase.name;
}

class NiceScaleInvariants : public testing::TestWithParam<ScaleCase> {};

TEST_P(NiceScaleInvariants, ReplyIsAValidRoundScaleCoveringTheData) {
    const ScaleCase& input = GetParam();
    const double low = std::min(input.first, input.second);
    const double high = std::max(input.first, input.second);

    const NiceScaleReply reply = Scale(input.first, input.second, input.gapBelow, input.gapAbove);

    EXPECT_GT(reply.maximum, reply.minimum);
    EXPECT_GE(reply.tickCount, 2);
    EXPECT_LE(reply.tickCount, 11);
    const double unit = RoundUnitOf(reply);
    EXPECT_GT(unit, 0.0) << "unit " << UnitOf(reply);
    EXPECT_TRUE(IsWholeMultiple(reply.minimum, unit)) << reply.minimum << " / " << unit;
    EXPECT_TRUE(IsWholeMultiple(reply.maximum, unit)) << reply.maximum << " / " << unit;
    EXPECT_TRUE(IsShortDecimal(reply.minimum)) << reply.minimum;
    EXPECT_TRUE(IsShortDecimal(reply.maximum)) << reply.maximum;

    EXPECT_LE(reply.minimum, low);
    EXPECT_GE(reply.maximum, high);
    if (input.gapBelow) {
        EXPECT_LT(reply.minimum, low);
    }
    if (input.gapAbove) {
        EXPECT_GT(reply.maximum, high);
    }
    if (low >= 0.0 && !input.gapBelow) {
        EXPECT_GE(reply.minimum, 0.0);
    }
    // All-zero data get the axis 0..1, so only data with a negative value keep the maximum at zero.
    if (high <= 0.0 && low < 0.0 && !input.gapAbove) {
        EXPECT_LE(reply.maximum, 0.0);
    }
}

const ScaleCase scaleCases[] = {
    {"ZeroToHundred", 0, 100, false, false},
    {"ZeroToHundredBothGaps", 0, 100, true, true},
    {"NearZeroToNearHundred", 3, 97, false, false},
    {"NearZeroGapBelow", 3, 97, true, false},
    {"NarrowFarFromZero", 1000, 1010, false, false},
    {"NarrowFarFromZeroBothGaps", 1000, 1010, true, true},
    {"Fractions", 0.07, 0.93, false, false},
    {"FractionsBothGaps", 0.07, 0.93, true, true},
    {"NarrowFractions", 0.31, 0.34, true, true},
    {"Negative", -97, -3, false, false},
    {"NegativeGapAbove", -100, 0, false, true},
    {"NegativeFarFromZero", -1010, -1000, false, false},
    {"CrossingZero", -37, 81, false, false},
    {"CrossingZeroBothGaps", -40, 80, true, true},
    {"CrossingZeroFractions", -0.003, 0.0071, false, false},
    {"Reversed", 97, 3, false, false},
    {"ReversedNegative", -3, -97, true, true},
    {"EqualPositive", 5, 5, false, false},
    {"EqualPositiveBothGaps", 5, 5, true, true},
    {"EqualZero", 0, 0, false, false},
    {"EqualZeroBothGaps", 0, 0, true, true},
    {"EqualNegative", -5, -5, false, false},
    {"EqualFraction", 0.3, 0.3, false, false},
    {"TinySpanAroundMillion", 1e6 - 1e-12, 1e6 + 1e-12, false, false},
    {"OneStepAboveMillion", 1e6, std::nextafter(1e6, 2e6), true, true},
    {"NanoSpanAroundMillion", 1e6, 1e6 + 1e-9, false, false},
    {"HugeMagnitude", 1e300, 3e300, false, false},
    {"HugeMagnitudeBothGaps", -2e300, 7e299, true, true},
    {"HugeNarrowSpan", 1e300, 1.0000001e300, false, false},
    {"TinyMagnitude", 1e-305, 7e-305, false, false},
    {"SubnormalData", 0, 1e-310, true, true},
    {"NegativeZero", -0.0, 10, false, false},
    {"CloseToLargestDouble", 0, 1.5e308, false, false},
};

INSTANTIATE_TEST_SUITE_P(NiceScale, NiceScaleInvariants, testing::ValuesIn(scaleCases),
                         [](const testing::TestParamInfo<ScaleCase>& param) { return std::string(param.param.name); });

TEST(NiceScale, ZeroToHundredWithoutGapsEndsOnTheData) {
    const NiceScaleReply reply = Scale(0, 100);
    EXPECT_EQ(reply.minimum, 0.0);
    EXPECT_EQ(reply.maximum, 100.0);
    EXPECT_EQ(reply.tickCount, 11);
}

TEST(NiceScale, GapsPutEndsThatFallOnMultiplesStrictlyBeyondTheData) {
    const NiceScaleReply both = Scale(0, 100, true, true);
    EXPECT_LT(both.minimum, 0.0);
    EXPECT_GT(both.maximum, 100.0);

    const NiceScaleReply below = Scale(0, 100, true, false);
    EXPECT_LT(below.minimum, 0.0);
    EXPECT_EQ(below.maximum, 100.0);

    const NiceScaleReply above = Scale(0, 100, false, true);
    EXPECT_EQ(above.minimum, 0.0);
    EXPECT_GT(above.maximum, 100.0);
}

TEST(NiceScale, GapsAlreadyLeftByRoundingAddNothing) {
    const NiceScaleReply plain = Scale(3, 97);
    const NiceScaleReply gapped = Scale(3, 97, true, true);
    EXPECT_EQ(gapped.minimum, plain.minimum);
    EXPECT_EQ(gapped.maximum, plain.maximum);
}

TEST(NiceScale, PicksTheSmallestUnitWithAtMostTenIntervals) {
    // 0..100 fits ten intervals of 10; 0..101 needs eleven, so the unit grows to 20.
    EXPECT_EQ(UnitOf(Scale(0, 100)), 10.0);
    const NiceScaleReply wider = Scale(0, 101);
    EXPECT_EQ(UnitOf(wider), 20.0);
    EXPECT_EQ(wider.maximum, 120.0);
}

TEST(NiceScale, DecimalEndsAreTheNearestDoubles) {
    const NiceScaleReply fractions = Scale(0.07, 0.93);
    EXPECT_EQ(fractions.minimum, 0.0);
    EXPECT_EQ(fractions.maximum, 1.0);

    const NiceScaleReply crossing = Scale(-0.07, 0.93, true, true);
    EXPECT_EQ(crossing.minimum, -0.2);
    EXPECT_EQ(crossing.maximum, 1.0);

    const NiceScaleReply tenths = Scale(-0.27, 0.27);
    EXPECT_EQ(tenths.minimum, -0.3);
    EXPECT_EQ(tenths.maximum, 0.3);

    const NiceScaleReply narrow = Scale(0.31, 0.34, true, false);
    EXPECT_EQ(narrow.minimum, 0.305);
    EXPECT_EQ(narrow.maximum, 0.34);

    const NiceScaleReply thirds = Scale(0.27, 0.33, true, true);
    EXPECT_EQ(thirds.minimum, 0.0);
    EXPECT_EQ(thirds.maximum, 0.35);
}

TEST(NiceScale, StretchesToZeroWhenTheDataStartCloseToIt) {
    const NiceScaleReply positive = Scale(3, 97);
    EXPECT_EQ(positive.minimum, 0.0);
    EXPECT_EQ(positive.maximum, 100.0);

    const NiceScaleReply negative = Scale(-97, -3);
    EXPECT_EQ(negative.minimum, -100.0);
    EXPECT_EQ(negative.maximum, 0.0);

    // A span of half the maximum is well past a sixth.
    EXPECT_EQ(Scale(50, 100).minimum, 0.0);
    EXPECT_EQ(Scale(-100, -50).maximum, 0.0);
}

TEST(NiceScale, StaysAroundDataFarFromZero) {
    const NiceScaleReply positive = Scale(1000, 1010);
    EXPECT_EQ(positive.minimum, 1000.0);
    EXPECT_EQ(positive.maximum, 1010.0);

    const NiceScaleReply negative = Scale(-1010, -1000);
    EXPECT_EQ(negative.minimum, -1010.0);
    EXPECT_EQ(negative.maximum, -1000.0);

    // A span of a tenth of the maximum is under a sixth.
    EXPECT_GT(Scale(90, 100).minimum, 0.0);
    EXPECT_LT(Scale(-100, -90).maximum, 0.0);
}

TEST(NiceScale, ZeroEndCountsAsAGapOnlyWhenTheDataStopShortOfIt) {
    EXPECT_EQ(Scale(3, 97, true, false).minimum, 0.0);
    EXPECT_LT(Scale(0, 97, true, false).minimum, 0.0);
    EXPECT_EQ(Scale(-97, -3, false, true).maximum, 0.0);
    EXPECT_GT(Scale(-97, 0, false, true).maximum, 0.0);
}

TEST(NiceScale, ReversedDataGiveTheSameScale) {
    const NiceScaleReply ordered = Scale(-37, 81, true, false);
    const NiceScaleReply reversed = Scale(81, -37, true, false);
    EXPECT_EQ(reversed.minimum, ordered.minimum);
    EXPECT_EQ(reversed.maximum, ordered.maximum);
    EXPECT_EQ(reversed.tickCount, ordered.tickCount);
}

TEST(NiceScale, SingleValueIsABarFromZeroWithRoomBeyond) {
    const NiceScaleReply positive = Scale(5, 5);
    EXPECT_EQ(positive.minimum, 0.0);
    EXPECT_EQ(positive.maximum, 6.0);

    const NiceScaleReply negative = Scale(-5, -5);
    EXPECT_EQ(negative.minimum, -6.0);
    EXPECT_EQ(negative.maximum, 0.0);

    const NiceScaleReply zero = Scale(0, 0);
    EXPECT_EQ(zero.minimum, 0.0);
    EXPECT_EQ(zero.maximum, 1.0);
}

TEST(NiceScale, NonFiniteDataAreAnInvalidProcedureCall) {
    EXPECT_EQ(ErrorCodeOf(NotANumber, 1), InvalidProcedureCallCode);
    EXPECT_EQ(ErrorCodeOf(1, NotANumber), InvalidProcedureCallCode);
    EXPECT_EQ(ErrorCodeOf(Infinity, 1), InvalidProcedureCallCode);
    EXPECT_EQ(ErrorCodeOf(0, -Infinity), InvalidProcedureCallCode);
    EXPECT_EQ(ErrorCodeOf(-Infinity, Infinity), InvalidProcedureCallCode);
}

TEST(NiceScale, EndsBeyondTheDoubleRangeAreAnOverflow) {
    EXPECT_EQ(ErrorCodeOf(1.7e308, 1.7e308), OverflowCode);
    EXPECT_EQ(ErrorCodeOf(-1.7e308, -1.7e308), OverflowCode);
    EXPECT_EQ(ErrorCodeOf(-1.7e308, 1.7e308), OverflowCode);
    EXPECT_EQ(ErrorCodeOf(0, Largest), OverflowCode);
    EXPECT_EQ(ErrorCodeOf(-Largest, 0), OverflowCode);
    // A gap one unit beyond ends that themselves still fit.
    EXPECT_EQ(ErrorCodeOf(0, 1.6e308, false, true), OverflowCode);
}

TEST(NiceScale, TinySpansFarFromZeroKeepDistinctTicks) {
    const double low = 1e6;
    const double high = std::nextafter(low, 2e6);
    const NiceScaleReply reply = Scale(low, high);
    EXPECT_LE(reply.minimum, low);
    EXPECT_GE(reply.maximum, high);
    EXPECT_GT(reply.minimum, 0.0);
    EXPECT_GT(reply.maximum - reply.minimum, 0.0);
    EXPECT_LE(reply.maximum - reply.minimum, 1e-6);
}

}  // namespace
