#include "ooxml/chart/chart_reader.hpp"

#include "ooxml/chart/chart_axis_reader.hpp"
#include "ooxml/chart/chart_child_reader.hpp"
#include "ooxml/chart/chart_element_order.hpp"
#include "ooxml/chart/chart_group_reader.hpp"
#include "ooxml/chart/chart_part_root.hpp"
#include "ooxml/chart/chart_shape_properties_reader.hpp"
#include "ooxml/chart/chart_text_reader.hpp"
#include "ooxml/chart/chart_title_reader.hpp"
#include "ooxml/chart/chart_values.hpp"

#include <string>

namespace ooxml {

namespace {

constexpr int32_t ExcelStyle = 2;

// The prefixes the chart writer writes, bound as Excel binds them.
constexpr NamespaceBinding WrittenNamespaces[] = {
    {"xmlns:c", "http://schemas.openxmlformats.org/drawingml/2006/chart"},
    {"xmlns:a", "http://schemas.openxmlformats.org/drawingml/2006/main"},
    {"xmlns:r", "http://schemas.openxmlformats.org/officeDocument/2006/relationships"},
};

bool IsAxis(std::string_view name) {
    return name == "catAx" || name == "valAx" || name == "dateAx" || name == "serAx";
}

ChartPlotArea ReadPlotArea(pugi::xml_node element) {
    ChartPlotArea plotArea;
    ReadChartChildren(element, PlotAreaElementOrder, plotArea.carried,
                      [&plotArea](pugi::xml_node child, std::string_view name) {
                          if (ModelledChartGroup(name)) {
                              plotArea.groups.push_back(ReadChartGroup(child));
                          } else if (IsAxis(name)) {
                              plotArea.axes.push_back(ReadChartAxis(child));
                          } else if (name == "spPr") {
                              plotArea.shape = ReadChartShapeProperties(child);
                          } else {
                              return false;
                          }
                          return true;
                      });
    return plotArea;
}

ChartLegend ReadLegend(pugi::xml_node element) {
    ChartLegend legend;
    ReadChartChildren(element, LegendElementOrder, legend.carried, [&legend](pugi::xml_node child, std::string_view name) {
        if (name == "legendPos") {
            legend.position = ValueText(child, "r");
        } else if (name == "overlay") {
            legend.overlay = BooleanValue(child);
        } else if (name == "spPr") {
            legend.shape = ReadChartShapeProperties(child);
        } else if (name == "txPr") {
            legend.textProperties = ReadChartTextProperties(child);
        } else {
            return false;
        }
        return true;
    });
    return legend;
}

void ReadChartElement(pugi::xml_node element, ChartDocument& chart) {
    ReadChartChildren(element, ChartElementOrder, chart.chartCarried, [&chart](pugi::xml_node child, std::string_view name) {
        if (name == "title") {
            chart.title = ReadChartTitle(child);
        } else if (name == "autoTitleDeleted") {
            chart.autoTitleDeleted = BooleanValue(child);
        } else if (name == "plotArea") {
            chart.plotArea = ReadPlotArea(child);
        } else if (name == "legend") {
            chart.legend = ReadLegend(child);
        } else if (name == "plotVisOnly") {
            chart.plotVisibleOnly = BooleanValue(child);
        } else if (name == "dispBlanksAs") {
            chart.displayBlanksAs = ValueText(child, "zero");
        } else {
            return false;
        }
        return true;
    });
}

// Excel 2010 and later write the style as a choice of the 2010 style and its fallback: the
// fallback is the style, and the choice is carried.
void ReadAlternateStyle(pugi::xml_node alternate, ChartDocument& chart) {
    if (const pugi::xml_node style = FirstChild(FirstChild(alternate, "Fallback"), "style")) {
        chart.style = IntegerValue(style).value_or(ExcelStyle);
    }
}

void ReadChartSpace(pugi::xml_node root, const ChartDrawingLoader& loadDrawing, ChartDocument& chart) {
    chart.carried.rootAttributes = AttributesExcept(root, {"xmlns:c", "xmlns:a", "xmlns:r"});
    ReadChartChildren(root, ChartSpaceElementOrder, chart.carried.elements,
                      [&](pugi::xml_node child, std::string_view name) {
                          if (name == "date1904") {
                              chart.date1904 = BooleanValue(child);
                          } else if (name == "lang") {
                              chart.language = ValueText(child, chart.language);
                          } else if (name == "roundedCorners") {
                              chart.roundedCorners = BooleanValue(child);
                          } else if (name == "style") {
                              chart.style = IntegerValue(child).value_or(ExcelStyle);
                          } else if (name == "AlternateContent") {
                              ReadAlternateStyle(child, chart);
                              return false;
                          } else if (name == "chart") {
                              ReadChartElement(child, chart);
                          } else if (name == "spPr") {
                              chart.chartArea = ReadChartShapeProperties(child);
                          } else if (name == "txPr") {
                              chart.textProperties = ReadChartTextProperties(child);
                          } else if (name == "userShapes") {
                              return loadDrawing && loadDrawing(AttributeText(child, "id"), chart);
                          } else {
                              return false;
                          }
                          return true;
                      });
}

}  // namespace

std::optional<ChartDocument> ReadChart(std::string_view xml, const ChartDrawingLoader& loadDrawing) {
    std::string text(xml);
    pugi::xml_document document;
    const pugi::xml_node root = ReadChartPartRoot(document, text, "c:chartSpace", WrittenNamespaces);
    if (!root) {
        return std::nullopt;
    }
    ChartDocument chart;
    try {
        ReadChartSpace(root, loadDrawing, chart);
    } catch (const UnreadableChart&) {
        return std::nullopt;
    }
    return chart;
}

}  // namespace ooxml
