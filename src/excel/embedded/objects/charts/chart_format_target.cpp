#include "excel/embedded/objects/charts/chart_format_target.hpp"

namespace excel::embedded {

void ChartFormatTarget::Edit(const std::function<void(ChartElementFormat&)>& edit) const {
    ChartElementFormat& format = find(chart.Chart());
    edit(format);
    format.fromFile = false;
    chart.Changed();
}

}  // namespace excel::embedded
