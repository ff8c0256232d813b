#pragma once

namespace vos {

// Refusals that several of the chart's members share.
inline constexpr const char* WrongDataForChartType = "Invalid type of data for chart's type.";
inline constexpr const char* WrongAxisForChartType = "This type of axis can not be added to this chart type.";

}  // namespace vos
