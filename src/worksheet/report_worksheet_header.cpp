#include "worksheet/report_worksheet.hpp"

#include "support/character_count.hpp"
#include "support/ignoring_excel_errors.hpp"
#include "support/language_font_size.hpp"
#include "support/library_error.hpp"
#include "support/text_margins.hpp"
#include "support/trim_blanks.hpp"
#include "workbook/report_workbook.hpp"
#include "worksheet/header_lines.hpp"
#include "worksheet/row_boundary.hpp"
#include "worksheet/shape_text.hpp"

#include <vos/theme_property_type.hpp>

#include <excel/border.hpp>
#include <excel/characters.hpp>
#include <excel/color_format.hpp>
#include <excel/constants.hpp>
#include <excel/fill_format.hpp>
#include <excel/font.hpp>
#include <excel/interior.hpp>
#include <excel/line_format.hpp>
#include <excel/range.hpp>
#include <excel/shape.hpp>
#include <excel/shapes.hpp>
#include <excel/text_frame.hpp>
#include <excel/text_frame2.hpp>
#include <excel/workbook.hpp>
#include <excel/worksheet.hpp>

namespace vos {

namespace {

constexpr int32_t LinesAboveExtraLines = 3;  // title, performed by, date
constexpr int32_t ThemedHeaderColumns = 9;
constexpr int32_t Silver = 0xC0C0C0;
constexpr int32_t Black = 0;
constexpr const char* HeaderFontName = "Tahoma";
constexpr int32_t FrenchLanguage = 12;
constexpr double TitleSize = 14.0;
constexpr double LineSize = 8.0;
constexpr double ChineseLineSize = 10.0;

// A text box needs this much room at the cursor whatever its number of lines.
constexpr int32_t TextBoxRows = 3;
constexpr int32_t TextBoxColumns = 3;

constexpr double TextBoxTopGap = 4.0;
constexpr double TextBoxInitialSize = 10.0;
constexpr double TextBoxWidth = 428.0;
constexpr int32_t TextBoxFillColorIndex = 15;
constexpr double TextBoxOutlineWeight = 1.5;
constexpr double TextBoxMargin = 7.0;
constexpr double TextBoxTitleSize = 12.0;
constexpr double TextBoxLineSize = 8.0;

}  // namespace

std::shared_ptr<excel::Range> ReportWorksheet::AddHeaderRange(const std::string& mainTitle,
                                                              const excel::Variant& additionalHeaderInfo) {
    const int16_t extraLineCount = ExtraHeaderLineCount(additionalHeaderInfo);
    const int32_t blockRows = extraLineCount + LinesAboveExtraLines;
    RequireAvailableSpace(blockRows, 1);
    const HeaderLines lines =
        ReadHeaderLines(*excelWorksheet_->Application(), defaultLanguage_, additionalHeaderInfo, extraLineCount);

    const bool themed = parentWorkbook_->UseThemes();
    const auto block = themed ? currentCell_->Resize(blockRows, ThemedHeaderColumns)
                              : currentCell_->EntireRow()->Resize(blockRows);
    if (themed) {
        block->Interior()->SetThemeColor(ThemeColor(VosReportHeader));
        block->Interior()->SetTintAndShade(ThemeTintAndShade(VosReportHeader));
    } else {
        block->Interior()->SetColor(Silver);
    }
    block->Font()->SetName(HeaderFontName);
    block->Font()->SetSize(SizeForLanguage(defaultLanguage_, ChineseLineSize, LineSize));
    block->Rows(1)->Font()->SetSize(TitleSize);
    block->Rows(1)->Font()->SetBold(true);
    if (!themed) {
        const auto underline = block->Borders(excel::xlEdgeBottom);
        underline->SetWeight(excel::xlThin);
        underline->SetLineStyle(excel::xlContinuous);
        underline->SetColor(Black);
    }

    const auto titleCell = block->Cells(1, 1);
    titleCell->SetValue("'" + mainTitle);  // the apostrophe keeps a title that looks like a number as text
    titleCell->Font()->SetBold(true);
    titleCell->Font()->SetSize(TitleSize);
    WriteHeaderLabelAndValue(block->Cells(2, 1), lines.performedBy.label, lines.performedBy.value);
    WriteHeaderLabelAndValue(block->Cells(3, 1), lines.date.label, lines.date.value);
    int32_t row = LinesAboveExtraLines;
    for (const HeaderLine& line : lines.extra)
        WriteHeaderLabelAndValue(block->Cells(++row, 1), line.label, line.value);

    AdvanceCurrentCell(block->Rows()->Count(), 0);
    return block;
}

void ReportWorksheet::WriteHeaderLabelAndValue(const std::shared_ptr<excel::Range>& cell, std::string label,
                                               const std::string& value) const {
    // French typography puts a space before the colon.
    if (defaultLanguage_ == FrenchLanguage && !label.ends_with(' '))
        label += ' ';
    cell->SetValue(label + ": " + value);
    cell->Characters(1, static_cast<int32_t>(CharacterCount(label) + 1))->Font()->SetBold(true);
}

std::shared_ptr<excel::Shape> ReportWorksheet::AddHeader(const std::string& mainTitle,
                                                         const excel::Variant& additionalHeaderInfo) {
    const std::string title = TrimBlanks(mainTitle);
    if (title.empty())
        RaiseLibraryError(error_code::EmptyArgument, "mainTitle");
    const int16_t extraLineCount = ExtraHeaderLineCount(additionalHeaderInfo);
    RequireAvailableSpace(TextBoxRows, TextBoxColumns);
    const HeaderLines lines =
        ReadHeaderLines(*excelWorksheet_->Application(), defaultLanguage_, additionalHeaderInfo, extraLineCount);

    const auto shape =
        excelWorksheet_->Shapes()->AddTextbox(excel::msoTextOrientationHorizontal, currentCell_->Left(),
                                              currentCell_->Top() + TextBoxTopGap, TextBoxInitialSize, TextBoxInitialSize);
    shape->SetPlacement(excel::xlMove);
    shape->Fill()->ForeColor()->SetRGB(parentWorkbook_->ExcelWorkbook()->Colors(TextBoxFillColorIndex).ToInt());
    shape->Line()->ForeColor()->SetRGB(Black);
    shape->Line()->SetWeight(TextBoxOutlineWeight);
    IgnoringExcelErrors([&] {
        SetTextMargins(*shape->TextFrame(), TextBoxMargin, TextBoxMargin);
        shape->TextFrame2()->SetWordWrap(excel::msoFalse);
    });

    AppendShapeText(shape, title, TextBoxTitleSize, true, true);
    AppendHeaderShapeLine(shape, lines.performedBy.label + ":", lines.performedBy.value);
    AppendHeaderShapeLine(shape, lines.date.label + ":", lines.date.value);
    for (const HeaderLine& line : lines.extra)
        AppendHeaderShapeLine(shape, line.label, line.value);

    shape->TextFrame()->SetAutoSize(true);
    shape->SetWidth(TextBoxWidth);
    if (roundToRowBoundaries_)
        EndAboveRowBoundary(*shape);
    // Set directly, without the limiting-range test of a cursor move.
    currentCell_ = excelWorksheet_->Cells(shape->BottomRightCell()->Row() + 1, currentCell_->Column());
    return shape;
}

void ReportWorksheet::AppendHeaderShapeLine(const std::shared_ptr<excel::Shape>& shape, const std::string& label,
                                            const std::string& value) {
    AppendShapeText(shape, "\n " + label, TextBoxLineSize, true, false);
    AppendShapeText(shape, " " + value, TextBoxLineSize, false, false);
}

}  // namespace vos
