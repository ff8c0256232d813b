#pragma once

#include <excel/fwd.hpp>

namespace vos {

// Fixed margins around a shape's text, in points, instead of Excel's automatic ones.
void SetTextMargins(excel::TextFrame& frame, double leftAndRight, double topAndBottom);

}  // namespace vos
