#include "ooxml/drawing/drawing_reader.hpp"

#include "ooxml/carried/carried_attributes.hpp"
#include "ooxml/drawing/text_box_reader.hpp"
#include "ooxml/xml/xml_node_access.hpp"
#include "ooxml/xml/xml_part_parser.hpp"

#include <algorithm>
#include <array>

namespace ooxml {

namespace {

constexpr std::array<std::string_view, 3> EditAsValues{"twoCell", "oneCell", "absolute"};
constexpr uint32_t MaxColumn = 16383;   // 0-based
constexpr uint32_t MaxRow = 1048575;    // 0-based

template <std::size_t N>
bool OneOf(const std::array<std::string_view, N>& values, std::string_view value) {
    return std::find(values.begin(), values.end(), value) != values.end();
}

CellAnchor ReadCorner(pugi::xml_node corner) {
    const auto number = [corner](std::string_view element) {
        return ParseCoordinate(FirstChild(corner, element).child_value()).value_or(0);
    };
    CellAnchor anchor;
    anchor.column = static_cast<uint32_t>(std::clamp<int64_t>(number("col"), 0, MaxColumn));
    anchor.columnOffset = number("colOff");
    anchor.row = static_cast<uint32_t>(std::clamp<int64_t>(number("row"), 0, MaxRow));
    anchor.rowOffset = number("rowOff");
    return anchor;
}

// How an anchor element lets its shape follow the cells: a two-cell anchor says so in editAs, a
// one-cell anchor moves with its cell, an absolute one stays put. None for anything else.
std::optional<std::string_view> AnchorEditAs(pugi::xml_node anchor) {
    const std::string_view kind = LocalName(anchor);
    if (kind == "twoCellAnchor") {
        const std::string_view editAs = AttributeText(anchor, "editAs");
        return OneOf(EditAsValues, editAs) ? editAs : "twoCell";
    }
    if (kind == "oneCellAnchor") {
        return "oneCell";
    }
    if (kind == "absoluteAnchor") {
        return "absolute";
    }
    return std::nullopt;
}

// Where the anchor puts a shape: how it follows the cells, and the corners where the anchor has them.
void PlaceOnCells(pugi::xml_node anchor, std::string_view editAs, DrawingShape& shape) {
    shape.editAs = editAs;
    shape.from = ReadCorner(FirstChild(anchor, "from"));
    shape.to = ReadCorner(FirstChild(anchor, "to"));
}

// The relationship id of the chart a two-cell anchor's graphic frame shows; empty for anything else.
std::string_view ChartRelationshipId(pugi::xml_node anchor) {
    if (LocalName(anchor) != "twoCellAnchor") {
        return {};
    }
    const pugi::xml_node graphic = FirstChild(FirstChild(anchor, "graphicFrame"), "graphic");
    return AttributeText(FirstChild(FirstChild(graphic, "graphicData"), "chart"), "id");
}

// The frame of a chart read into its document: the frame's id, name, macro and visibility.
DrawingShape ReadChartFrame(pugi::xml_node anchor, std::shared_ptr<const ChartDocument> chart) {
    const pugi::xml_node frame = FirstChild(anchor, "graphicFrame");
    const pugi::xml_node nonVisual = FirstChild(FirstChild(frame, "nvGraphicFramePr"), "cNvPr");
    DrawingShape shape;
    PlaceOnCells(anchor, *AnchorEditAs(anchor), shape);
    shape.id = AttributeUnsigned(nonVisual, "id").value_or(shape.id);
    shape.name = AttributeText(nonVisual, "name");
    shape.hidden = AttributeBool(nonVisual, "hidden", false);
    shape.macro = AttributeText(frame, "macro");
    shape.chart = std::move(chart);
    return shape;
}

// The highest id the shapes within node have (a group holds several).
uint32_t HighestShapeId(pugi::xml_node node) {
    uint32_t highest = LocalName(node) == "cNvPr" ? AttributeUnsigned(node, "id").value_or(0) : 0;
    for (pugi::xml_node child : node.children()) {
        if (child.type() == pugi::node_element) {
            highest = std::max(highest, HighestShapeId(child));
        }
    }
    return highest;
}

}  // namespace

std::vector<DrawingShape> ReadDrawing(std::string& xml, std::string_view partName, CarriedWorksheet& carried,
                                      const ChartFrameLoader& loadChart) {
    pugi::xml_document document;
    ParseXmlPart(document, xml, partName);
    const pugi::xml_node root = document.document_element();
    carried.drawing.rootAttributes = AttributesExcept(root, {"xmlns:xdr", "xmlns:a"});
    std::vector<DrawingShape> shapes;
    for (pugi::xml_node anchor = root.first_child(); anchor; anchor = anchor.next_sibling()) {
        if (anchor.type() != pugi::node_element) {
            continue;
        }
        const std::optional<std::string_view> editAs = AnchorEditAs(anchor);
        const pugi::xml_node textBox = editAs ? TextBoxOf(anchor) : pugi::xml_node();
        const std::string_view chartId = ChartRelationshipId(anchor);
        std::shared_ptr<const ChartDocument> chart = !chartId.empty() && loadChart ? loadChart(chartId) : nullptr;
        if (textBox) {
            DrawingShape& box = shapes.emplace_back(ReadTextBoxShape(textBox));
            PlaceOnCells(anchor, *editAs, box);
        } else if (chart) {
            shapes.push_back(ReadChartFrame(anchor, std::move(chart)));
        } else {
            carried.drawing.elements.push_back(
                {static_cast<uint16_t>(std::min<std::size_t>(shapes.size(), UINT16_MAX)), std::string(LocalName(anchor)),
                 ElementMarkup(anchor)});
            carried.highestShapeId = std::max(carried.highestShapeId, HighestShapeId(anchor));
        }
    }
    return shapes;
}

}  // namespace ooxml
