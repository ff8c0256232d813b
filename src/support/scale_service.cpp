#include "support/scale_service.hpp"

#include <excel/automation_error.hpp>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <system_error>

namespace vos {

namespace {

constexpr int64_t MaximumIntervals = 10;
// Finer units would put neighbouring ticks on the same double, or leave the normal double range.
constexpr double FinestUnitPerMagnitude = 1e-13;
constexpr double FinestUnit = 1e-300;
// Stretching to zero pays off once the data span more than this share of their largest magnitude.
constexpr double ZeroStretchShare = 1.0 / 6.0;

constexpr int32_t InvalidProcedureCallError = 5;
constexpr int32_t OverflowError = 6;

// The double nearest to count * 10^exponent, read back from its decimal text so that round
// decimals such as 0.3 are not spoiled by the rounding of a multiplication.
double DecimalValue(int64_t count, int exponent) {
    char text[48];
    const int length = std::snprintf(text, sizeof(text), "%llde%d", static_cast<long long>(count), exponent);
    double value = 0.0;
    if (std::from_chars(text, text + length, value).ec != std::errc{}) {
        excel::ThrowRuntimeError(OverflowError);
    }
    return value;
}

// A tick unit: mantissa (1, 2 or 5) times ten to the exponent.
struct TickUnit {
    int mantissa;
    int exponent;

    double Value() const { return DecimalValue(mantissa, exponent); }
    double Multiple(int64_t count) const { return DecimalValue(count * mantissa, exponent); }

    TickUnit Next() const {
        switch (mantissa) {
            case 1:
                return {2, exponent};
            case 2:
                return {5, exponent};
            default:
                return {1, exponent + 1};
        }
    }
};

// A unit no larger than target, close enough below it that only a few steps of Next reach it.
TickUnit UnitBelow(double target) {
    return {1, static_cast<int>(std::floor(std::log10(target))) - 1};
}

// The range the axis has to cover and which of its ends must lie strictly beyond the data.
struct AxisRequest {
    double dataLow;
    double dataHigh;
    double coverLow;
    double coverHigh;
    bool gapBelow;
    bool gapAbove;
};

AxisRequest MakeRequest(double first, double second, bool gapBelow, bool gapAbove) {
    // Adding zero turns -0.0 into 0.0.
    const double low = std::min(first, second) + 0.0;
    const double high = std::max(first, second) + 0.0;
    AxisRequest request{low, high, low, high, gapBelow, gapAbove};
    if (low == high) {
        // A single value reads as a bar from zero, with room beyond its end.
        if (low == 0.0) {
            request.coverHigh = 1.0;
        } else if (low > 0.0) {
            request.coverLow = 0.0;
            request.gapAbove = true;
        } else {
            request.coverHigh = 0.0;
            request.gapBelow = true;
        }
    } else if (low >= 0.0 && high - low > high * ZeroStretchShare) {
        request.coverLow = 0.0;
    } else if (high <= 0.0 && high - low > -low * ZeroStretchShare) {
        request.coverHigh = 0.0;
    }
    return request;
}

// Both ends of the axis as counts of the unit.
struct UnitEnds {
    int64_t low;
    int64_t high;
};

UnitEnds EndsFor(const AxisRequest& request, const TickUnit& unit, double unitValue) {
    const auto fitsBelow = [&](int64_t count) {
        const double end = unit.Multiple(count);
        return end <= request.coverLow && (!request.gapBelow || end < request.dataLow);
    };
    const auto fitsAbove = [&](int64_t count) {
        const double end = unit.Multiple(count);
        return end >= request.coverHigh && (!request.gapAbove || end > request.dataHigh);
    };
    // The quotients are estimates; the exact decimal ends settle the last step.
    auto low = static_cast<int64_t>(std::floor(request.coverLow / unitValue));
    while (!fitsBelow(low)) {
        --low;
    }
    while (fitsBelow(low + 1)) {
        ++low;
    }
    auto high = static_cast<int64_t>(std::ceil(request.coverHigh / unitValue));
    while (!fitsAbove(high)) {
        ++high;
    }
    while (fitsAbove(high - 1)) {
        --high;
    }
    return {low, high};
}

}  // namespace

NiceScaleReply ScaleService::NiceScale(double dataMinimum, double dataMaximum, bool requireGapBelow,
                                       bool requireGapAbove) const {
    if (!std::isfinite(dataMinimum) || !std::isfinite(dataMaximum)) {
        excel::ThrowRuntimeError(InvalidProcedureCallError);
    }
    const AxisRequest request = MakeRequest(dataMinimum, dataMaximum, requireGapBelow, requireGapAbove);

    const double magnitude = std::max(std::abs(request.coverLow), std::abs(request.coverHigh));
    const double finestUnit = std::max(magnitude * FinestUnitPerMagnitude, FinestUnit);
    // Divided before subtracting so that spans wider than the double range stay finite.
    const double spanPerInterval = request.coverHigh / MaximumIntervals - request.coverLow / MaximumIntervals;

    for (TickUnit unit = UnitBelow(std::max(spanPerInterval, finestUnit));; unit = unit.Next()) {
        const double unitValue = unit.Value();
        if (unitValue < finestUnit) {
            continue;
        }
        const UnitEnds ends = EndsFor(request, unit, unitValue);
        if (ends.high - ends.low > MaximumIntervals) {
            continue;
        }
        const double minimum = unit.Multiple(ends.low);
        const double maximum = unit.Multiple(ends.high);
        if (!std::isfinite(maximum - minimum)) {
            excel::ThrowRuntimeError(OverflowError);
        }
        return {minimum, maximum, static_cast<int16_t>(ends.high - ends.low + 1)};
    }
}

}  // namespace vos
