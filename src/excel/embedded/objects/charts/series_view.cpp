#include "excel/embedded/objects/charts/series_view.hpp"

#include "excel/embedded/engine_errors.hpp"
#include "excel/embedded/format/color_model.hpp"
#include "excel/embedded/model/charts/chart_data_cells.hpp"
#include "excel/embedded/model/charts/series_colors.hpp"
#include "excel/embedded/model/workbook_model.hpp"
#include "excel/embedded/objects/charts/chart_border_view.hpp"
#include "excel/embedded/objects/charts/chart_data_input.hpp"
#include "excel/embedded/objects/charts/chart_fill_format_view.hpp"
#include "excel/embedded/objects/charts/chart_interior_view.hpp"
#include "excel/embedded/text/general_format.hpp"

#include <algorithm>

namespace excel::embedded {

namespace {

constexpr int32_t SmallestMarker = 2;
constexpr int32_t LargestMarker = 72;
constexpr double AutomaticSeriesLineWeight = 2.25;

bool IsMarkerStyle(int32_t style) {
    switch (style) {
        case xlMarkerStyleAutomatic:
        case xlMarkerStyleNone:
        case xlMarkerStyleSquare:
        case xlMarkerStyleDiamond:
        case xlMarkerStyleTriangle:
        case xlMarkerStyleStar:
        case xlMarkerStyleCircle:
        case xlMarkerStylePlus:
        case xlMarkerStyleX:
        case xlMarkerStyleDot:
        case xlMarkerStyleDash:
            return true;
        default:
            return false;
    }
}

[[noreturn]] void RefuseSet(const std::string& property) {
    ThrowRefused("Unable to set the " + property + " property of the Series class");
}

// A data reference as a series formula shows it: "Sheet1!$A$1:$A$5", or "{1,2,3}".
std::string FormulaPart(const ChartData& data) {
    if (data.kind == ChartData::Kind::Reference) {
        return data.reference;
    }
    if (data.kind != ChartData::Kind::Literal) {
        return "";
    }
    std::string text = "{";
    for (std::size_t i = 0; i < data.values.size(); ++i) {
        text += i == 0 ? "" : ",";
        if (const auto* value = std::get_if<std::string>(&data.values[i])) {
            text += "\"" + *value + "\"";
        } else if (const double* number = std::get_if<double>(&data.values[i])) {
            text += FormatGeneral(*number);
        }
    }
    return text + "}";
}

}  // namespace

std::string SeriesName(const WorkbookModel& book, const SeriesModel& series) {
    if (series.nameText) {
        return *series.nameText;
    }
    if (series.nameReference.kind == ChartData::Kind::Reference) {
        const ChartPoints points = PointsOf(book, series.nameReference);
        if (!points.texts.empty()) {
            return points.texts.front();
        }
    }
    return "Series" + std::to_string(series.index + 1);
}

SeriesModel& SeriesView::series() const {
    group();
    return *series_;
}

ChartGroupModel& SeriesView::group() const {
    ChartGroupModel* group = chart_.Chart().GroupOf(*series_);
    if (group == nullptr) {
        ThrowObjectRequired();
    }
    return *group;
}

ChartFormatTarget SeriesView::formatTarget() const {
    const ChartGroupModel& shown = group();
    const bool lines = shown.kind == ChartGroupKind::Line || shown.kind == ChartGroupKind::Scatter;
    const auto series = series_;
    return ChartFormatTarget{chart_,
                             [series](ChartModel& chart) -> ChartElementFormat& {
                                 if (chart.GroupOf(*series) == nullptr) {
                                     ThrowObjectRequired();
                                 }
                                 return series->format;
                             },
                             [series](ChartModel&) { return AutomaticSeriesColor(series->index); },
                             lines,
                             !lines,
                             lines ? AutomaticSeriesLineWeight : 0.75};
}

std::string SeriesView::Name() {
    return SeriesName(chart_.Sheet().Book(), series());
}

void SeriesView::SetName(const std::string& name) {
    SeriesModel& changed = series();
    changed.nameText.reset();
    changed.nameReference = ChartData{};
    if (!name.empty() && name.front() == '=') {
        const ChartData data = ChartDataFromVariant(Variant(name), chart_.Sheet().Book(), "Name");
        if (data.kind == ChartData::Kind::Reference) {
            changed.nameReference = data;
            chart_.Changed();
            return;
        }
    }
    changed.nameText = name;
    chart_.Changed();
}

Variant SeriesView::Values() {
    return ArrayOfPoints(PointsOf(chart_.Sheet().Book(), series().values));
}

void SeriesView::SetValues(const Variant& values) {
    SeriesModel& changed = series();
    changed.values = ChartDataFromVariant(values, chart_.Sheet().Book(), "Values");
    chart_.Changed();
}

Variant SeriesView::XValues() {
    return ArrayOfPoints(PointsOf(chart_.Sheet().Book(), series().categories));
}

void SeriesView::SetXValues(const Variant& values) {
    SeriesModel& changed = series();
    changed.categories = ChartDataFromVariant(values, chart_.Sheet().Book(), "XValues");
    chart_.Changed();
}

std::string SeriesView::Formula() {
    const SeriesModel& shown = series();
    std::string name;
    if (shown.nameReference.kind == ChartData::Kind::Reference) {
        name = shown.nameReference.reference;
    } else if (shown.nameText) {
        name = "\"" + *shown.nameText + "\"";
    }
    return "=SERIES(" + name + "," + FormulaPart(shown.categories) + "," + FormulaPart(shown.values) + "," +
           std::to_string(PlotOrder()) + ")";
}

int32_t SeriesView::PlotOrder() {
    series();
    const auto all = chart_.Chart().Series();
    const auto found = std::find(all.begin(), all.end(), series_);
    return static_cast<int32_t>(found - all.begin()) + 1;
}

int32_t SeriesView::AxisGroup() {
    return group().axisGroup;
}

void SeriesView::SetAxisGroup(int32_t axisGroup) {
    series();
    if (axisGroup != xlPrimary && axisGroup != xlSecondary) {
        RefuseSet("AxisGroup");
    }
    chart_.Chart().MoveSeries(*series_, axisGroup);
    chart_.Changed();
}

int32_t SeriesView::ChartType() {
    return chart_.Chart().TypeOfSeries(series());
}

void SeriesView::ClearFormats() {
    const ChartGroupModel& shown = group();
    SeriesModel& changed = *series_;
    changed.format = ChartElementFormat{};
    changed.marker = ChartMarker{};
    ApplySeriesLook(changed, *TraitsOfChartType(shown.type));
    chart_.Changed();
}

std::shared_ptr<excel::Interior> SeriesView::Interior() {
    return std::make_shared<ChartInteriorView>(formatTarget());
}

std::shared_ptr<excel::ChartFillFormat> SeriesView::Fill() {
    return std::make_shared<ChartFillFormatView>(formatTarget());
}

std::shared_ptr<excel::Border> SeriesView::Border() {
    return std::make_shared<ChartBorderView>(formatTarget());
}

ChartMarker& SeriesView::marker(const char* property) const {
    const ChartGroupKind kind = group().kind;
    if (kind != ChartGroupKind::Line && kind != ChartGroupKind::Scatter) {
        ThrowRefused("Unable to get the " + std::string(property) + " property of the Series class");
    }
    return series_->marker;
}

void SeriesView::editMarker(const char* property, const std::function<void(ChartMarker&)>& change) {
    const ChartGroupKind kind = group().kind;
    if (kind != ChartGroupKind::Line && kind != ChartGroupKind::Scatter) {
        RefuseSet(property);
    }
    change(series_->marker);
    series_->format.fromFile = false;
    chart_.Changed();
}

int32_t SeriesView::MarkerStyle() {
    return marker("MarkerStyle").style;
}

void SeriesView::SetMarkerStyle(int32_t style) {
    if (!IsMarkerStyle(style)) {
        RefuseSet("MarkerStyle");
    }
    editMarker("MarkerStyle", [&](ChartMarker& changed) { changed.style = style; });
}

int32_t SeriesView::MarkerSize() {
    return marker("MarkerSize").size;
}

void SeriesView::SetMarkerSize(int32_t points) {
    if (points < SmallestMarker || points > LargestMarker) {
        RefuseSet("MarkerSize");
    }
    editMarker("MarkerSize", [&](ChartMarker& changed) { changed.size = points; });
}

int32_t SeriesView::MarkerForegroundColor() {
    const ChartMarker& shown = marker("MarkerForegroundColor");
    const ShapeColor color =
        shown.foreground.kind == ChartLine::Kind::Solid ? shown.foreground.color : AutomaticSeriesColor(series_->index);
    return static_cast<int32_t>(RgbOf(color.color, chart_.Colors(), 0));
}

void SeriesView::SetMarkerForegroundColor(int32_t rgb) {
    editMarker("MarkerForegroundColor", [&](ChartMarker& changed) {
        changed.foreground.kind = ChartLine::Kind::Solid;
        changed.foreground.color = ShapeColorFromRgb(rgb);
    });
}

int32_t SeriesView::MarkerForegroundColorIndex() {
    const ChartLine& line = marker("MarkerForegroundColorIndex").foreground;
    if (line.kind != ChartLine::Kind::Solid) {
        return line.kind == ChartLine::Kind::None ? xlColorIndexNone : xlColorIndexAutomatic;
    }
    return ColorIndexOf(line.color.color, chart_.Colors(), xlColorIndexAutomatic);
}

void SeriesView::SetMarkerForegroundColorIndex(int32_t index) {
    editMarker("MarkerForegroundColorIndex", [&](ChartMarker& changed) {
        if (index == xlColorIndexAutomatic || index == xlColorIndexNone) {
            changed.foreground.kind = index == xlColorIndexNone ? ChartLine::Kind::None : ChartLine::Kind::Automatic;
            return;
        }
        changed.foreground.kind = ChartLine::Kind::Solid;
        changed.foreground.color = ShapeColor{ColorFromIndex(index), msoNotThemeColor};
    });
}

int32_t SeriesView::MarkerBackgroundColor() {
    const ChartMarker& shown = marker("MarkerBackgroundColor");
    const ShapeColor color =
        shown.background.kind == ChartFill::Kind::Solid ? shown.background.color : AutomaticSeriesColor(series_->index);
    return static_cast<int32_t>(RgbOf(color.color, chart_.Colors(), 0));
}

void SeriesView::SetMarkerBackgroundColor(int32_t rgb) {
    editMarker("MarkerBackgroundColor", [&](ChartMarker& changed) {
        changed.background.kind = ChartFill::Kind::Solid;
        changed.background.color = ShapeColorFromRgb(rgb);
    });
}

int32_t SeriesView::MarkerBackgroundColorIndex() {
    const ChartFill& fill = marker("MarkerBackgroundColorIndex").background;
    if (fill.kind != ChartFill::Kind::Solid) {
        return fill.kind == ChartFill::Kind::None ? xlColorIndexNone : xlColorIndexAutomatic;
    }
    return ColorIndexOf(fill.color.color, chart_.Colors(), xlColorIndexAutomatic);
}

void SeriesView::SetMarkerBackgroundColorIndex(int32_t index) {
    editMarker("MarkerBackgroundColorIndex", [&](ChartMarker& changed) {
        if (index == xlColorIndexAutomatic || index == xlColorIndexNone) {
            changed.background.kind = index == xlColorIndexNone ? ChartFill::Kind::None : ChartFill::Kind::Automatic;
            return;
        }
        changed.background.kind = ChartFill::Kind::Solid;
        changed.background.color = ShapeColor{ColorFromIndex(index), msoNotThemeColor};
    });
}

void SeriesView::Delete() {
    series();
    chart_.Chart().RemoveSeries(*series_);
    chart_.Changed();
}

}  // namespace excel::embedded
