#include "ooxml/chart/chart_series_elements.hpp"

#include "ooxml/chart/chart_children.hpp"
#include "ooxml/chart/chart_data_elements.hpp"
#include "ooxml/chart/chart_shape_properties.hpp"

#include <algorithm>

namespace ooxml {

namespace {

constexpr uint32_t MinMarkerSize = 2;
constexpr uint32_t MaxMarkerSize = 72;

void WriteName(XmlWriter& xml, const ChartSeries& series) {
    if (series.nameText) {
        xml.StartElement("c:tx");
        xml.StartElement("c:v");
        xml.LiteralText(*series.nameText);
        xml.EndElement();
        xml.EndElement();
    } else {
        WriteChartData(xml, "c:tx", series.nameReference);
    }
}

void WriteMarker(XmlWriter& xml, const ChartMarker& marker) {
    xml.StartElement("c:marker");
    if (!marker.symbol.empty()) {
        WriteValueElement(xml, "c:symbol", marker.symbol);
    }
    if (marker.size) {
        WriteNumberElement(xml, "c:size", std::clamp(*marker.size, MinMarkerSize, MaxMarkerSize));
    }
    WriteChartShapeProperties(xml, marker.shape);
    xml.EndElement();
}

// Categories and values are c:cat and c:val, or c:xVal and c:yVal where the series has those.
void WriteData(ChartChildren& children, XmlWriter& xml, const ChartData& data, std::string_view element,
               std::string_view xyElement) {
    if (data.kind == ChartData::Kind::None) {
        return;
    }
    if (children.Next(element)) {
        WriteChartData(xml, element, data);
    } else if (children.Next(xyElement)) {
        WriteChartData(xml, xyElement, data);
    }
}

}  // namespace

void WriteChartSeries(XmlWriter& xml, const ChartSeries& series, ElementOrder order) {
    xml.StartElement("c:ser");
    ChartChildren children(xml, order, &series.carried);
    children.Number("c:idx", series.index);
    children.Number("c:order", series.order);
    children.Next("c:tx");
    WriteName(xml, series);
    children.Next("c:spPr");
    WriteChartShapeProperties(xml, series.shape);
    if (series.marker && children.Next("c:marker")) {
        WriteMarker(xml, *series.marker);
    }
    children.Flag("c:invertIfNegative", series.invertIfNegative);
    WriteData(children, xml, series.categories, "c:cat", "c:xVal");
    WriteData(children, xml, series.values, "c:val", "c:yVal");
    children.Flag("c:smooth", series.smooth);
    children.Rest();
    xml.EndElement();
}

}  // namespace ooxml
