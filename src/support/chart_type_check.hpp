#pragma once

#include <cstdint>
#include <string>

namespace vos {

// Accepts exactly the VosChartType values; anything else raises OutOfRange naming the argument
// that carried it.
void CheckChartType(int32_t chartType, const std::string& argumentName);

}  // namespace vos
