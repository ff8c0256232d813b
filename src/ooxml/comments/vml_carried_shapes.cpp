#include "ooxml/comments/vml_carried_shapes.hpp"

#include "ooxml/carried/carried_attributes.hpp"
#include "ooxml/comments/vml_drawing_part.hpp"
#include "ooxml/comments/vml_id_blocks.hpp"
#include "ooxml/xml/xml_node_access.hpp"

#include <functional>
#include <set>
#include <string>

namespace ooxml {

namespace {

bool IsNote(pugi::xml_node node) {
    return LocalName(node) == "shape" && AttributeText(FirstChild(node, "ClientData"), "ObjectType") == "Note";
}

// A group's notes go with the other notes.
void RemoveNotes(pugi::xml_node parent) {
    for (pugi::xml_node child = parent.first_child(); child;) {
        const pugi::xml_node next = child.next_sibling();
        if (IsNote(child)) {
            parent.remove_child(child);
        } else if (LocalName(child) == "group") {
            RemoveNotes(child);
        }
        child = next;
    }
}

// The text of a text box is HTML to the programs that read VML, where <div/> opens a div that is
// never closed: an empty element there but a line break is written as a start and an end tag.
void OpenEmptyTextElements(pugi::xml_node node, bool inTextBox) {
    for (pugi::xml_node child = node.first_child(); child; child = child.next_sibling()) {
        if (child.type() != pugi::node_element) {
            continue;
        }
        if (inTextBox && !child.first_child() && LocalName(child) != "br") {
            child.append_child(pugi::node_pcdata);
        } else {
            OpenEmptyTextElements(child, inTextBox || LocalName(child) == "textbox");
        }
    }
}

// The shape types an element and its descendants use (type="#_x0000_t201"), and the blocks of
// their ids: a shape's o:spid when it has one (ActiveX controls and embedded objects go by name),
// its id otherwise.
void NoteUses(pugi::xml_node element, std::set<std::string, std::less<>>& types, std::set<uint32_t>& blocks) {
    std::string_view type = AttributeText(element, "type");
    if (type.starts_with('#')) {
        types.emplace(type.substr(1));
    }
    const pugi::xml_attribute spid = Attribute(element, "spid");
    if (const std::optional<uint32_t> number =
            ParseVmlShapeNumber(spid ? spid.value() : AttributeText(element, "id"))) {
        blocks.insert(*number / kVmlIdsPerBlock);
    }
    for (pugi::xml_node child = element.first_child(); child; child = child.next_sibling()) {
        if (child.type() == pugi::node_element) {
            NoteUses(child, types, blocks);
        }
    }
}

bool IsKeptShape(pugi::xml_node node) {
    const std::string_view name = LocalName(node);
    return node.type() == pugi::node_element && name != "shapelayout" && name != "shapetype" && !IsNote(node);
}

}  // namespace

void CarryVmlShapes(pugi::xml_node root, CarriedMarkup& markup, std::vector<uint32_t>& idBlocks) {
    std::set<std::string, std::less<>> types;
    std::set<uint32_t> blocks;
    for (pugi::xml_node child = root.first_child(); child; child = child.next_sibling()) {
        if (IsKeptShape(child)) {
            RemoveNotes(child);
            OpenEmptyTextElements(child, LocalName(child) == "textbox");
            NoteUses(child, types, blocks);
        }
    }
    types.erase(std::string(kVmlNoteShapeTypeId));
    for (pugi::xml_node child = root.first_child(); child; child = child.next_sibling()) {
        const bool usedType = LocalName(child) == "shapetype" && types.count(AttributeText(child, "id")) != 0;
        if (usedType || IsKeptShape(child)) {
            markup.elements.push_back({0, std::string(LocalName(child)), ElementMarkup(child)});
        }
    }
    if (!markup.elements.empty()) {
        markup.rootAttributes = AttributesExcept(root, {"xmlns:v", "xmlns:o", "xmlns:x"});
    }
    idBlocks.assign(blocks.begin(), blocks.end());
}

}  // namespace ooxml
