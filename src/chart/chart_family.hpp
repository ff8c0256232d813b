#pragma once

#include <vos/chart_type.hpp>

#include <cstdint>
#include <optional>

namespace vos {

// The kinds of data a report chart takes. Every data and axis member asks the family, not the
// type: the XY types differ only in how their series are drawn.
enum class ChartFamily : int32_t {
    Custom = 0,
    Column = 1,
    XY = 2,
    Line = 3,
    Tornado = 4,
};

// What a report chart type becomes in Excel.
struct ChartTypeMapping {
    // The XlChartType set at creation; none keeps the clustered columns the chart was made with.
    std::optional<int32_t> excelChartType;
    ChartFamily family;
};

// The mapping of a VosChartType; none for a value outside the enumeration.
std::optional<ChartTypeMapping> MappingOf(VosChartType chartType);

}  // namespace vos
