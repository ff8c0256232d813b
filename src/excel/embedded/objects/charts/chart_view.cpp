#include "excel/embedded/objects/charts/chart_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/model/charts/chart_layout.hpp"
#include "excel/embedded/objects/charts/axes_view.hpp"
#include "excel/embedded/objects/charts/chart_area_view.hpp"
#include "excel/embedded/objects/charts/chart_group_view.hpp"
#include "excel/embedded/objects/charts/chart_object_view.hpp"
#include "excel/embedded/objects/charts/legend_view.hpp"
#include "excel/embedded/objects/charts/series_collection_view.hpp"
#include "excel/embedded/objects/charts/title_view.hpp"
#include "excel/embedded/objects/shapes/shapes_view.hpp"

namespace excel::embedded {

std::shared_ptr<excel::ChartObject> ChartView::Parent() {
    chart_.Chart();
    return std::make_shared<ChartObjectView>(chart_.Frame());
}

int32_t ChartView::ChartType() {
    return chart_.Chart().Type();
}

void ChartView::SetChartType(int32_t type) {
    chart_.Chart().SetType(type);
    chart_.Changed();
}

std::shared_ptr<excel::ChartArea> ChartView::ChartArea() {
    chart_.Chart();
    return std::make_shared<ChartAreaView>(chart_);
}

std::shared_ptr<excel::PlotArea> ChartView::PlotArea() {
    chart_.Chart();
    return std::make_shared<PlotAreaView>(chart_);
}

std::shared_ptr<excel::SeriesCollection> ChartView::SeriesCollection() {
    chart_.Chart();
    return std::make_shared<SeriesCollectionView>(chart_, nullptr);
}

std::shared_ptr<excel::Series> ChartView::SeriesCollection(const Variant& index) {
    return SeriesCollection()->Item(index);
}

std::shared_ptr<excel::ChartGroups> ChartView::ChartGroups() {
    chart_.Chart();
    return std::make_shared<ChartGroupsView>(chart_);
}

std::shared_ptr<excel::ChartGroup> ChartView::ChartGroups(const Variant& index) {
    return ChartGroups()->Item(index);
}

std::shared_ptr<excel::Axes> ChartView::Axes() {
    chart_.Chart();
    return std::make_shared<AxesView>(chart_);
}

std::shared_ptr<excel::Axis> ChartView::Axes(int32_t type, int32_t group) {
    return AxisOfChart(chart_, type, group);
}

bool ChartView::HasAxis(int32_t type, int32_t group) {
    return chart_.Chart().HasAxis(type, group);
}

void ChartView::SetHasAxis(int32_t type, int32_t group, bool has) {
    chart_.Chart().SetHasAxis(type, group, has);
    chart_.Changed();
}

bool ChartView::HasTitle() {
    return chart_.Chart().HasTitle();
}

void ChartView::SetHasTitle(bool has) {
    chart_.Chart().SetHasTitle(has);
    chart_.Changed();
}

std::shared_ptr<excel::ChartTitle> ChartView::ChartTitle() {
    if (!chart_.Chart().HasTitle()) {
        ThrowRefused("Unable to get the ChartTitle property of the Chart class");
    }
    const auto find = [](ChartModel& chart) -> ChartTitleModel& {
        if (!chart.HasTitle()) {
            ThrowObjectRequired();
        }
        return *chart.Title();
    };
    const auto place = [](ChartModel& chart, double width, double height) {
        return LayOutChart(chart, width, height).title.value_or(ShapeBounds{});
    };
    const auto remove = [](ChartModel& chart) { chart.SetHasTitle(false); };
    return std::make_shared<ChartTitleView>(chart_, find, place, remove);
}

bool ChartView::HasLegend() {
    return chart_.Chart().HasLegend();
}

void ChartView::SetHasLegend(bool has) {
    chart_.Chart().SetHasLegend(has);
    chart_.Changed();
}

std::shared_ptr<excel::Legend> ChartView::Legend() {
    if (!chart_.Chart().HasLegend()) {
        ThrowRefused("Unable to get the Legend property of the Chart class");
    }
    return std::make_shared<LegendView>(chart_);
}

std::shared_ptr<excel::Shapes> ChartView::Shapes() {
    chart_.Chart();
    const ShapeHandle& frame = chart_.Frame();
    return std::make_shared<ShapesView>(frame.SheetPointer(), frame.Pointer());
}

}  // namespace excel::embedded
