#include "excel/embedded/model/charts/chart_layout.hpp"

#include "excel/embedded/text/rich_text.hpp"
#include "excel/embedded/text/text_metrics.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace excel::embedded {

namespace {

constexpr double Margin = 7.0;
constexpr double TextPadding = 3.0;
constexpr double TickLength = 5.0;
constexpr double LegendKeyWidth = 20.0;
// The widest label Excel's automatic scale commonly shows, for sizing a value axis' labels.
constexpr std::string_view TypicalLabel = "0000";

struct TextSize {
    double width = 0.0;
    double height = 0.0;
};

TextSize SizeOfText(std::string_view text, const FontFormat& font) {
    TextSize size;
    std::size_t start = 0;
    while (true) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        size.width = std::max(size.width, TextAdvance(text.substr(start, end - start), font));
        size.height += LineHeight(font);
        if (end == text.size()) {
            return size;
        }
        start = end + 1;
    }
}

// Degrees of text turned from the horizontal.
double Degrees(int32_t orientation) {
    switch (orientation) {
        case xlUpward:
        case xlDownward:
        case xlVertical:
            return 90.0;
        case xlHorizontal:
        case xlTickLabelOrientationAutomatic:
            return 0.0;
        default:
            return std::clamp(static_cast<double>(orientation), -90.0, 90.0);
    }
}

// How far text reaches across an axis it labels: its extent turned by the orientation.
double Across(TextSize size, int32_t orientation, bool vertical) {
    const double radians = Degrees(orientation) * std::numbers::pi / 180.0;
    const double sine = std::abs(std::sin(radians));
    const double cosine = std::abs(std::cos(radians));
    return vertical ? size.width * cosine + size.height * sine : size.width * sine + size.height * cosine;
}

FontFormat FontOf(const ChartTextFormat& text) {
    return text.font.value_or(DefaultChartFont());
}

TextSize TitleSize(const ChartTitleModel& title, std::string_view automaticText) {
    const TextSize text = SizeOfText(title.text.text.empty() ? automaticText : title.text.text, title.font);
    return {text.width + 2 * TextPadding, text.height + 2 * TextPadding};
}

// Whether the axis runs up the chart: a value axis of columns and lines, a category axis of bars.
bool Vertical(const ChartModel& chart, const AxisModel& axis) {
    const bool horizontalBars = chart.GroupOnAxes(axis.group).horizontal;
    return (axis.type == xlValue) != horizontalBars;
}

}  // namespace

ChartLayout LayOutChart(const ChartModel& chart, double width, double height) {
    ChartLayout layout;
    double top = Margin;
    double right = width - Margin;
    double bottom = height - Margin;
    double left = Margin;
    if (const auto& title = chart.Title()) {
        const auto series = chart.Series();
        const std::string automatic = series.size() == 1 && series.front()->nameText ? *series.front()->nameText : "";
        const TextSize size = TitleSize(*title, automatic);
        layout.title = ShapeBounds{title->left.value_or((width - size.width) / 2), title->top.value_or(Margin),
                                   size.width, size.height};
        top = layout.title->top + size.height + Margin;
    }
    if (const auto& legend = chart.Legend()) {
        const FontFormat font = FontOf(legend->text);
        const auto series = chart.Series();
        double entryWidth = 0.0;
        for (std::size_t i = 0; i < series.size(); ++i) {
            const std::string name = series[i]->nameText.value_or("Series" + std::to_string(i + 1));
            entryWidth = std::max(entryWidth, TextAdvance(name, font));
        }
        const double w = entryWidth + LegendKeyWidth + 2 * TextPadding;
        const double h =
            static_cast<double>(std::max<std::size_t>(series.size(), 1)) * LineHeight(font) + 2 * TextPadding;
        switch (legend->position) {
            case xlLegendPositionBottom:
                layout.legend = ShapeBounds{(width - w) / 2, height - Margin - h, w, h};
                bottom = layout.legend->top - Margin;
                break;
            case xlLegendPositionTop:
                layout.legend = ShapeBounds{(width - w) / 2, top, w, h};
                top += h + Margin;
                break;
            case xlLegendPositionLeft:
                layout.legend = ShapeBounds{Margin, (height - h) / 2, w, h};
                left += w + Margin;
                break;
            default:
                layout.legend = ShapeBounds{width - Margin - w, (height - h) / 2, w, h};
                right = layout.legend->left - Margin;
                break;
        }
    }
    // Each shown axis takes a band for its tick marks and labels inside the plot area, and one for
    // its title outside it: the plot area's bounds take in the labels but not the axis titles.
    struct AxisBands {
        double labels = 0.0;
        std::optional<TextSize> title;
        bool vertical = false;
        bool far = false;  // the secondary axes stand right of or above the plot
    };
    std::array<std::optional<AxisBands>, 4> shown;
    for (const int32_t group : {xlPrimary, xlSecondary}) {
        for (const int32_t type : {xlCategory, xlValue}) {
            const auto axis = chart.Axis(type, group);
            if (axis == nullptr || !chart.HasAxis(type, group)) {
                continue;
            }
            AxisBands bands;
            bands.vertical = Vertical(chart, *axis);
            bands.far = group == xlSecondary;
            const TextSize label = SizeOfText(TypicalLabel, FontOf(axis->tickLabels));
            bands.labels = axis->tickLabelPosition == xlTickLabelPositionNone
                               ? 0.0
                               : Across(label, axis->tickLabels.orientation, bands.vertical) + TextPadding;
            if (axis->majorTickMark == xlTickMarkOutside || axis->majorTickMark == xlTickMarkCross) {
                bands.labels += TickLength;
            }
            if (axis->title) {
                bands.title = TitleSize(*axis->title, "Axis Title");
            }
            shown[ChartModel::SlotOf(type, group)] = bands;
        }
    }
    // Takes a band off one side of the box: the near or far side, across or along the axis.
    const auto takeBand = [](ShapeBounds& box, double band, bool vertical, bool far) {
        if (vertical) {
            box.width -= band;
            if (!far) {
                box.left += band;
            }
        } else {
            box.height -= band;
            if (far) {
                box.top += band;
            }
        }
    };

    if (chart.plotAreaBounds) {
        layout.plotArea = *chart.plotAreaBounds;
    } else {
        ShapeBounds plot{left, top, std::max(right - left, 0.0), std::max(bottom - top, 0.0)};
        for (const auto& bands : shown) {
            if (bands && bands->title) {
                takeBand(plot, bands->title->height, bands->vertical, bands->far);
            }
        }
        plot.width = std::max(plot.width, 0.0);
        plot.height = std::max(plot.height, 0.0);
        layout.plotArea = plot;
    }
    ShapeBounds inside = layout.plotArea;
    for (const auto& bands : shown) {
        if (bands) {
            takeBand(inside, bands->labels, bands->vertical, bands->far);
        }
    }
    inside.width = std::max(inside.width, 0.0);
    inside.height = std::max(inside.height, 0.0);
    layout.plotInside = inside;

    const ShapeBounds& plot = layout.plotArea;
    for (const int32_t group : {xlPrimary, xlSecondary}) {
        for (const int32_t type : {xlCategory, xlValue}) {
            const auto axis = chart.Axis(type, group);
            if (axis == nullptr) {
                continue;
            }
            const std::size_t slot = ChartModel::SlotOf(type, group);
            const AxisBands bands =
                shown[slot].value_or(AxisBands{0.0, std::nullopt, Vertical(chart, *axis), group == xlSecondary});
            const double band = bands.labels;
            layout.axes[slot] =
                bands.vertical ? ShapeBounds{bands.far ? inside.left + inside.width : inside.left - band, inside.top,
                                             band, inside.height}
                               : ShapeBounds{inside.left, bands.far ? inside.top - band : inside.top + inside.height,
                                             inside.width, band};
            if (axis->title) {
                // Beside the plot area, centred on the plot itself.
                const TextSize size = TitleSize(*axis->title, "Axis Title");
                ShapeBounds placed =
                    bands.vertical ? ShapeBounds{bands.far ? plot.left + plot.width : plot.left - size.height,
                                                 inside.top + (inside.height - size.width) / 2, size.height, size.width}
                                   : ShapeBounds{inside.left + (inside.width - size.width) / 2,
                                                 bands.far ? plot.top - size.height : plot.top + plot.height,
                                                 size.width, size.height};
                // Kept inside the chart area, as when the plot area set by hand leaves no room beside it.
                placed.left = std::clamp(placed.left, 0.0, std::max(width - placed.width, 0.0));
                placed.top = std::clamp(placed.top, 0.0, std::max(height - placed.height, 0.0));
                placed.left = axis->title->left.value_or(placed.left);
                placed.top = axis->title->top.value_or(placed.top);
                layout.axisTitles[slot] = placed;
            }
        }
    }
    return layout;
}

}  // namespace excel::embedded
