#include "ooxml/chart/chart_data_elements.hpp"

#include "ooxml/chart/chart_children.hpp"

namespace ooxml {

namespace {

void WriteTextElement(XmlWriter& xml, std::string_view element, std::string_view text) {
    xml.StartElement(element);
    xml.LiteralText(text);
    xml.EndElement();
}

// The points of a cache or literal, after its format code: how many there are, then each one set.
void WritePoints(XmlWriter& xml, const ChartData& data) {
    WriteNumberElement(xml, "c:ptCount", data.pointCount);
    for (const auto& [index, value] : data.points) {
        xml.StartElement("c:pt");
        xml.Attribute("idx", index);
        WriteTextElement(xml, "c:v", value);
        xml.EndElement();
    }
}

void WriteValues(XmlWriter& xml, std::string_view element, const ChartData& data, bool numbers) {
    xml.StartElement(element);
    if (numbers) {
        WriteTextElement(xml, "c:formatCode", data.formatCode.empty() ? std::string_view("General") : data.formatCode);
    }
    WritePoints(xml, data);
    xml.EndElement();
}

void WriteReference(XmlWriter& xml, std::string_view element, std::string_view cache, const ChartData& data,
                    bool numbers) {
    xml.StartElement(element);
    WriteTextElement(xml, "c:f", data.formula);
    WriteValues(xml, cache, data, numbers);
    xml.EndElement();
}

}  // namespace

void WriteChartData(XmlWriter& xml, std::string_view element, const ChartData& data) {
    if (data.kind == ChartData::Kind::None) {
        return;
    }
    xml.StartElement(element);
    switch (data.kind) {
        case ChartData::Kind::NumberReference:
            WriteReference(xml, "c:numRef", "c:numCache", data, true);
            break;
        case ChartData::Kind::StringReference:
            WriteReference(xml, "c:strRef", "c:strCache", data, false);
            break;
        case ChartData::Kind::NumberLiteral:
            WriteValues(xml, "c:numLit", data, true);
            break;
        case ChartData::Kind::StringLiteral:
            WriteValues(xml, "c:strLit", data, false);
            break;
        case ChartData::Kind::Other:
            xml.Raw(data.markup);
            break;
        case ChartData::Kind::None:
            break;
    }
    xml.EndElement();
}

}  // namespace ooxml
