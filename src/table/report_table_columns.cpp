#include "table/report_table.hpp"

#include "support/library_error.hpp"
#include "support/support_services.hpp"

#include <excel/range.hpp>

namespace vos {

namespace {

// The alignment argument that leaves an alignment as it is.
constexpr int32_t KeepAlignment = -12345;
// A number format in front of which this marker is written in the user's locale.
constexpr const char* LocalFormatMarker = "[LOCAL]";

}  // namespace

void ReportTable::ConfigureColumn(int32_t position, const std::string& headerCaption, int32_t interiorHAlign,
                                  int32_t headerHAlign, double columnWidth, const std::string& numberFormat,
                                  bool wrapText) {
    if (position < 1 || position > InteriorColumnCount())
        RaiseLibraryError(error_code::OutOfRange, "position");
    if ((!headerCaption.empty() || headerHAlign != KeepAlignment) && !topHeaderRange_)
        RaiseLibraryError(error_code::NotAllowedNow, "Header properties have been set for a non-existent header.");

    const auto column = interiorRange_->Columns(position);
    const auto headerCell = topHeaderRange_ ? topHeaderRange_->Cells(TopHeaderRowCount(), position) : nullptr;
    if (!headerCaption.empty())
        WriteHeaderItem(VosTopHeader, position, headerCaption);
    if (interiorHAlign != KeepAlignment)
        column->SetHorizontalAlignment(interiorHAlign);
    // The header cell follows the interior unless it is given its own alignment.
    const int32_t headerAlignment = headerHAlign != KeepAlignment ? headerHAlign : interiorHAlign;
    if (headerAlignment != KeepAlignment && headerCell)
        headerCell->SetHorizontalAlignment(headerAlignment);
    if (columnWidth > 0)
        column->EntireColumn()->SetColumnWidth(columnWidth);
    if (!numberFormat.empty()) {
        const auto& strings = Support().Strings();
        if (strings.BeginsWith(numberFormat, LocalFormatMarker))
            column->SetNumberFormatLocal(strings.StripPrefix(numberFormat, LocalFormatMarker));
        else
            column->SetNumberFormat(numberFormat);
    }
    if (wrapText)
        column->SetWrapText(true);
}

}  // namespace vos
