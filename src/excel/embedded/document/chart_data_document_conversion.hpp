#pragma once

#include "excel/embedded/model/charts/chart_data.hpp"
#include "ooxml/document/chart_document.hpp"

namespace excel::embedded {

class WorkbookModel;

// Series data as the chart part stores it: a reference with a cache of its cells (numbers when
// every cell that is not blank holds one, their texts otherwise) or the series' own values.
ooxml::ChartData DocumentChartData(const WorkbookModel& book, const ChartData& data);

}  // namespace excel::embedded
