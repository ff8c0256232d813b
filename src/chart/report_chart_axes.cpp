#include "chart/report_chart.hpp"

#include "chart/chart_messages.hpp"
#include "chart/nice_axis_scale.hpp"
#include "support/ignoring_excel_errors.hpp"
#include "support/language_font_size.hpp"
#include "support/library_error.hpp"
#include "support/support_services.hpp"
#include "support/trim_blanks.hpp"

#include <excel/application.hpp>
#include <excel/axis.hpp>
#include <excel/axis_title.hpp>
#include <excel/characters.hpp>
#include <excel/chart.hpp>
#include <excel/chart_constants.hpp>
#include <excel/chart_object.hpp>
#include <excel/font.hpp>
#include <excel/plot_area.hpp>
#include <excel/range.hpp>
#include <excel/tick_labels.hpp>
#include <excel/worksheet.hpp>

#include <bit>
#include <cstdint>

namespace vos {

namespace {

constexpr double ChineseAxisFontSize = 10.0;
constexpr double AxisFontSize = 8.0;

// The crossing axis sits at this value of a value axis: below any data, so always at its low end.
constexpr double FarLowEnd = -1E+300;

// A number format in front of which this marker is written in the user's locale.
constexpr const char* LocalFormatMarker = "[LOCAL]";
// The first Excel whose tick labels take a format in the user's locale, and whose upward labels
// need their room given back to the plot.
constexpr int32_t Excel2007 = 12;
// Labels at this angle are measured against upward ones; the angle itself is never kept.
constexpr int32_t MeasuringOrientation = 89;

// Compared bit for bit: only the sentinel itself means automatic.
bool IsAutomatic(double scaleValue) {
    return std::bit_cast<uint64_t>(scaleValue) == std::bit_cast<uint64_t>(AutomaticAxisScale);
}

}  // namespace

void ReportChart::RequireDataSeries() {
    if (SeriesCount() == 0)
        RaiseLibraryError(error_code::NotAllowedNow,
                          "Operation can not be performed until the chart has at least one data series.");
}

void ReportChart::ValidateAxisScale(double axisMinimum, double axisMaximum, double axisUnit) {
    const int automatic = IsAutomatic(axisMinimum) + IsAutomatic(axisMaximum) + IsAutomatic(axisUnit);
    if (automatic == 1 || automatic == 2)
        RaiseLibraryError(error_code::InvalidArgument,
                          "axisMinimum, axisMaximum, and axisUnit must either all be specified or all be automatic.");
    if (automatic == 3)
        return;
    // Equal ends pass, despite the wording.
    if (axisMaximum < axisMinimum)
        RaiseLibraryError(error_code::InvalidArgument, "axisMaximum must be greater than axisMinimum.");
    if (!(axisUnit > 0))
        RaiseLibraryError(error_code::OutOfRange, "axisUnit");
}

std::shared_ptr<excel::Axis> ReportChart::AddCategoryXAxis(const std::string& axisTitle,
                                                           const std::shared_ptr<excel::Range>& categoryNamesRange,
                                                           bool verticalLabels) {
    RequireDataSeries();
    if (family_ == ChartFamily::XY || family_ == ChartFamily::Tornado)
        RaiseLibraryError(error_code::NotAllowedNow, WrongAxisForChartType);
    auto axis = RecreateAxis(excel::xlCategory, excel::xlPrimary);
    SetAxisTitle(axis, axisTitle);
    axis->SetMajorTickMark(excel::xlTickMarkNone);
    axis->SetMinorTickMark(excel::xlTickMarkNone);
    if (categoryNamesRange)
        axis->SetCategoryNames(categoryNamesRange);
    const auto labels = axis->TickLabels();
    labels->SetAutoScaleFont(false);
    labels->Font()->SetSize(FontSize(ChineseAxisFontSize, AxisFontSize));
    axis->SetTickLabelPosition(excel::xlTickLabelPositionLow);
    labels->SetOrientation(verticalLabels ? excel::xlUpward : excel::xlAutomatic);
    return axis;
}

std::shared_ptr<excel::Axis> ReportChart::AddValueXAxis(const std::string& axisTitle, double axisMinimum,
                                                        double axisMaximum, double axisUnit,
                                                        const std::string& numberFormat, bool verticalLabels) {
    RequireDataSeries();
    if (family_ == ChartFamily::Column)
        RaiseLibraryError(error_code::NotAllowedNow, WrongAxisForChartType);
    ValidateAxisScale(axisMinimum, axisMaximum, axisUnit);
    // A tornado's bars run horizontally: its horizontal axis is the value axis.
    const bool tornado = family_ == ChartFamily::Tornado;
    auto axis = RecreateAxis(tornado ? excel::xlValue : excel::xlCategory, excel::xlPrimary);
    if (tornado && IsAutomatic(axisMinimum)) {
        const AxisScale scale = NiceAxisScale(tornadoMinimum_, tornadoMaximum_, true, true);
        axisMinimum = scale.minimum;
        axisMaximum = scale.maximum;
        axisUnit = scale.unit;
    }
    FormatValueAxis(axis, axisTitle, axisMinimum, axisMaximum, axisUnit, numberFormat);
    if (ExcelMajorVersion() >= Excel2007 && verticalLabels)
        CompensateVerticalLabels(axis);
    else
        axis->TickLabels()->SetOrientation(verticalLabels ? excel::xlUpward : excel::xlAutomatic);
    return axis;
}

std::shared_ptr<excel::Axis> ReportChart::AddValueYAxis(const std::string& axisTitle, double axisMinimum,
                                                        const excel::Variant& axisMaximum, double axisUnit,
                                                        const std::string& numberFormat) {
    return AddValueAxis(excel::xlPrimary, axisTitle, axisMinimum, axisMaximum, axisUnit, numberFormat);
}

std::shared_ptr<excel::Axis> ReportChart::AddSecondaryValueYAxis(const std::string& axisTitle, double axisMinimum,
                                                                 const excel::Variant& axisMaximum, double axisUnit,
                                                                 const std::string& numberFormat) {
    return AddValueAxis(excel::xlSecondary, axisTitle, axisMinimum, axisMaximum, axisUnit, numberFormat);
}

std::shared_ptr<excel::Axis> ReportChart::AddValueAxis(int32_t group, const std::string& axisTitle, double axisMinimum,
                                                       const excel::Variant& axisMaximum, double axisUnit,
                                                       const std::string& numberFormat) {
    const double maximum = axisMaximum.ToDouble();
    RequireDataSeries();
    if (family_ == ChartFamily::Tornado)
        RaiseLibraryError(error_code::NotAllowedNow, WrongAxisForChartType);
    ValidateAxisScale(axisMinimum, maximum, axisUnit);
    auto axis = RecreateAxis(excel::xlValue, group);
    FormatValueAxis(axis, axisTitle, axisMinimum, maximum, axisUnit, numberFormat);
    return axis;
}

std::shared_ptr<excel::Axis> ReportChart::RecreateAxis(int32_t kind, int32_t group) {
    IgnoringExcelErrors([&] { chart_->Axes(kind, group)->Delete(); });
    chart_->SetHasAxis(kind, group, true);
    return chart_->Axes(kind, group);
}

void ReportChart::FormatValueAxis(const std::shared_ptr<excel::Axis>& theAxis, const std::string& axisTitle,
                                  double axisMinimum, double axisMaximum, double axisUnit,
                                  const std::string& numberFormat) {
    if (!theAxis)
        RaiseLibraryError(error_code::MissingObject, "theAxis");
    SetAxisTitle(theAxis, axisTitle);
    theAxis->SetMinorTickMark(excel::xlTickMarkNone);
    theAxis->SetMajorTickMark(excel::xlTickMarkOutside);

    // Each value is written only where Excel keeps the scale fixed after the switch.
    theAxis->SetMinimumScaleIsAuto(IsAutomatic(axisMinimum));
    if (!theAxis->MinimumScaleIsAuto())
        theAxis->SetMinimumScale(axisMinimum);
    theAxis->SetMaximumScaleIsAuto(IsAutomatic(axisMaximum));
    if (!theAxis->MaximumScaleIsAuto())
        theAxis->SetMaximumScale(axisMaximum);
    theAxis->SetMajorUnitIsAuto(IsAutomatic(axisUnit));
    if (!theAxis->MajorUnitIsAuto())
        theAxis->SetMajorUnit(axisUnit);

    theAxis->SetCrosses(excel::xlAxisCrossesCustom);
    theAxis->SetCrossesAt(FarLowEnd);

    const auto labels = theAxis->TickLabels();
    labels->SetAutoScaleFont(false);
    labels->Font()->SetSize(FontSize(ChineseAxisFontSize, AxisFontSize));
    labels->Font()->SetBold(false);
    labels->SetNumberFormat("General");
    if (!numberFormat.empty())
        SetTickLabelFormat(theAxis, numberFormat);
    theAxis->SetScaleType(excel::xlScaleLinear);
}

void ReportChart::SetAxisTitle(const std::shared_ptr<excel::Axis>& axis, const std::string& axisTitle) {
    const std::string text = TrimBlanks(axisTitle);
    axis->SetHasTitle(!text.empty());
    if (!axis->HasTitle())
        return;
    const auto title = axis->AxisTitle();
    title->SetAutoScaleFont(false);
    title->Characters()->SetText(text);
    title->Font()->SetSize(FontSize(ChineseAxisFontSize, AxisFontSize));
    title->Font()->SetBold(false);
}

void ReportChart::SetTickLabelFormat(const std::shared_ptr<excel::Axis>& axis, const std::string& numberFormat) {
    const auto& strings = Support().Strings();
    const auto labels = axis->TickLabels();
    if (!strings.BeginsWith(numberFormat, LocalFormatMarker)) {
        labels->SetNumberFormat(numberFormat);
        return;
    }
    const std::string localFormat = strings.StripPrefix(numberFormat, LocalFormatMarker);
    if (ExcelMajorVersion() >= Excel2007) {
        labels->SetNumberFormatLocal(localFormat);
        return;
    }
    // Older tick labels know only the English format: a cell under the chart translates it and
    // gets its own format back.
    std::string translated;
    IgnoringExcelErrors([&] {
        const auto cell = chart_->Parent()->TopLeftCell();
        const excel::Variant saved = cell->NumberFormat();
        cell->SetNumberFormatLocal(localFormat);
        translated = cell->NumberFormat().ToString();
        cell->SetNumberFormat(saved.ToString());
    });
    labels->SetNumberFormat(translated);
}

void ReportChart::CompensateVerticalLabels(const std::shared_ptr<excel::Axis>& theAxis) {
    const auto labels = theAxis->TickLabels();
    labels->SetOrientation(MeasuringOrientation);
    const double measuringHeight = theAxis->Height();
    labels->SetOrientation(excel::xlUpward);
    const double upwardHeight = theAxis->Height();
    const double lost = measuringHeight - upwardHeight;
    if (lost <= 0)
        return;
    const auto plot = chart_->PlotArea();
    plot->SetHeight(plot->Height() - lost);
    if (theAxis->HasTitle()) {
        const auto title = theAxis->AxisTitle();
        title->SetTop(title->Top() + lost);
    }
}

int32_t ReportChart::ExcelMajorVersion() {
    return Support().Sheets().ExcelMajorVersion(chart_->Parent()->Parent()->Application());
}

}  // namespace vos
