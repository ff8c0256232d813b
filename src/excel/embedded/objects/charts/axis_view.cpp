#include "excel/embedded/objects/charts/axis_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/model/charts/chart_data_cells.hpp"
#include "excel/embedded/model/charts/chart_layout.hpp"
#include "excel/embedded/model/workbook_model.hpp"
#include "excel/embedded/objects/charts/chart_border_view.hpp"
#include "excel/embedded/objects/charts/chart_data_input.hpp"
#include "excel/embedded/objects/charts/tick_labels_view.hpp"
#include "excel/embedded/objects/charts/title_view.hpp"

#include <cmath>

namespace excel::embedded {

namespace {

constexpr uint32_t AxisLineGrey = 0x868686;

[[noreturn]] void RefuseSet(const std::string& property) {
    ThrowRefused("Unable to set the " + property + " property of the Axis class");
}

bool IsTickMark(int32_t mark) {
    return mark == xlTickMarkNone || mark == xlTickMarkInside || mark == xlTickMarkOutside || mark == xlTickMarkCross;
}

bool IsTickLabelPosition(int32_t position) {
    return position == xlTickLabelPositionHigh || position == xlTickLabelPositionLow ||
           position == xlTickLabelPositionNextToAxis || position == xlTickLabelPositionNone;
}

bool IsCrosses(int32_t crosses) {
    return crosses == xlAxisCrossesAutomatic || crosses == xlAxisCrossesCustom || crosses == xlAxisCrossesMaximum ||
           crosses == xlAxisCrossesMinimum;
}

// An axis title as Excel adds one: the chart's text at 10 points, bold.
ChartTitleModel NewAxisTitle() {
    ChartTitleModel title;
    title.font = DefaultChartFont();
    title.font.bold = true;
    title.text.text = "Axis Title";
    return title;
}

}  // namespace

AxisModel& AxisView::axis() const {
    return ShownAxis(chart_.Chart(), type_, group_);
}

void AxisView::edit(const std::function<void(AxisModel&)>& change) {
    change(axis());
    chart_.Changed();
}

AxisModel& AxisView::valueAxis(const char* member, Access access) const {
    AxisModel& shown = axis();
    const bool scatterX = type_ == xlCategory && chart_.Chart().GroupOnAxes(group_).kind == ChartGroupKind::Scatter;
    if (type_ != xlValue && !scatterX) {
        if (access == Access::Set) {
            RefuseSet(member);
        }
        ThrowRefused("Unable to get the " + std::string(member) + " property of the Axis class");
    }
    return shown;
}

int32_t AxisView::Type() {
    return axis().type;
}

int32_t AxisView::AxisGroup() {
    return axis().group;
}

bool AxisView::HasTitle() {
    return axis().title.has_value();
}

void AxisView::SetHasTitle(bool has) {
    // The title of an axis that runs up the chart reads upward: the value axis of columns and
    // lines, the category axis of bars.
    const bool vertical = (type_ == xlValue) != chart_.Chart().GroupOnAxes(group_).horizontal;
    edit([&](AxisModel& changed) {
        if (!has) {
            changed.title.reset();
        } else if (!changed.title) {
            changed.title = NewAxisTitle();
            if (vertical) {
                changed.title->orientation = xlUpward;
            }
        }
    });
}

std::shared_ptr<excel::AxisTitle> AxisView::AxisTitle() {
    if (!axis().title) {
        ThrowRefused("Unable to get the AxisTitle property of the Axis class");
    }
    const int32_t type = type_;
    const int32_t group = group_;
    const auto find = [type, group](ChartModel& chart) -> ChartTitleModel& {
        AxisModel& shown = ShownAxis(chart, type, group);
        if (!shown.title) {
            ThrowObjectRequired();
        }
        return *shown.title;
    };
    const auto place = [type, group](ChartModel& chart, double width, double height) {
        return LayOutChart(chart, width, height).axisTitles[ChartModel::SlotOf(type, group)].value_or(ShapeBounds{});
    };
    const auto remove = [type, group](ChartModel& chart) { chart.Axis(type, group)->title.reset(); };
    return std::make_shared<AxisTitleView>(chart_, find, place, remove);
}

bool AxisView::HasMajorGridlines() {
    return axis().majorGridlines;
}

void AxisView::SetHasMajorGridlines(bool has) {
    edit([&](AxisModel& changed) { changed.majorGridlines = has; });
}

bool AxisView::HasMinorGridlines() {
    return axis().minorGridlines;
}

void AxisView::SetHasMinorGridlines(bool has) {
    edit([&](AxisModel& changed) { changed.minorGridlines = has; });
}

int32_t AxisView::MajorTickMark() {
    return axis().majorTickMark;
}

void AxisView::SetMajorTickMark(int32_t mark) {
    if (!IsTickMark(mark)) {
        RefuseSet("MajorTickMark");
    }
    edit([&](AxisModel& changed) { changed.majorTickMark = mark; });
}

int32_t AxisView::MinorTickMark() {
    return axis().minorTickMark;
}

void AxisView::SetMinorTickMark(int32_t mark) {
    if (!IsTickMark(mark)) {
        RefuseSet("MinorTickMark");
    }
    edit([&](AxisModel& changed) { changed.minorTickMark = mark; });
}

double AxisView::scaleValue(double AxisScale::*member) {
    const AxisModel& shown = axis();
    const ValueRange range = DataRangeOf(chart_.Sheet().Book(), chart_.Chart(), shown);
    return ScaleOf(shown, range.minimum, range.maximum).*member;
}

void AxisView::setScaleValue(std::optional<double> AxisModel::*member, double value, const char* name) {
    AxisModel& shown = valueAxis(name, Access::Set);
    const bool unit = member == &AxisModel::majorUnit || member == &AxisModel::minorUnit;
    if (!std::isfinite(value) || (unit && value <= 0.0) || (shown.scaleType == xlScaleLogarithmic && value <= 0.0)) {
        RefuseSet(name);
    }
    shown.*member = value;
    chart_.Changed();
}

void AxisView::setScaleAuto(std::optional<double> AxisModel::*member, double AxisScale::*shownValue, bool automatic) {
    if (automatic) {
        edit([&](AxisModel& changed) { changed.*member = std::nullopt; });
        return;
    }
    // Turning the automatic choice off fixes the value the axis shows now.
    const double now = scaleValue(shownValue);
    edit([&](AxisModel& changed) { changed.*member = now; });
}

double AxisView::MinimumScale() {
    valueAxis("MinimumScale");
    return scaleValue(&AxisScale::minimum);
}

void AxisView::SetMinimumScale(double value) {
    setScaleValue(&AxisModel::minimum, value, "MinimumScale");
}

bool AxisView::MinimumScaleIsAuto() {
    return !valueAxis("MinimumScaleIsAuto").minimum.has_value();
}

void AxisView::SetMinimumScaleIsAuto(bool automatic) {
    valueAxis("MinimumScaleIsAuto", Access::Set);
    setScaleAuto(&AxisModel::minimum, &AxisScale::minimum, automatic);
}

double AxisView::MaximumScale() {
    valueAxis("MaximumScale");
    return scaleValue(&AxisScale::maximum);
}

void AxisView::SetMaximumScale(double value) {
    setScaleValue(&AxisModel::maximum, value, "MaximumScale");
}

bool AxisView::MaximumScaleIsAuto() {
    return !valueAxis("MaximumScaleIsAuto").maximum.has_value();
}

void AxisView::SetMaximumScaleIsAuto(bool automatic) {
    valueAxis("MaximumScaleIsAuto", Access::Set);
    setScaleAuto(&AxisModel::maximum, &AxisScale::maximum, automatic);
}

double AxisView::MajorUnit() {
    valueAxis("MajorUnit");
    return scaleValue(&AxisScale::majorUnit);
}

void AxisView::SetMajorUnit(double value) {
    setScaleValue(&AxisModel::majorUnit, value, "MajorUnit");
}

bool AxisView::MajorUnitIsAuto() {
    return !valueAxis("MajorUnitIsAuto").majorUnit.has_value();
}

void AxisView::SetMajorUnitIsAuto(bool automatic) {
    valueAxis("MajorUnitIsAuto", Access::Set);
    setScaleAuto(&AxisModel::majorUnit, &AxisScale::majorUnit, automatic);
}

double AxisView::MinorUnit() {
    valueAxis("MinorUnit");
    return scaleValue(&AxisScale::minorUnit);
}

void AxisView::SetMinorUnit(double value) {
    setScaleValue(&AxisModel::minorUnit, value, "MinorUnit");
}

bool AxisView::MinorUnitIsAuto() {
    return !valueAxis("MinorUnitIsAuto").minorUnit.has_value();
}

void AxisView::SetMinorUnitIsAuto(bool automatic) {
    valueAxis("MinorUnitIsAuto", Access::Set);
    setScaleAuto(&AxisModel::minorUnit, &AxisScale::minorUnit, automatic);
}

int32_t AxisView::ScaleType() {
    return valueAxis("ScaleType").scaleType;
}

void AxisView::SetScaleType(int32_t type) {
    valueAxis("ScaleType", Access::Set);
    if (type != xlScaleLinear && type != xlScaleLogarithmic) {
        RefuseSet("ScaleType");
    }
    edit([&](AxisModel& changed) { changed.scaleType = type; });
}

int32_t AxisView::Crosses() {
    return axis().crosses;
}

void AxisView::SetCrosses(int32_t crosses) {
    if (!IsCrosses(crosses)) {
        RefuseSet("Crosses");
    }
    edit([&](AxisModel& changed) { changed.crosses = crosses; });
}

double AxisView::CrossesAt() {
    return axis().crossesAt;
}

void AxisView::SetCrossesAt(double value) {
    if (!std::isfinite(value)) {
        RefuseSet("CrossesAt");
    }
    edit([&](AxisModel& changed) {
        changed.crossesAt = value;
        changed.crosses = xlAxisCrossesCustom;
    });
}

bool AxisView::ReversePlotOrder() {
    return axis().reversed;
}

void AxisView::SetReversePlotOrder(bool reverse) {
    edit([&](AxisModel& changed) { changed.reversed = reverse; });
}

Variant AxisView::CategoryNames() {
    axis();
    for (const auto& group : chart_.Chart().Groups()) {
        if (group->axisGroup == group_ && !group->series.empty()) {
            return ArrayOfPoints(PointsOf(chart_.Sheet().Book(), group->series.front()->categories));
        }
    }
    return ArrayOfPoints(ChartPoints{});
}

void AxisView::SetCategoryNames(const Variant& names) {
    if (type_ != xlCategory) {
        RefuseSet("CategoryNames");
    }
    axis();
    const ChartData data = ChartDataFromVariant(names, chart_.Sheet().Book(), "CategoryNames");
    for (const auto& group : chart_.Chart().Groups()) {
        if (group->axisGroup != group_) {
            continue;
        }
        for (const auto& series : group->series) {
            series->categories = data;
        }
    }
    chart_.Changed();
}

int32_t AxisView::TickLabelPosition() {
    return axis().tickLabelPosition;
}

void AxisView::SetTickLabelPosition(int32_t position) {
    if (!IsTickLabelPosition(position)) {
        RefuseSet("TickLabelPosition");
    }
    edit([&](AxisModel& changed) { changed.tickLabelPosition = position; });
}

std::shared_ptr<excel::TickLabels> AxisView::TickLabels() {
    axis();
    return std::make_shared<TickLabelsView>(chart_, type_, group_);
}

ShapeBounds AxisView::bounds() const {
    axis();
    return LayOutChart(chart_.Chart(), chart_.Width(), chart_.Height()).axes[ChartModel::SlotOf(type_, group_)];
}

double AxisView::Left() {
    return bounds().left;
}

double AxisView::Top() {
    return bounds().top;
}

double AxisView::Width() {
    return bounds().width;
}

double AxisView::Height() {
    return bounds().height;
}

std::shared_ptr<excel::Border> AxisView::Border() {
    axis();
    const int32_t type = type_;
    const int32_t group = group_;
    return std::make_shared<ChartBorderView>(ChartFormatTarget{
        chart_,
        [type, group](ChartModel& chart) -> ChartElementFormat& { return ShownAxis(chart, type, group).format; },
        [](ChartModel&) { return ShapeColorFromRgb(AxisLineGrey); }, true, false});
}

void AxisView::Delete() {
    axis();
    chart_.Chart().SetHasAxis(type_, group_, false);
    chart_.Changed();
}

}  // namespace excel::embedded
