#include "excel/embedded/model/charts/chart_type.hpp"

#include <excel/constants.hpp>

#include <algorithm>
#include <array>

namespace excel::embedded {

namespace {

using K = ChartGroupKind;
using G = ChartGrouping;

constexpr std::array<ChartTypeTraits, 20> Types{{
    {xlColumnClustered, K::Bar, false, G::Standard, false, true, false},
    {xlColumnStacked, K::Bar, false, G::Stacked, false, true, false},
    {xlColumnStacked100, K::Bar, false, G::PercentStacked, false, true, false},
    {xlBarClustered, K::Bar, true, G::Standard, false, true, false},
    {xlBarStacked, K::Bar, true, G::Stacked, false, true, false},
    {xlBarStacked100, K::Bar, true, G::PercentStacked, false, true, false},
    {xlLine, K::Line, false, G::Standard, false, true, false},
    {xlLineStacked, K::Line, false, G::Stacked, false, true, false},
    {xlLineStacked100, K::Line, false, G::PercentStacked, false, true, false},
    {xlLineMarkers, K::Line, false, G::Standard, true, true, false},
    {xlLineMarkersStacked, K::Line, false, G::Stacked, true, true, false},
    {xlLineMarkersStacked100, K::Line, false, G::PercentStacked, true, true, false},
    {xlXYScatter, K::Scatter, false, G::Standard, true, false, false},
    {xlXYScatterLines, K::Scatter, false, G::Standard, true, true, false},
    {xlXYScatterLinesNoMarkers, K::Scatter, false, G::Standard, false, true, false},
    {xlXYScatterSmooth, K::Scatter, false, G::Standard, true, true, true},
    {xlXYScatterSmoothNoMarkers, K::Scatter, false, G::Standard, false, true, true},
    {xlArea, K::Area, false, G::Standard, false, true, false},
    {xlAreaStacked, K::Area, false, G::Stacked, false, true, false},
    {xlAreaStacked100, K::Area, false, G::PercentStacked, false, true, false},
}};

}  // namespace

std::optional<ChartTypeTraits> TraitsOfChartType(int32_t type) {
    const auto found = std::find_if(Types.begin(), Types.end(), [type](const auto& t) { return t.type == type; });
    if (found == Types.end()) {
        return std::nullopt;
    }
    return *found;
}

int32_t ChartTypeOf(ChartGroupKind kind, bool horizontal, ChartGrouping grouping, bool markers, bool lines,
                    bool smooth) {
    const auto matches = [&](const ChartTypeTraits& t) {
        if (t.kind != kind || t.grouping != grouping) {
            return false;
        }
        switch (kind) {
            case K::Bar:
                return t.horizontal == horizontal;
            case K::Line:
                return t.markers == markers;
            case K::Scatter:
                // Points without lines are a scatter of markers, smoothed or not.
                return t.markers == markers && (lines ? t.lines && t.smooth == smooth : !t.lines) && (markers || lines);
            case K::Area:
                return true;
        }
        return false;
    };
    const auto found = std::find_if(Types.begin(), Types.end(), matches);
    return found != Types.end() ? found->type : xlXYScatter;
}

}  // namespace excel::embedded
