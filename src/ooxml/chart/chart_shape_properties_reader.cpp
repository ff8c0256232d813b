#include "ooxml/chart/chart_shape_properties_reader.hpp"

#include "ooxml/chart/chart_values.hpp"
#include "ooxml/drawingml/drawing_color_reader.hpp"
#include "ooxml/xml/xml_node_access.hpp"

#include <algorithm>

namespace ooxml {

namespace {

Color ColorOf(pugi::xml_node holder) {
    return ReadDrawingFillColor(holder).value_or(Color{});
}

void ReadGradient(pugi::xml_node gradient, ChartFill& fill) {
    fill.kind = ChartFill::Kind::Gradient;
    fill.rotateWithShape = AttributeBool(gradient, "rotWithShape", fill.rotateWithShape);
    ForEachChild(FirstChild(gradient, "gsLst"), "gs", [&fill](pugi::xml_node stop) {
        fill.stops.push_back({IntegerAttribute(stop, "pos").value_or(0), ColorOf(stop)});
    });
    std::stable_sort(fill.stops.begin(), fill.stops.end(),
                     [](const GradientStop& a, const GradientStop& b) { return a.position < b.position; });
    const pugi::xml_node linear = FirstChild(gradient, "lin");
    fill.angle = IntegerAttribute(linear, "ang").value_or(fill.angle);
    fill.scaled = AttributeBool(linear, "scaled", fill.scaled);
}

// The fill among the children of spPr; a pattern or picture fill stays automatic here and is kept
// in the markup.
ChartFill ReadFill(pugi::xml_node properties) {
    ChartFill fill;
    for (pugi::xml_node child = properties.first_child(); child; child = child.next_sibling()) {
        const std::string_view name = LocalName(child);
        if (name == "noFill") {
            fill.kind = ChartFill::Kind::None;
        } else if (name == "solidFill") {
            fill.kind = ChartFill::Kind::Solid;
            fill.color = ColorOf(child);
        } else if (name == "gradFill") {
            ReadGradient(child, fill);
        }
    }
    return fill;
}

ChartLine ReadLine(pugi::xml_node outline) {
    ChartLine line;
    if (const std::optional<double> width = AttributeDouble(outline, "w")) {
        line.width = static_cast<int64_t>(*width);
    }
    for (pugi::xml_node child = outline.first_child(); child; child = child.next_sibling()) {
        const std::string_view name = LocalName(child);
        if (name == "noFill") {
            line.kind = ChartLine::Kind::None;
        } else if (name == "solidFill") {
            line.kind = ChartLine::Kind::Solid;
            line.color = ColorOf(child);
        } else if (name == "prstDash") {
            line.dash = AttributeText(child, "val");
        }
    }
    return line;
}

}  // namespace

ChartShapeProperties ReadChartShapeProperties(pugi::xml_node properties) {
    ChartShapeProperties shape;
    if (!properties) {
        return shape;
    }
    shape.fill = ReadFill(properties);
    shape.line = ReadLine(FirstChild(properties, "ln"));
    shape.markup = ChildrenMarkup(properties);
    return shape;
}

}  // namespace ooxml
