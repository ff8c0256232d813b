#include "excel/embedded/objects/range/range_cells.hpp"

#include "excel/embedded/engine_errors.hpp"

#include <algorithm>
#include <unordered_set>

namespace excel::embedded {

void RangeCells::catchUp() const {
    const std::vector<BlockShift>& shifts = sheet_->ShiftsApplied();
    std::vector<CellBlock> areas = areas_;
    for (size_t index = shiftsSeen_; index < shifts.size(); ++index) {
        std::vector<CellBlock> moved;
        for (const CellBlock& area : areas) {
            if (auto block = ShiftBlock(area, shifts[index])) {
                moved.push_back(*block);
            }
        }
        if (moved.empty()) {
            // Not caught up, so every later use replays the shifts and finds the cells gone again.
            ThrowObjectRequired();
        }
        areas = std::move(moved);
    }
    areas_ = std::move(areas);
    shiftsSeen_ = shifts.size();
}

std::vector<uint32_t> RangeCells::DistinctFormats() const {
    Book();
    std::vector<uint32_t> result;
    for (const CellBlock& area : Areas()) {
        for (uint32_t id : sheet_->DistinctFormats(area)) {
            if (std::find(result.begin(), result.end(), id) == result.end()) {
                result.push_back(id);
            }
        }
    }
    return result;
}

// An edit makes at most one new format of each format it meets. Near Excel's limit those are
// counted first, so that an edit passing it is refused before any cell changes.
void RangeCells::checkRoomForEdit(const FormatTable& formats, const FormatChange::Edit& edit) const {
    const std::vector<uint32_t> met = DistinctFormats();
    if (met.size() <= formats.Room()) {
        return;
    }
    std::unordered_set<CellFormat, CellFormatHash> added;
    for (const uint32_t id : met) {
        CellFormat format = formats.Get(id);
        edit(format);
        if (!formats.Holds(format) && added.insert(std::move(format)).second && added.size() > formats.Room()) {
            ThrowRefused(kTooManyCellFormats);
        }
    }
}

void RangeCells::EditFormats(const FormatChange::Edit& edit) const {
    WorkbookModel& book = Book();
    if (book.Formats().Room() < book.Formats().All().size()) {
        checkRoomForEdit(book.Formats(), edit);
    }
    FormatChange change(book.Formats(), edit);
    for (const CellBlock& area : Areas()) {
        sheet_->ApplyFormat(area, change);
    }
    book.SetSaved(false);
}

}  // namespace excel::embedded
