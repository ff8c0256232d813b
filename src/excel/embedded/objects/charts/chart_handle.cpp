#include "excel/embedded/objects/charts/chart_handle.hpp"

#include "excel/embedded/model/workbook_model.hpp"

namespace excel::embedded {

const WorkbookColors& ChartHandle::Colors() const {
    return Sheet().Book().Colors();
}

void ChartHandle::Changed() const {
    Sheet().Book().SetSaved(false);
}

}  // namespace excel::embedded
