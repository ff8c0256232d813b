#include "excel/embedded/document/chart_document_conversion.hpp"

#include "excel/embedded/document/chart_data_document_conversion.hpp"
#include "excel/embedded/document/chart_format_document_conversion.hpp"
#include "excel/embedded/document/chart_words.hpp"
#include "excel/embedded/document/shape_document_conversion.hpp"
#include "excel/embedded/model/workbook_model.hpp"

#include <algorithm>
#include <array>
#include <string_view>

namespace excel::embedded {

namespace {

// The ids of new axes, one per slot; Excel's are arbitrary unique numbers.
constexpr uint32_t FirstAxisId = 500000001;

template <class T>
const T* Opened(const std::shared_ptr<const T>& opened) {
    return opened.get();
}

std::string_view GroupElement(ChartGroupKind kind) {
    switch (kind) {
        case ChartGroupKind::Line:
            return "lineChart";
        case ChartGroupKind::Scatter:
            return "scatterChart";
        case ChartGroupKind::Area:
            return "areaChart";
        case ChartGroupKind::Bar:
            break;
    }
    return "barChart";
}

std::string_view GroupingOf(const ChartGroupModel& group) {
    switch (group.grouping) {
        case ChartGrouping::Stacked:
            return "stacked";
        case ChartGrouping::PercentStacked:
            return "percentStacked";
        case ChartGrouping::Standard:
            break;
    }
    return group.kind == ChartGroupKind::Bar ? "clustered" : "standard";
}

class ChartWriter {
public:
    ChartWriter(const WorksheetModel& sheet, const ChartModel& chart)
        : sheet_(sheet), book_(sheet.Book()), colors_(book_.Colors()), chart_(chart) {
        for (std::size_t slot = 0; slot < ids_.size(); ++slot) {
            ids_[slot] = FirstAxisId + static_cast<uint32_t>(slot);
        }
        for (const int32_t group : {xlPrimary, xlSecondary}) {
            for (const int32_t type : {xlCategory, xlValue}) {
                const auto axis = chart.Axis(type, group);
                if (axis != nullptr && axis->opened != nullptr) {
                    ids_[ChartModel::SlotOf(type, group)] = axis->opened->id;
                }
            }
        }
    }

    ooxml::ChartDocument Document(double width, double height) {
        width_ = width;
        height_ = height;
        ooxml::ChartDocument out;
        const ooxml::ChartDocument* opened = Opened(chart_.opened);
        if (opened != nullptr) {
            out = *opened;
            out.plotArea.groups.clear();
            out.plotArea.axes.clear();
            out.shapes.clear();
        }
        out.date1904 = book_.Date1904();
        out.roundedCorners = chart_.roundedCorners;
        out.style = chart_.style;
        out.title.reset();
        if (chart_.HasTitle()) {
            out.title = DocumentTitle(*chart_.Title(), colors_);
        }
        out.autoTitleDeleted = !chart_.HasTitle() && chart_.automaticTitleOff;
        if (out.title) {
            out.title->layout = titleLayout(*chart_.Title(), width, height);
        }
        writePlotArea(out.plotArea, opened ? &opened->plotArea : nullptr);
        if (chart_.plotAreaBounds && width > 0.0 && height > 0.0) {
            const ShapeBounds& bounds = *chart_.plotAreaBounds;
            out.plotArea.layout = ooxml::ChartManualLayout{"outer", bounds.left / width, bounds.top / height,
                                                           bounds.width / width, bounds.height / height};
        }
        out.legend.reset();
        if (chart_.HasLegend()) {
            out.legend = legend(*chart_.Legend());
        }
        out.chartArea = DocumentShapeProperties(chart_.chartArea, colors_, opened ? &opened->chartArea : nullptr);
        out.textProperties = DocumentTextProperties(chart_.chartText, opened ? &opened->textProperties : nullptr);
        writeShapes(out, width, height);
        return out;
    }

private:
    void writePlotArea(ooxml::ChartPlotArea& out, const ooxml::ChartPlotArea* opened) {
        uint32_t order = 0;
        for (const auto& group : chart_.Groups()) {
            out.groups.push_back(groupOf(*group, order));
        }
        for (const int32_t group : {xlPrimary, xlSecondary}) {
            if (!chart_.UsesAxisGroup(group)) {
                continue;
            }
            // Excel's order: the primary category and value axes, then the secondary value and category.
            const std::array<int32_t, 2> types =
                group == xlPrimary ? std::array{xlCategory, xlValue} : std::array{xlValue, xlCategory};
            for (const int32_t type : types) {
                out.axes.push_back(axisOf(*chart_.Axis(type, group)));
            }
        }
        if (opened != nullptr) {
            // The file's axes keep their order.
            const auto placeOf = [&](const ooxml::ChartAxis& axis) {
                const auto found = std::find_if(opened->axes.begin(), opened->axes.end(),
                                                [&](const ooxml::ChartAxis& other) { return other.id == axis.id; });
                return found - opened->axes.begin();
            };
            std::stable_sort(out.axes.begin(), out.axes.end(),
                             [&](const auto& a, const auto& b) { return placeOf(a) < placeOf(b); });
        }
        out.shape = DocumentShapeProperties(chart_.plotArea, colors_, opened ? &opened->shape : nullptr);
    }

    ooxml::ChartGroup groupOf(const ChartGroupModel& group, uint32_t& order) {
        ooxml::ChartGroup out;
        if (group.opened != nullptr) {
            out.carried = group.opened->carried;
        }
        out.type = GroupElement(group.kind);
        if (group.kind == ChartGroupKind::Bar) {
            out.barDirection = group.horizontal ? "bar" : "col";
            out.gapWidth = group.gapWidth;
            out.overlap = group.overlap;
        }
        if (group.kind == ChartGroupKind::Scatter) {
            const bool keep = group.opened != nullptr && !group.opened->scatterStyle.empty();
            out.scatterStyle = keep ? group.opened->scatterStyle : "lineMarker";
        } else {
            out.grouping = GroupingOf(group);
        }
        out.varyColors = group.varyColors;
        out.showMarkers = group.showMarkers;
        for (const auto& series : group.series) {
            out.series.push_back(seriesOf(*series, group, order++));
        }
        out.axisIds = {ids_[ChartModel::SlotOf(xlCategory, group.axisGroup)],
                       ids_[ChartModel::SlotOf(xlValue, group.axisGroup)]};
        return out;
    }

    ooxml::ChartSeries seriesOf(const SeriesModel& series, const ChartGroupModel& group, uint32_t order) {
        ooxml::ChartSeries out;
        const ooxml::ChartSeries* opened = Opened(series.opened);
        if (opened != nullptr) {
            out.carried = opened->carried;
        }
        out.index = series.index;
        out.order = order;
        out.nameText = series.nameText;
        if (series.nameReference.kind == ChartData::Kind::Reference) {
            out.nameReference =
                DocumentChartData(book_, series.nameReference, opened ? &opened->nameReference : nullptr);
            out.nameReference.kind = ooxml::ChartData::Kind::StringReference;
            out.nameReference.formatCode.clear();
        }
        out.shape = DocumentShapeProperties(series.format, colors_, opened ? &opened->shape : nullptr);
        const bool pointed = group.kind == ChartGroupKind::Line || group.kind == ChartGroupKind::Scatter;
        if (pointed) {
            out.marker = markerOf(series, opened);
            out.smooth = series.smooth;
        }
        out.invertIfNegative = series.invertIfNegative;
        out.categories = DocumentChartData(book_, series.categories, opened ? &opened->categories : nullptr);
        out.values = DocumentChartData(book_, series.values, opened ? &opened->values : nullptr);
        return out;
    }

    std::optional<ooxml::ChartMarker> markerOf(const SeriesModel& series, const ooxml::ChartSeries* opened) {
        const ChartMarker& marker = series.marker;
        if (series.format.fromFile && opened != nullptr) {
            return opened->marker;
        }
        const std::string_view symbol = WordOf(MarkerSymbols, marker.style);
        const bool formatted = marker.background.kind != ChartFill::Kind::Automatic ||
                               marker.foreground.kind != ChartLine::Kind::Automatic;
        if (symbol.empty() && !formatted && marker.size == ChartMarker{}.size) {
            return std::nullopt;  // Excel's automatic marker
        }
        ooxml::ChartMarker out;
        out.symbol = symbol;
        if (symbol != "none") {
            out.size = static_cast<uint32_t>(marker.size);
            out.shape = DocumentShapeProperties(ChartElementFormat{marker.background, marker.foreground, false},
                                                colors_, nullptr);
        }
        return out;
    }

    ooxml::ChartAxis axisOf(const AxisModel& axis) {
        ooxml::ChartAxis out;
        const ooxml::ChartAxis* opened = Opened(axis.opened);
        if (opened != nullptr) {
            out.carried = opened->carried;
        }
        const ChartGroupModel& drawn = chart_.GroupOnAxes(axis.group);
        const bool scatter = drawn.kind == ChartGroupKind::Scatter;
        const bool horizontalBars = drawn.horizontal;
        const bool valueAxis = axis.type == xlValue || scatter;
        // A date or series axis of the file stays one.
        out.type = opened != nullptr && opened->type != "valAx" && opened->type != "catAx" ? opened->type
                   : valueAxis                                                             ? "valAx"
                                                                                           : "catAx";
        const std::size_t slot = ChartModel::SlotOf(axis.type, axis.group);
        out.id = ids_[slot];
        const bool vertical = (axis.type == xlValue) != horizontalBars;
        // The axis sits where the other axis is crossed: at that one's far end when it is crossed at
        // its maximum, or runs reversed (the secondary value axis, crossed at the maximum, on the right).
        const auto crossed = chart_.CrossingAxis(axis);
        const bool farEnd = (crossed->crosses == xlAxisCrossesMaximum) != crossed->reversed;
        out.position = vertical ? (farEnd ? "r" : "l") : (farEnd ? "t" : "b");
        // The file's side of the axis holds while the axis still runs the same way.
        if (opened != nullptr && (opened->position == "l" || opened->position == "r") == vertical) {
            out.position = opened->position;
            out.labelAlignment = opened->labelAlignment;
            out.labelOffset = opened->labelOffset;
            out.automatic = opened->automatic;
            out.noMultiLevelLabels = opened->noMultiLevelLabels;
        }
        out.orientation = axis.reversed ? "maxMin" : "minMax";
        if (valueAxis) {
            out.maximum = axis.maximum;
            out.minimum = axis.minimum;
            if (axis.scaleType == xlScaleLogarithmic) {
                out.logBase = axis.logBase;
            }
            out.majorUnit = axis.majorUnit;
            out.minorUnit = axis.minorUnit;
            const bool keep = opened != nullptr && opened->type == "valAx" && !opened->crossBetween.empty();
            out.crossBetween = keep ? opened->crossBetween : scatter ? "midCat" : "between";
        }
        out.deleted = !chart_.HasAxis(axis.type, axis.group);
        if (axis.majorGridlines) {
            const bool kept = opened != nullptr && opened->majorGridlines;
            out.majorGridlines =
                DocumentShapeProperties(axis.majorGridlineFormat, colors_, kept ? &*opened->majorGridlines : nullptr);
        }
        if (axis.minorGridlines) {
            const bool kept = opened != nullptr && opened->minorGridlines;
            out.minorGridlines =
                DocumentShapeProperties(axis.minorGridlineFormat, colors_, kept ? &*opened->minorGridlines : nullptr);
        }
        if (axis.title) {
            out.title = DocumentTitle(*axis.title, colors_);
            out.title->layout = titleLayout(*axis.title, width_, height_);
        }
        out.numberFormat = ooxml::ChartNumberFormat{axis.numberFormat, axis.numberFormatLinked};
        out.majorTickMark = WordOf(TickMarks, axis.majorTickMark);
        out.minorTickMark = WordOf(TickMarks, axis.minorTickMark);
        out.tickLabelPosition = WordOf(TickLabelPositions, axis.tickLabelPosition);
        out.shape = DocumentShapeProperties(axis.format, colors_, opened ? &opened->shape : nullptr);
        out.textProperties = DocumentTextProperties(axis.tickLabels, opened ? &opened->textProperties : nullptr);
        out.crossAxisId = ids_[ChartModel::SlotOf(crossed->type, crossed->group)];
        // The file keeps on this axis where it crosses the other: the other axis' Crosses.
        if (crossed->crosses == xlAxisCrossesCustom) {
            out.crossesAt = crossed->crossesAt;
        } else {
            out.crosses = WordOf(Crossings, crossed->crosses);
        }
        return out;
    }

    ooxml::ChartLegend legend(const LegendModel& legend) {
        ooxml::ChartLegend out;
        const ooxml::ChartLegend* opened = Opened(legend.opened);
        if (opened != nullptr) {
            out.carried = opened->carried;
        }
        out.position = WordOf(LegendPositions, legend.position);
        out.overlay = !legend.includeInLayout;
        out.shape = DocumentShapeProperties(legend.format, colors_, opened ? &opened->shape : nullptr);
        out.textProperties = DocumentTextProperties(legend.text, opened ? &opened->textProperties : nullptr);
        return out;
    }

    // A title moved by hand keeps its place: its corner as fractions of the chart's size.
    static std::optional<ooxml::ChartManualLayout> titleLayout(const ChartTitleModel& title, double width,
                                                               double height) {
        if ((!title.left && !title.top) || width <= 0.0 || height <= 0.0) {
            return std::nullopt;
        }
        return ooxml::ChartManualLayout{"", title.left.value_or(0.0) / width, title.top.value_or(0.0) / height,
                                        std::nullopt, std::nullopt};
    }

    void writeShapes(ooxml::ChartDocument& out, double width, double height) {
        for (const auto& shape : chart_.shapes.All()) {
            const ShapeBounds& bounds = shape->bounds;
            ooxml::ChartShape placed;
            placed.shape = DrawingShapeOf(sheet_, *shape);
            if (width > 0.0 && height > 0.0) {
                placed.fromX = bounds.left / width;
                placed.fromY = bounds.top / height;
                placed.toX = (bounds.left + bounds.width) / width;
                placed.toY = (bounds.top + bounds.height) / height;
            }
            out.shapes.push_back(std::move(placed));
        }
    }

    const WorksheetModel& sheet_;
    const WorkbookModel& book_;
    const WorkbookColors& colors_;
    const ChartModel& chart_;
    std::array<uint32_t, 4> ids_{};
    double width_ = 0.0;
    double height_ = 0.0;
};

}  // namespace

ooxml::ChartDocument DocumentChart(const WorksheetModel& sheet, const ChartModel& chart, double width, double height) {
    return ChartWriter(sheet, chart).Document(width, height);
}

}  // namespace excel::embedded
