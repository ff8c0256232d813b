#include "ooxml/comments/vml_drawing_reader.hpp"

#include "ooxml/comments/vml_carried_shapes.hpp"
#include "ooxml/xml/xml_node_access.hpp"
#include "ooxml/xml/xml_part_parser.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

namespace ooxml {

namespace {

constexpr uint32_t WhiteRgb = 0xFFFFFF;
constexpr uint32_t BlackRgb = 0x000000;
constexpr double DefaultStrokeWeight = 0.75;  // points
// The insets of a VML text box when it names none: 0.1 inch left and right, 0.05 inch top and bottom.
constexpr std::array<double, 4> DefaultInsets{7.2, 3.6, 7.2, 3.6};

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t\r\n");
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

// A CSS length in points: "107.25pt", "20px", "1in", "2.5cm", "10mm"; a bare number is pixels.
std::optional<double> ParseLength(std::string_view text) {
    text = Trimmed(text);
    double value = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc()) {
        return std::nullopt;
    }
    const std::string_view unit = text.substr(static_cast<std::size_t>(end - text.data()));
    if (unit == "pt") {
        return value;
    }
    if (unit == "px" || unit.empty()) {
        return value * 0.75;
    }
    if (unit == "in") {
        return value * 72.0;
    }
    if (unit == "cm") {
        return value * 72.0 / 2.54;
    }
    if (unit == "mm") {
        return value * 72.0 / 25.4;
    }
    return std::nullopt;
}

// "#ffffe1", "#fe1" or the names black and white, optionally followed by a palette hint ("[80]").
std::optional<uint32_t> ParseVmlColor(std::string_view text) {
    text = Trimmed(text.substr(0, text.find('[')));
    if (text == "black") {
        return BlackRgb;
    }
    if (text == "white") {
        return WhiteRgb;
    }
    if (text.size() != 7 && text.size() != 4) {
        return std::nullopt;
    }
    if (text.front() != '#') {
        return std::nullopt;
    }
    uint32_t value = 0;
    const auto [end, error] = std::from_chars(text.data() + 1, text.data() + text.size(), value, 16);
    if (error != std::errc() || end != text.data() + text.size()) {
        return std::nullopt;
    }
    if (text.size() == 4) {
        const uint32_t red = value >> 8 & 0xF, green = value >> 4 & 0xF, blue = value & 0xF;
        value = red * 0x110000 + green * 0x1100 + blue * 0x11;
    }
    return value;
}

// Calls visit(name, value) for each "name:value" of a CSS style.
template <typename Visit>
void ForEachStyleProperty(std::string_view style, Visit&& visit) {
    while (!style.empty()) {
        const std::size_t end = std::min(style.find(';'), style.size());
        const std::string_view declaration = style.substr(0, end);
        const std::size_t colon = declaration.find(':');
        if (colon != std::string_view::npos) {
            visit(Trimmed(declaration.substr(0, colon)), Trimmed(declaration.substr(colon + 1)));
        }
        style.remove_prefix(std::min(end + 1, style.size()));
    }
}

// An x:ClientData flag: present and empty, or True.
bool FlagSet(pugi::xml_node flag) {
    if (!flag) {
        return false;
    }
    const std::string_view value = Trimmed(flag.child_value());
    return value.empty() || value == "True" || value == "t" || value == "true";
}

std::optional<LegacyAnchor> ParseAnchor(std::string_view text) {
    std::array<uint32_t, 8> values{};
    for (uint32_t& value : values) {
        const std::size_t comma = std::min(text.find(','), text.size());
        const std::optional<uint32_t> number = ParseUnsigned(text.substr(0, comma));
        if (!number) {
            return std::nullopt;
        }
        value = *number;
        text.remove_prefix(std::min(comma + 1, text.size()));
    }
    return LegacyAnchor{values[0], values[1], values[2], values[3], values[4], values[5], values[6], values[7]};
}

std::array<double, 4> ParseInsets(std::string_view text) {
    std::array<double, 4> insets = DefaultInsets;
    for (double& inset : insets) {
        const std::size_t comma = std::min(text.find(','), text.size());
        inset = ParseLength(text.substr(0, comma)).value_or(inset);
        text.remove_prefix(std::min(comma + 1, text.size()));
    }
    return insets;
}

void ReadNoteShape(pugi::xml_node shape, pugi::xml_node clientData, CellComment& comment) {
    comment.hasShape = true;
    ForEachStyleProperty(AttributeText(shape, "style"), [&comment](std::string_view name, std::string_view value) {
        if (name == "margin-left" || name == "left") {
            comment.left = ParseLength(value).value_or(comment.left);
        } else if (name == "margin-top" || name == "top") {
            comment.top = ParseLength(value).value_or(comment.top);
        } else if (name == "width") {
            comment.width = ParseLength(value).value_or(comment.width);
        } else if (name == "height") {
            comment.height = ParseLength(value).value_or(comment.height);
        }
    });
    comment.fillRgb = ParseVmlColor(AttributeText(shape, "fillcolor")).value_or(WhiteRgb);
    comment.lineRgb = ParseVmlColor(AttributeText(shape, "strokecolor")).value_or(BlackRgb);
    comment.lineWeight = ParseLength(AttributeText(shape, "strokeweight")).value_or(DefaultStrokeWeight);
    if (AttributeText(shape, "insetmode") == "custom") {
        comment.insets = ParseInsets(AttributeText(FirstChild(shape, "textbox"), "inset"));
    } else {
        comment.insets.reset();
    }
    // Excel reads MoveWithCells and SizeWithCells the other way round: present, the note does
    // not move (or size) with its cells.
    comment.moveWithCells = !FlagSet(FirstChild(clientData, "MoveWithCells"));
    comment.sizeWithCells = !FlagSet(FirstChild(clientData, "SizeWithCells"));
    comment.visible = FlagSet(FirstChild(clientData, "Visible"));
    if (const std::optional<LegacyAnchor> anchor = ParseAnchor(FirstChild(clientData, "Anchor").child_value())) {
        comment.anchor = *anchor;
    }
}

CellComment* FindComment(std::vector<CellComment>& comments, pugi::xml_node clientData) {
    const std::optional<uint32_t> row = ParseUnsigned(FirstChild(clientData, "Row").child_value());
    const std::optional<uint32_t> column = ParseUnsigned(FirstChild(clientData, "Column").child_value());
    if (!row || !column) {
        return nullptr;
    }
    const auto found = std::find_if(comments.begin(), comments.end(), [&](const CellComment& comment) {
        return comment.row == *row + 1 && comment.column == *column + 1;
    });
    return found == comments.end() ? nullptr : &*found;
}

void ReadShapes(pugi::xml_node parent, std::vector<CellComment>& comments) {
    for (pugi::xml_node child = parent.first_child(); child; child = child.next_sibling()) {
        const std::string_view name = LocalName(child);
        if (name == "group") {
            ReadShapes(child, comments);
        }
        const pugi::xml_node clientData = FirstChild(child, "ClientData");
        if (name != "shape" || AttributeText(clientData, "ObjectType") != "Note") {
            continue;
        }
        if (CellComment* comment = FindComment(comments, clientData)) {
            ReadNoteShape(child, clientData, *comment);
        }
    }
}

}  // namespace

void ReadVmlDrawing(std::string& xml, std::vector<CellComment>& comments, CarriedWorksheet& carried) {
    pugi::xml_document document;
    // Excel breaks long attributes (style) over lines; as in any XML, they read as spaces.
    if (!HoldsNoNul(xml) ||
        !document.load_buffer_inplace(xml.data(), xml.size(), XmlPartParseOptions | pugi::parse_wconv_attribute)) {
        return;
    }
    ReadShapes(document.document_element(), comments);
    CarryVmlShapes(document.document_element(), carried.legacyDrawing, carried.legacyDrawingIdBlocks);
}

}  // namespace ooxml
