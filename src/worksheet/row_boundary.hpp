#pragma once

#include <excel/range.hpp>

namespace vos {

// Objects that end on a row boundary would touch the next row's element; they stop this far above.
inline constexpr double GapAboveRowBoundary = 0.5;

// Stretches or trims a drawn object (a shape or a chart's frame) to end just above the bottom edge
// of the row its bottom-right corner is in.
template <class Drawn>
void EndAboveRowBoundary(Drawn& object) {
    const auto lastCell = object.BottomRightCell();
    object.SetHeight(lastCell->Top() + lastCell->Height() - object.Top() - GapAboveRowBoundary);
}

}  // namespace vos
