#include "excel/embedded/range_cells.hpp"

#include <algorithm>

namespace excel::embedded {

std::vector<uint32_t> RangeCells::DistinctFormats() const {
    Book();
    std::vector<uint32_t> result;
    for (const CellBlock& area : areas) {
        for (uint32_t id : sheet->DistinctFormats(area)) {
            if (std::find(result.begin(), result.end(), id) == result.end()) {
                result.push_back(id);
            }
        }
    }
    return result;
}

void RangeCells::EditFormats(const FormatChange::Edit& edit) const {
    WorkbookModel& book = Book();
    FormatChange change(book.Formats(), edit);
    for (const CellBlock& area : areas) {
        sheet->ApplyFormat(area, change);
    }
    book.SetSaved(false);
}

}  // namespace excel::embedded
