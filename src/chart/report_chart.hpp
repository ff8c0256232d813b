#pragma once

#include "chart/chart_family.hpp"

#include <vos/vos_excel_chart.hpp>
#include <vos/vos_excel_report_workbook.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace vos {

// The chart behind VosExcelChart, with the members the report sheet and the chart's own builders
// call. Defined in report_chart.cpp (creation and properties), report_chart_series.cpp (series and
// their formats), report_chart_tornado.cpp, report_chart_decorations.cpp (plot area, titles and
// legend), report_chart_watermark.cpp, report_chart_axes.cpp and report_chart_nice_ticks.cpp.
class ReportChart final : public VosExcelChart {
public:
    std::shared_ptr<excel::Range> AnchorCell() override;
    std::shared_ptr<excel::Chart> Chart() override;
    VosChartType ChartType() override;
    std::shared_ptr<excel::Series> AddColumnData(const std::shared_ptr<excel::Range>& sourceDataRange,
                                                 const std::string& seriesName = "") override;
    std::shared_ptr<excel::Series> AddXYData(const std::shared_ptr<excel::Range>& xDataRange,
                                             const std::shared_ptr<excel::Range>& yDataRange,
                                             const std::string& seriesName = "") override;
    std::shared_ptr<excel::Series> AddLineData(const std::shared_ptr<excel::Range>& sourceDataRange,
                                               const std::string& seriesName = "") override;
    int32_t DefaultSeriesColor(int16_t formattingIndex) override;
    void AddTornadoData(int16_t numBars, const excel::SafeArray& minValues, const excel::SafeArray& maxValues) override;
    std::shared_ptr<excel::Axis> AddTornadoYAxis(const std::shared_ptr<excel::Range>& barLabelRange) override;
    void ResetPlotArea() override;
    std::shared_ptr<excel::ChartTitle> AddTitle(const std::string& titleText) override;
    std::shared_ptr<excel::ChartTitle> AddSubTitle(const std::string& subTitleText) override;
    std::shared_ptr<excel::Legend> AddLegend(bool surroundWithBorder) override;
    void AddWatermark(const std::string& primaryText, const std::string& secondaryText = "",
                      const std::string& macroToRunWhenClicked = "objClick") override;
    std::shared_ptr<excel::Axis> AddCategoryXAxis(const std::string& axisTitle = "",
                                                  const std::shared_ptr<excel::Range>& categoryNamesRange = nullptr,
                                                  bool verticalLabels = false) override;
    std::shared_ptr<excel::Axis> AddValueXAxis(const std::string& axisTitle = "",
                                               double axisMinimum = AutomaticAxisScale,
                                               double axisMaximum = AutomaticAxisScale,
                                               double axisUnit = AutomaticAxisScale,
                                               const std::string& numberFormat = "",
                                               bool verticalLabels = true) override;
    std::shared_ptr<excel::Axis> AddValueYAxis(const std::string& axisTitle = "",
                                               double axisMinimum = AutomaticAxisScale,
                                               const excel::Variant& axisMaximum = AutomaticAxisScale,
                                               double axisUnit = AutomaticAxisScale,
                                               const std::string& numberFormat = "") override;
    std::shared_ptr<excel::Axis> AddSecondaryValueYAxis(const std::string& axisTitle = "",
                                                        double axisMinimum = AutomaticAxisScale,
                                                        const excel::Variant& axisMaximum = AutomaticAxisScale,
                                                        double axisUnit = AutomaticAxisScale,
                                                        const std::string& numberFormat = "") override;
    std::shared_ptr<excel::Axis> AddValueXAxisWithNiceTicks(double dataMin, double dataMax, bool requireMinGap,
                                                            bool requireMaxGap, const std::string& axisTitle = "",
                                                            const std::string& numberFormat = "",
                                                            bool verticalLabels = true) override;
    std::shared_ptr<excel::Axis> AddValueYAxisWithNiceTicks(double dataMin, double dataMax, bool requireMinGap,
                                                            bool requireMaxGap, const std::string& axisTitle = "",
                                                            const std::string& numberFormat = "") override;
    std::shared_ptr<excel::Axis> AddSecondaryValueYAxisWithNiceTicks(double dataMin, double dataMax, bool requireMinGap,
                                                                     bool requireMaxGap,
                                                                     const std::string& axisTitle = "",
                                                                     const std::string& numberFormat = "") override;

    // Checks the type and size, then makes the chart at the anchor cell with that size: clustered
    // columns first, then the requested type, moving with its cells, in a medium frame.
    void InitializeChart(const std::shared_ptr<VosExcelReportWorkbook>& owner, int32_t defaultLanguage,
                         VosChartType p_ChartType, const std::shared_ptr<excel::Range>& anchorCell, double chartWidth,
                         double chartHeight);

    // Clears the series' format and gives it the colour, gradient, line and markers of its number.
    void FormatSeries(const std::shared_ptr<excel::Series>& theSeries, int16_t formattingIndex);
    void FormatColumnSeries(const std::shared_ptr<excel::Series>& theSeries, int16_t formattingIndex);
    void FormatXYSeries(const std::shared_ptr<excel::Series>& theSeries, int16_t formattingIndex);
    void FormatLineSeries(const std::shared_ptr<excel::Series>& theSeries, int16_t formattingIndex);
    void FormatSeriesMarkers(const std::shared_ptr<excel::Series>& theSeries, int16_t formattingIndex);
    // Loads up to 32 numbers into the series; when Excel refuses the array, as a text of the
    // numbers in their shortest form.
    void SetSeriesValues(const std::shared_ptr<excel::Series>& theSeries, const excel::SafeArray& theData);

    // Refuses, with NotAllowedNow, a chart without series.
    void RequireDataSeries();
    // Refuses a scale given in part, a maximum below the minimum and a unit that is not positive.
    void ValidateAxisScale(double axisMinimum, double axisMaximum, double axisUnit);
    // Title, tick marks, scale, crossing at the far low end, fonts and number format of a value axis.
    void FormatValueAxis(const std::shared_ptr<excel::Axis>& theAxis, const std::string& axisTitle, double axisMinimum,
                         double axisMaximum, double axisUnit, const std::string& numberFormat);
    // Turns the labels upward and gives the plot area back the height that costs the axis.
    void CompensateVerticalLabels(const std::shared_ptr<excel::Axis>& theAxis);

private:
    // Adds a series of one row or column after the family and range checks of the Add...Data members.
    std::shared_ptr<excel::Series> AddSingleRangeSeries(ChartFamily family,
                                                        const std::shared_ptr<excel::Range>& sourceDataRange,
                                                        const std::string& seriesName, const char* areasMessage);
    std::shared_ptr<excel::Series> NewNamedSeries(const std::string& seriesName);
    int32_t SeriesCount();
    // The size for this chart's language: larger type for Chinese.
    double FontSize(double chineseSize, double otherSize) const;

    // The axis members after their family check: replaces the axis of that kind and group.
    std::shared_ptr<excel::Axis> RecreateAxis(int32_t kind, int32_t group);
    std::shared_ptr<excel::Axis> AddValueAxis(int32_t group, const std::string& axisTitle, double axisMinimum,
                                              const excel::Variant& axisMaximum, double axisUnit,
                                              const std::string& numberFormat);
    void SetAxisTitle(const std::shared_ptr<excel::Axis>& axis, const std::string& axisTitle);
    // The number format of the value axis' labels, "[LOCAL]" marking the user's locale.
    void SetTickLabelFormat(const std::shared_ptr<excel::Axis>& axis, const std::string& numberFormat);
    int32_t ExcelMajorVersion();

    std::shared_ptr<VosExcelReportWorkbook> owner_;
    std::shared_ptr<excel::Chart> chart_;
    VosChartType chartType_ = VosChartCustom;
    ChartFamily family_ = ChartFamily::Custom;
    double tornadoMinimum_ = 0.0;
    double tornadoMaximum_ = 0.0;
    int32_t defaultLanguage_ = 0;
};

}  // namespace vos
