#include "excel/embedded/objects/charts/tick_labels_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/objects/charts/chart_text_targets.hpp"

namespace excel::embedded {

namespace {

bool IsTickLabelOrientation(int32_t orientation) {
    return orientation == xlTickLabelOrientationAutomatic || orientation == xlTickLabelOrientationDownward ||
           orientation == xlTickLabelOrientationHorizontal || orientation == xlTickLabelOrientationUpward ||
           orientation == xlTickLabelOrientationVertical || (orientation >= -90 && orientation <= 90);
}

}  // namespace

AxisModel& ShownAxis(ChartModel& chart, int32_t type, int32_t group) {
    if (!chart.HasAxis(type, group)) {
        ThrowObjectRequired();
    }
    return *chart.Axis(type, group);
}

AxisModel& TickLabelsView::axis() const {
    return ShownAxis(chart_.Chart(), type_, group_);
}

bool TickLabelsView::AutoScaleFont() {
    return axis().tickLabels.autoScaleFont;
}

void TickLabelsView::SetAutoScaleFont(bool automatic) {
    axis().tickLabels.autoScaleFont = automatic;
    chart_.Changed();
}

std::shared_ptr<excel::Font> TickLabelsView::Font() {
    axis();
    const int32_t type = type_;
    const int32_t group = group_;
    return std::make_shared<FontView>(std::make_shared<ChartTextFontTarget>(
        chart_,
        [type, group](ChartModel& chart) -> ChartTextFormat& { return ShownAxis(chart, type, group).tickLabels; }));
}

std::string TickLabelsView::NumberFormat() {
    return axis().numberFormat;
}

void TickLabelsView::SetNumberFormat(const std::string& format) {
    AxisModel& changed = axis();
    changed.numberFormat = format;
    changed.numberFormatLinked = false;
    chart_.Changed();
}

// The engine's locale is English (United States): a local format is the format itself.
std::string TickLabelsView::NumberFormatLocal() {
    return NumberFormat();
}

void TickLabelsView::SetNumberFormatLocal(const std::string& format) {
    SetNumberFormat(format);
}

bool TickLabelsView::NumberFormatLinked() {
    return axis().numberFormatLinked;
}

void TickLabelsView::SetNumberFormatLinked(bool linked) {
    axis().numberFormatLinked = linked;
    chart_.Changed();
}

int32_t TickLabelsView::Orientation() {
    return axis().tickLabels.orientation;
}

void TickLabelsView::SetOrientation(int32_t orientation) {
    if (!IsTickLabelOrientation(orientation)) {
        ThrowRefused("Unable to set the Orientation property of the TickLabels class");
    }
    ChartTextFormat& labels = axis().tickLabels;
    labels.orientation = orientation;
    labels.fromFile = false;
    chart_.Changed();
}

}  // namespace excel::embedded
