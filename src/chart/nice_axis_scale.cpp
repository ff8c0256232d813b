#include "chart/nice_axis_scale.hpp"

#include "support/checked_sum.hpp"
#include "support/support_services.hpp"

#include <excel/automation_error.hpp>

#include <cmath>

namespace vos {

namespace {

constexpr int32_t DivisionByZeroError = 11;

}  // namespace

AxisScale AxisScaleOf(const NiceScaleReply& reply) {
    const int16_t steps = CheckedInt16(reply.tickCount - 1);
    if (steps == 0)
        excel::ThrowRuntimeError(DivisionByZeroError);
    const double unit = (reply.maximum - reply.minimum) / steps;
    if (!std::isfinite(unit))
        excel::ThrowRuntimeError(RuntimeOverflowError);
    return {reply.minimum, reply.maximum, unit};
}

AxisScale NiceAxisScale(double dataMin, double dataMax, bool requireMinGap, bool requireMaxGap) {
    return AxisScaleOf(Support().Scale().NiceScale(dataMin, dataMax, requireMinGap, requireMaxGap));
}

}  // namespace vos
