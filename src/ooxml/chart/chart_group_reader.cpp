#include "ooxml/chart/chart_group_reader.hpp"

#include "ooxml/chart/chart_child_reader.hpp"
#include "ooxml/chart/chart_element_order.hpp"
#include "ooxml/chart/chart_series_reader.hpp"
#include "ooxml/chart/chart_values.hpp"

#include <array>

namespace ooxml {

namespace {

constexpr int32_t ExcelGapWidth = 150;

struct GroupKind {
    std::string_view type;
    ElementOrder order;
    std::string_view grouping;  // what Excel takes when the file leaves it out
};

constexpr std::array<GroupKind, 4> GroupKinds{{
    {"barChart", BarChartElementOrder, "clustered"},
    {"lineChart", LineChartElementOrder, "standard"},
    {"scatterChart", ScatterChartElementOrder, ""},
    {"areaChart", AreaChartElementOrder, "standard"},
}};

const GroupKind* KindOf(std::string_view type) {
    for (const GroupKind& kind : GroupKinds) {
        if (kind.type == type) {
            return &kind;
        }
    }
    return nullptr;
}

}  // namespace

bool ModelledChartGroup(std::string_view type) {
    return KindOf(type) != nullptr;
}

ChartGroup ReadChartGroup(pugi::xml_node element) {
    ChartGroup group;
    group.type = LocalName(element);
    const GroupKind* kind = KindOf(group.type);
    group.grouping = kind->grouping;
    if (group.type == "barChart") {
        group.barDirection = "col";
        group.gapWidth = ExcelGapWidth;
        group.overlap = 0;
    } else if (group.type == "scatterChart") {
        group.scatterStyle = "marker";
    }
    ReadChartChildren(element, kind->order, group.carried, [&group, kind](pugi::xml_node child, std::string_view name) {
        if (name == "barDir") {
            group.barDirection = ValueText(child, "col");
        } else if (name == "grouping") {
            group.grouping = ValueText(child, kind->grouping);
        } else if (name == "scatterStyle") {
            group.scatterStyle = ValueText(child, "marker");
        } else if (name == "varyColors") {
            group.varyColors = BooleanValue(child);
        } else if (name == "ser") {
            group.series.push_back(ReadChartSeries(child, group.type));
        } else if (name == "gapWidth") {
            group.gapWidth = IntegerValue(child).value_or(ExcelGapWidth);
        } else if (name == "overlap") {
            group.overlap = IntegerValue(child).value_or(0);
        } else if (name == "marker" && group.type == "lineChart") {
            group.showMarkers = BooleanValue(child);
        } else if (name == "axId") {
            group.axisIds.push_back(UnsignedValue(child).value_or(0));
        } else {
            return false;
        }
        return true;
    });
    return group;
}

}  // namespace ooxml
