#include "ooxml/font_element.hpp"

#include "ooxml/color_element.hpp"

namespace ooxml {

namespace {

void FlagElement(XmlWriter& xml, std::string_view element, bool set) {
    if (set) {
        xml.StartElement(element);
        xml.EndElement();
    }
}

void ValueElement(XmlWriter& xml, std::string_view element, std::string_view value) {
    xml.StartElement(element);
    xml.Attribute("val", value);
    xml.EndElement();
}

}  // namespace

void WriteFont(XmlWriter& xml, std::string_view element, std::string_view nameElement, const Font& font) {
    xml.StartElement(element);
    FlagElement(xml, "b", font.bold);
    FlagElement(xml, "i", font.italic);
    FlagElement(xml, "strike", font.strike);
    if (font.underline == "single") {
        FlagElement(xml, "u", true);
    } else if (!font.underline.empty() && font.underline != "none") {
        ValueElement(xml, "u", font.underline);
    }
    if (!font.vertAlign.empty() && font.vertAlign != "baseline") {
        ValueElement(xml, "vertAlign", font.vertAlign);
    }
    xml.StartElement("sz");
    xml.Attribute("val", font.size);
    xml.EndElement();
    WriteColor(xml, "color", font.color);
    ValueElement(xml, nameElement, font.name);
    if (font.family != 0) {
        xml.StartElement("family");
        xml.Attribute("val", font.family);
        xml.EndElement();
    }
    if (!font.scheme.empty() && font.scheme != "none") {
        ValueElement(xml, "scheme", font.scheme);
    }
    xml.EndElement();
}

}  // namespace ooxml
