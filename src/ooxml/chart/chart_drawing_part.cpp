#include "ooxml/chart/chart_drawing_part.hpp"

#include "ooxml/carried/carried_attributes.hpp"
#include "ooxml/carried/carried_element_writer.hpp"
#include "ooxml/drawingml/text_box_shape.hpp"

#include <algorithm>

namespace ooxml {

namespace {

void WriteFraction(XmlWriter& xml, std::string_view element, double fraction) {
    xml.StartElement(element);
    xml.Number(std::clamp(fraction, 0.0, 1.0));
    xml.EndElement();
}

void WriteCorner(XmlWriter& xml, std::string_view element, double x, double y) {
    xml.StartElement(element);
    WriteFraction(xml, "cdr:x", x);
    WriteFraction(xml, "cdr:y", y);
    xml.EndElement();
}

// A text box that moves and sizes with the chart.
void WriteAnchor(XmlWriter& xml, const ChartShape& shape) {
    xml.StartElement("cdr:relSizeAnchor");
    WriteCorner(xml, "cdr:from", shape.fromX, shape.fromY);
    WriteCorner(xml, "cdr:to", shape.toX, shape.toY);
    WriteTextBoxShape(xml, shape.shape, ChartTextBoxDrawing);
    xml.EndElement();
}

}  // namespace

bool HasChartDrawing(const ChartDocument& chart) {
    return !chart.shapes.empty() || !chart.drawingCarried.elements.empty();
}

void WriteChartDrawingPart(XmlWriter& xml, const ChartDocument& chart) {
    xml.Declaration();
    xml.StartElement("c:userShapes");
    xml.Attribute("xmlns:c", "http://schemas.openxmlformats.org/drawingml/2006/chart");
    xml.Attribute("xmlns:a", "http://schemas.openxmlformats.org/drawingml/2006/main");
    xml.Attribute("xmlns:cdr", "http://schemas.openxmlformats.org/drawingml/2006/chartDrawing");
    WriteCarriedAttributes(xml, chart.drawingCarried.rootAttributes);
    CarriedElementWriter anchors(xml, &chart.drawingCarried.elements);
    for (std::size_t i = 0; i < chart.shapes.size(); ++i) {
        anchors.Through(static_cast<uint16_t>(std::min<std::size_t>(i, UINT16_MAX)));
        WriteAnchor(xml, chart.shapes[i]);
    }
    anchors.Rest();
    xml.EndElement();
}

}  // namespace ooxml
