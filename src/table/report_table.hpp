#pragma once

#include <vos/vos_excel_table.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace vos {

class ReportThemeColors;

// The table behind VosExcelTable, with the members the report sheet and the table's own writers
// call. The ranges are fixed once by InitializeTable and never change afterwards.
// Defined in report_table.cpp (ranges and initialisation), report_table_formats.cpp (the plain and
// themed formats), report_table_headers.cpp (header writers), report_table_data.cpp (column data and
// comments), report_table_dividers.cpp and report_table_columns.cpp (column settings).
class ReportTable final : public VosExcelTable {
public:
    std::shared_ptr<excel::Range> AnchorCell() override;
    std::shared_ptr<excel::Range> TableRange() override;
    std::shared_ptr<excel::Range> TitleRange() override;
    std::shared_ptr<excel::Range> SignatureRange() override;
    std::shared_ptr<excel::Range> TopHeaderRange(bool extendedToIncludeSignatureRange = false) override;
    std::shared_ptr<excel::Range> LeftHeaderRange(bool extendedToIncludeSignatureRange = false) override;
    std::shared_ptr<excel::Range> InteriorRange() override;
    void WriteHeaderItem(VosTableHeaderType whichHeader, int32_t position, const excel::Variant& theValue) override;
    void WriteHeaderMergedItem(VosTableHeaderType whichHeader, int32_t position,
                               const excel::Variant& theValue) override;
    void WriteHeaderPairedItem(VosTableHeaderType whichHeader, int32_t position, const excel::Variant& firstValue,
                               const excel::Variant& secondValue) override;
    void WriteHeaderArray(VosTableHeaderType whichHeader, int32_t startPosition,
                          const excel::Variant& theValues) override;
    void WriteHeaderSummary(VosTableHeaderType whichHeader, const excel::Variant& summaryValue) override;
    void WriteHeaderIndexNumbers(VosTableHeaderType whichHeader, int32_t startingPosition = 1, int32_t numIndices = 0,
                                 const std::string& prefixText = "#") override;
    void WriteDataToColumn(int32_t columnPosition, const excel::Variant& dataArray,
                           int32_t startingRowPosition = 1) override;
    std::shared_ptr<excel::Comment> AddComment(int32_t interiorRowPosition, int32_t interiorColumnPosition,
                                               const std::string& headerText, const std::string& mainText) override;
    void AddRowDividerLine(int32_t position, bool extendIntoColumnHeader, int32_t lineStyle = 1, int32_t weight = 2,
                           int16_t colorIndex = 15) override;
    void AddColumnDividerLine(int32_t position, bool extendIntoRowHeader, int32_t lineStyle = 1, int32_t weight = 2,
                              int16_t colorIndex = 15) override;
    void AddCustomDivider(const std::shared_ptr<excel::Border>& borderObject, int32_t lineStyle = 1,
                          int32_t weight = 2, int16_t colorIndex = 15) override;
    void ConfigureColumn(int32_t position, const std::string& headerCaption = "", int32_t interiorHAlign = -12345,
                         int32_t headerHAlign = -12345, double columnWidth = -1.0,
                         const std::string& numberFormat = "", bool wrapText = false) override;
    void CheckHeaderVariable(VosTableHeaderType whichHeader, const std::string& argumentName = "whichHeader") override;

    // Divides the reserved block into its ranges, clears it, writes the titles as text and
    // formats it, plainly or from the workbook's theme.
    void InitializeTable(const std::shared_ptr<const ReportThemeColors>& reportWorkbook,
                         const std::shared_ptr<excel::Range>& tableRange, int16_t numHeaderRows,
                         int16_t numHeaderColumns, const std::string& mainTitle, const std::string& subTitle,
                         int32_t language);
    void ApplyStandardFormat();
    void ApplyThemeFormat();
    // Refuses a header the table lacks, and a position outside 1 .. the header's length, naming
    // argumentName.
    void ValidateHeaderPosition(VosTableHeaderType whichHeader, int32_t position, const std::string& argumentName);
    int16_t TopHeaderRowCount() const;
    int16_t LeftHeaderColumnCount() const;
    int16_t TitleRowCount() const;

private:
    // The title row's font size and the size of every other part, by language.
    double LargeFontSize() const;
    double SmallFontSize() const;
    // Merges each title row; the first is large and bold, the second small and plain.
    void FormatTitleRows() const;
    // The line along which a header's positions run: the top header's last row, the left
    // header's last column.
    std::shared_ptr<excel::Range> InnermostHeaderLine(VosTableHeaderType whichHeader) const;
    // The header's length along its positions.
    int32_t HeaderLength(VosTableHeaderType whichHeader) const;
    // Refuses the left header in the members that only the top header supports.
    static void RequireTopHeader(VosTableHeaderType whichHeader);
    // Draws a divider: the weight, the line style, then the theme colour or the colour index.
    void DrawDivider(const std::shared_ptr<excel::Border>& border, int32_t lineStyle, int32_t weight,
                     int16_t colorIndex) const;
    int32_t InteriorRowCount() const;
    int32_t InteriorColumnCount() const;

    std::shared_ptr<const ReportThemeColors> reportWorkbook_;  // the colours of the table's report workbook
    std::shared_ptr<excel::Range> tableRange_;
    std::shared_ptr<excel::Range> titleRange_;
    std::shared_ptr<excel::Range> signatureRange_;
    std::shared_ptr<excel::Range> leftHeaderRange_;
    std::shared_ptr<excel::Range> topHeaderRange_;
    std::shared_ptr<excel::Range> interiorRange_;
    int32_t language_ = 0;
};

}  // namespace vos
