#include "chart/report_chart.hpp"

#include "chart/chart_messages.hpp"
#include "chart/tornado_pieces.hpp"
#include "support/ignoring_excel_errors.hpp"
#include "support/library_error.hpp"
#include "support/support_services.hpp"

#include <excel/axis.hpp>
#include <excel/border.hpp>
#include <excel/chart.hpp>
#include <excel/chart_constants.hpp>
#include <excel/chart_group.hpp>
#include <excel/font.hpp>
#include <excel/interior.hpp>
#include <excel/range.hpp>
#include <excel/series.hpp>
#include <excel/series_collection.hpp>
#include <excel/tick_labels.hpp>

#include <vector>

namespace vos {

namespace {

constexpr int16_t MostTornadoBars = 32;

// The tornado's array checks name the array in their own words: some messages say "minValue".
struct TornadoArrayMessages {
    const char* empty;
    const char* dimensions;
    const char* size;
    const char* lowerBound;
};

constexpr TornadoArrayMessages MinimumMessages{"minValues is empty.", "minValue has the wrong number of dimensions.",
                                               "minValue array does not have the correct size.",
                                               "minValues array must have a lower bound of 1."};
constexpr TornadoArrayMessages MaximumMessages{"maxValues is empty.", "maxValue has the wrong number of dimensions.",
                                               "maxValue array does not have the correct size.",
                                               "maxValues array must have a lower bound of 1."};

void CheckTornadoArray(const excel::SafeArray& values, int16_t numBars, const TornadoArrayMessages& messages) {
    const auto& arrays = Support().Arrays();
    if (arrays.IsEmpty(values))
        RaiseLibraryError(error_code::InvalidArgument, messages.empty);
    if (arrays.Dimensions(values) != 1)
        RaiseLibraryError(error_code::InvalidArgument, messages.dimensions);
    if (arrays.ElementCount(values) != static_cast<size_t>(numBars))
        RaiseLibraryError(error_code::InvalidArgument, messages.size);
    if (arrays.LowerBound(values) != 1)
        RaiseLibraryError(error_code::InvalidArgument, messages.lowerBound);
}

std::vector<double> NumbersOf(const excel::SafeArray& values) {
    std::vector<double> numbers;
    numbers.reserve(values.ElementCount());
    for (const excel::Variant& element : values.Elements())
        numbers.push_back(element.ToDouble());
    return numbers;
}

// Fewer bars stand wider apart: gap widths in percent of a bar's height.
int32_t TornadoGapWidth(int16_t numBars) {
    switch (numBars) {
        case 1:
            return 150;
        case 2:
            return 100;
        case 3:
            return 50;
        case 4:
            return 30;
        default:
            return 20;
    }
}

constexpr double ChineseBarLabelSize = 10.0;
constexpr double BarLabelSize = 8.0;

}  // namespace

void ReportChart::AddTornadoData(int16_t numBars, const excel::SafeArray& minValues,
                                 const excel::SafeArray& maxValues) {
    if (family_ != ChartFamily::Tornado)
        RaiseLibraryError(error_code::NotAllowedNow, WrongDataForChartType);
    if (SeriesCount() >= 1)
        RaiseLibraryError(error_code::NotAllowedNow, "Chart already has a data series.");
    if (numBars < 1 || numBars >= MostTornadoBars + 1)
        RaiseLibraryError(error_code::OutOfRange, "numBars");
    CheckTornadoArray(minValues, numBars, MinimumMessages);
    CheckTornadoArray(maxValues, numBars, MaximumMessages);
    const std::vector<double> minimums = NumbersOf(minValues);
    const std::vector<double> maximums = NumbersOf(maxValues);
    for (size_t i = 0; i < minimums.size(); ++i) {
        // Equal ends pass, despite the wording: the bar is drawn empty.
        if (maximums[i] < minimums[i])
            RaiseLibraryError(error_code::InvalidArgument, "maxValue must be greater than minValue.");
    }

    tornadoMinimum_ = minimums.front();
    tornadoMaximum_ = maximums.front();
    for (size_t i = 1; i < minimums.size(); ++i) {
        if (minimums[i] < tornadoMinimum_)
            tornadoMinimum_ = minimums[i];
        if (maximums[i] > tornadoMaximum_)
            tornadoMaximum_ = maximums[i];
    }

    const TornadoPieces pieces = TornadoPiecesOf(minimums, maximums);
    const int32_t color = DefaultSeriesColor(1);
    for (const std::vector<double>* piece : {&pieces.zero, &pieces.base, &pieces.negative, &pieces.positive}) {
        const auto series = chart_->SeriesCollection()->NewSeries();
        SetSeriesValues(series, excel::SafeArray::Doubles(*piece));
        series->Border()->SetLineStyle(excel::xlLineStyleNone);
        if (piece == &pieces.zero || piece == &pieces.base)
            series->Interior()->SetColorIndex(excel::xlColorIndexNone);
        else
            series->Interior()->SetColor(color);
    }

    ResetPlotArea();
    chart_->SetHasAxis(excel::xlCategory, excel::xlPrimary, true);
    const auto bars = chart_->Axes(excel::xlCategory, excel::xlPrimary);
    bars->SetReversePlotOrder(true);                // bar 1 at the top
    bars->SetCrosses(excel::xlAxisCrossesMaximum);  // which keeps the value axis at the bottom
    chart_->ChartGroups(1)->SetGapWidth(TornadoGapWidth(numBars));
}

std::shared_ptr<excel::Axis> ReportChart::AddTornadoYAxis(const std::shared_ptr<excel::Range>& barLabelRange) {
    RequireDataSeries();
    if (family_ != ChartFamily::Tornado)
        RaiseLibraryError(error_code::NotAllowedNow, WrongAxisForChartType);
    if (!barLabelRange)
        RaiseLibraryError(error_code::MissingObject, "barLabelRange");

    IgnoringExcelErrors([&] { chart_->Axes(excel::xlCategory, excel::xlPrimary)->Delete(); });
    chart_->SetHasAxis(excel::xlCategory, excel::xlPrimary, true);
    auto axis = chart_->Axes(excel::xlCategory, excel::xlPrimary);
    axis->SetMajorTickMark(excel::xlTickMarkNone);
    axis->SetMinorTickMark(excel::xlTickMarkNone);
    axis->SetCategoryNames(barLabelRange);
    const auto labels = axis->TickLabels();
    labels->SetAutoScaleFont(false);
    labels->Font()->SetSize(FontSize(ChineseBarLabelSize, BarLabelSize));
    // At the left edge, clear of bars that reach into negative values.
    axis->SetTickLabelPosition(excel::xlTickLabelPositionLow);
    labels->SetOrientation(excel::xlHorizontal);
    return axis;
}

}  // namespace vos
