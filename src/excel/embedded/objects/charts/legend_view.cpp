#include "excel/embedded/objects/charts/legend_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/model/charts/chart_layout.hpp"
#include "excel/embedded/objects/charts/chart_border_view.hpp"
#include "excel/embedded/objects/charts/chart_interior_view.hpp"
#include "excel/embedded/objects/charts/chart_text_targets.hpp"

namespace excel::embedded {

namespace {

LegendModel& ShownLegend(ChartModel& chart) {
    if (!chart.HasLegend()) {
        ThrowObjectRequired();
    }
    return *chart.Legend();
}

ChartFormatTarget LegendFormat(const ChartHandle& chart) {
    return ChartFormatTarget{chart, [](ChartModel& model) -> ChartElementFormat& { return ShownLegend(model).format; },
                             [](ChartModel&) { return ShapeColorFromRgb(0); }, false, false};
}

bool IsLegendPosition(int32_t position) {
    return position == xlLegendPositionBottom || position == xlLegendPositionCorner ||
           position == xlLegendPositionLeft || position == xlLegendPositionRight || position == xlLegendPositionTop;
}

}  // namespace

LegendModel& LegendView::legend() const {
    return ShownLegend(chart_.Chart());
}

int32_t LegendView::Position() {
    return legend().position;
}

void LegendView::SetPosition(int32_t position) {
    if (!IsLegendPosition(position)) {
        ThrowRefused("Unable to set the Position property of the Legend class");
    }
    legend().position = position;
    chart_.Changed();
}

std::shared_ptr<excel::Font> LegendView::Font() {
    legend();
    return std::make_shared<FontView>(std::make_shared<ChartTextFontTarget>(
        chart_, [](ChartModel& chart) -> ChartTextFormat& { return ShownLegend(chart).text; }));
}

bool LegendView::AutoScaleFont() {
    return legend().text.autoScaleFont;
}

void LegendView::SetAutoScaleFont(bool automatic) {
    legend().text.autoScaleFont = automatic;
    chart_.Changed();
}

std::shared_ptr<excel::Border> LegendView::Border() {
    legend();
    return std::make_shared<ChartBorderView>(LegendFormat(chart_));
}

std::shared_ptr<excel::Interior> LegendView::Interior() {
    legend();
    return std::make_shared<ChartInteriorView>(LegendFormat(chart_));
}

bool LegendView::IncludeInLayout() {
    return legend().includeInLayout;
}

void LegendView::SetIncludeInLayout(bool include) {
    legend().includeInLayout = include;
    chart_.Changed();
}

ShapeBounds LegendView::bounds() const {
    legend();
    return LayOutChart(chart_.Chart(), chart_.Width(), chart_.Height()).legend.value_or(ShapeBounds{});
}

double LegendView::Left() {
    return bounds().left;
}

double LegendView::Top() {
    return bounds().top;
}

double LegendView::Width() {
    return bounds().width;
}

double LegendView::Height() {
    return bounds().height;
}

void LegendView::Delete() {
    legend();
    chart_.Chart().SetHasLegend(false);
    chart_.Changed();
}

}  // namespace excel::embedded
