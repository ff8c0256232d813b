#ifdef _WIN32

#include "automation/report_chart_object.hpp"

#include "automation/automation_values.hpp"

#include <excel/excel.hpp>

namespace automation {

namespace {

std::shared_ptr<excel::Range> RangeArgument(IDispatch* range) {
    return ExcelObject<excel::Range>(range, "Range");
}

// The Y axes' maximum: a vtable client may pass it as missing, which is automatic as well.
excel::Variant ScaleVariant(const VARIANT& value) {
    return Omitted(value) ? excel::Variant(vos::AutomaticAxisScale) : Value(value);
}

}  // namespace

HRESULT ReportChartObject::get_AnchorCell(IDispatch** result) {
    return Guarded([&] { *result = Dispatch(chart_->AnchorCell()); });
}

HRESULT ReportChartObject::get_Chart(IDispatch** result) {
    return Guarded([&] { *result = Dispatch(chart_->Chart()); });
}

HRESULT ReportChartObject::get_ChartType(VosChartType* result) {
    return Guarded([&] { *result = static_cast<VosChartType>(chart_->ChartType()); });
}

HRESULT ReportChartObject::AddColumnData(IDispatch* sourceDataRange, BSTR seriesName, IDispatch** result) {
    return Guarded(
        [&] { *result = Dispatch(chart_->AddColumnData(RangeArgument(sourceDataRange), Text(seriesName))); });
}

HRESULT ReportChartObject::AddXYData(IDispatch* xDataRange, IDispatch* yDataRange, BSTR seriesName,
                                     IDispatch** result) {
    return Guarded([&] {
        *result = Dispatch(chart_->AddXYData(RangeArgument(xDataRange), RangeArgument(yDataRange), Text(seriesName)));
    });
}

HRESULT ReportChartObject::AddLineData(IDispatch* sourceDataRange, BSTR seriesName, IDispatch** result) {
    return Guarded([&] { *result = Dispatch(chart_->AddLineData(RangeArgument(sourceDataRange), Text(seriesName))); });
}

HRESULT ReportChartObject::DefaultSeriesColor(short formattingIndex, LONG* result) {
    return Guarded([&] { *result = chart_->DefaultSeriesColor(formattingIndex); });
}

HRESULT ReportChartObject::AddTornadoData(short numBars, SAFEARRAY** minValues, SAFEARRAY** maxValues) {
    return Guarded([&] {
        chart_->AddTornadoData(numBars, ArrayValue(minValues, VT_R8).Array(), ArrayValue(maxValues, VT_R8).Array());
    });
}

HRESULT ReportChartObject::AddTornadoYAxis(IDispatch** barLabelRange, IDispatch** result) {
    return Guarded([&] {
        *result = Dispatch(chart_->AddTornadoYAxis(RangeArgument(barLabelRange != nullptr ? *barLabelRange : nullptr)));
    });
}

HRESULT ReportChartObject::ResetPlotArea() {
    return Guarded([&] { chart_->ResetPlotArea(); });
}

HRESULT ReportChartObject::AddTitle(BSTR titleText, IDispatch** result) {
    return Guarded([&] { *result = Dispatch(chart_->AddTitle(Text(titleText))); });
}

HRESULT ReportChartObject::AddSubTitle(BSTR subTitleText, IDispatch** result) {
    return Guarded([&] { *result = Dispatch(chart_->AddSubTitle(Text(subTitleText))); });
}

HRESULT ReportChartObject::AddLegend(VARIANT_BOOL surroundWithBorder, IDispatch** result) {
    return Guarded([&] { *result = Dispatch(chart_->AddLegend(Boolean(surroundWithBorder))); });
}

HRESULT ReportChartObject::AddWatermark(BSTR primaryText, BSTR secondaryText, BSTR macroToRunWhenClicked) {
    return Guarded([&] { chart_->AddWatermark(Text(primaryText), Text(secondaryText), Text(macroToRunWhenClicked)); });
}

HRESULT ReportChartObject::AddCategoryXAxis(BSTR axisTitle, IDispatch* categoryNamesRange, VARIANT_BOOL verticalLabels,
                                            IDispatch** result) {
    return Guarded([&] {
        *result = Dispatch(
            chart_->AddCategoryXAxis(Text(axisTitle), RangeArgument(categoryNamesRange), Boolean(verticalLabels)));
    });
}

HRESULT ReportChartObject::AddValueXAxis(BSTR axisTitle, double axisMinimum, double axisMaximum, double axisUnit,
                                         BSTR numberFormat, VARIANT_BOOL verticalLabels, IDispatch** result) {
    return Guarded([&] {
        *result = Dispatch(chart_->AddValueXAxis(Text(axisTitle), axisMinimum, axisMaximum, axisUnit,
                                                 Text(numberFormat), Boolean(verticalLabels)));
    });
}

HRESULT ReportChartObject::AddValueYAxis(BSTR axisTitle, double axisMinimum, VARIANT axisMaximum, double axisUnit,
                                         BSTR numberFormat, IDispatch** result) {
    return Guarded([&] {
        *result = Dispatch(chart_->AddValueYAxis(Text(axisTitle), axisMinimum, ScaleVariant(axisMaximum), axisUnit,
                                                 Text(numberFormat)));
    });
}

HRESULT ReportChartObject::AddSecondaryValueYAxis(BSTR axisTitle, double axisMinimum, VARIANT axisMaximum,
                                                  double axisUnit, BSTR numberFormat, IDispatch** result) {
    return Guarded([&] {
        *result = Dispatch(chart_->AddSecondaryValueYAxis(Text(axisTitle), axisMinimum, ScaleVariant(axisMaximum),
                                                          axisUnit, Text(numberFormat)));
    });
}

HRESULT ReportChartObject::AddValueXAxisWithNiceTicks(double dataMin, double dataMax, VARIANT_BOOL requireMinGap,
                                                      VARIANT_BOOL requireMaxGap, BSTR axisTitle, BSTR numberFormat,
                                                      VARIANT_BOOL verticalLabels, VARIANT* result) {
    return Guarded([&] {
        SetValue(result, excel::Variant(chart_->AddValueXAxisWithNiceTicks(
                             dataMin, dataMax, Boolean(requireMinGap), Boolean(requireMaxGap), Text(axisTitle),
                             Text(numberFormat), Boolean(verticalLabels))));
    });
}

HRESULT ReportChartObject::AddValueYAxisWithNiceTicks(double dataMin, double dataMax, VARIANT_BOOL requireMinGap,
                                                      VARIANT_BOOL requireMaxGap, BSTR axisTitle, BSTR numberFormat,
                                                      IDispatch** result) {
    return Guarded([&] {
        *result = Dispatch(chart_->AddValueYAxisWithNiceTicks(
            dataMin, dataMax, Boolean(requireMinGap), Boolean(requireMaxGap), Text(axisTitle), Text(numberFormat)));
    });
}

HRESULT ReportChartObject::AddSecondaryValueYAxisWithNiceTicks(double dataMin, double dataMax,
                                                               VARIANT_BOOL requireMinGap, VARIANT_BOOL requireMaxGap,
                                                               BSTR axisTitle, BSTR numberFormat, IDispatch** result) {
    return Guarded([&] {
        *result = Dispatch(chart_->AddSecondaryValueYAxisWithNiceTicks(
            dataMin, dataMax, Boolean(requireMinGap), Boolean(requireMaxGap), Text(axisTitle), Text(numberFormat)));
    });
}

}  // namespace automation

#endif  // _WIN32
