#pragma once

#include <cstdint>

namespace vos {

// An axis scale: both ends and the number of tick marks, ends included.
struct NiceScaleReply {
    double minimum;
    double maximum;
    int16_t tickCount;
};

// Chooses value-axis scales whose ticks fall on round numbers.
//
// The tick unit is 1, 2 or 5 times a power of ten: the smallest such unit that covers the data in
// at most 10 intervals. Both ends are whole multiples of the unit, stored as the double nearest
// the decimal value (0.3 comes out as 0.3, not 0.30000000000000004).
//
// Zero stays a natural end: when the data do not change sign and their span is more than a sixth
// of the largest magnitude, the axis is stretched to zero (3..97 gives 0..100, 1000..1010 stays
// around the data). A required gap puts that end strictly beyond the data; the zero end counts as
// a gap when the data stop short of zero. Reversed data are read as the span between the values.
// A single value is drawn as a bar from zero with room beyond it (5..5 gives 0..6, 0..0 gives 0..1).
//
// Units are never finer than about 1e-13 of the data's magnitude, so every tick stays a distinct
// double. Non-finite data raise runtime error 5; ends or spans beyond the double range raise 6.
class ScaleService {
public:
    NiceScaleReply NiceScale(double dataMinimum, double dataMaximum, bool requireGapBelow, bool requireGapAbove) const;
};

}  // namespace vos
