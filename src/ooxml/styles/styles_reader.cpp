#include "ooxml/styles/styles_reader.hpp"

#include "ooxml/carried/carried_attributes.hpp"
#include "ooxml/carried/carried_element_collector.hpp"
#include "ooxml/styles/builtin_number_formats.hpp"
#include "ooxml/styles/color_reader.hpp"
#include "ooxml/styles/font_reader.hpp"
#include "ooxml/styles/styles_element_order.hpp"
#include "ooxml/xml/xml_node_access.hpp"
#include "ooxml/xml/xml_part_parser.hpp"

#include <algorithm>
#include <map>

namespace ooxml {

namespace {

constexpr int32_t MaxIndent = 250;
constexpr int32_t VerticalTextRotation = 255;

template <typename Item, typename Read>
std::vector<Item> ReadList(pugi::xml_node list, std::string_view itemName, Read read) {
    std::vector<Item> items;
    ForEachChild(list, itemName, [&](pugi::xml_node node) { items.push_back(read(node)); });
    return items;
}

Fill ReadFill(pugi::xml_node node) {
    Fill fill;
    if (const pugi::xml_node gradient = FirstChild(node, "gradientFill")) {
        fill.gradient = ElementMarkup(gradient);
        fill.pathGradient = AttributeText(gradient, "type") == "path";
    } else if (const pugi::xml_node pattern = FirstChild(node, "patternFill")) {
        const std::string_view type = AttributeText(pattern, "patternType");
        fill.patternType = type.empty() ? std::string_view("none") : type;
        fill.foreground = ReadColor(FirstChild(pattern, "fgColor"));
        fill.background = ReadColor(FirstChild(pattern, "bgColor"));
    }
    return fill;
}

BorderLine ReadBorderLine(pugi::xml_node border, std::string_view side, std::string_view alternativeSide) {
    pugi::xml_node node = FirstChild(border, side);
    if (!node) {
        node = FirstChild(border, alternativeSide);
    }
    BorderLine line;
    const std::string_view style = AttributeText(node, "style");
    line.style = style == "none" ? std::string_view() : style;
    line.color = ReadColor(FirstChild(node, "color"));
    return line;
}

Border ReadBorder(pugi::xml_node node) {
    Border border;
    // "start" and "end" are the names newer writers give the left and right edges.
    border.left = ReadBorderLine(node, "left", "start");
    border.right = ReadBorderLine(node, "right", "end");
    border.top = ReadBorderLine(node, "top", "top");
    border.bottom = ReadBorderLine(node, "bottom", "bottom");
    border.diagonal = ReadBorderLine(node, "diagonal", "diagonal");
    border.diagonalUp = AttributeBool(node, "diagonalUp", false);
    border.diagonalDown = AttributeBool(node, "diagonalDown", false);
    return border;
}

Alignment ReadAlignment(pugi::xml_node node) {
    Alignment alignment;
    const std::string_view horizontal = AttributeText(node, "horizontal");
    alignment.horizontal = horizontal == "general" ? std::string_view() : horizontal;
    const std::string_view vertical = AttributeText(node, "vertical");
    alignment.vertical = vertical == "bottom" ? std::string_view() : vertical;
    alignment.wrapText = AttributeBool(node, "wrapText", false);
    alignment.shrinkToFit = AttributeBool(node, "shrinkToFit", false);
    alignment.indent =
        static_cast<int32_t>(std::min<uint32_t>(AttributeUnsigned(node, "indent").value_or(0), MaxIndent));
    const uint32_t rotation = AttributeUnsigned(node, "textRotation").value_or(0);
    alignment.textRotation = rotation <= 180 ? static_cast<int32_t>(rotation) : VerticalTextRotation;
    return alignment;
}

std::map<uint32_t, std::string> ReadNumberFormatCodes(pugi::xml_node list) {
    std::map<uint32_t, std::string> codes;
    ForEachChild(list, "numFmt", [&](pugi::xml_node node) {
        if (const std::optional<uint32_t> id = AttributeUnsigned(node, "numFmtId")) {
            codes[*id] = AttributeText(node, "formatCode");
        }
    });
    return codes;
}

std::string NumberFormatCode(const std::map<uint32_t, std::string>& customCodes, uint32_t id) {
    if (const auto found = customCodes.find(id); found != customCodes.end()) {
        return found->second;
    }
    const std::string_view builtin = BuiltinNumberFormatCode(id);
    return std::string(builtin.empty() ? std::string_view("General") : builtin);
}

template <typename Item>
const Item& ItemAt(const std::vector<Item>& items, std::optional<uint32_t> index, const Item& fallback) {
    return index && *index < items.size() ? items[*index] : fallback;
}

// The cell formats and the named styles' formats are rewritten from the model (with the fonts,
// fills, borders and number formats they use); the rest of the part is kept, the named styles
// themselves included.
void CarryStyles(pugi::xml_node styleSheet, CarriedMarkup& carried) {
    carried.rootAttributes = AttributesExcept(styleSheet, {"xmlns"});
    CarriedElementCollector elements(StylesElementOrder, carried.elements);
    for (pugi::xml_node child = styleSheet.first_child(); child; child = child.next_sibling()) {
        if (child.type() != pugi::node_element) {
            continue;
        }
        const std::string_view name = LocalName(child);
        const std::optional<uint16_t> slot = StylesElementOrder.SlotOf(name);
        if (slot && *slot <= StylesElementOrder.Slot("cellXfs")) {
            elements.Pass(name);
        } else {
            elements.Carry(name, ElementMarkup(child));
        }
    }
}

// Resolves the xf entries of cellXfs and cellStyleXfs into complete formats.
class XfReader {
public:
    explicit XfReader(pugi::xml_node styleSheet)
        : numberFormats_(ReadNumberFormatCodes(FirstChild(styleSheet, "numFmts"))),
          fonts_(ReadList<Font>(FirstChild(styleSheet, "fonts"), "font", ReadFont)),
          fills_(ReadList<Fill>(FirstChild(styleSheet, "fills"), "fill", ReadFill)),
          borders_(ReadList<Border>(FirstChild(styleSheet, "borders"), "border", ReadBorder)) {}

    CellFormat Read(pugi::xml_node xf) const {
        CellFormat format;
        format.numberFormat = NumberFormatCode(numberFormats_, AttributeUnsigned(xf, "numFmtId").value_or(0));
        format.font = ItemAt(fonts_, AttributeUnsigned(xf, "fontId"), defaults_.font);
        format.fill = ItemAt(fills_, AttributeUnsigned(xf, "fillId"), defaults_.fill);
        format.border = ItemAt(borders_, AttributeUnsigned(xf, "borderId"), defaults_.border);
        format.alignment = ReadAlignment(FirstChild(xf, "alignment"));
        format.quotePrefix = AttributeBool(xf, "quotePrefix", false);
        format.pivotButton = AttributeBool(xf, "pivotButton", false);
        const pugi::xml_node protection = FirstChild(xf, "protection");
        format.locked = AttributeBool(protection, "locked", true);
        format.hidden = AttributeBool(protection, "hidden", false);
        return format;
    }

    const std::map<uint32_t, std::string>& NumberFormats() const { return numberFormats_; }

private:
    const CellFormat defaults_;
    std::map<uint32_t, std::string> numberFormats_;
    std::vector<Font> fonts_;
    std::vector<Fill> fills_;
    std::vector<Border> borders_;
};

CarriedStyleFormat ReadStyleFormat(const XfReader& xfs, pugi::xml_node xf) {
    CarriedStyleFormat style{xfs.Read(xf), AttributesExcept(xf, {"numFmtId", "fontId", "fillId", "borderId"}), {}};
    for (pugi::xml_node child = xf.first_child(); child; child = child.next_sibling()) {
        if (child.type() == pugi::node_element) {
            style.children += ElementMarkup(child);
        }
    }
    return style;
}

}  // namespace

StylesPart ReadStyles(std::string& xml, std::string_view partName) {
    pugi::xml_document document;
    ParseXmlPart(document, xml, partName);
    const pugi::xml_node styleSheet = document.document_element();

    const XfReader xfs(styleSheet);
    StylesPart styles;
    ForEachChild(FirstChild(styleSheet, "cellXfs"), "xf", [&](pugi::xml_node xf) {
        CellFormat format = xfs.Read(xf);
        format.style = AttributeUnsigned(xf, "xfId").value_or(0);
        styles.formats.push_back(std::move(format));
    });
    if (styles.formats.empty()) {
        styles.formats.emplace_back();
    }
    ForEachChild(FirstChild(styleSheet, "cellStyleXfs"), "xf",
                 [&](pugi::xml_node xf) { styles.carried.styleFormats.push_back(ReadStyleFormat(xfs, xf)); });
    styles.carried.numberFormats = xfs.NumberFormats();
    styles.palette = ReadIndexedColors(FirstChild(styleSheet, "colors"));
    styles.carried.listsIndexedColors = !styles.palette.empty();
    ForEachChild(FirstChild(styleSheet, "dxfs"), "dxf", [&](pugi::xml_node) { ++styles.differentialFormats; });
    CarryStyles(styleSheet, styles.carried.markup);
    return styles;
}

}  // namespace ooxml
