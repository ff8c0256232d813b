#pragma once

#include "excel/embedded/objects/charts/chart_handle.hpp"

#include <excel/axes.hpp>

namespace excel::embedded {

// The axes a chart shows.
class AxesView final : public excel::Axes {
public:
    explicit AxesView(ChartHandle chart) : chart_(std::move(chart)) {}

    int32_t Count() override;
    std::shared_ptr<excel::Axis> Item(int32_t type, int32_t group) override;

private:
    ChartHandle chart_;
};

// The axis of the type in the group; refused, as Excel refuses Chart.Axes, when the chart does not
// show it.
std::shared_ptr<excel::Axis> AxisOfChart(const ChartHandle& chart, int32_t type, int32_t group);

}  // namespace excel::embedded
