#pragma once

#ifdef _WIN32

#include "automation/automation_object.hpp"
#include "automation/type_library_interfaces.hpp"

#include <vos/vos_excel_report_worksheet.hpp>

#include <memory>

namespace automation {

// A report worksheet for automation clients; only a report workbook hands one out.
class ReportWorksheetObject final : public AutomationObject<_VosExcelReportWorksheet> {
public:
    explicit ReportWorksheetObject(std::shared_ptr<vos::VosExcelReportWorksheet> worksheet)
        : worksheet_(std::move(worksheet)) {}

    HRESULT STDMETHODCALLTYPE get_ExcelWorksheet(IDispatch** result) override;
    HRESULT STDMETHODCALLTYPE get_DefaultLanguage(LONG* result) override;
    HRESULT STDMETHODCALLTYPE get_LimitingRange(IDispatch** result) override;
    HRESULT STDMETHODCALLTYPE get_RoundToRowBoundaries(VARIANT_BOOL* result) override;
    HRESULT STDMETHODCALLTYPE put_RoundToRowBoundaries(VARIANT_BOOL roundToRowBoundaries) override;
    HRESULT STDMETHODCALLTYPE get_CurrentCell(IDispatch** result) override;
    HRESULT STDMETHODCALLTYPE putref_CurrentCell(IDispatch* cell) override;
    HRESULT STDMETHODCALLTYPE HasAvailableSpace(LONG numRows, LONG numColumns, VARIANT_BOOL* result) override;
    HRESULT STDMETHODCALLTYPE AddSeparatorRows(LONG numRows) override;
    HRESULT STDMETHODCALLTYPE AddHeaderRange(BSTR mainTitle, SAFEARRAY** additionalHeaderInfo,
                                             IDispatch** result) override;
    HRESULT STDMETHODCALLTYPE AddHeader(BSTR mainTitle, SAFEARRAY** additionalHeaderInfo, IDispatch** result) override;
    HRESULT STDMETHODCALLTYPE AddTable(LONG numInteriorRows, LONG numInteriorColumns, short NumHeaderRows,
                                       short NumHeaderColumns, BSTR mainTitle, BSTR subTitle,
                                       _VosExcelTable** result) override;
    HRESULT STDMETHODCALLTYPE AddChart(VosChartType ChartType, double chartWidth, double chartHeight,
                                       _VosExcelChart** result) override;
    HRESULT STDMETHODCALLTYPE RecommendedTornadoChartHeight(short numBars, double* result) override;
    HRESULT STDMETHODCALLTYPE AddSpacingColumn() override;
    HRESULT STDMETHODCALLTYPE AddComment(IDispatch* whichCell, BSTR headerText, BSTR mainText,
                                         IDispatch** result) override;
    HRESULT STDMETHODCALLTYPE get_ThemeColor(VosThemePropertyType p_VosThemePropertyType,
                                             VARIANT_BOOL p_ObjectThemeColor, LONG* result) override;
    HRESULT STDMETHODCALLTYPE get_ThemeTintAndShade(VosThemePropertyType p_VosThemePropertyType,
                                                    VARIANT_BOOL p_ObjectThemeColor, float* result) override;
    HRESULT STDMETHODCALLTYPE SetTitleRangeTheme(IDispatch** p_Range) override;
    HRESULT STDMETHODCALLTYPE SetInteriorRangeTheme(IDispatch** p_Range,
                                                    VosTableInsideBorderType p_InsideBorderType) override;
    HRESULT STDMETHODCALLTYPE SetTopHeaderRangeTheme(IDispatch** p_Range,
                                                     VosTableInsideBorderType p_InsideBorderType) override;
    HRESULT STDMETHODCALLTYPE SetLeftHeaderRangeTheme(IDispatch** p_Range,
                                                      VosTableInsideBorderType p_InsideBorderType) override;

private:
    std::shared_ptr<vos::VosExcelReportWorksheet> worksheet_;
};

}  // namespace automation

#endif  // _WIN32
