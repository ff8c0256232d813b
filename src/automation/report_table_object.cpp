#ifdef _WIN32

#include "automation/report_table_object.hpp"

#include "automation/automation_values.hpp"

#include <excel/excel.hpp>

namespace automation {

namespace {

vos::VosTableHeaderType HeaderType(VosTableHeaderType whichHeader) {
    return static_cast<vos::VosTableHeaderType>(whichHeader);
}

}  // namespace

HRESULT ReportTableObject::get_AnchorCell(IDispatch** result) {
    return Guarded([&] { *result = Dispatch(table_->AnchorCell()); });
}

HRESULT ReportTableObject::get_TableRange(IDispatch** result) {
    return Guarded([&] { *result = Dispatch(table_->TableRange()); });
}

HRESULT ReportTableObject::get_TitleRange(IDispatch** result) {
    return Guarded([&] { *result = Dispatch(table_->TitleRange()); });
}

HRESULT ReportTableObject::get_SignatureRange(IDispatch** result) {
    return Guarded([&] { *result = Dispatch(table_->SignatureRange()); });
}

HRESULT ReportTableObject::get_TopHeaderRange(VARIANT_BOOL extendedToIncludeSignatureRange, IDispatch** result) {
    return Guarded([&] { *result = Dispatch(table_->TopHeaderRange(Boolean(extendedToIncludeSignatureRange))); });
}

HRESULT ReportTableObject::get_LeftHeaderRange(VARIANT_BOOL extendedToIncludeSignatureRange, IDispatch** result) {
    return Guarded([&] { *result = Dispatch(table_->LeftHeaderRange(Boolean(extendedToIncludeSignatureRange))); });
}

HRESULT ReportTableObject::get_InteriorRange(IDispatch** result) {
    return Guarded([&] { *result = Dispatch(table_->InteriorRange()); });
}

HRESULT ReportTableObject::WriteHeaderItem(VosTableHeaderType whichHeader, LONG position, VARIANT theValue) {
    return Guarded([&] { table_->WriteHeaderItem(HeaderType(whichHeader), position, Value(theValue)); });
}

HRESULT ReportTableObject::WriteHeaderMergedItem(VosTableHeaderType whichHeader, LONG position, VARIANT theValue) {
    return Guarded([&] { table_->WriteHeaderMergedItem(HeaderType(whichHeader), position, Value(theValue)); });
}

HRESULT ReportTableObject::WriteHeaderPairedItem(VosTableHeaderType whichHeader, LONG position, VARIANT firstValue,
                                                 VARIANT secondValue) {
    return Guarded([&] {
        table_->WriteHeaderPairedItem(HeaderType(whichHeader), position, Value(firstValue), Value(secondValue));
    });
}

HRESULT ReportTableObject::WriteHeaderArray(VosTableHeaderType whichHeader, LONG startPosition, SAFEARRAY** theValues) {
    return Guarded(
        [&] { table_->WriteHeaderArray(HeaderType(whichHeader), startPosition, ArrayValue(theValues, VT_VARIANT)); });
}

HRESULT ReportTableObject::WriteHeaderSummary(VosTableHeaderType whichHeader, VARIANT summaryValue) {
    return Guarded([&] { table_->WriteHeaderSummary(HeaderType(whichHeader), Value(summaryValue)); });
}

HRESULT ReportTableObject::WriteHeaderIndexNumbers(VosTableHeaderType whichHeader, LONG startingPosition,
                                                   LONG numIndices, BSTR prefixText) {
    return Guarded([&] {
        table_->WriteHeaderIndexNumbers(HeaderType(whichHeader), startingPosition, numIndices, Text(prefixText));
    });
}

HRESULT ReportTableObject::WriteDataToColumn(LONG columnPosition, VARIANT dataArray, LONG startingRowPosition) {
    return Guarded([&] { table_->WriteDataToColumn(columnPosition, Value(dataArray), startingRowPosition); });
}

HRESULT ReportTableObject::AddComment(LONG interiorRowPosition, LONG interiorColumnPosition, BSTR headerText,
                                      BSTR mainText, IDispatch** result) {
    return Guarded([&] {
        *result =
            Dispatch(table_->AddComment(interiorRowPosition, interiorColumnPosition, Text(headerText), Text(mainText)));
    });
}

HRESULT ReportTableObject::AddRowDividerLine(LONG position, VARIANT_BOOL extendIntoColumnHeader, LONG lineStyle,
                                             LONG weight, short colorIndex) {
    return Guarded(
        [&] { table_->AddRowDividerLine(position, Boolean(extendIntoColumnHeader), lineStyle, weight, colorIndex); });
}

HRESULT ReportTableObject::AddColumnDividerLine(LONG position, VARIANT_BOOL extendIntoRowHeader, LONG lineStyle,
                                                LONG weight, short colorIndex) {
    return Guarded(
        [&] { table_->AddColumnDividerLine(position, Boolean(extendIntoRowHeader), lineStyle, weight, colorIndex); });
}

HRESULT ReportTableObject::AddCustomDivider(IDispatch* borderObject, LONG lineStyle, LONG weight, short colorIndex) {
    return Guarded([&] {
        table_->AddCustomDivider(ExcelObject<excel::Border>(borderObject, "Border"), lineStyle, weight, colorIndex);
    });
}

HRESULT ReportTableObject::ConfigureColumn(LONG position, BSTR headerCaption, LONG interiorHAlign, LONG headerHAlign,
                                           double columnWidth, BSTR numberFormat, VARIANT_BOOL wrapText) {
    return Guarded([&] {
        // A width left out leaves the column's width as it is, as any width of 0 or less does.
        table_->ConfigureColumn(position, Text(headerCaption), interiorHAlign, headerHAlign, columnWidth,
                                Text(numberFormat), Boolean(wrapText));
    });
}

HRESULT ReportTableObject::CheckHeaderVariable(VosTableHeaderType whichHeader, BSTR argumentName) {
    return Guarded([&] { table_->CheckHeaderVariable(HeaderType(whichHeader), Text(argumentName)); });
}

}  // namespace automation

#endif  // _WIN32
