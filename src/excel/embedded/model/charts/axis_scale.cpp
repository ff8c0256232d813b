#include "excel/embedded/model/charts/axis_scale.hpp"

#include <cmath>

namespace excel::embedded {

namespace {

// Excel starts a value axis at zero unless the data's lowest value is more than five sixths of
// its highest.
constexpr double ZeroBaseShare = 5.0 / 6.0;
constexpr double MajorUnitsShown = 5.0;
constexpr double MinorPerMajor = 5.0;
// Data closer than this share of the range to a major unit get one more unit of room.
constexpr double Headroom = 0.05;

double NiceUnit(double range) {
    const double raw = range / MajorUnitsShown;
    const double power = std::pow(10.0, std::floor(std::log10(raw)));
    for (const double step : {1.0, 2.0, 5.0}) {
        if (step * power >= raw) {
            return step * power;
        }
    }
    return 10.0 * power;
}

}  // namespace

AxisScale ScaleOf(const AxisModel& axis, double dataMinimum, double dataMaximum) {
    if (!(dataMinimum <= dataMaximum)) {
        dataMinimum = 0.0;
        dataMaximum = 0.0;
    }
    double low = dataMinimum;
    double high = dataMaximum;
    if (low >= 0.0 && (high == 0.0 || low < high * ZeroBaseShare)) {
        low = 0.0;
    }
    if (high <= 0.0 && (low == 0.0 || high > low * ZeroBaseShare)) {
        high = 0.0;
    }
    if (high == low) {
        high = low + 1.0;
    }
    low = axis.minimum.value_or(low);
    high = axis.maximum.value_or(high);
    AxisScale scale;
    scale.majorUnit = axis.majorUnit.value_or(NiceUnit(std::abs(high - low)));
    const double room = Headroom * std::abs(high - low);
    scale.minimum =
        axis.minimum.value_or(low == 0.0 ? 0.0 : std::floor((low - room) / scale.majorUnit) * scale.majorUnit);
    scale.maximum =
        axis.maximum.value_or(high == 0.0 ? 0.0 : std::ceil((high + room) / scale.majorUnit) * scale.majorUnit);
    scale.minorUnit = axis.minorUnit.value_or(scale.majorUnit / MinorPerMajor);
    return scale;
}

}  // namespace excel::embedded
