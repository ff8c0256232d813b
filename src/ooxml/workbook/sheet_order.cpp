#include "ooxml/workbook/sheet_order.hpp"

#include <algorithm>
#include <numeric>

namespace ooxml {

SheetOrder OrderSheets(const WorkbookDocument& document) {
    const std::vector<CarriedSheet> none;
    const std::vector<CarriedSheet>& carried = document.carried ? document.carried->sheets : none;
    std::vector<uint32_t> byPosition(carried.size());
    std::iota(byPosition.begin(), byPosition.end(), 0u);
    std::stable_sort(byPosition.begin(), byPosition.end(),
                     [&carried](uint32_t a, uint32_t b) { return carried[a].position < carried[b].position; });

    SheetOrder order;
    order.worksheetPositions.resize(document.sheets.size());
    order.carriedPositions.resize(carried.size());
    std::size_t nextWorksheet = 0;
    std::size_t nextCarried = 0;
    while (nextWorksheet < document.sheets.size() || nextCarried < byPosition.size()) {
        const auto position = static_cast<uint32_t>(order.entries.size());
        const bool carriedDue = nextCarried < byPosition.size() &&
                                (carried[byPosition[nextCarried]].position <= position ||
                                 nextWorksheet == document.sheets.size());
        if (carriedDue) {
            const uint32_t index = byPosition[nextCarried++];
            order.carriedPositions[index] = position;
            order.entries.push_back({true, index});
        } else {
            const auto index = static_cast<uint32_t>(nextWorksheet++);
            order.worksheetPositions[index] = position;
            order.entries.push_back({false, index});
        }
    }
    return order;
}

}  // namespace ooxml
