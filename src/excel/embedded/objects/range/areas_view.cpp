#include "excel/embedded/objects/range/areas_view.hpp"

#include "excel/embedded/objects/range/range_view.hpp"

#include <excel/automation_error.hpp>

namespace excel::embedded {

int32_t AreasView::Count() {
    cells_.Book();
    return static_cast<int32_t>(cells_.Areas().size());
}

std::shared_ptr<excel::Range> AreasView::Item(int32_t index) {
    cells_.Book();
    if (index < 1 || index > Count()) {
        ThrowRuntimeError(9);
    }
    return std::make_shared<RangeView>(RangeCells{cells_.Sheet(), {cells_.Areas()[static_cast<size_t>(index - 1)]}});
}

}  // namespace excel::embedded
