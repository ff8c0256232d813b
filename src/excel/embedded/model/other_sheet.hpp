#pragma once

#include <cstdint>
#include <string>

namespace excel::embedded {

// A sheet of an opened workbook that is not a worksheet: a chart sheet, a dialog sheet, a macro
// sheet, or a module the file lists among its sheets. The engine does not model its content, only
// what the workbook's sheet list needs: its name, which no other sheet may take, its visibility,
// and its place in the sheet order (kept by the workbook). handle is opaque to the model: it tells
// the document conversion which of the file's sheets this one is.
struct OtherSheet {
    std::string name;
    int32_t visibility = -1;  // xlSheetVisible (-1), xlSheetHidden (0) or xlSheetVeryHidden (2)
    uint32_t handle = 0;
};

}  // namespace excel::embedded
