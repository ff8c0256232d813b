#include "ooxml/styles/font_element.hpp"

#include "ooxml/styles/color_element.hpp"

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

void WriteUnderline(XmlWriter& xml, const Font& font) {
    if (font.underline == "single") {
        FlagElement(xml, "u", true);
    } else if (!font.underline.empty() && font.underline != "none") {
        ValueElement(xml, "u", font.underline);
    }
}

void WriteVerticalAlignment(XmlWriter& xml, const Font& font) {
    if (!font.vertAlign.empty() && font.vertAlign != "baseline") {
        ValueElement(xml, "vertAlign", font.vertAlign);
    }
}

void WriteSize(XmlWriter& xml, const Font& font) {
    xml.StartElement("sz");
    xml.Attribute("val", font.size);
    xml.EndElement();
}

void WriteFamily(XmlWriter& xml, const Font& font) {
    if (font.family != 0) {
        xml.StartElement("family");
        xml.Attribute("val", font.family);
        xml.EndElement();
    }
}

void WriteCharset(XmlWriter& xml, const Font& font) {
    if (font.charset) {
        xml.StartElement("charset");
        xml.Attribute("val", *font.charset);
        xml.EndElement();
    }
}

void WriteScheme(XmlWriter& xml, const Font& font) {
    if (!font.scheme.empty() && font.scheme != "none") {
        ValueElement(xml, "scheme", font.scheme);
    }
}

}  // namespace

void WriteFont(XmlWriter& xml, std::string_view element, std::string_view nameElement, const Font& font) {
    xml.StartElement(element);
    FlagElement(xml, "b", font.bold);
    FlagElement(xml, "i", font.italic);
    FlagElement(xml, "strike", font.strike);
    WriteUnderline(xml, font);
    WriteVerticalAlignment(xml, font);
    WriteSize(xml, font);
    WriteColor(xml, "color", font.color);
    ValueElement(xml, nameElement, font.name);
    WriteFamily(xml, font);
    WriteCharset(xml, font);
    WriteScheme(xml, font);
    xml.EndElement();
}

}  // namespace ooxml
