#pragma once

#include <cstdint>

namespace vos {

// The kinds of chart a report sheet can hold.
enum VosChartType : int32_t {
    VosChartCustom = 0,
    VosChartColumn = 16,
    VosChartXYMarkers = 32,
    VosChartXYLine = 33,
    VosChartXYMarkersAndLine = 34,
    VosChartLine = 48,
    VosChartLineWithMarkers = 49,
    VosChartTornado = 64,
};

}  // namespace vos
