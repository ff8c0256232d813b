#pragma once

#include "excel/embedded/model/charts/chart_data.hpp"
#include "excel/embedded/model/charts/chart_format.hpp"

#include <excel/constants.hpp>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace ooxml {
struct ChartSeries;
}

namespace excel::embedded {

// The marker of a line or scatter series' points: its XlMarkerStyle and size in points, its fill
// (the background) and its outline (the foreground).
struct ChartMarker {
    int32_t style = xlMarkerStyleAutomatic;
    int32_t size = 5;
    ChartFill background;
    ChartLine foreground;

    friend bool operator==(const ChartMarker&, const ChartMarker&) = default;
};

// A data series: its name, categories (or X values) and values, and its format.
struct SeriesModel {
    uint32_t index = 0;  // unique in the chart; picks the automatic colour
    std::optional<std::string> nameText;
    ChartData nameReference;
    ChartData categories;
    ChartData values;
    ChartElementFormat format;
    ChartMarker marker;
    bool smooth = false;
    bool invertIfNegative = false;
    // The series as the opened file had it: what the model does not hold is written back from it.
    std::shared_ptr<const ooxml::ChartSeries> opened;
};

}  // namespace excel::embedded
