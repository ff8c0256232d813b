#pragma once

#include "excel/embedded/model/charts/chart_data.hpp"
#include "ooxml/document/chart_document.hpp"

namespace excel::embedded {

class WorkbookModel;

// Series data as the chart part stores it: a reference with a cache of its cells (numbers when
// every cell that is not blank holds one, their texts otherwise) or the series' own values. The
// opened file's data is kept where the engine cannot read it: kept data, and a reference to a
// workbook or sheet it does not have, whose cache only the file holds.
ooxml::ChartData DocumentChartData(const WorkbookModel& book, const ChartData& data, const ooxml::ChartData* opened);
// Series data as the engine holds it.
ChartData ChartDataFromDocument(const ooxml::ChartData& data);

}  // namespace excel::embedded
