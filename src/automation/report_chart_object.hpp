#pragma once

#ifdef _WIN32

#include "automation/automation_object.hpp"
#include "automation/type_library_interfaces.hpp"

#include <vos/vos_excel_chart.hpp>

#include <memory>

namespace automation {

// A report chart for automation clients; only a report worksheet hands one out.
class ReportChartObject final : public AutomationObject<_VosExcelChart> {
public:
    explicit ReportChartObject(std::shared_ptr<vos::VosExcelChart> chart) : chart_(std::move(chart)) {}

    HRESULT STDMETHODCALLTYPE get_AnchorCell(IDispatch** result) override;
    HRESULT STDMETHODCALLTYPE get_Chart(IDispatch** result) override;
    HRESULT STDMETHODCALLTYPE get_ChartType(VosChartType* result) override;
    HRESULT STDMETHODCALLTYPE AddColumnData(IDispatch* sourceDataRange, BSTR seriesName, IDispatch** result) override;
    HRESULT STDMETHODCALLTYPE AddXYData(IDispatch* xDataRange, IDispatch* yDataRange, BSTR seriesName,
                                        IDispatch** result) override;
    HRESULT STDMETHODCALLTYPE AddLineData(IDispatch* sourceDataRange, BSTR seriesName, IDispatch** result) override;
    HRESULT STDMETHODCALLTYPE DefaultSeriesColor(short formattingIndex, LONG* result) override;
    HRESULT STDMETHODCALLTYPE AddTornadoData(short numBars, SAFEARRAY** minValues, SAFEARRAY** maxValues) override;
    HRESULT STDMETHODCALLTYPE AddTornadoYAxis(IDispatch** barLabelRange, IDispatch** result) override;
    HRESULT STDMETHODCALLTYPE ResetPlotArea() override;
    HRESULT STDMETHODCALLTYPE AddTitle(BSTR titleText, IDispatch** result) override;
    HRESULT STDMETHODCALLTYPE AddSubTitle(BSTR subTitleText, IDispatch** result) override;
    HRESULT STDMETHODCALLTYPE AddLegend(VARIANT_BOOL surroundWithBorder, IDispatch** result) override;
    HRESULT STDMETHODCALLTYPE AddWatermark(BSTR primaryText, BSTR secondaryText, BSTR macroToRunWhenClicked) override;
    HRESULT STDMETHODCALLTYPE AddCategoryXAxis(BSTR axisTitle, IDispatch* categoryNamesRange,
                                               VARIANT_BOOL verticalLabels, IDispatch** result) override;
    HRESULT STDMETHODCALLTYPE AddValueXAxis(BSTR axisTitle, double axisMinimum, double axisMaximum, double axisUnit,
                                            BSTR numberFormat, VARIANT_BOOL verticalLabels,
                                            IDispatch** result) override;
    HRESULT STDMETHODCALLTYPE AddValueYAxis(BSTR axisTitle, double axisMinimum, VARIANT axisMaximum, double axisUnit,
                                            BSTR numberFormat, IDispatch** result) override;
    HRESULT STDMETHODCALLTYPE AddSecondaryValueYAxis(BSTR axisTitle, double axisMinimum, VARIANT axisMaximum,
                                                     double axisUnit, BSTR numberFormat, IDispatch** result) override;
    HRESULT STDMETHODCALLTYPE AddValueXAxisWithNiceTicks(double dataMin, double dataMax, VARIANT_BOOL requireMinGap,
                                                         VARIANT_BOOL requireMaxGap, BSTR axisTitle, BSTR numberFormat,
                                                         VARIANT_BOOL verticalLabels, VARIANT* result) override;
    HRESULT STDMETHODCALLTYPE AddValueYAxisWithNiceTicks(double dataMin, double dataMax, VARIANT_BOOL requireMinGap,
                                                         VARIANT_BOOL requireMaxGap, BSTR axisTitle, BSTR numberFormat,
                                                         IDispatch** result) override;
    HRESULT STDMETHODCALLTYPE AddSecondaryValueYAxisWithNiceTicks(double dataMin, double dataMax,
                                                                  VARIANT_BOOL requireMinGap,
                                                                  VARIANT_BOOL requireMaxGap, BSTR axisTitle,
                                                                  BSTR numberFormat, IDispatch** result) override;

private:
    std::shared_ptr<vos::VosExcelChart> chart_;
};

}  // namespace automation

#endif  // _WIN32
