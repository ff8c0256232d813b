#pragma once

#include "excel/embedded/model/workbook_model.hpp"

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

namespace excel::embedded {

// The cells a Range, Font, Interior, Border or Characters view acts on: a worksheet and its
// blocks. Like Excel's ranges they follow their cells when cells are inserted or deleted: the
// blocks catch up with the sheet's shifts the first time they are read after one.
class RangeCells {
public:
    RangeCells(std::shared_ptr<WorksheetModel> sheet, std::vector<CellBlock> areas)
        : sheet_(std::move(sheet)), areas_(std::move(areas)), shiftsSeen_(sheet_->ShiftsApplied().size()) {}

    const std::shared_ptr<WorksheetModel>& Sheet() const { return sheet_; }
    // The blocks where the cells are now; Object required once every one of them was deleted.
    const std::vector<CellBlock>& Areas() const {
        if (shiftsSeen_ != sheet_->ShiftsApplied().size()) {
            catchUp();
        }
        return areas_;
    }
    // The workbook, or Object required when the sheet was deleted, the workbook closed or the
    // cells deleted.
    WorkbookModel& Book() const {
        WorkbookModel& book = sheet_->Book();
        Areas();
        return book;
    }
    // The distinct formats shown over every area.
    std::vector<uint32_t> DistinctFormats() const;
    // Applies one edit to every position of every area, memoised per format.
    void EditFormats(const FormatChange::Edit& edit) const;

private:
    void catchUp() const;
    void checkRoomForEdit(const FormatTable& formats, const FormatChange::Edit& edit) const;

    std::shared_ptr<WorksheetModel> sheet_;
    // Brought up to date on reading, which does not change which cells are meant.
    mutable std::vector<CellBlock> areas_;
    mutable size_t shiftsSeen_;
};

}  // namespace excel::embedded
