#pragma once

#include <cstdint>

namespace vos {

// The two headers of a table: the rows above its interior and the columns left of it.
enum VosTableHeaderType : int32_t {
    VosTopHeader = 0,
    VosLeftHeader = 1,
};

}  // namespace vos
