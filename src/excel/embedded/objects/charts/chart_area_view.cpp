#include "excel/embedded/objects/charts/chart_area_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/model/charts/chart_layout.hpp"
#include "excel/embedded/objects/charts/chart_border_view.hpp"
#include "excel/embedded/objects/charts/chart_interior_view.hpp"
#include "excel/embedded/objects/charts/chart_text_targets.hpp"

#include <cmath>

namespace excel::embedded {

namespace {

constexpr int32_t White = 0xFFFFFF;
constexpr int32_t BorderGrey = 0x868686;

ChartFormatTarget ChartAreaFormat(const ChartHandle& chart) {
    return ChartFormatTarget{chart, [](ChartModel& model) -> ChartElementFormat& { return model.chartArea; },
                             [](ChartModel&) { return ShapeColorFromRgb(BorderGrey); }, true, true};
}

ChartFormatTarget ChartAreaFill(const ChartHandle& chart) {
    ChartFormatTarget target = ChartAreaFormat(chart);
    target.automaticColor = [](ChartModel&) { return ShapeColorFromRgb(White); };
    return target;
}

ChartFormatTarget PlotAreaFormat(const ChartHandle& chart) {
    return ChartFormatTarget{chart, [](ChartModel& model) -> ChartElementFormat& { return model.plotArea; },
                             [](ChartModel&) { return ShapeColorFromRgb(White); }, false, false};
}

}  // namespace

double ChartAreaView::Left() {
    chart_.Chart();
    return 0.0;
}

double ChartAreaView::Top() {
    chart_.Chart();
    return 0.0;
}

double ChartAreaView::Width() {
    return chart_.Width();
}

double ChartAreaView::Height() {
    return chart_.Height();
}

std::shared_ptr<excel::Border> ChartAreaView::Border() {
    return std::make_shared<ChartBorderView>(ChartAreaFormat(chart_));
}

std::shared_ptr<excel::Interior> ChartAreaView::Interior() {
    return std::make_shared<ChartInteriorView>(ChartAreaFill(chart_));
}

std::shared_ptr<excel::Font> ChartAreaView::Font() {
    chart_.Chart();
    return std::make_shared<FontView>(std::make_shared<ChartTextFontTarget>(
        chart_, [](ChartModel& chart) -> ChartTextFormat& { return chart.chartText; }));
}

void ChartAreaView::ClearFormats() {
    ChartModel& chart = chart_.Chart();
    chart.chartArea = ChartElementFormat{};
    chart.chartText = ChartTextFormat{};
    chart_.Changed();
}

ShapeBounds PlotAreaView::outer() const {
    return LayOutChart(chart_.Chart(), chart_.Width(), chart_.Height()).plotArea;
}

ShapeBounds PlotAreaView::inside() const {
    return LayOutChart(chart_.Chart(), chart_.Width(), chart_.Height()).plotInside;
}

void PlotAreaView::place(double ShapeBounds::*member, double points) {
    const bool size = member == &ShapeBounds::width || member == &ShapeBounds::height;
    if (!std::isfinite(points) || (size && points < 0.0)) {
        ThrowRefused("Unable to set the property of the PlotArea class");
    }
    ShapeBounds bounds = outer();
    bounds.*member = points;
    chart_.Chart().plotAreaBounds = bounds;
    chart_.Changed();
}

double PlotAreaView::Left() {
    return outer().left;
}

void PlotAreaView::SetLeft(double points) {
    place(&ShapeBounds::left, points);
}

double PlotAreaView::Top() {
    return outer().top;
}

void PlotAreaView::SetTop(double points) {
    place(&ShapeBounds::top, points);
}

double PlotAreaView::Width() {
    return outer().width;
}

void PlotAreaView::SetWidth(double points) {
    place(&ShapeBounds::width, points);
}

double PlotAreaView::Height() {
    return outer().height;
}

void PlotAreaView::SetHeight(double points) {
    place(&ShapeBounds::height, points);
}

double PlotAreaView::InsideLeft() {
    return inside().left;
}

double PlotAreaView::InsideTop() {
    return inside().top;
}

double PlotAreaView::InsideWidth() {
    return inside().width;
}

double PlotAreaView::InsideHeight() {
    return inside().height;
}

std::shared_ptr<excel::Border> PlotAreaView::Border() {
    return std::make_shared<ChartBorderView>(PlotAreaFormat(chart_));
}

std::shared_ptr<excel::Interior> PlotAreaView::Interior() {
    return std::make_shared<ChartInteriorView>(PlotAreaFormat(chart_));
}

void PlotAreaView::ClearFormats() {
    chart_.Chart().plotArea = ChartElementFormat{};
    chart_.Changed();
}

}  // namespace excel::embedded
