#pragma once

#include <cstdint>

namespace vos {

// The parts of a report whose colour and tint come from the workbook's theme.
enum VosThemePropertyType : int32_t {
    VosReportHeader = 1,
    VosTableTitle = 2,
    VosTableTitleFont = 3,
    VosTableHeader = 4,
    VosTableBorders = 5,
    VosGeneralFont = 6,
    VosCommentFont = 7,
    VosSpecialFont = 8,
};

}  // namespace vos
