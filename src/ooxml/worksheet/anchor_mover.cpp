#include "ooxml/worksheet/anchor_mover.hpp"

#include "ooxml/carried/carried_attributes.hpp"
#include "ooxml/xml/xml_node_access.hpp"
#include "ooxml/xml/xml_part_parser.hpp"

#include <array>
#include <charconv>
#include <optional>
#include <string>

namespace ooxml {

namespace {

enum class Following { Nothing, TopLeft, Corners };

// Where the block of an anchor's cells goes: moved as a whole, or its top left cell alone with the
// size kept. Nothing when it stays (or all its cells were deleted).
std::optional<CellBlock> Moved(const CellBlock& block, Following following, const CellBlockMove& move) {
    if (following == Following::Nothing) {
        return std::nullopt;
    }
    std::optional<CellBlock> moved = move(block);
    if (moved && following == Following::TopLeft) {
        moved->lastRow = block.lastRow + moved->firstRow - block.firstRow;
        moved->lastColumn = block.lastColumn + moved->firstColumn - block.firstColumn;
    }
    return moved;
}

Following DrawingFollowing(pugi::xml_node anchor) {
    if (LocalName(anchor) == "oneCellAnchor") {
        return Following::TopLeft;
    }
    const std::string_view editAs = AttributeText(anchor, "editAs");
    return editAs == "absolute" ? Following::Nothing : editAs == "oneCell" ? Following::TopLeft : Following::Corners;
}

Following ObjectFollowing(pugi::xml_node anchor) {
    if (!AttributeBool(anchor, "moveWithCells", false)) {
        return Following::Nothing;
    }
    return AttributeBool(anchor, "sizeWithCells", false) ? Following::Corners : Following::TopLeft;
}

// A <from>/<to> pair of cells (0-based) in <xdr:col> and <xdr:row>; whether they moved.
bool MoveCorners(pugi::xml_node anchor, Following following, const CellBlockMove& move) {
    const pugi::xml_node from = FirstChild(anchor, "from");
    if (!from) {
        return false;
    }
    const pugi::xml_node to = FirstChild(anchor, "to");
    const auto number = [](pugi::xml_node corner, std::string_view element) {
        return ParseUnsigned(FirstChild(corner, element).child_value()).value_or(0);
    };
    const pugi::xml_node end = to ? to : from;
    const CellBlock block{number(from, "row") + 1, number(from, "col") + 1, number(end, "row") + 1,
                          number(end, "col") + 1};
    const std::optional<CellBlock> moved = Moved(block, following, move);
    if (!moved || *moved == block) {
        return false;
    }
    const auto set = [](pugi::xml_node corner, std::string_view element, uint32_t value) {
        FirstChild(corner, element).text().set(value - 1);
    };
    set(from, "row", moved->firstRow);
    set(from, "col", moved->firstColumn);
    if (to) {
        set(to, "row", moved->lastRow);
        set(to, "col", moved->lastColumn);
    }
    return true;
}

// <x:Anchor>: eight numbers, the cells 0-based, the offsets in pixels; whether they moved.
bool MoveVmlAnchor(pugi::xml_node clientData, const CellBlockMove& move) {
    pugi::xml_node anchor = FirstChild(clientData, "Anchor");
    std::array<uint32_t, 8> numbers{};
    std::string_view text = anchor.child_value();
    for (uint32_t& number : numbers) {
        while (!text.empty() && (text.front() == ' ' || text.front() == ',' || text.front() == '\n' ||
                                 text.front() == '\r' || text.front() == '\t')) {
            text.remove_prefix(1);
        }
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
        if (error != std::errc()) {
            return false;
        }
        text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    }
    const Following following = FirstChild(clientData, "MoveWithCells")   ? Following::Nothing
                                : FirstChild(clientData, "SizeWithCells") ? Following::TopLeft
                                                                          : Following::Corners;
    const CellBlock block{numbers[2] + 1, numbers[0] + 1, numbers[6] + 1, numbers[4] + 1};
    const std::optional<CellBlock> moved = Moved(block, following, move);
    if (!moved || *moved == block) {
        return false;
    }
    numbers[0] = moved->firstColumn - 1;
    numbers[2] = moved->firstRow - 1;
    numbers[4] = moved->lastColumn - 1;
    numbers[6] = moved->lastRow - 1;
    std::string written;
    for (const uint32_t number : numbers) {
        written += (written.empty() ? "" : ", ") + std::to_string(number);
    }
    anchor.text().set(written.c_str());
    return true;
}

}  // namespace

bool MoveAnchorsIn(pugi::xml_node node, const CellBlockMove& move) {
    const std::string_view name = LocalName(node);
    if (name == "twoCellAnchor" || name == "oneCellAnchor") {
        return MoveCorners(node, DrawingFollowing(node), move);
    }
    if (name == "anchor" && FirstChild(node, "from")) {
        return MoveCorners(node, ObjectFollowing(node), move);
    }
    if (name == "ClientData" && FirstChild(node, "Anchor")) {
        return MoveVmlAnchor(node, move);
    }
    bool moved = false;
    for (pugi::xml_node child : node.children()) {
        if (child.type() == pugi::node_element) {
            moved = MoveAnchorsIn(child, move) || moved;
        }
    }
    return moved;
}

std::optional<std::string> MoveAnchorsInPart(std::string_view part, const CellBlockMove& move) {
    pugi::xml_document document;
    if (!document.load_buffer(part.data(), part.size(), XmlPartParseOptions | pugi::parse_declaration) ||
        !MoveAnchorsIn(document.document_element(), move)) {
        return std::nullopt;
    }
    return DocumentMarkup(document);
}

}  // namespace ooxml
