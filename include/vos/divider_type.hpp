#pragma once

#include <cstdint>

namespace vos {

// The direction of a divider line drawn across a table.
enum VosDividerType : int32_t {
    VosRowDivider = 0,
    VosColumnDivider = 1,
};

}  // namespace vos
