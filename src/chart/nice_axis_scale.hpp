#pragma once

#include "support/scale_service.hpp"

namespace vos {

// A fixed axis scale: both ends and the major unit between ticks.
struct AxisScale {
    double minimum;
    double maximum;
    double unit;
};

// The scale of a nice-scale reply: its ends, split into one step fewer than its ticks. A reply of
// one tick, or one whose step is not a finite number, fails with the runtime's floating-point
// errors (11, division by zero; 6, overflow) before anything uses it.
AxisScale AxisScaleOf(const NiceScaleReply& reply);

// The nice scale the support services choose for that data range.
AxisScale NiceAxisScale(double dataMin, double dataMax, bool requireMinGap, bool requireMaxGap);

}  // namespace vos
