#include "ooxml/chart/chart_axis_elements.hpp"

#include "ooxml/chart/chart_children.hpp"
#include "ooxml/chart/chart_element_order.hpp"
#include "ooxml/chart/chart_shape_properties.hpp"
#include "ooxml/chart/chart_text_elements.hpp"

#include <algorithm>
#include <array>

namespace ooxml {

namespace {

struct AxisKind {
    std::string_view type;
    std::string_view element;
    ElementOrder order;
};

constexpr std::array<AxisKind, 4> AxisKinds{{
    {"catAx", "c:catAx", CategoryAxisElementOrder},
    {"valAx", "c:valAx", ValueAxisElementOrder},
    {"dateAx", "c:dateAx", DateAxisElementOrder},
    {"serAx", "c:serAx", SeriesAxisElementOrder},
}};

constexpr uint32_t MaxLabelOffset = 1000;

const AxisKind* KindOf(std::string_view type) {
    const auto kind =
        std::find_if(AxisKinds.begin(), AxisKinds.end(), [type](const AxisKind& known) { return known.type == type; });
    return kind != AxisKinds.end() ? &*kind : nullptr;
}

void WriteScaling(XmlWriter& xml, const ChartAxis& axis) {
    xml.StartElement("c:scaling");
    if (axis.logBase) {
        WriteNumberElement(xml, "c:logBase", *axis.logBase);
    }
    WriteValueElement(xml, "c:orientation", axis.orientation);
    if (axis.maximum) {
        WriteNumberElement(xml, "c:max", *axis.maximum);
    }
    if (axis.minimum) {
        WriteNumberElement(xml, "c:min", *axis.minimum);
    }
    xml.EndElement();
}

void WriteGridlines(ChartChildren& children, XmlWriter& xml, std::string_view element,
                    const std::optional<ChartShapeProperties>& gridlines) {
    if (gridlines && children.Next(element)) {
        xml.StartElement(element);
        WriteChartShapeProperties(xml, *gridlines);
        xml.EndElement();
    }
}

void WriteNumberFormat(XmlWriter& xml, const ChartNumberFormat& format) {
    xml.StartElement("c:numFmt");
    xml.Attribute("formatCode", format.code);
    xml.Attribute("sourceLinked", format.sourceLinked ? "1" : "0");
    xml.EndElement();
}

// Where this axis is crossed by the other: at a value, or where Excel puts it. An axis with
// neither (Excel's deleted secondary category axis) leaves it to Excel.
void WriteCrossing(ChartChildren& children, const ChartAxis& axis) {
    if (axis.crossesAt) {
        children.Number("c:crossesAt", *axis.crossesAt);
    } else if (!axis.crosses.empty()) {
        children.Value("c:crosses", axis.crosses);
    }
}

}  // namespace

bool WritableChartAxis(std::string_view type) {
    return KindOf(type) != nullptr;
}

void WriteChartAxis(XmlWriter& xml, const ChartAxis& axis, std::string_view language) {
    const AxisKind* kind = KindOf(axis.type);
    if (kind == nullptr) {
        return;
    }
    xml.StartElement(kind->element);
    ChartChildren children(xml, kind->order, &axis.carried);
    children.Number("c:axId", axis.id);
    children.Next("c:scaling");
    WriteScaling(xml, axis);
    children.Flag("c:delete", axis.deleted);
    children.Value("c:axPos", axis.position);
    WriteGridlines(children, xml, "c:majorGridlines", axis.majorGridlines);
    WriteGridlines(children, xml, "c:minorGridlines", axis.minorGridlines);
    if (axis.title) {
        children.Next("c:title");
        WriteChartTitle(xml, *axis.title, language);
    }
    if (axis.numberFormat) {
        children.Next("c:numFmt");
        WriteNumberFormat(xml, *axis.numberFormat);
    }
    children.Value("c:majorTickMark", axis.majorTickMark);
    children.Value("c:minorTickMark", axis.minorTickMark);
    children.Value("c:tickLblPos", axis.tickLabelPosition);
    children.Next("c:spPr");
    WriteChartShapeProperties(xml, axis.shape);
    children.Next("c:txPr");
    WriteChartTextProperties(xml, axis.textProperties, language);
    children.Number("c:crossAx", axis.crossAxisId);
    WriteCrossing(children, axis);
    children.Flag("c:auto", axis.automatic);
    children.Value("c:lblAlgn", axis.labelAlignment);
    children.Number("c:lblOffset", std::min(axis.labelOffset, MaxLabelOffset));
    children.Flag("c:noMultiLvlLbl", axis.noMultiLevelLabels);
    children.Value("c:crossBetween", axis.crossBetween);
    if (axis.majorUnit) {
        children.Number("c:majorUnit", *axis.majorUnit);
    }
    if (axis.minorUnit) {
        children.Number("c:minorUnit", *axis.minorUnit);
    }
    children.Rest();
    xml.EndElement();
}

}  // namespace ooxml
