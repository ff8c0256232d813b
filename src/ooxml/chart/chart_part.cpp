#include "ooxml/chart/chart_part.hpp"

#include "ooxml/carried/carried_attributes.hpp"
#include "ooxml/chart/chart_axis_elements.hpp"
#include "ooxml/chart/chart_children.hpp"
#include "ooxml/chart/chart_element_order.hpp"
#include "ooxml/chart/chart_group_elements.hpp"
#include "ooxml/chart/chart_shape_properties.hpp"
#include "ooxml/chart/chart_text_elements.hpp"

#include <algorithm>

namespace ooxml {

namespace {

constexpr int32_t MinStyle = 1;
constexpr int32_t MaxStyle = 48;
// Excel 2010 and later name the style again, 100 higher, for themselves.
constexpr int32_t ExtendedStyleOffset = 100;

class ChartWriter {
public:
    ChartWriter(XmlWriter& xml, const ChartDocument& chart) : xml_(xml), chart_(chart) {}

    void Write(std::string_view userShapesId) {
        xml_.Declaration();
        xml_.StartElement("c:chartSpace");
        xml_.Attribute("xmlns:c", "http://schemas.openxmlformats.org/drawingml/2006/chart");
        xml_.Attribute("xmlns:a", "http://schemas.openxmlformats.org/drawingml/2006/main");
        xml_.Attribute("xmlns:r", "http://schemas.openxmlformats.org/officeDocument/2006/relationships");
        WriteCarriedAttributes(xml_, chart_.carried.rootAttributes);
        ChartChildren children(xml_, ChartSpaceElementOrder, &chart_.carried.elements);
        children.Flag("c:date1904", chart_.date1904);
        if (!chart_.language.empty()) {
            children.Value("c:lang", chart_.language);
        }
        children.Flag("c:roundedCorners", chart_.roundedCorners);
        // The opened file's style choice is written anew from the style.
        children.Drop("AlternateContent");
        children.Next("c:style");
        WriteStyle();
        children.Next("c:chart");
        WriteChart();
        children.Next("c:spPr");
        WriteChartShapeProperties(xml_, chart_.chartArea);
        children.Next("c:txPr");
        WriteChartTextProperties(xml_, chart_.textProperties, chart_.language);
        if (!children.Carries("printSettings")) {
            children.Next("c:printSettings");
            WritePrintSettings();
        }
        if (!userShapesId.empty()) {
            children.Drop("userShapes");
            children.Next("c:userShapes");
            xml_.StartElement("c:userShapes");
            xml_.Attribute("r:id", userShapesId);
            xml_.EndElement();
        }
        children.Rest();
        xml_.EndElement();
    }

private:
    // The style as Excel 2010 and later write it: their own numbering for themselves, the
    // original one for the versions before.
    void WriteStyle() {
        const int32_t style = std::clamp(chart_.style, MinStyle, MaxStyle);
        xml_.StartElement("mc:AlternateContent");
        xml_.Attribute("xmlns:mc", "http://schemas.openxmlformats.org/markup-compatibility/2006");
        xml_.StartElement("mc:Choice");
        xml_.Attribute("Requires", "c14");
        xml_.Attribute("xmlns:c14", "http://schemas.microsoft.com/office/drawing/2007/8/2/chart");
        WriteNumberElement(xml_, "c14:style", style + ExtendedStyleOffset);
        xml_.EndElement();
        xml_.StartElement("mc:Fallback");
        WriteNumberElement(xml_, "c:style", style);
        xml_.EndElement();
        xml_.EndElement();
    }

    void WriteChart() {
        xml_.StartElement("c:chart");
        ChartChildren children(xml_, ChartElementOrder, &chart_.chartCarried);
        if (chart_.title) {
            children.Next("c:title");
            WriteChartTitle(xml_, *chart_.title, chart_.language);
        }
        children.Flag("c:autoTitleDeleted", chart_.autoTitleDeleted);
        children.Next("c:plotArea");
        WritePlotArea(chart_.plotArea);
        if (chart_.legend) {
            children.Next("c:legend");
            WriteLegend(*chart_.legend);
        }
        children.Flag("c:plotVisOnly", chart_.plotVisibleOnly);
        children.Value("c:dispBlanksAs", chart_.displayBlanksAs);
        // Data labels over the axis maximum, which the document does not model: Excel writes them hidden.
        if (!children.Carries("showDLblsOverMax")) {
            children.Flag("c:showDLblsOverMax", false);
        }
        children.Rest();
        xml_.EndElement();
    }

    void WritePlotArea(const ChartPlotArea& plotArea) {
        xml_.StartElement("c:plotArea");
        ChartChildren children(xml_, PlotAreaElementOrder, &plotArea.carried);
        WriteChartLayout(xml_, children, plotArea.layout);
        for (const ChartGroup& group : plotArea.groups) {
            children.Next(group.type);
            WriteChartGroup(xml_, group);
        }
        for (const ChartAxis& axis : plotArea.axes) {
            children.Next(axis.type);
            WriteChartAxis(xml_, axis, chart_.language);
        }
        children.Next("c:spPr");
        WriteChartShapeProperties(xml_, plotArea.shape);
        children.Rest();
        xml_.EndElement();
    }

    void WriteLegend(const ChartLegend& legend) {
        xml_.StartElement("c:legend");
        ChartChildren children(xml_, LegendElementOrder, &legend.carried);
        children.Value("c:legendPos", legend.position);
        WriteChartLayout(xml_, children, std::nullopt);
        children.Flag("c:overlay", legend.overlay);
        children.Next("c:spPr");
        WriteChartShapeProperties(xml_, legend.shape);
        children.Next("c:txPr");
        WriteChartTextProperties(xml_, legend.textProperties, chart_.language);
        children.Rest();
        xml_.EndElement();
    }

    // The print settings Excel writes for a chart on a sheet.
    void WritePrintSettings() {
        xml_.StartElement("c:printSettings");
        WriteEmptyElement(xml_, "c:headerFooter");
        xml_.StartElement("c:pageMargins");
        xml_.Attribute("b", "0.75");
        xml_.Attribute("l", "0.7");
        xml_.Attribute("r", "0.7");
        xml_.Attribute("t", "0.75");
        xml_.Attribute("header", "0.3");
        xml_.Attribute("footer", "0.3");
        xml_.EndElement();
        WriteEmptyElement(xml_, "c:pageSetup");
        xml_.EndElement();
    }

    XmlWriter& xml_;
    const ChartDocument& chart_;
};

}  // namespace

bool WritableChart(const ChartDocument& chart) {
    const ChartPlotArea& plotArea = chart.plotArea;
    return std::all_of(plotArea.groups.begin(), plotArea.groups.end(),
                       [](const ChartGroup& group) { return WritableChartGroup(group.type); }) &&
           std::all_of(plotArea.axes.begin(), plotArea.axes.end(),
                       [](const ChartAxis& axis) { return WritableChartAxis(axis.type); });
}

void WriteChartPart(XmlWriter& xml, const ChartDocument& chart, std::string_view userShapesId) {
    ChartWriter(xml, chart).Write(userShapesId);
}

}  // namespace ooxml
