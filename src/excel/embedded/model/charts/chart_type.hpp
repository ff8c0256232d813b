#pragma once

#include <cstdint>
#include <optional>

namespace excel::embedded {

enum class ChartGroupKind : uint8_t { Bar, Line, Scatter, Area };
enum class ChartGrouping : uint8_t { Standard, Stacked, PercentStacked };

// What an XlChartType means: how its group draws (bars standing or lying, side by side or stacked;
// lines; points) and how its series look by default (markers, lines, smoothing).
struct ChartTypeTraits {
    int32_t type = 0;
    ChartGroupKind kind = ChartGroupKind::Bar;
    bool horizontal = false;  // bars lying: a bar chart rather than a column chart
    ChartGrouping grouping = ChartGrouping::Standard;
    bool markers = false;  // line and scatter series
    bool lines = true;     // scatter series
    bool smooth = false;   // scatter series
};

// The traits of a chart type the engine draws; none for any other.
std::optional<ChartTypeTraits> TraitsOfChartType(int32_t type);

// The chart type a group of that kind shows, given its first series' look.
int32_t ChartTypeOf(ChartGroupKind kind, bool horizontal, ChartGrouping grouping, bool markers, bool lines,
                    bool smooth);

}  // namespace excel::embedded
