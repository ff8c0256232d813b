#pragma once

#include "excel/embedded/objects/charts/chart_handle.hpp"

#include <functional>

namespace excel::embedded {

// A formatted part of a chart as its Border, Interior and Fill views reach it: found anew on every
// use (a view of a part that is gone answers Object required), with what its automatic format
// shows, which Excel's chart style decides.
struct ChartFormatTarget {
    ChartHandle chart;
    std::function<ChartElementFormat&(ChartModel&)> find;
    std::function<ShapeColor(ChartModel&)> automaticColor;
    bool automaticLineShown = false;
    bool automaticFillShown = true;
    double automaticWeight = 0.75;  // points

    const ChartElementFormat& Format() const { return find(chart.Chart()); }
    ShapeColor AutomaticColor() const { return automaticColor(chart.Chart()); }
    // Changes the format: the opened file's own formatting of the part no longer holds.
    void Edit(const std::function<void(ChartElementFormat&)>& edit) const;
};

}  // namespace excel::embedded
