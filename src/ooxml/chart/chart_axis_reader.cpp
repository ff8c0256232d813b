#include "ooxml/chart/chart_axis_reader.hpp"

#include "ooxml/chart/chart_child_reader.hpp"
#include "ooxml/chart/chart_element_order.hpp"
#include "ooxml/chart/chart_shape_properties_reader.hpp"
#include "ooxml/chart/chart_text_reader.hpp"
#include "ooxml/chart/chart_title_reader.hpp"
#include "ooxml/chart/chart_values.hpp"

namespace ooxml {

namespace {

ElementOrder AxisOrder(std::string_view type) {
    if (type == "valAx") {
        return ValueAxisElementOrder;
    }
    if (type == "dateAx") {
        return DateAxisElementOrder;
    }
    if (type == "serAx") {
        return SeriesAxisElementOrder;
    }
    return CategoryAxisElementOrder;
}

// Every axis has a scaling, written from the axis: one holding more than its base, orientation and
// bounds leaves the chart carried.
void ReadScaling(pugi::xml_node scaling, ChartAxis& axis) {
    for (pugi::xml_node child = scaling.first_child(); child; child = child.next_sibling()) {
        const std::string_view name = LocalName(child);
        if (name == "logBase") {
            axis.logBase = DoubleValue(child);
        } else if (name == "orientation") {
            axis.orientation = ValueText(child, "minMax");
        } else if (name == "max") {
            axis.maximum = DoubleValue(child);
        } else if (name == "min") {
            axis.minimum = DoubleValue(child);
        } else if (child.type() == pugi::node_element) {
            throw UnreadableChart("an axis scaling with " + std::string(name));
        }
    }
}

// Gridlines are their shape properties; with more they are carried.
bool ReadGridlines(pugi::xml_node gridlines, std::optional<ChartShapeProperties>& shape) {
    for (pugi::xml_node child = gridlines.first_child(); child; child = child.next_sibling()) {
        if (child.type() == pugi::node_element && LocalName(child) != "spPr") {
            return false;
        }
    }
    shape = ReadChartShapeProperties(FirstChild(gridlines, "spPr"));
    return true;
}

// What every kind of axis has.
bool ReadSharedElement(pugi::xml_node child, std::string_view name, ChartAxis& axis) {
    if (name == "axId") {
        axis.id = UnsignedValue(child).value_or(0);
    } else if (name == "scaling") {
        ReadScaling(child, axis);
    } else if (name == "delete") {
        axis.deleted = BooleanValue(child);
    } else if (name == "axPos") {
        axis.position = ValueText(child, axis.position);
    } else if (name == "majorGridlines") {
        return ReadGridlines(child, axis.majorGridlines);
    } else if (name == "minorGridlines") {
        return ReadGridlines(child, axis.minorGridlines);
    } else if (name == "title") {
        axis.title = ReadChartTitle(child);
    } else if (name == "numFmt") {
        axis.numberFormat = ChartNumberFormat{std::string(AttributeText(child, "formatCode")),
                                              AttributeBool(child, "sourceLinked", false)};
    } else if (name == "majorTickMark") {
        axis.majorTickMark = ValueText(child, "cross");
    } else if (name == "minorTickMark") {
        axis.minorTickMark = ValueText(child, "cross");
    } else if (name == "tickLblPos") {
        axis.tickLabelPosition = ValueText(child, "nextTo");
    } else if (name == "spPr") {
        axis.shape = ReadChartShapeProperties(child);
    } else if (name == "txPr") {
        axis.textProperties = ReadChartTextProperties(child);
    } else if (name == "crossAx") {
        axis.crossAxisId = UnsignedValue(child).value_or(0);
    } else if (name == "crosses") {
        axis.crosses = ValueText(child, axis.crosses);
    } else if (name == "crossesAt") {
        axis.crossesAt = DoubleValue(child);
    } else {
        return false;
    }
    return true;
}

// What a category or date axis has beside.
bool ReadCategoryElement(pugi::xml_node child, std::string_view name, ChartAxis& axis) {
    const bool category = axis.type == "catAx";
    if (name == "auto") {
        axis.automatic = BooleanValue(child);
    } else if (name == "lblAlgn" && category) {
        axis.labelAlignment = ValueText(child, "ctr");
    } else if (name == "lblOffset") {
        axis.labelOffset = UnsignedValue(child).value_or(axis.labelOffset);
    } else if (name == "noMultiLvlLbl" && category) {
        axis.noMultiLevelLabels = BooleanValue(child);
    } else {
        return false;
    }
    return true;
}

// What a value axis has beside.
bool ReadValueElement(pugi::xml_node child, std::string_view name, ChartAxis& axis) {
    if (name == "crossBetween") {
        axis.crossBetween = ValueText(child, axis.crossBetween);
    } else if (name == "majorUnit") {
        axis.majorUnit = DoubleValue(child);
    } else if (name == "minorUnit") {
        axis.minorUnit = DoubleValue(child);
    } else {
        return false;
    }
    return true;
}

}  // namespace

ChartAxis ReadChartAxis(pugi::xml_node element) {
    ChartAxis axis;
    axis.type = LocalName(element);
    ReadChartChildren(element, AxisOrder(axis.type), axis.carried, [&axis](pugi::xml_node child, std::string_view name) {
        if (ReadSharedElement(child, name, axis)) {
            return true;
        }
        if (axis.type == "catAx" || axis.type == "dateAx") {
            return ReadCategoryElement(child, name, axis);
        }
        return axis.type == "valAx" && ReadValueElement(child, name, axis);
    });
    return axis;
}

}  // namespace ooxml
