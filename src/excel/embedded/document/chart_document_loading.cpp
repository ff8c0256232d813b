#include "excel/embedded/document/chart_data_document_conversion.hpp"
#include "excel/embedded/document/chart_document_conversion.hpp"
#include "excel/embedded/document/chart_text_direction.hpp"
#include "excel/embedded/document/chart_words.hpp"
#include "excel/embedded/document/format_document_conversion.hpp"
#include "excel/embedded/document/shape_document_conversion.hpp"

#include <algorithm>
#include <cmath>
#include <string>

// Opening a chart part into the chart model (declared in chart_document_conversion.hpp).

namespace excel::embedded {

namespace {

constexpr double EmuPerPoint = 12700.0;
// Excel's chart title font when the file names none: the chart's text at 18 points, bold.
constexpr double DefaultTitleSize = 18.0;

uint32_t Channel(uint32_t rgb, int shift) {
    return (rgb >> shift) & 0xFF;
}

// A gradient as a one-colour gradient of its first stop: the style its angle gives, variant 3
// when it mirrors from the middle, and the degree of black or white its second stop holds.
ChartFill GradientFromDocument(const ooxml::ChartFill& fill) {
    ChartFill out;
    out.kind = ChartFill::Kind::Gradient;
    if (fill.stops.empty()) {
        return out;
    }
    out.color = ShapeColorFromDocument(fill.stops.front().color);
    out.gradientStyle = ConstantOf(GradientAngles, std::to_string(fill.angle));
    out.gradientVariant = fill.stops.size() == 3 ? 3 : 1;
    const ooxml::Color& first = fill.stops.front().color;
    const ooxml::Color& second = fill.stops[fill.stops.size() == 3 ? 1 : fill.stops.size() - 1].color;
    if (first.kind != ooxml::Color::Kind::Rgb || second.kind != ooxml::Color::Kind::Rgb) {
        return out;
    }
    // The channel that moved most says how far towards black or white the second stop went.
    double darkest = 0.0;
    double lightest = 0.0;
    for (const int shift : {16, 8, 0}) {
        const double from = Channel(first.argb, shift);
        const double to = Channel(second.argb, shift);
        if (to < from && from > 0.0) {
            darkest = std::max(darkest, 1.0 - to / from);
        } else if (to > from && from < 255.0) {
            lightest = std::max(lightest, (to - from) / (255.0 - from));
        }
    }
    out.gradientDegree = darkest >= lightest ? (1.0 - darkest) / 2.0 : 1.0 - (1.0 - lightest) / 2.0;
    return out;
}

ChartFill FillFromDocument(const ooxml::ChartFill& fill) {
    ChartFill out;
    switch (fill.kind) {
        case ooxml::ChartFill::Kind::Automatic:
            break;
        case ooxml::ChartFill::Kind::None:
            out.kind = ChartFill::Kind::None;
            break;
        case ooxml::ChartFill::Kind::Solid:
            out.kind = ChartFill::Kind::Solid;
            out.color = ShapeColorFromDocument(fill.color);
            break;
        case ooxml::ChartFill::Kind::Gradient:
            out = GradientFromDocument(fill);
            break;
    }
    return out;
}

ChartLine LineFromDocument(const ooxml::ChartLine& line) {
    ChartLine out;
    if (line.width) {
        out.weight = static_cast<double>(*line.width) / EmuPerPoint;
    }
    if (line.kind == ooxml::ChartLine::Kind::None) {
        out.kind = ChartLine::Kind::None;
    } else if (line.kind == ooxml::ChartLine::Kind::Solid) {
        out.kind = ChartLine::Kind::Solid;
        out.color = ShapeColorFromDocument(line.color);
        out.style = ConstantOf(LineDashes, line.dash);
    }
    return out;
}

// The file's formatting of the element holds until the element is formatted anew.
ChartElementFormat FormatFromDocument(const ooxml::ChartShapeProperties& shape) {
    return ChartElementFormat{FillFromDocument(shape.fill), LineFromDocument(shape.line), true};
}

FontFormat FontFromChartFont(const ooxml::ChartFont& font, FontFormat base) {
    base.name = font.name.value_or(base.name);
    base.size = font.size.value_or(base.size);
    base.bold = font.bold.value_or(base.bold);
    base.italic = font.italic.value_or(base.italic);
    base.strikethrough = font.strike.value_or(base.strikethrough);
    if (font.underline) {
        base.underline = *font.underline == "none"  ? Underline::None
                         : *font.underline == "dbl" ? Underline::Double
                                                    : Underline::Single;
    }
    if (font.color) {
        base.color = ShapeColorFromDocument(*font.color).color;
    }
    return base;
}

ChartTextFormat TextFromDocument(const ooxml::ChartTextProperties& text) {
    ChartTextFormat out;
    if (text.font != ooxml::ChartFont{}) {
        out.font = FontFromChartFont(text.font, DefaultChartFont());
    }
    out.orientation = OrientationOfDirection(text.rotation, text.vertical, xlTickLabelOrientationAutomatic);
    out.fromFile = true;
    return out;
}

// The opened chart's piece of a part: it shares the chart document, which it lives in.
using OpenedChart = std::shared_ptr<const ooxml::ChartDocument>;

template <class Part>
std::shared_ptr<const Part> PieceOf(const OpenedChart& chart, const Part& part) {
    return std::shared_ptr<const Part>(chart, &part);
}

ChartTitleModel TitleFromDocument(const OpenedChart& chart, const ooxml::ChartTitle& title, FontFormat base) {
    ChartTitleModel out;
    out.font = FontFromChartFont(title.paragraphFont, FontFromChartFont(title.textProperties.font, base));
    for (const ooxml::ChartTextRun& run : title.runs) {
        out.text.text += run.text;
        out.text.runs.push_back(TextRun{run.text, FontFromChartFont(run.font, out.font)});
    }
    if (title.runs.empty() && !title.reference.points.empty()) {
        out.text.text = title.reference.points.front().second;
    }
    out.orientation = OrientationOfDirection(title.rotation, title.vertical, xlHorizontal);
    out.format = FormatFromDocument(title.shape);
    out.textFromFile = true;
    out.opened = PieceOf(chart, title);
    return out;
}

ChartTypeTraits GroupTraits(const ooxml::ChartGroup& group) {
    ChartTypeTraits traits;
    traits.kind = group.type == "lineChart"      ? ChartGroupKind::Line
                  : group.type == "scatterChart" ? ChartGroupKind::Scatter
                  : group.type == "areaChart"    ? ChartGroupKind::Area
                                                 : ChartGroupKind::Bar;
    traits.horizontal = group.barDirection == "bar";
    traits.grouping = group.grouping == "stacked"          ? ChartGrouping::Stacked
                      : group.grouping == "percentStacked" ? ChartGrouping::PercentStacked
                                                           : ChartGrouping::Standard;
    return traits;
}

std::shared_ptr<SeriesModel> SeriesFromDocument(const OpenedChart& chart, const ooxml::ChartSeries& series) {
    auto out = std::make_shared<SeriesModel>();
    out->index = series.index;
    out->nameText = series.nameText;
    if (series.nameReference.kind != ooxml::ChartData::Kind::None) {
        out->nameReference = ChartDataFromDocument(series.nameReference);
    }
    out->categories = ChartDataFromDocument(series.categories);
    out->values = ChartDataFromDocument(series.values);
    out->format = FormatFromDocument(series.shape);
    if (series.marker) {
        out->marker.style = ConstantOf(MarkerSymbols, series.marker->symbol);
        out->marker.size = static_cast<int32_t>(series.marker->size.value_or(static_cast<uint32_t>(out->marker.size)));
        out->marker.background = FillFromDocument(series.marker->shape.fill);
        out->marker.foreground = LineFromDocument(series.marker->shape.line);
    }
    out->smooth = series.smooth;
    out->invertIfNegative = series.invertIfNegative;
    out->opened = PieceOf(chart, series);
    return out;
}

class ChartLoader {
public:
    explicit ChartLoader(OpenedChart chart) : document_(std::move(chart)), chart_(*document_) {}

    std::shared_ptr<ChartModel> Load(double width, double height) {
        const ooxml::ChartGroup& first = chart_.plotArea.groups.front();
        auto model = std::make_shared<ChartModel>(ChartModel::OpenedChart{});
        for (const ooxml::ChartGroup& group : chart_.plotArea.groups) {
            model->AddOpenedGroup(groupOf(group, group.axisIds == first.axisIds ? xlPrimary : xlSecondary));
        }
        loadAxes(*model);
        if (chart_.title) {
            FontFormat base = DefaultChartFont();
            base.size = DefaultTitleSize;
            base.bold = true;
            model->SetOpenedTitle(std::make_shared<ChartTitleModel>(TitleFromDocument(document_, *chart_.title, base)));
        }
        model->SetOpenedLegend(chart_.legend ? legendOf(*chart_.legend) : nullptr);
        model->automaticTitleOff = chart_.autoTitleDeleted;
        model->style = chart_.style;
        model->roundedCorners = chart_.roundedCorners;
        model->chartArea = FormatFromDocument(chart_.chartArea);
        model->chartText = TextFromDocument(chart_.textProperties);
        model->plotArea = FormatFromDocument(chart_.plotArea.shape);
        for (const ooxml::ChartShape& placed : chart_.shapes) {
            auto box = TextBoxFromDocument(placed.shape);
            box->inChart = true;
            box->bounds = ShapeBounds{placed.fromX * width, placed.fromY * height, (placed.toX - placed.fromX) * width,
                                      (placed.toY - placed.fromY) * height};
            model->shapes.AddOpened(std::move(box));
        }
        model->opened = document_;
        return model;
    }

private:
    std::shared_ptr<ChartGroupModel> groupOf(const ooxml::ChartGroup& group, int32_t axisGroup) {
        auto out = std::make_shared<ChartGroupModel>();
        const ChartTypeTraits traits = GroupTraits(group);
        out->kind = traits.kind;
        out->horizontal = traits.horizontal;
        out->grouping = traits.grouping;
        out->axisGroup = axisGroup;
        out->varyColors = group.varyColors;
        out->gapWidth = group.gapWidth.value_or(out->gapWidth);
        out->overlap = group.overlap.value_or(out->overlap);
        out->showMarkers = group.showMarkers;
        for (const ooxml::ChartSeries& series : group.series) {
            out->series.push_back(SeriesFromDocument(document_, series));
        }
        const bool pointed = traits.kind == ChartGroupKind::Line || traits.kind == ChartGroupKind::Scatter;
        const SeriesModel* look = out->series.empty() ? nullptr : out->series.front().get();
        const bool markers = look ? look->marker.style != xlMarkerStyleNone : pointed;
        const bool lines = look ? look->format.line.kind != ChartLine::Kind::None : true;
        out->type = ChartTypeOf(traits.kind, traits.horizontal, traits.grouping, markers, lines, look && look->smooth);
        out->opened = PieceOf(document_, group);
        for (std::size_t i = 0; i < group.axisIds.size() && i < 2; ++i) {
            axisSlots_.emplace_back(group.axisIds[i], std::pair(i == 0 ? xlCategory : xlValue, axisGroup));
        }
        return out;
    }

    const ooxml::ChartAxis* axisWithId(uint32_t id) const {
        for (const ooxml::ChartAxis& axis : chart_.plotArea.axes) {
            if (axis.id == id) {
                return &axis;
            }
        }
        return nullptr;
    }

    void loadAxes(ChartModel& model) {
        for (const auto& [id, slot] : axisSlots_) {
            const ooxml::ChartAxis* axis = axisWithId(id);
            const auto held = model.Axis(slot.first, slot.second);
            if (axis != nullptr && (held == nullptr || held->opened == nullptr)) {
                model.SetOpenedAxis(axisOf(*axis, slot.first, slot.second), !axis->deleted);
            }
        }
        // An axis' crossing is kept on the axis that crosses it.
        for (const auto& [id, slot] : axisSlots_) {
            const ooxml::ChartAxis* axis = axisWithId(id);
            const auto crossed = model.CrossingAxis(*model.Axis(slot.first, slot.second));
            if (axis == nullptr || crossed == nullptr) {
                continue;
            }
            if (axis->crossesAt) {
                crossed->crosses = xlAxisCrossesCustom;
                crossed->crossesAt = *axis->crossesAt;
            } else {
                crossed->crosses = ConstantOf(Crossings, axis->crosses);
            }
        }
    }

    std::shared_ptr<AxisModel> axisOf(const ooxml::ChartAxis& axis, int32_t type, int32_t group) const {
        auto out = std::make_shared<AxisModel>();
        out->type = type;
        out->group = group;
        out->minimum = axis.minimum;
        out->maximum = axis.maximum;
        out->majorUnit = axis.majorUnit;
        out->minorUnit = axis.minorUnit;
        if (axis.logBase) {
            out->scaleType = xlScaleLogarithmic;
            out->logBase = *axis.logBase;
        }
        out->reversed = axis.orientation == "maxMin";
        out->majorGridlines = axis.majorGridlines.has_value();
        out->minorGridlines = axis.minorGridlines.has_value();
        if (axis.majorGridlines) {
            out->majorGridlineFormat = FormatFromDocument(*axis.majorGridlines);
        }
        if (axis.minorGridlines) {
            out->minorGridlineFormat = FormatFromDocument(*axis.minorGridlines);
        }
        if (axis.title) {
            FontFormat base = DefaultChartFont();
            base.bold = true;
            out->title = TitleFromDocument(document_, *axis.title, base);
        }
        if (axis.numberFormat) {
            out->numberFormat = axis.numberFormat->code;
            out->numberFormatLinked = axis.numberFormat->sourceLinked;
        }
        out->majorTickMark = ConstantOf(TickMarks, axis.majorTickMark);
        out->minorTickMark = ConstantOf(TickMarks, axis.minorTickMark);
        out->tickLabelPosition = ConstantOf(TickLabelPositions, axis.tickLabelPosition);
        out->tickLabels = TextFromDocument(axis.textProperties);
        out->format = FormatFromDocument(axis.shape);
        out->opened = PieceOf(document_, axis);
        return out;
    }

    std::shared_ptr<LegendModel> legendOf(const ooxml::ChartLegend& legend) const {
        auto out = std::make_shared<LegendModel>();
        out->position = ConstantOf(LegendPositions, legend.position);
        out->includeInLayout = !legend.overlay;
        out->text = TextFromDocument(legend.textProperties);
        out->format = FormatFromDocument(legend.shape);
        out->opened = PieceOf(document_, legend);
        return out;
    }

    OpenedChart document_;
    const ooxml::ChartDocument& chart_;
    std::vector<std::pair<uint32_t, std::pair<int32_t, int32_t>>> axisSlots_;  // axis id -> type, group
};

}  // namespace

std::shared_ptr<ChartModel> ChartFromDocument(std::shared_ptr<const ooxml::ChartDocument> chart, double width,
                                              double height) {
    return ChartLoader(std::move(chart)).Load(width, height);
}

}  // namespace excel::embedded
