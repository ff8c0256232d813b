#include "table/report_table.hpp"

#include "support/library_error.hpp"
#include "support/report_theme_colors.hpp"
#include "support/support_services.hpp"

#include <excel/application.hpp>
#include <excel/range.hpp>

namespace vos {

namespace {

// The other range joined to the header when asked for and when both exist; the header alone otherwise.
std::shared_ptr<excel::Range> WithSignature(const std::shared_ptr<excel::Range>& header,
                                            const std::shared_ptr<excel::Range>& signature, bool extended) {
    if (extended && header && signature)
        return header->Application()->Union(header, signature);
    return header;
}

// The text prefix that keeps a title text whatever it looks like: a number, a date or a formula.
std::string AsText(const std::string& title) {
    return "'" + title;
}

}  // namespace

std::shared_ptr<excel::Range> ReportTable::AnchorCell() {
    return tableRange_->Cells(1, 1);
}

std::shared_ptr<excel::Range> ReportTable::TableRange() {
    return tableRange_;
}

std::shared_ptr<excel::Range> ReportTable::TitleRange() {
    return titleRange_;
}

std::shared_ptr<excel::Range> ReportTable::SignatureRange() {
    return signatureRange_;
}

std::shared_ptr<excel::Range> ReportTable::TopHeaderRange(bool extendedToIncludeSignatureRange) {
    return WithSignature(topHeaderRange_, signatureRange_, extendedToIncludeSignatureRange);
}

std::shared_ptr<excel::Range> ReportTable::LeftHeaderRange(bool extendedToIncludeSignatureRange) {
    return WithSignature(leftHeaderRange_, signatureRange_, extendedToIncludeSignatureRange);
}

std::shared_ptr<excel::Range> ReportTable::InteriorRange() {
    return interiorRange_;
}

void ReportTable::InitializeTable(const std::shared_ptr<const ReportThemeColors>& reportWorkbook,
                                  const std::shared_ptr<excel::Range>& tableRange, int16_t numHeaderRows,
                                  int16_t numHeaderColumns, const std::string& mainTitle,
                                  const std::string& subTitle, int32_t language) {
    if (!tableRange)
        RaiseLibraryError(error_code::MissingObject, "TableRange");
    reportWorkbook_ = reportWorkbook;
    language_ = language;
    const int32_t titleRows = (mainTitle.empty() ? 0 : 1) + (subTitle.empty() ? 0 : 1);
    const int32_t interiorRows = tableRange->Rows()->Count() - numHeaderRows - titleRows;
    const int32_t interiorColumns = tableRange->Columns()->Count() - numHeaderColumns;
    tableRange_ = tableRange;

    const auto& ranges = Support().Ranges();
    titleRange_ = titleRows < 1 ? nullptr : ranges.RangeResize(tableRange, titleRows, RangeServices::KeepCount);
    if (numHeaderColumns < 1) {
        signatureRange_ = nullptr;
        leftHeaderRange_ = nullptr;
    } else {
        signatureRange_ = ranges.RangeOffset(ranges.RangeResize(tableRange, numHeaderRows, numHeaderColumns), titleRows, 0);
        leftHeaderRange_ = ranges.RangeOffset(ranges.RangeResize(tableRange, interiorRows, numHeaderColumns),
                                              titleRows + numHeaderRows, 0);
    }
    topHeaderRange_ = ranges.RangeOffset(ranges.RangeResize(tableRange, numHeaderRows, interiorColumns), titleRows,
                                         numHeaderColumns);
    interiorRange_ = ranges.RangeOffset(ranges.RangeResize(tableRange, interiorRows, interiorColumns),
                                        titleRows + numHeaderRows, numHeaderColumns);

    tableRange->SetMergeCells(false);
    tableRange->Clear();
    tableRange->SetNumberFormat("General");
    // The subtitle goes to the second title row even when it is the only title: that row then
    // lies below the one-row title area.
    if (!mainTitle.empty())
        titleRange_->Cells(1, 1)->SetValue(AsText(mainTitle));
    if (!subTitle.empty())
        titleRange_->Cells(2, 1)->SetValue(AsText(subTitle));

    if (reportWorkbook->UseThemes())
        ApplyThemeFormat();
    else
        ApplyStandardFormat();
}

void ReportTable::ValidateHeaderPosition(VosTableHeaderType whichHeader, int32_t position,
                                         const std::string& argumentName) {
    int32_t limit = 0;
    if (whichHeader == VosTopHeader) {
        if (!topHeaderRange_)
            RaiseLibraryError(error_code::NotAllowedNow, "Table has no top header.");
        limit = topHeaderRange_->Columns()->Count();
    } else if (whichHeader == VosLeftHeader) {
        if (!leftHeaderRange_)
            RaiseLibraryError(error_code::NotAllowedNow, "Table has no left header.");
        limit = leftHeaderRange_->Rows()->Count();
    } else {
        RaiseLibraryError(error_code::OutOfRange, "whichHeader");
    }
    if (position < 1 || position > limit)
        RaiseLibraryError(error_code::OutOfRange, argumentName);
}

int16_t ReportTable::TopHeaderRowCount() const {
    return topHeaderRange_ ? static_cast<int16_t>(topHeaderRange_->Rows()->Count()) : int16_t{0};
}

int16_t ReportTable::LeftHeaderColumnCount() const {
    return leftHeaderRange_ ? static_cast<int16_t>(leftHeaderRange_->Columns()->Count()) : int16_t{0};
}

int16_t ReportTable::TitleRowCount() const {
    return titleRange_ ? static_cast<int16_t>(titleRange_->Rows()->Count()) : int16_t{0};
}

int32_t ReportTable::InteriorRowCount() const {
    return interiorRange_->Rows()->Count();
}

int32_t ReportTable::InteriorColumnCount() const {
    return interiorRange_->Columns()->Count();
}

}  // namespace vos
