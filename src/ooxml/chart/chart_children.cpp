#include "ooxml/chart/chart_children.hpp"

#include "ooxml/document/chart_document.hpp"

namespace ooxml {

void WriteEmptyElement(XmlWriter& xml, std::string_view element) {
    xml.StartElement(element);
    xml.EndElement();
}

void WriteValueElement(XmlWriter& xml, std::string_view element, std::string_view value) {
    xml.StartElement(element);
    xml.Attribute("val", value);
    xml.EndElement();
}

void WriteFlagElement(XmlWriter& xml, std::string_view element, bool value) {
    WriteValueElement(xml, element, value ? "1" : "0");
}

void WriteNumberElement(XmlWriter& xml, std::string_view element, double value) {
    xml.StartElement(element);
    xml.Attribute("val", value);
    xml.EndElement();
}

bool ChartChildren::Next(std::string_view element) {
    const std::size_t colon = element.find(':');
    const std::optional<uint16_t> slot =
        order_.SlotOf(colon == std::string_view::npos ? element : element.substr(colon + 1));
    if (!slot) {
        return false;
    }
    carried_.Before(*slot);
    return true;
}

void ChartChildren::Value(std::string_view element, std::string_view value) {
    if (Next(element)) {
        WriteValueElement(xml_, element, value);
    }
}

void ChartChildren::Flag(std::string_view element, bool value) {
    if (Next(element)) {
        WriteFlagElement(xml_, element, value);
    }
}

void ChartChildren::Number(std::string_view element, double value) {
    if (Next(element)) {
        WriteNumberElement(xml_, element, value);
    }
}

void WriteChartLayout(XmlWriter& xml, ChartChildren& children, const std::optional<ChartManualLayout>& layout) {
    if (!layout) {
        if (!children.Carries("layout")) {
            children.Next("c:layout");
            WriteEmptyElement(xml, "c:layout");
        }
        return;
    }
    children.Drop("layout");
    children.Next("c:layout");
    xml.StartElement("c:layout");
    xml.StartElement("c:manualLayout");
    if (!layout->target.empty()) {
        WriteValueElement(xml, "c:layoutTarget", layout->target);
    }
    WriteValueElement(xml, "c:xMode", "edge");
    WriteValueElement(xml, "c:yMode", "edge");
    WriteNumberElement(xml, "c:x", layout->x);
    WriteNumberElement(xml, "c:y", layout->y);
    if (layout->width) {
        WriteNumberElement(xml, "c:w", *layout->width);
    }
    if (layout->height) {
        WriteNumberElement(xml, "c:h", *layout->height);
    }
    xml.EndElement();
    xml.EndElement();
}

}  // namespace ooxml
