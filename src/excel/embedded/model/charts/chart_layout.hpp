#pragma once

#include "excel/embedded/model/charts/chart_model.hpp"

#include <array>
#include <optional>

namespace excel::embedded {

// Where a chart's parts are, in points from the chart area's top-left corner: Excel's automatic
// layout, approximated from the parts' fonts (a title at the top, a legend at its side, the plot
// area in the rest, each shown axis taking a band of the plot area for its labels and one beside the
// plot area for its title), and the places set by hand.
struct ChartLayout {
    std::optional<ShapeBounds> title;
    std::optional<ShapeBounds> legend;
    ShapeBounds plotArea;
    ShapeBounds plotInside;
    std::array<ShapeBounds, 4> axes;  // by ChartModel::SlotOf
    std::array<std::optional<ShapeBounds>, 4> axisTitles;
};

ChartLayout LayOutChart(const ChartModel& chart, double width, double height);

}  // namespace excel::embedded
