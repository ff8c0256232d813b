#include "ooxml/chart/chart_text_elements.hpp"

#include "ooxml/chart/chart_children.hpp"
#include "ooxml/chart/chart_data_elements.hpp"
#include "ooxml/chart/chart_element_order.hpp"
#include "ooxml/chart/chart_shape_properties.hpp"
#include "ooxml/drawingml/drawing_color_element.hpp"

#include <algorithm>
#include <cmath>

namespace ooxml {

namespace {

constexpr double Hundredths = 100.0;
constexpr int64_t MinTextSize = 100;
constexpr int64_t MaxTextSize = 400000;

// <a:bodyPr> with the rotation and direction set, then the empty list style every chart text has.
void WriteBodyProperties(XmlWriter& xml, const std::optional<int32_t>& rotation, const std::string& vertical) {
    xml.StartElement("a:bodyPr");
    if (rotation) {
        xml.Attribute("rot", *rotation);
    }
    if (!vertical.empty()) {
        xml.Attribute("vert", vertical);
    }
    xml.EndElement();
    WriteEmptyElement(xml, "a:lstStyle");
}

void WriteParagraphProperties(XmlWriter& xml, const ChartFont& font) {
    xml.StartElement("a:pPr");
    WriteChartFont(xml, "a:defRPr", font);
    xml.EndElement();
}

void WriteRichText(XmlWriter& xml, const ChartTitle& title, std::string_view language) {
    xml.StartElement("c:tx");
    xml.StartElement("c:rich");
    if (!title.richMarkup.empty()) {
        xml.Raw(title.richMarkup);
    } else {
        WriteBodyProperties(xml, title.rotation, title.vertical);
        xml.StartElement("a:p");
        WriteParagraphProperties(xml, title.paragraphFont);
        for (const ChartTextRun& run : title.runs) {
            xml.StartElement("a:r");
            WriteChartFont(xml, "a:rPr", run.font, language);
            xml.StartElement("a:t");
            xml.LiteralText(run.text);
            xml.EndElement();
            xml.EndElement();
        }
        xml.EndElement();
    }
    xml.EndElement();
    xml.EndElement();
}

}  // namespace

void WriteChartFont(XmlWriter& xml, std::string_view element, const ChartFont& font, std::string_view language) {
    xml.StartElement(element);
    if (!language.empty()) {
        xml.Attribute("lang", language);
    }
    if (font.size) {
        xml.Attribute("sz", std::clamp<int64_t>(std::llround(*font.size * Hundredths), MinTextSize, MaxTextSize));
    }
    if (font.bold) {
        xml.Attribute("b", *font.bold ? "1" : "0");
    }
    if (font.italic) {
        xml.Attribute("i", *font.italic ? "1" : "0");
    }
    if (font.underline) {
        xml.Attribute("u", *font.underline);
    }
    if (font.strike) {
        xml.Attribute("strike", *font.strike ? "sngStrike" : "noStrike");
    }
    if (font.color) {
        WriteSolidFill(xml, *font.color);
    }
    if (font.name) {
        xml.StartElement("a:latin");
        xml.Attribute("typeface", *font.name);
        xml.EndElement();
    }
    xml.EndElement();
}

void WriteChartTextProperties(XmlWriter& xml, const ChartTextProperties& properties, std::string_view language) {
    if (properties.Empty()) {
        return;
    }
    xml.StartElement("c:txPr");
    if (!properties.markup.empty()) {
        xml.Raw(properties.markup);
    } else {
        WriteBodyProperties(xml, properties.rotation, properties.vertical);
        xml.StartElement("a:p");
        WriteParagraphProperties(xml, properties.font);
        WriteChartFont(xml, "a:endParaRPr", ChartFont{}, language);
        xml.EndElement();
    }
    xml.EndElement();
}

void WriteChartTitle(XmlWriter& xml, const ChartTitle& title, std::string_view language) {
    xml.StartElement("c:title");
    ChartChildren children(xml, TitleElementOrder, &title.carried);
    if (!title.richMarkup.empty() || !title.runs.empty()) {
        children.Next("c:tx");
        WriteRichText(xml, title, language);
    } else if (title.reference.kind != ChartData::Kind::None) {
        children.Next("c:tx");
        WriteChartData(xml, "c:tx", title.reference);
    }
    WriteChartLayout(xml, children, title.layout);
    children.Flag("c:overlay", title.overlay);
    children.Next("c:spPr");
    WriteChartShapeProperties(xml, title.shape);
    children.Next("c:txPr");
    WriteChartTextProperties(xml, title.textProperties, language);
    children.Rest();
    xml.EndElement();
}

}  // namespace ooxml
