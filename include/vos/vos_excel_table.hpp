#pragma once

#include <vos/table_header_type.hpp>

#include <excel/fwd.hpp>
#include <excel/variant.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace vos {

// A table placed on a report sheet: title rows, top and left headers, an interior and the
// signature corner where the headers meet. Only VosExcelReportWorksheet::AddTable hands one out;
// it has cleared and formatted its block by then, and from there on only writes into it.
//
// Header positions count along a header from 1: a column of the top header, a row of the left
// header. The innermost line of a header is the one next to the interior. Interior positions
// count rows and columns of the interior from 1.
class VosExcelTable {
public:
    virtual ~VosExcelTable() = default;

    // The table's top-left cell.
    virtual std::shared_ptr<excel::Range> AnchorCell() = 0;
    // The whole block, title included.
    virtual std::shared_ptr<excel::Range> TableRange() = 0;
    // The title rows, or none without titles.
    virtual std::shared_ptr<excel::Range> TitleRange() = 0;
    // The corner where the top-header rows and the left-header columns cross, or none.
    virtual std::shared_ptr<excel::Range> SignatureRange() = 0;
    // The header rows above the interior columns, or none; with the flag, and a signature block,
    // the union of the two.
    virtual std::shared_ptr<excel::Range> TopHeaderRange(bool extendedToIncludeSignatureRange = false) = 0;
    // The header columns beside the interior rows, or none; with the flag, and a signature block,
    // the union of the two.
    virtual std::shared_ptr<excel::Range> LeftHeaderRange(bool extendedToIncludeSignatureRange = false) = 0;
    // The data cells.
    virtual std::shared_ptr<excel::Range> InteriorRange() = 0;

    // Writes the value into the innermost header cell at that position.
    virtual void WriteHeaderItem(VosTableHeaderType whichHeader, int32_t position, const excel::Variant& theValue) = 0;
    // Writes the value over every top-header row at that position, merged and centred vertically.
    virtual void WriteHeaderMergedItem(VosTableHeaderType whichHeader, int32_t position,
                                       const excel::Variant& theValue) = 0;
    // Writes two values into the last two top-header rows at that position, the first above.
    virtual void WriteHeaderPairedItem(VosTableHeaderType whichHeader, int32_t position,
                                       const excel::Variant& firstValue, const excel::Variant& secondValue) = 0;
    // Writes the array's values, one cell each, along the innermost header line from startPosition.
    virtual void WriteHeaderArray(VosTableHeaderType whichHeader, int32_t startPosition,
                                  const excel::Variant& theValues) = 0;
    // Writes the value once across the outermost top-header row, merged and centred across it.
    virtual void WriteHeaderSummary(VosTableHeaderType whichHeader, const excel::Variant& summaryValue) = 0;
    // Labels numIndices header positions from startingPosition (0: to the end) with the prefix and
    // the numbers 1, 2, ...
    virtual void WriteHeaderIndexNumbers(VosTableHeaderType whichHeader, int32_t startingPosition = 1,
                                         int32_t numIndices = 0, const std::string& prefixText = "#") = 0;

    // Writes a one-dimensional array down an interior column, from startingRowPosition on, in one
    // assignment; the cells below the run are left as they are.
    virtual void WriteDataToColumn(int32_t columnPosition, const excel::Variant& dataArray,
                                   int32_t startingRowPosition = 1) = 0;
    // A hidden, formatted comment on an interior cell; position 0 in a direction means the header
    // cell in that direction, both 0 the signature block's last cell.
    virtual std::shared_ptr<excel::Comment> AddComment(int32_t interiorRowPosition, int32_t interiorColumnPosition,
                                                       const std::string& headerText, const std::string& mainText) = 0;
    // A line under an interior row (0: under the header), optionally run on through the left
    // header. With themes the line takes the table-border theme colour instead of colorIndex.
    virtual void AddRowDividerLine(int32_t position, bool extendIntoColumnHeader, int32_t lineStyle = 1,
                                   int32_t weight = 2, int16_t colorIndex = 15) = 0;
    // A line right of an interior column (0: right of the left header), optionally run on up
    // through the top header.
    virtual void AddColumnDividerLine(int32_t position, bool extendIntoRowHeader, int32_t lineStyle = 1,
                                      int32_t weight = 2, int16_t colorIndex = 15) = 0;
    // Draws any border, inside the table or not, as the dividers are drawn.
    virtual void AddCustomDivider(const std::shared_ptr<excel::Border>& borderObject, int32_t lineStyle = 1,
                                  int32_t weight = 2, int16_t colorIndex = 15) = 0;
    // Settings of one interior column: the caption of its innermost header cell, the alignment of
    // the column and of that cell (-12345 leaves it), the width in characters (not above 0 leaves
    // it), a number format ("[LOCAL]" in front: in the user's locale) and wrapping (false leaves it).
    virtual void ConfigureColumn(int32_t position, const std::string& headerCaption = "",
                                 int32_t interiorHAlign = -12345, int32_t headerHAlign = -12345,
                                 double columnWidth = -1.0, const std::string& numberFormat = "",
                                 bool wrapText = false) = 0;
    // Refuses a header the table does not have, and a value outside VosTableHeaderType.
    virtual void CheckHeaderVariable(VosTableHeaderType whichHeader,
                                     const std::string& argumentName = "whichHeader") = 0;

protected:
    VosExcelTable() = default;
    VosExcelTable(const VosExcelTable&) = delete;
    VosExcelTable& operator=(const VosExcelTable&) = delete;
};

}  // namespace vos
