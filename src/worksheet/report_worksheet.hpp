#pragma once

#include <vos/vos_excel_report_worksheet.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace vos {

class ReportWorkbook;

// The report sheet behind VosExcelReportWorksheet: the sheet, its layout cursor and the space
// test every placement runs, with the members the library's other classes call.
// Defined in report_worksheet.cpp (cursor, space test, separators, comments),
// report_worksheet_header.cpp (the header block), report_worksheet_placement.cpp (tables, charts and
// the height a tornado chart needs) and report_worksheet_themes.cpp (theme colours and range themes).
class ReportWorksheet final : public VosExcelReportWorksheet {
public:
    // Prepares a new report sheet: cursor at A1, the whole sheet as limiting range, creation tag,
    // no gridlines on screen or paper, every column 8.45 characters wide, no page-break display.
    void InitializeReportWorksheet(const std::shared_ptr<ReportWorkbook>& parentWorkbook,
                                   const std::shared_ptr<excel::Worksheet>& p_ExcelWorksheet,
                                   const std::string& applicationIdentifier, int32_t defaultLanguage);

    std::shared_ptr<excel::Worksheet> ExcelWorksheet() const override;
    int32_t DefaultLanguage() const override;
    std::shared_ptr<excel::Range> LimitingRange() const override;
    bool RoundToRowBoundaries() const override;
    void SetRoundToRowBoundaries(bool roundToRowBoundaries) override;
    std::shared_ptr<excel::Range> CurrentCell() const override;
    void SetCurrentCell(const std::shared_ptr<excel::Range>& cell) override;
    bool HasAvailableSpace(int32_t numRows, int32_t numColumns) override;
    void AddSeparatorRows(int32_t numRows) override;
    std::shared_ptr<excel::Range> AddHeaderRange(const std::string& mainTitle,
                                                 const excel::Variant& additionalHeaderInfo) override;
    std::shared_ptr<excel::Shape> AddHeader(const std::string& mainTitle,
                                            const excel::Variant& additionalHeaderInfo) override;
    std::shared_ptr<VosExcelTable> AddTable(int32_t numInteriorRows, int32_t numInteriorColumns, int16_t NumHeaderRows,
                                            int16_t NumHeaderColumns, const std::string& mainTitle = "",
                                            const std::string& subTitle = "") override;
    std::shared_ptr<VosExcelChart> AddChart(VosChartType ChartType, double chartWidth = 428.0,
                                            double chartHeight = 300.0) override;
    double RecommendedTornadoChartHeight(int16_t numBars) override;
    void AddSpacingColumn() override;
    std::shared_ptr<excel::Comment> AddComment(const std::shared_ptr<excel::Range>& whichCell,
                                               const std::string& headerText, const std::string& mainText) override;
    int32_t ThemeColor(int32_t p_VosThemePropertyType, bool p_ObjectThemeColor = false) override;
    float ThemeTintAndShade(int32_t p_VosThemePropertyType, bool p_ObjectThemeColor = false) override;
    void SetTitleRangeTheme(const std::shared_ptr<excel::Range>& p_Range) override;
    void SetInteriorRangeTheme(const std::shared_ptr<excel::Range>& p_Range,
                               int32_t p_InsideBorderType = VosBorderHorizontal) override;
    void SetTopHeaderRangeTheme(const std::shared_ptr<excel::Range>& p_Range,
                                int32_t p_InsideBorderType = VosBorderHorizontal) override;
    void SetLeftHeaderRangeTheme(const std::shared_ptr<excel::Range>& p_Range,
                                 int32_t p_InsideBorderType = VosBorderHorizontal) override;

    // Moves the cursor down and right; a move past the limiting range empties the cursor.
    void AdvanceCurrentCell(int32_t numRows, int32_t numColumns);
    // Refuses, with NotAllowedNow, an element that does not fit at the cursor.
    void RequireAvailableSpace(int32_t numRows, int32_t numColumns);
    [[noreturn]] static void RaiseNoRoomForElement();

private:
    bool CursorStaysInsideAfter(int32_t numRows, int32_t numColumns) const;
    // One "label: value" line of the cell form, the label and its colon bold.
    void WriteHeaderLabelAndValue(const std::shared_ptr<excel::Range>& cell, std::string label,
                                  const std::string& value) const;
    // One line of the text-box form: a new line, a space, the bold label, a space and the value.
    static void AppendHeaderShapeLine(const std::shared_ptr<excel::Shape>& shape, const std::string& label,
                                      const std::string& value);

    std::shared_ptr<ReportWorkbook> parentWorkbook_;
    std::shared_ptr<excel::Worksheet> excelWorksheet_;
    std::string applicationIdentifier_;
    int32_t defaultLanguage_ = 0;
    std::shared_ptr<excel::Range> limitingRange_;
    std::shared_ptr<excel::Range> currentCell_;
    bool roundToRowBoundaries_ = true;
};

}  // namespace vos
