#pragma once

#include <vos/chart_type.hpp>
#include <vos/table_inside_border_type.hpp>
#include <vos/vos_excel_chart.hpp>
#include <vos/vos_excel_table.hpp>

#include <excel/fwd.hpp>
#include <excel/variant.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace vos {

// A worksheet of a report workbook that report elements are laid down one below the other.
// Each element is placed at the layout cursor, CurrentCell, which then moves below it; the cursor
// stays inside LimitingRange, and becomes empty once a move would leave it. Only
// VosExcelReportWorkbook::NewReportWorksheet hands one out.
class VosExcelReportWorksheet {
public:
    virtual ~VosExcelReportWorksheet() = default;

    virtual std::shared_ptr<excel::Worksheet> ExcelWorksheet() const = 0;
    virtual int32_t DefaultLanguage() const = 0;
    // The region report elements may occupy: the whole sheet.
    virtual std::shared_ptr<excel::Range> LimitingRange() const = 0;
    // Whether charts are stretched to end on a row boundary. Always true: setting it to false
    // leaves it true.
    virtual bool RoundToRowBoundaries() const = 0;
    virtual void SetRoundToRowBoundaries(bool roundToRowBoundaries) = 0;
    // The cell where the next element goes, or none once the cursor has run off the limiting
    // range. A new cursor must be one cell of this sheet inside the limiting range, or none.
    virtual std::shared_ptr<excel::Range> CurrentCell() const = 0;
    virtual void SetCurrentCell(const std::shared_ptr<excel::Range>& cell) = 0;

    // Whether an element of that many rows and columns fits at the cursor and still leaves the
    // cursor a cell of the limiting range below and right of it.
    virtual bool HasAvailableSpace(int32_t numRows, int32_t numColumns) = 0;
    // Leaves numRows empty rows below the last element.
    virtual void AddSeparatorRows(int32_t numRows) = 0;
    // The header block written into cells at the cursor: the title, a "Performed By" line, a
    // "Date" line, then one line per entry of additionalHeaderInfo (a one-dimensional array of
    // "label<TAB>value" texts; an entry without a TAB is all label). With themes the block is 9
    // columns in the report-header theme colour, without them whole silver rows with a black line
    // underneath. The cursor moves to the row below the block.
    virtual std::shared_ptr<excel::Range> AddHeaderRange(const std::string& mainTitle,
                                                         const excel::Variant& additionalHeaderInfo) = 0;
    // The same header block as one text box at the cursor, 428 points wide, ending half a point
    // above a row boundary; the cursor moves to the row after the box. The title must not be blank.
    virtual std::shared_ptr<excel::Shape> AddHeader(const std::string& mainTitle,
                                                    const excel::Variant& additionalHeaderInfo) = 0;
    // A table at the cursor: its title rows (one for each title given), numHeaderRows header rows
    // (1 to 5) and numInteriorRows interior rows, NumHeaderColumns header columns (0 to 5) and
    // numInteriorColumns interior columns, cleared and formatted. The cursor moves to the row below.
    virtual std::shared_ptr<VosExcelTable> AddTable(int32_t numInteriorRows, int32_t numInteriorColumns,
                                                    int16_t NumHeaderRows, int16_t NumHeaderColumns,
                                                    const std::string& mainTitle = "",
                                                    const std::string& subTitle = "") = 0;
    // A chart of that type and size in points, its top-left corner at the cursor. It must end inside
    // the limiting range; it is stretched or trimmed to end half a point above a row boundary, and
    // the cursor moves to the row after the one its bottom-right corner was in.
    virtual std::shared_ptr<VosExcelChart> AddChart(VosChartType ChartType, double chartWidth = 428.0,
                                                    double chartHeight = 300.0) = 0;
    // The height in points that a tornado chart of that many bars reads well at: 300 up to nine
    // bars, 16 more for each further bar up to sixteen.
    virtual double RecommendedTornadoChartHeight(int16_t numBars) = 0;
    // Inserts a narrow gutter column at the left edge of the sheet; everything shifts right.
    virtual void AddSpacingColumn() = 0;
    // A hidden comment on the cell: the bold, underlined header text over the main text, in a
    // white 216 x 90 point box with a navy outline. It replaces the cell's comment, if any.
    virtual std::shared_ptr<excel::Comment> AddComment(const std::shared_ptr<excel::Range>& whichCell,
                                                       const std::string& headerText, const std::string& mainText) = 0;

    // The workbook's theme colour index and tint for a part of a report (a VosThemePropertyType;
    // other values read the VosTableBorders entry). With p_ObjectThemeColor the index is in the
    // numbering of drawing objects, which swaps dark and light against the cells' numbering.
    virtual int32_t ThemeColor(int32_t p_VosThemePropertyType, bool p_ObjectThemeColor = false) = 0;
    virtual float ThemeTintAndShade(int32_t p_VosThemePropertyType, bool p_ObjectThemeColor = false) = 0;
    // Colour a table's ranges from the workbook's theme, whether or not the workbook uses themes;
    // a missing range is left alone. The header members remove the inside lines the border type
    // does not draw; the interior member leaves them.
    virtual void SetTitleRangeTheme(const std::shared_ptr<excel::Range>& p_Range) = 0;
    virtual void SetInteriorRangeTheme(const std::shared_ptr<excel::Range>& p_Range,
                                       int32_t p_InsideBorderType = VosBorderHorizontal) = 0;
    virtual void SetTopHeaderRangeTheme(const std::shared_ptr<excel::Range>& p_Range,
                                        int32_t p_InsideBorderType = VosBorderHorizontal) = 0;
    // As the top header, with the right edge instead of the bottom one; with
    // VosBorderHorizontalAndVertical only the vertical inside lines are drawn.
    virtual void SetLeftHeaderRangeTheme(const std::shared_ptr<excel::Range>& p_Range,
                                         int32_t p_InsideBorderType = VosBorderHorizontal) = 0;

protected:
    VosExcelReportWorksheet() = default;
    VosExcelReportWorksheet(const VosExcelReportWorksheet&) = delete;
    VosExcelReportWorksheet& operator=(const VosExcelReportWorksheet&) = delete;
};

}  // namespace vos
