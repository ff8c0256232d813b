#include "chart/chart_family.hpp"

#include <excel/chart_constants.hpp>

#include <array>

namespace vos {

namespace {

struct MappingEntry {
    VosChartType chartType;
    ChartTypeMapping mapping;
};

constexpr std::array<MappingEntry, 8> Mappings{{
    {VosChartCustom, {std::nullopt, ChartFamily::Custom}},
    {VosChartColumn, {excel::xlColumnClustered, ChartFamily::Column}},
    {VosChartXYMarkers, {excel::xlXYScatter, ChartFamily::XY}},
    {VosChartXYLine, {excel::xlXYScatterLinesNoMarkers, ChartFamily::XY}},
    {VosChartXYMarkersAndLine, {excel::xlXYScatterLines, ChartFamily::XY}},
    {VosChartLine, {excel::xlLine, ChartFamily::Line}},
    {VosChartLineWithMarkers, {excel::xlLineMarkers, ChartFamily::Line}},
    {VosChartTornado, {excel::xlBarStacked, ChartFamily::Tornado}},
}};

}  // namespace

std::optional<ChartTypeMapping> MappingOf(VosChartType chartType) {
    for (const MappingEntry& entry : Mappings) {
        if (entry.chartType == chartType)
            return entry.mapping;
    }
    return std::nullopt;
}

}  // namespace vos
