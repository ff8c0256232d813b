#pragma once

#include "excel/embedded/format/shape_color.hpp"

#include <cstdint>

namespace excel::embedded {

// The colour Excel's default chart style gives the series of that index (0-based): the theme's six
// accents in turn, then the six again darker or lighter for each further round.
ShapeColor AutomaticSeriesColor(uint32_t index);

}  // namespace excel::embedded
