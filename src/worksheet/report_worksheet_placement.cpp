#include "worksheet/report_worksheet.hpp"

#include "support/checked_sum.hpp"
#include "support/library_error.hpp"
#include "support/support_services.hpp"
#include "table/report_table.hpp"
#include "workbook/report_workbook.hpp"

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

double ReportWorksheet::RecommendedTornadoChartHeight(int16_t numBars) {
    if (numBars < 0)
        RaiseLibraryError(error_code::OutOfRange, "numBars");
    const int16_t bars = std::min(numBars, MostGrowingBars);
    if (bars <= BarsInBaseHeight)
        return BaseTornadoChartHeight;
    return BaseTornadoChartHeight + TornadoBarHeight * (bars - BarsInBaseHeight);
}

}  // namespace vos
