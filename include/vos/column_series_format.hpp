#pragma once

#include <cstdint>

namespace vos {

// How the bars of a column chart series are drawn.
enum VosColumnSeriesFormat : int32_t {
    VosColumnSeriesFormatStandard = 0,
};

}  // namespace vos
