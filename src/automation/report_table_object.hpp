#pragma once

#ifdef _WIN32

#include "automation/automation_object.hpp"
#include "automation/type_library_interfaces.hpp"

#include <vos/vos_excel_table.hpp>

#include <memory>

namespace automation {

// A report table for automation clients; only a report worksheet hands one out.
class ReportTableObject final : public AutomationObject<_VosExcelTable> {
public:
    explicit ReportTableObject(std::shared_ptr<vos::VosExcelTable> table) : table_(std::move(table)) {}

    HRESULT STDMETHODCALLTYPE get_AnchorCell(IDispatch** result) override;
    HRESULT STDMETHODCALLTYPE get_TableRange(IDispatch** result) override;
    HRESULT STDMETHODCALLTYPE get_TitleRange(IDispatch** result) override;
    HRESULT STDMETHODCALLTYPE get_SignatureRange(IDispatch** result) override;
    HRESULT STDMETHODCALLTYPE get_TopHeaderRange(VARIANT_BOOL extendedToIncludeSignatureRange,
                                                 IDispatch** result) override;
    HRESULT STDMETHODCALLTYPE get_LeftHeaderRange(VARIANT_BOOL extendedToIncludeSignatureRange,
                                                  IDispatch** result) override;
    HRESULT STDMETHODCALLTYPE get_InteriorRange(IDispatch** result) override;
    HRESULT STDMETHODCALLTYPE WriteHeaderItem(VosTableHeaderType whichHeader, LONG position, VARIANT theValue) override;
    HRESULT STDMETHODCALLTYPE WriteHeaderMergedItem(VosTableHeaderType whichHeader, LONG position,
                                                    VARIANT theValue) override;
    HRESULT STDMETHODCALLTYPE WriteHeaderPairedItem(VosTableHeaderType whichHeader, LONG position, VARIANT firstValue,
                                                    VARIANT secondValue) override;
    HRESULT STDMETHODCALLTYPE WriteHeaderArray(VosTableHeaderType whichHeader, LONG startPosition,
                                               SAFEARRAY** theValues) override;
    HRESULT STDMETHODCALLTYPE WriteHeaderSummary(VosTableHeaderType whichHeader, VARIANT summaryValue) override;
    HRESULT STDMETHODCALLTYPE WriteHeaderIndexNumbers(VosTableHeaderType whichHeader, LONG startingPosition,
                                                      LONG numIndices, BSTR prefixText) override;
    HRESULT STDMETHODCALLTYPE WriteDataToColumn(LONG columnPosition, VARIANT dataArray,
                                                LONG startingRowPosition) override;
    HRESULT STDMETHODCALLTYPE AddComment(LONG interiorRowPosition, LONG interiorColumnPosition, BSTR headerText,
                                         BSTR mainText, IDispatch** result) override;
    HRESULT STDMETHODCALLTYPE AddRowDividerLine(LONG position, VARIANT_BOOL extendIntoColumnHeader, LONG lineStyle,
                                                LONG weight, short colorIndex) override;
    HRESULT STDMETHODCALLTYPE AddColumnDividerLine(LONG position, VARIANT_BOOL extendIntoRowHeader, LONG lineStyle,
                                                   LONG weight, short colorIndex) override;
    HRESULT STDMETHODCALLTYPE AddCustomDivider(IDispatch* borderObject, LONG lineStyle, LONG weight,
                                               short colorIndex) override;
    HRESULT STDMETHODCALLTYPE ConfigureColumn(LONG position, BSTR headerCaption, LONG interiorHAlign, LONG headerHAlign,
                                              double columnWidth, BSTR numberFormat, VARIANT_BOOL wrapText) override;
    HRESULT STDMETHODCALLTYPE CheckHeaderVariable(VosTableHeaderType whichHeader, BSTR argumentName) override;

private:
    std::shared_ptr<vos::VosExcelTable> table_;
};

}  // namespace automation

#endif  // _WIN32
