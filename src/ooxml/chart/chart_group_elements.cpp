#include "ooxml/chart/chart_group_elements.hpp"

#include "ooxml/chart/chart_children.hpp"
#include "ooxml/chart/chart_element_order.hpp"
#include "ooxml/chart/chart_series_elements.hpp"

#include <algorithm>
#include <array>

namespace ooxml {

namespace {

// What the writer knows of a kind of chart group: its element, its children's order and its
// series', and the grouping Excel gives it when the document names none.
struct GroupKind {
    std::string_view type;
    std::string_view element;
    ElementOrder order;
    ElementOrder seriesOrder;
    std::string_view grouping;
};

constexpr std::array<GroupKind, 4> GroupKinds{{
    {"barChart", "c:barChart", BarChartElementOrder, BarSeriesElementOrder, "clustered"},
    {"lineChart", "c:lineChart", LineChartElementOrder, LineSeriesElementOrder, "standard"},
    {"scatterChart", "c:scatterChart", ScatterChartElementOrder, ScatterSeriesElementOrder, ""},
    {"areaChart", "c:areaChart", AreaChartElementOrder, AreaSeriesElementOrder, "standard"},
}};

// Excel's gap between bars, and the overlap it gives stacked bars so that they stack.
constexpr int32_t DefaultGapWidth = 150;
constexpr int32_t StackedOverlap = 100;
constexpr int32_t MaxGapWidth = 500;
constexpr int32_t MaxOverlap = 100;

const GroupKind* KindOf(std::string_view type) {
    const auto kind = std::find_if(GroupKinds.begin(), GroupKinds.end(),
                                   [type](const GroupKind& known) { return known.type == type; });
    return kind != GroupKinds.end() ? &*kind : nullptr;
}

std::string_view Or(const std::string& value, std::string_view standard) {
    return value.empty() ? standard : std::string_view(value);
}

int32_t Overlap(const ChartGroup& group) {
    if (group.overlap) {
        return std::clamp(*group.overlap, -MaxOverlap, MaxOverlap);
    }
    return group.grouping == "stacked" || group.grouping == "percentStacked" ? StackedOverlap : 0;
}

}  // namespace

bool WritableChartGroup(std::string_view type) {
    return KindOf(type) != nullptr;
}

void WriteChartGroup(XmlWriter& xml, const ChartGroup& group) {
    const GroupKind* kind = KindOf(group.type);
    if (kind == nullptr) {
        return;
    }
    xml.StartElement(kind->element);
    ChartChildren children(xml, kind->order, &group.carried);
    children.Value("c:barDir", Or(group.barDirection, "col"));
    children.Value("c:grouping", Or(group.grouping, kind->grouping));
    children.Value("c:scatterStyle", Or(group.scatterStyle, "lineMarker"));
    children.Flag("c:varyColors", group.varyColors);
    if (children.Next("c:ser")) {
        for (const ChartSeries& series : group.series) {
            WriteChartSeries(xml, series, kind->seriesOrder);
        }
    }
    children.Number("c:gapWidth", std::clamp(group.gapWidth.value_or(DefaultGapWidth), 0, MaxGapWidth));
    children.Number("c:overlap", Overlap(group));
    children.Flag("c:marker", group.showMarkers);
    // A line group's own smoothing, which the document does not model: Excel writes it off.
    if (!children.Carries("smooth")) {
        children.Flag("c:smooth", false);
    }
    if (children.Next("c:axId")) {
        for (const uint32_t id : group.axisIds) {
            WriteNumberElement(xml, "c:axId", id);
        }
    }
    children.Rest();
    xml.EndElement();
}

}  // namespace ooxml
