#pragma once

#include <vos/chart_type.hpp>

#include <excel/fwd.hpp>
#include <excel/safe_array.hpp>
#include <excel/variant.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace vos {

// The axis scale argument that leaves a scale value to Excel. An axis takes either all three of
// its minimum, maximum and unit, or none of them.
inline constexpr double AutomaticAxisScale = 1.01E+300;

// A chart placed on a report sheet: column, XY, line or tornado series with titles, axes,
// legend and watermark. Only VosExcelReportWorksheet::AddChart hands one out.
//
// Series are numbered from 1 in the order they are added; the number picks the series' colour
// and marker. Titles, legend, watermark and axes need at least one series first. Font sizes are
// larger for a chart of language 4 (Chinese).
class VosExcelChart {
public:
    virtual ~VosExcelChart() = default;

    // The cell under the chart's top-left corner, read again on every call: it follows the chart.
    virtual std::shared_ptr<excel::Range> AnchorCell() = 0;
    virtual std::shared_ptr<excel::Chart> Chart() = 0;
    // The type the chart was made with.
    virtual VosChartType ChartType() = 0;

    // A series of the values of one row or column, coloured with a diagonal gradient of its
    // default colour. The first series also tightens the columns: gap width 75, overlap 10.
    virtual std::shared_ptr<excel::Series> AddColumnData(const std::shared_ptr<excel::Range>& sourceDataRange,
                                                         const std::string& seriesName = "") = 0;
    // A series of points with x and y from two rows or two columns of one size; markers and lines
    // as the chart's XY type has them.
    virtual std::shared_ptr<excel::Series> AddXYData(const std::shared_ptr<excel::Range>& xDataRange,
                                                     const std::shared_ptr<excel::Range>& yDataRange,
                                                     const std::string& seriesName = "") = 0;
    // A series of one row or column drawn as a medium line, with markers on a line-with-markers chart.
    virtual std::shared_ptr<excel::Series> AddLineData(const std::shared_ptr<excel::Range>& sourceDataRange,
                                                       const std::string& seriesName = "") = 0;
    // The colour number (red + 256 green + 65536 blue) of the series of that number; the fifteen
    // colours repeat from the sixteenth series on.
    virtual int32_t DefaultSeriesColor(int16_t formattingIndex) = 0;

    // The bars of a tornado chart, once: bar i runs from minValues(i) to maxValues(i). Both arrays
    // are one-dimensional doubles indexed 1 to numBars (1 to 32).
    virtual void AddTornadoData(int16_t numBars, const excel::SafeArray& minValues,
                                const excel::SafeArray& maxValues) = 0;
    // The tornado's bar labels, one per bar from the top, at the left edge of the plot.
    virtual std::shared_ptr<excel::Axis> AddTornadoYAxis(const std::shared_ptr<excel::Range>& barLabelRange) = 0;

    // Takes away the plot area's format, the axes with their gridlines, the legend and the title.
    // The first series calls it; the members below add back what a report asks for.
    virtual void ResetPlotArea() = 0;
    // The chart's title in bold; it replaces any title, subtitles included.
    virtual std::shared_ptr<excel::ChartTitle> AddTitle(const std::string& titleText) = 0;
    // A smaller, plain line under the title and the subtitles before it.
    virtual std::shared_ptr<excel::ChartTitle> AddSubTitle(const std::string& subTitleText) = 0;
    // A legend at the right, replacing any legend; optionally in a thin grey frame.
    virtual std::shared_ptr<excel::Legend> AddLegend(bool surroundWithBorder) = 0;
    // Light grey text across the middle of the chart, the secondary text smaller on a second line
    // (or whatever follows a line feed in the primary text). Clicking it runs the named macro.
    virtual void AddWatermark(const std::string& primaryText, const std::string& secondaryText = "",
                              const std::string& macroToRunWhenClicked = "objClick") = 0;

    // Each axis member replaces the axis of its kind. Value axes cross the other axis at its low
    // end; their scale is automatic unless minimum, maximum and unit are all given. A number format
    // that starts with "[LOCAL]" is in the user's locale.

    // The category axis of a column or line chart: labels from the range, below the plot.
    virtual std::shared_ptr<excel::Axis> AddCategoryXAxis(
        const std::string& axisTitle = "", const std::shared_ptr<excel::Range>& categoryNamesRange = nullptr,
        bool verticalLabels = false) = 0;
    // The horizontal value axis of an XY, line or tornado chart; a tornado's automatic scale is
    // fitted to its bars on round ticks.
    virtual std::shared_ptr<excel::Axis> AddValueXAxis(const std::string& axisTitle = "",
                                                       double axisMinimum = AutomaticAxisScale,
                                                       double axisMaximum = AutomaticAxisScale,
                                                       double axisUnit = AutomaticAxisScale,
                                                       const std::string& numberFormat = "",
                                                       bool verticalLabels = true) = 0;
    // The vertical value axis at the left; axisMaximum is converted to a number first.
    virtual std::shared_ptr<excel::Axis> AddValueYAxis(const std::string& axisTitle = "",
                                                       double axisMinimum = AutomaticAxisScale,
                                                       const excel::Variant& axisMaximum = AutomaticAxisScale,
                                                       double axisUnit = AutomaticAxisScale,
                                                       const std::string& numberFormat = "") = 0;
    // The same on the secondary axis group, at the right.
    virtual std::shared_ptr<excel::Axis> AddSecondaryValueYAxis(const std::string& axisTitle = "",
                                                                double axisMinimum = AutomaticAxisScale,
                                                                const excel::Variant& axisMaximum = AutomaticAxisScale,
                                                                double axisUnit = AutomaticAxisScale,
                                                                const std::string& numberFormat = "") = 0;

    // The value axes again, scaled to round ticks that cover dataMin to dataMax, with room below
    // or above the data where asked.
    virtual std::shared_ptr<excel::Axis> AddValueXAxisWithNiceTicks(double dataMin, double dataMax, bool requireMinGap,
                                                                    bool requireMaxGap,
                                                                    const std::string& axisTitle = "",
                                                                    const std::string& numberFormat = "",
                                                                    bool verticalLabels = true) = 0;
    virtual std::shared_ptr<excel::Axis> AddValueYAxisWithNiceTicks(double dataMin, double dataMax, bool requireMinGap,
                                                                    bool requireMaxGap,
                                                                    const std::string& axisTitle = "",
                                                                    const std::string& numberFormat = "") = 0;
    virtual std::shared_ptr<excel::Axis> AddSecondaryValueYAxisWithNiceTicks(double dataMin, double dataMax,
                                                                             bool requireMinGap, bool requireMaxGap,
                                                                             const std::string& axisTitle = "",
                                                                             const std::string& numberFormat = "") = 0;

protected:
    VosExcelChart() = default;
    VosExcelChart(const VosExcelChart&) = delete;
    VosExcelChart& operator=(const VosExcelChart&) = delete;
};

}  // namespace vos
