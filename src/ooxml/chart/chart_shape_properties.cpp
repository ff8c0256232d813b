#include "ooxml/chart/chart_shape_properties.hpp"

#include "ooxml/chart/chart_children.hpp"
#include "ooxml/drawingml/drawing_color_element.hpp"

#include <algorithm>

namespace ooxml {

namespace {

constexpr int32_t MaxStopPosition = 100000;
constexpr int32_t FullTurn = 21600000;  // 60,000ths of a degree
constexpr int64_t MaxLineWidth = 20116800;

void WriteGradient(XmlWriter& xml, const ChartFill& fill) {
    xml.StartElement("a:gradFill");
    xml.Attribute("rotWithShape", fill.rotateWithShape ? "1" : "0");
    xml.StartElement("a:gsLst");
    for (const GradientStop& stop : fill.stops) {
        xml.StartElement("a:gs");
        xml.Attribute("pos", std::clamp(stop.position, 0, MaxStopPosition));
        WriteDrawingColor(xml, stop.color);
        xml.EndElement();
    }
    xml.EndElement();
    xml.StartElement("a:lin");
    xml.Attribute("ang", ((fill.angle % FullTurn) + FullTurn) % FullTurn);
    xml.Attribute("scaled", fill.scaled ? "1" : "0");
    xml.EndElement();
    xml.EndElement();
}

void WriteFill(XmlWriter& xml, const ChartFill& fill) {
    switch (fill.kind) {
        case ChartFill::Kind::Automatic:
            break;
        case ChartFill::Kind::None:
            WriteEmptyElement(xml, "a:noFill");
            break;
        case ChartFill::Kind::Solid:
            WriteSolidFill(xml, fill.color);
            break;
        case ChartFill::Kind::Gradient:
            WriteGradient(xml, fill);
            break;
    }
}

// An automatic line with only a width set keeps its automatic colour: Excel writes <a:ln w="..."/>.
void WriteLine(XmlWriter& xml, const ChartLine& line) {
    if (line.kind == ChartLine::Kind::Automatic && !line.width && line.dash.empty()) {
        return;
    }
    xml.StartElement("a:ln");
    if (line.width) {
        xml.Attribute("w", std::clamp<int64_t>(*line.width, 0, MaxLineWidth));
    }
    if (line.kind == ChartLine::Kind::None) {
        WriteEmptyElement(xml, "a:noFill");
    } else if (line.kind == ChartLine::Kind::Solid) {
        WriteSolidFill(xml, line.color);
    }
    if (!line.dash.empty()) {
        xml.StartElement("a:prstDash");
        xml.Attribute("val", line.dash);
        xml.EndElement();
    }
    xml.EndElement();
}

}  // namespace

void WriteChartShapeProperties(XmlWriter& xml, const ChartShapeProperties& properties) {
    if (properties.Automatic()) {
        return;
    }
    xml.StartElement("c:spPr");
    if (!properties.markup.empty()) {
        xml.Raw(properties.markup);
    } else {
        WriteFill(xml, properties.fill);
        WriteLine(xml, properties.line);
    }
    xml.EndElement();
}

}  // namespace ooxml
