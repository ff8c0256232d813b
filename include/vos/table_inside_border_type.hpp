#pragma once

#include <cstdint>

namespace vos {

// Which lines a table draws between its interior cells.
enum VosTableInsideBorderType : int32_t {
    VosBorderNone = 0,
    VosBorderHorizontal = 1,
    VosBorderVertical = 2,
    VosBorderHorizontalAndVertical = 3,
    VosBorderIgnore = 4,
};

}  // namespace vos
