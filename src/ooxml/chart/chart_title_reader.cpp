#include "ooxml/chart/chart_title_reader.hpp"

#include "ooxml/chart/chart_child_reader.hpp"
#include "ooxml/chart/chart_data_reader.hpp"
#include "ooxml/chart/chart_element_order.hpp"
#include "ooxml/chart/chart_shape_properties_reader.hpp"
#include "ooxml/chart/chart_text_reader.hpp"
#include "ooxml/chart/chart_values.hpp"
#include "ooxml/xml/xml_node_access.hpp"

namespace ooxml {

namespace {

// The title's own text: rich text, or a cell reference.
void ReadText(pugi::xml_node text, ChartTitle& title) {
    if (const pugi::xml_node rich = FirstChild(text, "rich")) {
        ReadChartRichText(rich, title);
    } else {
        title.reference = ReadChartData(text);
    }
}

}  // namespace

ChartTitle ReadChartTitle(pugi::xml_node element) {
    ChartTitle title;
    ReadChartChildren(element, TitleElementOrder, title.carried, [&title](pugi::xml_node child, std::string_view name) {
        if (name == "tx") {
            ReadText(child, title);
        } else if (name == "overlay") {
            title.overlay = BooleanValue(child);
        } else if (name == "spPr") {
            title.shape = ReadChartShapeProperties(child);
        } else if (name == "txPr") {
            title.textProperties = ReadChartTextProperties(child);
        } else {
            return false;
        }
        return true;
    });
    return title;
}

}  // namespace ooxml
