#include "ooxml/drawingml/drawing_color_element.hpp"

#include "ooxml/drawingml/theme_color_names.hpp"

#include <algorithm>
#include <cmath>
#include <fmt/format.h>

namespace ooxml {

namespace {

constexpr double Percent = 100000.0;  // DrawingML percentages are thousandths of a percent

void PercentElement(XmlWriter& xml, std::string_view element, double fraction) {
    xml.StartElement(element);
    xml.Attribute("val", static_cast<int64_t>(std::lround(fraction * Percent)));
    xml.EndElement();
}

}  // namespace

void WriteSolidFill(XmlWriter& xml, const Color& color, double transparency) {
    xml.StartElement("a:solidFill");
    WriteDrawingColor(xml, color, transparency);
    xml.EndElement();
}

void WriteDrawingColor(XmlWriter& xml, const Color& color, double transparency) {
    if (color.kind == Color::Kind::Theme) {
        xml.StartElement("a:schemeClr");
        xml.Attribute("val", ThemeColorName(color.index));
    } else {
        const uint32_t rgb = color.kind == Color::Kind::Rgb ? color.argb & 0xFFFFFFu : 0;
        xml.StartElement("a:srgbClr");
        xml.Attribute("val", fmt::format("{:06X}", rgb));
    }
    if (color.tint < 0.0) {
        PercentElement(xml, "a:lumMod", 1.0 + color.tint);
    } else if (color.tint > 0.0) {
        PercentElement(xml, "a:lumMod", 1.0 - color.tint);
        PercentElement(xml, "a:lumOff", color.tint);
    }
    if (transparency > 0.0) {
        PercentElement(xml, "a:alpha", 1.0 - std::min(transparency, 1.0));
    }
    xml.EndElement();
}

}  // namespace ooxml
