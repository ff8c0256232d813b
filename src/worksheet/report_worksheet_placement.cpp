#include "worksheet/report_worksheet.hpp"

#include "chart/report_chart.hpp"
#include "support/chart_type_check.hpp"
#include "support/checked_sum.hpp"
#include "support/library_error.hpp"
#include "support/support_services.hpp"
#include "table/report_table.hpp"
#include "workbook/report_workbook.hpp"
#include "worksheet/row_boundary.hpp"

#include <excel/chart.hpp>
#include <excel/chart_object.hpp>
#include <excel/range.hpp>

#include <algorithm>

namespace vos {

namespace {

constexpr double BaseTornadoChartHeight = 300.0;
constexpr double TornadoBarHeight = 16.0;
// Up to this many bars fit the base height; beyond the most bars the height stops growing.
constexpr int16_t BarsInBaseHeight = 9;
constexpr int16_t MostGrowingBars = 16;

}  // namespace

std::shared_ptr<VosExcelTable> ReportWorksheet::AddTable(int32_t numInteriorRows, int32_t numInteriorColumns,
                                                         int16_t NumHeaderRows, int16_t NumHeaderColumns,
                                                         const std::string& mainTitle, const std::string& subTitle) {
    if (numInteriorRows < 1)
        RaiseLibraryError(error_code::OutOfRange, "numInteriorRows");
    if (numInteriorColumns < 1)
        RaiseLibraryError(error_code::OutOfRange, "numInteriorColumns");
    if (NumHeaderRows < 1 || NumHeaderRows >= 6)
        RaiseLibraryError(error_code::OutOfRange, "numHeaderRows");
    if (NumHeaderColumns < 0 || NumHeaderColumns >= 6)
        RaiseLibraryError(error_code::OutOfRange, "numHeaderColumns");

    const int32_t titleRows = (mainTitle.empty() ? 0 : 1) + (subTitle.empty() ? 0 : 1);
    const int32_t rows = CheckedSum(titleRows + NumHeaderRows, numInteriorRows);
    const int32_t columns = CheckedSum(NumHeaderColumns, numInteriorColumns);
    RequireAvailableSpace(rows, columns);

    const auto tableRange = Support().Ranges().RangeResize(currentCell_, rows, columns);
    auto table = std::make_shared<ReportTable>();
    table->InitializeTable(parentWorkbook_, tableRange, NumHeaderRows, NumHeaderColumns, mainTitle, subTitle,
                           defaultLanguage_);
    AdvanceCurrentCell(rows, 0);
    return table;
}

std::shared_ptr<VosExcelChart> ReportWorksheet::AddChart(VosChartType ChartType, double chartWidth,
                                                         double chartHeight) {
    CheckChartType(ChartType, "chartType");
    // Written so that a width or height that is not a number is refused too.
    if (!(chartWidth > 0))
        RaiseLibraryError(error_code::OutOfRange, "chartWidth");
    if (!(chartHeight > 0))
        RaiseLibraryError(error_code::OutOfRange, "chartHeight");
    RequireAvailableSpace(1, 1);

    const auto& ranges = Support().Ranges();
    const auto cornerCell =
        ranges.CellAtPoint(excelWorksheet_, currentCell_->Left() + chartWidth, currentCell_->Top() + chartHeight);
    if (!cornerCell || !ranges.IsRangeWithinRange(cornerCell, limitingRange_))
        RaiseNoRoomForElement();

    auto chart = std::make_shared<ReportChart>();
    chart->InitializeChart(parentWorkbook_, defaultLanguage_, ChartType, currentCell_, chartWidth, chartHeight);
    if (roundToRowBoundaries_)
        EndAboveRowBoundary(*chart->Chart()->Parent());
    // The corner found before the trim decides where the cursor goes.
    AdvanceCurrentCell(cornerCell->Row() - currentCell_->Row() + 1, 0);
    return chart;
}

double ReportWorksheet::RecommendedTornadoChartHeight(int16_t numBars) {
    if (numBars < 0)
        RaiseLibraryError(error_code::OutOfRange, "numBars");
    const int16_t bars = std::min(numBars, MostGrowingBars);
    if (bars <= BarsInBaseHeight)
        return BaseTornadoChartHeight;
    return BaseTornadoChartHeight + TornadoBarHeight * (bars - BarsInBaseHeight);
}

}  // namespace vos
