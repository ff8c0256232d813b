#include "ooxml/chart/chart_series_reader.hpp"

#include "ooxml/chart/chart_child_reader.hpp"
#include "ooxml/chart/chart_data_reader.hpp"
#include "ooxml/chart/chart_element_order.hpp"
#include "ooxml/chart/chart_shape_properties_reader.hpp"
#include "ooxml/chart/chart_values.hpp"

namespace ooxml {

namespace {

ElementOrder SeriesOrder(std::string_view groupType) {
    if (groupType == "lineChart") {
        return LineSeriesElementOrder;
    }
    if (groupType == "scatterChart") {
        return ScatterSeriesElementOrder;
    }
    if (groupType == "areaChart") {
        return AreaSeriesElementOrder;
    }
    return BarSeriesElementOrder;
}

// A marker holding more than its symbol, size and shape properties is carried whole.
std::optional<ChartMarker> ReadMarker(pugi::xml_node element) {
    ChartMarker marker;
    bool modelled = true;
    for (pugi::xml_node child = element.first_child(); child; child = child.next_sibling()) {
        const std::string_view name = LocalName(child);
        if (name == "symbol") {
            marker.symbol = ValueText(child, "none");
        } else if (name == "size") {
            marker.size = UnsignedValue(child);
        } else if (name == "spPr") {
            marker.shape = ReadChartShapeProperties(child);
        } else if (child.type() == pugi::node_element) {
            modelled = false;
        }
    }
    return modelled ? std::optional<ChartMarker>(std::move(marker)) : std::nullopt;
}

// The series name: a text, or a reference to a cell.
void ReadName(pugi::xml_node text, ChartSeries& series) {
    if (const pugi::xml_node value = FirstChild(text, "v")) {
        series.nameText = value.child_value();
    } else {
        series.nameReference = ReadChartData(text);
    }
}

}  // namespace

ChartSeries ReadChartSeries(pugi::xml_node element, std::string_view groupType) {
    ChartSeries series;
    const bool marked = groupType == "lineChart" || groupType == "scatterChart";
    ReadChartChildren(element, SeriesOrder(groupType), series.carried, [&](pugi::xml_node child, std::string_view name) {
        if (name == "idx") {
            series.index = UnsignedValue(child).value_or(0);
        } else if (name == "order") {
            series.order = UnsignedValue(child).value_or(0);
        } else if (name == "tx") {
            ReadName(child, series);
        } else if (name == "spPr") {
            series.shape = ReadChartShapeProperties(child);
        } else if (name == "marker" && marked) {
            series.marker = ReadMarker(child);
            return series.marker.has_value();
        } else if (name == "invertIfNegative" && groupType == "barChart") {
            series.invertIfNegative = BooleanValue(child);
        } else if (name == "cat" || name == "xVal") {
            series.categories = ReadChartData(child);
        } else if (name == "val" || name == "yVal") {
            series.values = ReadChartData(child);
        } else if (name == "smooth" && marked) {
            series.smooth = BooleanValue(child);
        } else {
            return false;
        }
        return true;
    });
    return series;
}

}  // namespace ooxml
