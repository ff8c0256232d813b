#pragma once

#include "excel/embedded/workbook_model.hpp"

#include <functional>
#include <memory>
#include <vector>

namespace excel::embedded {

// The cells a Range, Font, Interior or Border view acts on: a worksheet and its blocks.
struct RangeCells {
    std::shared_ptr<WorksheetModel> sheet;
    std::vector<CellBlock> areas;

    // The workbook, or Object required when the sheet was deleted or the workbook closed.
    WorkbookModel& Book() const { return sheet->Book(); }
    // The distinct formats shown over every area.
    std::vector<uint32_t> DistinctFormats() const;
    // Applies one edit to every position of every area, memoised per format.
    void EditFormats(const FormatChange::Edit& edit) const;
};

}  // namespace excel::embedded
