#include "excel/embedded/document/sheet_list_document_conversion.hpp"

#include <algorithm>
#include <numeric>
#include <vector>

namespace excel::embedded {

int32_t VisibilityFromSheetState(const std::string& state) {
    return state == "hidden" ? 0 : state == "veryHidden" ? 2 : -1;
}

std::string SheetStateFromVisibility(int32_t visibility) {
    return visibility == 0 ? "hidden" : visibility == 2 ? "veryHidden" : "visible";
}

void LoadOtherSheets(WorkbookModel& book, const ooxml::CarriedWorkbook& carried) {
    // Inserted from the first place to the last, each lands where the file had it.
    std::vector<uint32_t> byPosition(carried.sheets.size());
    std::iota(byPosition.begin(), byPosition.end(), 0u);
    std::stable_sort(byPosition.begin(), byPosition.end(), [&carried](uint32_t a, uint32_t b) {
        return carried.sheets[a].position < carried.sheets[b].position;
    });
    for (uint32_t index : byPosition) {
        const ooxml::CarriedSheet& sheet = carried.sheets[index];
        book.InsertOtherSheet(sheet.position, OtherSheet{sheet.name, VisibilityFromSheetState(sheet.state), index});
    }
}

std::shared_ptr<const ooxml::CarriedWorkbook> CarriedInSheetOrder(const WorkbookModel& book) {
    const std::shared_ptr<const ooxml::CarriedWorkbook>& carried = book.Carried();
    if (!carried || carried->sheets.empty()) {
        return carried;
    }
    std::vector<ooxml::CarriedSheet> sheets = carried->sheets;
    const std::vector<WorkbookModel::SheetSlot>& order = book.AllSheets();
    for (size_t place = 0; place < order.size(); ++place) {
        const WorkbookModel::SheetSlot& slot = order[place];
        if (!slot.worksheet && slot.other.handle < sheets.size()) {
            sheets[slot.other.handle].position = static_cast<uint32_t>(place);
        }
    }
    const auto samePlace = [](const ooxml::CarriedSheet& a, const ooxml::CarriedSheet& b) {
        return a.position == b.position;
    };
    if (std::equal(sheets.begin(), sheets.end(), carried->sheets.begin(), samePlace)) {
        return carried;
    }
    auto moved = std::make_shared<ooxml::CarriedWorkbook>(*carried);
    moved->sheets = std::move(sheets);
    return moved;
}

}  // namespace excel::embedded
