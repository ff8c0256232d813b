#include "ooxml/worksheet/carried_reference_mover.hpp"

#include "ooxml/carried/carried_attributes.hpp"
#include "ooxml/reference/cell_reference_reader.hpp"
#include "ooxml/reference/column_name.hpp"
#include "ooxml/worksheet/anchor_mover.hpp"
#include "ooxml/xml/xml_node_access.hpp"
#include "ooxml/xml/xml_part_parser.hpp"

#include <pugixml.hpp>

#include <algorithm>
#include <array>
#include <vector>

namespace ooxml {

namespace {

// Elements whose ref attribute is a range of the sheet's own cells.
constexpr std::array<std::string_view, 4> RangeOwners{"hyperlink", "autoFilter", "sortState", "sortCondition"};
// Elements that are nothing without their ranges, and the lists that are nothing without them.
constexpr std::array<std::string_view, 6> RangedItems{"conditionalFormatting", "dataValidation", "hyperlink",
                                                      "ignoredError",          "protectedRange", "sortCondition"};
constexpr std::array<std::string_view, 5> ItemLists{"dataValidations", "hyperlinks", "ignoredErrors", "protectedRanges",
                                                    "conditionalFormattings"};

template <std::size_t N>
bool OneOf(const std::array<std::string_view, N>& names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

std::string BlockText(const CellBlock& block) {
    std::string text = CellReferenceText(block.firstRow, block.firstColumn);
    if (block.lastRow != block.firstRow || block.lastColumn != block.firstColumn) {
        text += ':' + CellReferenceText(block.lastRow, block.lastColumn);
    }
    return text;
}

// A space-separated list of ranges, moved; the ranges all deleted are left out. Text that is no
// range stays as it is.
std::string MoveRanges(std::string_view ranges, const CellBlockMove& move) {
    std::string moved;
    std::size_t at = 0;
    while (at < ranges.size()) {
        const std::size_t end = std::min(ranges.find(' ', at), ranges.size());
        const std::string_view range = ranges.substr(at, end - at);
        at = end + 1;
        if (range.empty()) {
            continue;
        }
        std::string text(range);
        if (const std::optional<CellBlock> block = ParseCellBlock(range)) {
            const std::optional<CellBlock> target = move(*block);
            if (!target) {
                continue;
            }
            text = BlockText(*target);
        }
        moved += (moved.empty() ? "" : " ") + text;
    }
    return moved;
}

class ReferenceMover {
public:
    explicit ReferenceMover(const CellBlockMove& move) : move_(move) {}

    // Moves the references within node; false when node is a ranged item left without ranges, or
    // a list left without items.
    bool Move(pugi::xml_node node) {
        const std::string_view name = LocalName(node);
        bool lostRanges = false;
        for (pugi::xml_attribute attribute : node.attributes()) {
            const std::string_view attributeName = LocalName(attribute.name());
            if (attributeName == "sqref" || (attributeName == "ref" && OneOf(RangeOwners, name))) {
                const std::string moved = MoveRanges(attribute.value(), move_);
                lostRanges = lostRanges || moved.empty();
                attribute.set_value(moved.c_str());
            }
        }
        if (name == "sqref" && node.first_child().type() == pugi::node_pcdata) {
            const std::string moved = MoveRanges(node.child_value(), move_);
            node.first_child().set_value(moved.c_str());
            return !moved.empty();
        }
        std::vector<pugi::xml_node> gone;
        for (pugi::xml_node child : node.children()) {
            if (child.type() == pugi::node_element && !Move(child)) {
                gone.push_back(child);
                lostRanges = lostRanges || LocalName(child) == "sqref";
            }
        }
        for (pugi::xml_node child : gone) {
            node.remove_child(child);
        }
        if (gone.empty()) {
            return !(lostRanges && OneOf(RangedItems, name));
        }
        const auto items = std::count_if(node.children().begin(), node.children().end(),
                                         [](pugi::xml_node child) { return child.type() == pugi::node_element; });
        if (pugi::xml_attribute count = node.attribute("count")) {
            count.set_value(static_cast<long long>(items));
        }
        return !(lostRanges && OneOf(RangedItems, name)) && !(items == 0 && OneOf(ItemLists, name));
    }

private:
    const CellBlockMove& move_;
};

}  // namespace

CarriedWorksheet MoveCarriedReferences(const CarriedWorksheet& carried, const CellBlockMove& move) {
    CarriedWorksheet moved = carried;
    moved.worksheet.elements.clear();
    ReferenceMover mover(move);
    for (const CarriedElement& element : carried.worksheet.elements) {
        pugi::xml_document document;
        if (!document.load_string(element.xml.c_str(), XmlPartParseOptions)) {
            moved.worksheet.elements.push_back(element);
            continue;
        }
        if (mover.Move(document.document_element())) {
            MoveAnchorsIn(document.document_element(), move);  // of form controls and embedded objects
            moved.worksheet.elements.push_back(
                {element.slot, element.name, ElementMarkup(document.document_element())});
        }
    }
    for (std::vector<CarriedElement>* shapes : {&moved.drawing.elements, &moved.legacyDrawing.elements}) {
        for (CarriedElement& shape : *shapes) {
            pugi::xml_document document;
            if (document.load_string(shape.xml.c_str(), XmlPartParseOptions) &&
                MoveAnchorsIn(document.document_element(), move)) {
                shape.xml = ElementMarkup(document.document_element());
            }
        }
    }
    return moved;
}

std::optional<std::string> MoveTableReferences(std::string_view tablePart, const CellBlockMove& move) {
    pugi::xml_document document;
    if (!document.load_buffer(tablePart.data(), tablePart.size(), XmlPartParseOptions | pugi::parse_declaration)) {
        return std::string(tablePart);
    }
    pugi::xml_node table = document.document_element();
    const std::optional<CellBlock> block = ParseCellBlock(AttributeText(table, "ref"));
    if (!block) {
        return std::string(tablePart);
    }
    const std::optional<CellBlock> target = move(*block);
    if (!target) {
        return std::nullopt;
    }
    Attribute(table, "ref").set_value(BlockText(*target).c_str());
    ReferenceMover mover(move);
    for (pugi::xml_node child : table.children()) {
        if (child.type() == pugi::node_element) {
            mover.Move(child);
        }
    }
    return DocumentMarkup(document);
}

}  // namespace ooxml
