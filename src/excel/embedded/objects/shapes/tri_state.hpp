#pragma once

#include <cstdint>

namespace excel::embedded {

// MsoTriState as the object model reads and takes it: msoTrue (-1) or msoFalse (0); msoCTrue (1)
// is taken as true, anything else is refused.
int32_t TriStateOf(bool value);
bool BoolFromTriState(int32_t value);

}  // namespace excel::embedded
