#include "chart/report_chart.hpp"

#include "chart/chart_messages.hpp"
#include "chart/series_style.hpp"
#include "chart/series_values_text.hpp"
#include "support/ignoring_excel_errors.hpp"
#include "support/library_error.hpp"
#include "support/support_services.hpp"

#include <excel/areas.hpp>
#include <excel/border.hpp>
#include <excel/chart.hpp>
#include <excel/chart_constants.hpp>
#include <excel/chart_fill_format.hpp>
#include <excel/chart_group.hpp>
#include <excel/interior.hpp>
#include <excel/range.hpp>
#include <excel/series.hpp>

namespace vos {

namespace {

constexpr const char* NotOneRowOrColumn = "sourceDataRange must be a single Excel row or column.";

// The first column series draws its columns this wide apart and overlapping this much (percent).
constexpr int32_t ColumnGapWidth = 75;
constexpr int32_t ColumnOverlap = 10;

// Columns shade from their colour towards black along the diagonal: 59/255 to 15 digits.
constexpr int32_t ColumnGradientVariant = 1;
constexpr double ColumnGradientDegree = 0.231372549019608;

constexpr int32_t MarkerSize = 5;
constexpr int32_t Black = 0;

// Series 6 to 9 outline their markers in black; the later series of those colours do not.
bool HasBlackMarkerOutline(int16_t formattingIndex) {
    return formattingIndex >= 6 && formattingIndex <= 9;
}

// The most numbers SetSeriesValues loads into one series.
constexpr size_t MostSeriesValues = 32;

bool IsOneRowOrColumn(excel::Range& range) {
    return range.Rows()->Count() <= 1 || range.Columns()->Count() <= 1;
}

}  // namespace

std::shared_ptr<excel::Series> ReportChart::AddColumnData(const std::shared_ptr<excel::Range>& sourceDataRange,
                                                          const std::string& seriesName) {
    auto series = AddSingleRangeSeries(ChartFamily::Column, sourceDataRange, seriesName,
                                       "sourceDataRange can not have multiple areas.");
    if (SeriesCount() == 1) {
        ResetPlotArea();
        const auto columns = chart_->ChartGroups(1);
        columns->SetGapWidth(ColumnGapWidth);
        columns->SetOverlap(ColumnOverlap);
    }
    return series;
}

std::shared_ptr<excel::Series> ReportChart::AddXYData(const std::shared_ptr<excel::Range>& xDataRange,
                                                      const std::shared_ptr<excel::Range>& yDataRange,
                                                      const std::string& seriesName) {
    if (family_ != ChartFamily::XY)
        RaiseLibraryError(error_code::NotAllowedNow, WrongDataForChartType);
    if (!xDataRange)
        RaiseLibraryError(error_code::MissingObject, "xDataRange");
    if (!yDataRange)
        RaiseLibraryError(error_code::MissingObject, "yDataRange");
    if (xDataRange->Areas()->Count() >= 2)
        RaiseLibraryError(error_code::InvalidArgument, "xDataRange must have a single area.");
    if (yDataRange->Areas()->Count() >= 2)
        RaiseLibraryError(error_code::InvalidArgument, "yDataRange must have a single area.");
    if (!IsOneRowOrColumn(*xDataRange))
        RaiseLibraryError(error_code::InvalidArgument, "xDataRange must be a single Excel row or column.");
    if (!IsOneRowOrColumn(*yDataRange))
        RaiseLibraryError(error_code::InvalidArgument, "yDataRange must be a single Excel row or column.");
    if (xDataRange->Columns()->Count() != yDataRange->Columns()->Count() ||
        xDataRange->Rows()->Count() != yDataRange->Rows()->Count())
        RaiseLibraryError(error_code::InvalidArgument, "The x and y data ranges must be the same size.");

    auto series = NewNamedSeries(seriesName);
    series->SetXValues(xDataRange);
    series->SetValues(yDataRange);
    FormatSeries(series, static_cast<int16_t>(SeriesCount()));
    if (SeriesCount() == 1)
        ResetPlotArea();
    return series;
}

std::shared_ptr<excel::Series> ReportChart::AddLineData(const std::shared_ptr<excel::Range>& sourceDataRange,
                                                        const std::string& seriesName) {
    auto series = AddSingleRangeSeries(ChartFamily::Line, sourceDataRange, seriesName,
                                       "sourceDataRange must have a single area.");
    if (SeriesCount() == 1)
        ResetPlotArea();
    return series;
}

std::shared_ptr<excel::Series> ReportChart::AddSingleRangeSeries(ChartFamily family,
                                                                 const std::shared_ptr<excel::Range>& sourceDataRange,
                                                                 const std::string& seriesName,
                                                                 const char* areasMessage) {
    if (family_ != family)
        RaiseLibraryError(error_code::NotAllowedNow, WrongDataForChartType);
    if (!sourceDataRange)
        RaiseLibraryError(error_code::MissingObject, "sourceDataRange");
    if (sourceDataRange->Areas()->Count() > 1)
        RaiseLibraryError(error_code::InvalidArgument, areasMessage);
    if (!IsOneRowOrColumn(*sourceDataRange))
        RaiseLibraryError(error_code::InvalidArgument, NotOneRowOrColumn);

    auto series = NewNamedSeries(seriesName);
    series->SetValues(sourceDataRange);
    FormatSeries(series, static_cast<int16_t>(SeriesCount()));
    return series;
}

int32_t ReportChart::DefaultSeriesColor(int16_t formattingIndex) {
    if (formattingIndex < 1)
        RaiseLibraryError(error_code::OutOfRange, "formattingIndex");
    return SeriesColor(formattingIndex);
}

void ReportChart::FormatSeries(const std::shared_ptr<excel::Series>& theSeries, int16_t formattingIndex) {
    if (chartType_ == VosChartCustom)
        RaiseLibraryError(error_code::NotAllowedNow, "Method can not be used with custom graph types.");
    if (!theSeries)
        RaiseLibraryError(error_code::MissingObject, "theSeries");
    if (formattingIndex < 1 || formattingIndex > SeriesCount())
        RaiseLibraryError(error_code::OutOfRange, "formattingIndex");
    theSeries->ClearFormats();
    switch (family_) {
        case ChartFamily::Column:
            FormatColumnSeries(theSeries, formattingIndex);
            break;
        case ChartFamily::XY:
            FormatXYSeries(theSeries, formattingIndex);
            break;
        case ChartFamily::Line:
            FormatLineSeries(theSeries, formattingIndex);
            break;
        case ChartFamily::Custom:
        case ChartFamily::Tornado:  // the tornado builder formats its own pieces
            break;
    }
}

void ReportChart::FormatColumnSeries(const std::shared_ptr<excel::Series>& theSeries, int16_t formattingIndex) {
    theSeries->Interior()->SetColor(DefaultSeriesColor(formattingIndex));
    theSeries->Fill()->OneColorGradient(excel::msoGradientDiagonalDown, ColumnGradientVariant, ColumnGradientDegree);
}

void ReportChart::FormatXYSeries(const std::shared_ptr<excel::Series>& theSeries, int16_t formattingIndex) {
    if (chartType_ != VosChartXYLine)
        FormatSeriesMarkers(theSeries, formattingIndex);
    else
        theSeries->SetMarkerStyle(excel::xlMarkerStyleNone);
    const auto line = theSeries->Border();
    if (chartType_ == VosChartXYLine || chartType_ == VosChartXYMarkersAndLine) {
        line->SetColor(DefaultSeriesColor(formattingIndex));
        line->SetWeight(excel::xlMedium);
        line->SetLineStyle(excel::xlContinuous);
    } else {
        line->SetLineStyle(excel::xlLineStyleNone);  // markers alone: the points are not joined
    }
}

void ReportChart::FormatLineSeries(const std::shared_ptr<excel::Series>& theSeries, int16_t formattingIndex) {
    if (chartType_ != VosChartLine)
        FormatSeriesMarkers(theSeries, formattingIndex);
    else
        theSeries->SetMarkerStyle(excel::xlMarkerStyleNone);
    const auto line = theSeries->Border();
    line->SetColor(DefaultSeriesColor(formattingIndex));
    line->SetWeight(excel::xlMedium);
}

void ReportChart::FormatSeriesMarkers(const std::shared_ptr<excel::Series>& theSeries, int16_t formattingIndex) {
    if (!theSeries)
        RaiseLibraryError(error_code::MissingObject, "theSeries");
    if (formattingIndex < 1)
        RaiseLibraryError(error_code::OutOfRange, "formattingIndex");
    theSeries->SetMarkerSize(MarkerSize);
    const int32_t style = SeriesMarkerStyle(formattingIndex);
    theSeries->SetMarkerStyle(style);
    const int32_t color = DefaultSeriesColor(formattingIndex);
    theSeries->SetMarkerForegroundColor(HasBlackMarkerOutline(formattingIndex) ? Black : color);
    if (style != excel::xlMarkerStyleStar)
        theSeries->SetMarkerBackgroundColor(color);
    else
        theSeries->SetMarkerBackgroundColorIndex(excel::xlColorIndexNone);  // a star is never filled
}

void ReportChart::SetSeriesValues(const std::shared_ptr<excel::Series>& theSeries, const excel::SafeArray& theData) {
    if (!theSeries)
        RaiseLibraryError(error_code::MissingObject, "theSeries");
    const auto& arrays = Support().Arrays();
    if (arrays.IsEmpty(theData) || arrays.Dimensions(theData) != 1 || arrays.ElementCount(theData) > MostSeriesValues)
        RaiseLibraryError(error_code::InvalidArgument, "theData");
    if (IgnoringExcelErrors([&] { theSeries->SetValues(excel::Variant(theData)); }))
        return;
    // Excel limits the text of a series' definition; the shortest form of each number keeps a
    // long list within it.
    theSeries->SetValues(SeriesValuesText(theData));
}

}  // namespace vos
