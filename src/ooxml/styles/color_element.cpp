#include "ooxml/styles/color_element.hpp"

#include <fmt/format.h>

namespace ooxml {

void WriteColor(XmlWriter& xml, std::string_view element, const Color& color) {
    switch (color.kind) {
    case Color::Kind::None:
        return;
    case Color::Kind::Auto:
        xml.StartElement(element);
        xml.Attribute("auto", "1");
        break;
    case Color::Kind::Rgb:
        xml.StartElement(element);
        xml.Attribute("rgb", fmt::format("{:08X}", color.argb));
        break;
    case Color::Kind::Indexed:
        xml.StartElement(element);
        xml.Attribute("indexed", color.index);
        break;
    case Color::Kind::Theme:
        xml.StartElement(element);
        xml.Attribute("theme", color.index);
        break;
    }
    if (color.tint != 0.0) {
        xml.Attribute("tint", color.tint);
    }
    xml.EndElement();
}

}  // namespace ooxml
