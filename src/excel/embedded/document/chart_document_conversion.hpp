#pragma once

#include "excel/embedded/model/charts/chart_model.hpp"
#include "ooxml/document/chart_document.hpp"

#include <memory>

namespace excel::embedded {

class WorksheetModel;

// A chart of the sheet as its chart part stores it: series with caches of their cells' values as
// the workbook holds them now, axes with their ids and crossings (a crossing kept on the axis that
// crosses, as the file keeps it), and its text boxes placed by fractions of its size (in points).
// What an opened chart held beyond the model is written back from it.
ooxml::ChartDocument DocumentChart(const WorksheetModel& sheet, const ChartModel& chart, double width, double height);

// An opened chart of that size (in points): the model's parts from the document's, each keeping
// its piece of the document (which they share) for what the model does not hold.
std::shared_ptr<ChartModel> ChartFromDocument(std::shared_ptr<const ooxml::ChartDocument> chart, double width,
                                              double height);

}  // namespace excel::embedded
