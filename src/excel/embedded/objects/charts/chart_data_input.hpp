#pragma once

#include "excel/embedded/model/charts/chart_data_cells.hpp"

#include <excel/variant.hpp>

#include <string>

namespace excel::embedded {

class WorkbookModel;

// Series data as the object model takes it: a range (one area), an array or a single number, or a
// text holding a reference ("=Sheet1!$B$2:$B$9") or a list ("={1,2,3}", "1,2,3"). Anything else
// is refused with Excel's message for the property.
ChartData ChartDataFromVariant(const Variant& value, const WorkbookModel& book, const std::string& property);

// Points as the object model gives them: a 1-based array of their values (blanks empty).
Variant ArrayOfPoints(const ChartPoints& points);

}  // namespace excel::embedded
