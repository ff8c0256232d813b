#include "excel/embedded/objects/charts/axes_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/objects/charts/axis_view.hpp"

namespace excel::embedded {

std::shared_ptr<excel::Axis> AxisOfChart(const ChartHandle& chart, int32_t type, int32_t group) {
    if (!chart.Chart().HasAxis(type, group)) {
        ThrowRefused("Unable to get the Axes property of the Chart class");
    }
    return std::make_shared<AxisView>(chart, type, group);
}

int32_t AxesView::Count() {
    const ChartModel& chart = chart_.Chart();
    int32_t count = 0;
    for (const int32_t group : {xlPrimary, xlSecondary}) {
        for (const int32_t type : {xlCategory, xlValue}) {
            count += chart.HasAxis(type, group) ? 1 : 0;
        }
    }
    return count;
}

std::shared_ptr<excel::Axis> AxesView::Item(int32_t type, int32_t group) {
    return AxisOfChart(chart_, type, group);
}

}  // namespace excel::embedded
