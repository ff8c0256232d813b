#include "ooxml/chart/chart_drawing_reader.hpp"

#include "ooxml/carried/carried_attributes.hpp"
#include "ooxml/chart/chart_part_root.hpp"
#include "ooxml/drawing/text_box_reader.hpp"
#include "ooxml/xml/xml_node_access.hpp"

#include <algorithm>
#include <string>

namespace ooxml {

namespace {

// The prefixes a chart drawing's writer declares on its root; the file may declare cdr and a there
// too, or on the elements that use them.
constexpr NamespaceBinding RootNamespaces[] = {
    {"xmlns:c", "http://schemas.openxmlformats.org/drawingml/2006/chart"},
    {"xmlns:cdr", "http://schemas.openxmlformats.org/drawingml/2006/chartDrawing", false},
    {"xmlns:a", "http://schemas.openxmlformats.org/drawingml/2006/main", false},
};

// A fraction of the chart's width or height.
double Fraction(pugi::xml_node corner, std::string_view axis) {
    return std::clamp(ParseDouble(FirstChild(corner, axis).child_value()).value_or(0.0), 0.0, 1.0);
}

ChartShape ReadRelativeTextBox(pugi::xml_node anchor, pugi::xml_node textBox) {
    ChartShape shape;
    const pugi::xml_node from = FirstChild(anchor, "from");
    const pugi::xml_node to = FirstChild(anchor, "to");
    shape.fromX = Fraction(from, "x");
    shape.fromY = Fraction(from, "y");
    shape.toX = Fraction(to, "x");
    shape.toY = Fraction(to, "y");
    shape.shape = ReadTextBoxShape(textBox);
    return shape;
}

}  // namespace

bool ReadChartDrawing(std::string_view xml, ChartDocument& chart) {
    std::string text(xml);
    pugi::xml_document document;
    const pugi::xml_node root = ReadChartPartRoot(document, text, "c:userShapes", RootNamespaces);
    if (!root) {
        return false;
    }
    chart.drawingCarried.rootAttributes = AttributesExcept(root, {"xmlns:c", "xmlns:cdr", "xmlns:a"});
    for (pugi::xml_node anchor = root.first_child(); anchor; anchor = anchor.next_sibling()) {
        if (anchor.type() != pugi::node_element) {
            continue;
        }
        const pugi::xml_node textBox = LocalName(anchor) == "relSizeAnchor" ? TextBoxOf(anchor) : pugi::xml_node();
        if (textBox) {
            chart.shapes.push_back(ReadRelativeTextBox(anchor, textBox));
        } else {
            chart.drawingCarried.elements.push_back(
                {static_cast<uint16_t>(std::min<std::size_t>(chart.shapes.size(), UINT16_MAX)),
                 std::string(LocalName(anchor)), ElementMarkup(anchor)});
        }
    }
    return true;
}

}  // namespace ooxml
