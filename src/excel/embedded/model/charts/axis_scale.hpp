#pragma once

#include "excel/embedded/model/charts/axis_model.hpp"

namespace excel::embedded {

struct AxisScale {
    double minimum = 0.0;
    double maximum = 1.0;
    double majorUnit = 0.2;
    double minorUnit = 0.04;
};

// A value axis' scale over data from dataMinimum to dataMaximum: what the axis fixes, and for the
// rest Excel's automatic choice: zero at the bottom unless the data sit far above it, about five
// major units of 1, 2 or 5 times a power of ten, and a little room above the data.
AxisScale ScaleOf(const AxisModel& axis, double dataMinimum, double dataMaximum);

}  // namespace excel::embedded
