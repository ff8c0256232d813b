#pragma once

#include "excel/embedded/model/charts/chart_data.hpp"

#include <string>
#include <vector>

namespace excel::embedded {

class WorkbookModel;
class ChartModel;
struct AxisModel;

// The points of series data as the workbook holds them now: a reference's cells (row by row) or
// the series' own values; each point's value (numbers and texts; blanks, logicals and errors
// blank) and its text as the cell shows it.
struct ChartPoints {
    std::vector<ChartValue> values;
    std::vector<std::string> texts;
    std::string numberFormat = "General";  // of the first cell
    bool resolved = true;                  // false: the reference names no worksheet or no cells
};

ChartPoints PointsOf(const WorkbookModel& book, const ChartData& data);

// Whether every point that is not blank is a number.
bool AllNumbers(const ChartPoints& points);

struct ValueRange {
    double minimum = 0.0;
    double maximum = 0.0;
};

// The range of the numbers a value axis (or a scatter chart's X axis) shows: the values of its
// group's series, stacked as the groups stack them.
ValueRange DataRangeOf(const WorkbookModel& book, const ChartModel& chart, const AxisModel& axis);

}  // namespace excel::embedded
