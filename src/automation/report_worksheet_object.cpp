#ifdef _WIN32

#include "automation/report_worksheet_object.hpp"

#include "automation/automation_values.hpp"
#include "automation/report_chart_object.hpp"
#include "automation/report_table_object.hpp"

#include <excel/excel.hpp>

namespace automation {

namespace {

// A range the client passed by reference.
std::shared_ptr<excel::Range> RangeArgument(IDispatch** range) {
    return ExcelObject<excel::Range>(range != nullptr ? *range : nullptr, "Range");
}

}  // namespace

HRESULT ReportWorksheetObject::get_ExcelWorksheet(IDispatch** result) {
    return Guarded([&] { *result = Dispatch(worksheet_->ExcelWorksheet()); });
}

HRESULT ReportWorksheetObject::get_DefaultLanguage(LONG* result) {
    return Guarded([&] { *result = worksheet_->DefaultLanguage(); });
}

HRESULT ReportWorksheetObject::get_LimitingRange(IDispatch** result) {
    return Guarded([&] { *result = Dispatch(worksheet_->LimitingRange()); });
}

HRESULT ReportWorksheetObject::get_RoundToRowBoundaries(VARIANT_BOOL* result) {
    return Guarded([&] { *result = AutomationBoolean(worksheet_->RoundToRowBoundaries()); });
}

HRESULT ReportWorksheetObject::put_RoundToRowBoundaries(VARIANT_BOOL roundToRowBoundaries) {
    return Guarded([&] { worksheet_->SetRoundToRowBoundaries(Boolean(roundToRowBoundaries)); });
}

HRESULT ReportWorksheetObject::get_CurrentCell(IDispatch** result) {
    return Guarded([&] { *result = Dispatch(worksheet_->CurrentCell()); });
}

HRESULT ReportWorksheetObject::putref_CurrentCell(IDispatch* cell) {
    return Guarded([&] { worksheet_->SetCurrentCell(ExcelObject<excel::Range>(cell, "Range")); });
}

HRESULT ReportWorksheetObject::HasAvailableSpace(LONG numRows, LONG numColumns, VARIANT_BOOL* result) {
    return Guarded([&] { *result = AutomationBoolean(worksheet_->HasAvailableSpace(numRows, numColumns)); });
}

HRESULT ReportWorksheetObject::AddSeparatorRows(LONG numRows) {
    return Guarded([&] { worksheet_->AddSeparatorRows(numRows); });
}

HRESULT ReportWorksheetObject::AddHeaderRange(BSTR mainTitle, SAFEARRAY** additionalHeaderInfo, IDispatch** result) {
    return Guarded([&] {
        *result = Dispatch(worksheet_->AddHeaderRange(Text(mainTitle), ArrayValue(additionalHeaderInfo, VT_VARIANT)));
    });
}

HRESULT ReportWorksheetObject::AddHeader(BSTR mainTitle, SAFEARRAY** additionalHeaderInfo, IDispatch** result) {
    return Guarded([&] {
        *result = Dispatch(worksheet_->AddHeader(Text(mainTitle), ArrayValue(additionalHeaderInfo, VT_VARIANT)));
    });
}

HRESULT ReportWorksheetObject::AddTable(LONG numInteriorRows, LONG numInteriorColumns, short NumHeaderRows,
                                        short NumHeaderColumns, BSTR mainTitle, BSTR subTitle,
                                        _VosExcelTable** result) {
    return Guarded([&] {
        SetReportObject<ReportTableObject>(
            result, worksheet_->AddTable(numInteriorRows, numInteriorColumns, NumHeaderRows, NumHeaderColumns,
                                         Text(mainTitle), Text(subTitle)));
    });
}

HRESULT ReportWorksheetObject::AddChart(VosChartType ChartType, double chartWidth, double chartHeight,
                                        _VosExcelChart** result) {
    return Guarded([&] {
        SetReportObject<ReportChartObject>(
            result, worksheet_->AddChart(static_cast<vos::VosChartType>(ChartType), chartWidth, chartHeight));
    });
}

HRESULT ReportWorksheetObject::RecommendedTornadoChartHeight(short numBars, double* result) {
    return Guarded([&] { *result = worksheet_->RecommendedTornadoChartHeight(numBars); });
}

HRESULT ReportWorksheetObject::AddSpacingColumn() {
    return Guarded([&] { worksheet_->AddSpacingColumn(); });
}

HRESULT ReportWorksheetObject::AddComment(IDispatch* whichCell, BSTR headerText, BSTR mainText, IDispatch** result) {
    return Guarded([&] {
        *result = Dispatch(
            worksheet_->AddComment(ExcelObject<excel::Range>(whichCell, "Range"), Text(headerText), Text(mainText)));
    });
}

HRESULT ReportWorksheetObject::get_ThemeColor(VosThemePropertyType p_VosThemePropertyType,
                                              VARIANT_BOOL p_ObjectThemeColor, LONG* result) {
    return Guarded([&] { *result = worksheet_->ThemeColor(p_VosThemePropertyType, Boolean(p_ObjectThemeColor)); });
}

HRESULT ReportWorksheetObject::get_ThemeTintAndShade(VosThemePropertyType p_VosThemePropertyType,
                                                     VARIANT_BOOL p_ObjectThemeColor, float* result) {
    return Guarded(
        [&] { *result = worksheet_->ThemeTintAndShade(p_VosThemePropertyType, Boolean(p_ObjectThemeColor)); });
}

HRESULT ReportWorksheetObject::SetTitleRangeTheme(IDispatch** p_Range) {
    return Guarded([&] { worksheet_->SetTitleRangeTheme(RangeArgument(p_Range)); });
}

HRESULT ReportWorksheetObject::SetInteriorRangeTheme(IDispatch** p_Range, VosTableInsideBorderType p_InsideBorderType) {
    return Guarded([&] { worksheet_->SetInteriorRangeTheme(RangeArgument(p_Range), p_InsideBorderType); });
}

HRESULT ReportWorksheetObject::SetTopHeaderRangeTheme(IDispatch** p_Range,
                                                      VosTableInsideBorderType p_InsideBorderType) {
    return Guarded([&] { worksheet_->SetTopHeaderRangeTheme(RangeArgument(p_Range), p_InsideBorderType); });
}

HRESULT ReportWorksheetObject::SetLeftHeaderRangeTheme(IDispatch** p_Range,
                                                       VosTableInsideBorderType p_InsideBorderType) {
    return Guarded([&] { worksheet_->SetLeftHeaderRangeTheme(RangeArgument(p_Range), p_InsideBorderType); });
}

}  // namespace automation

#endif  // _WIN32
