#include "ooxml/opc/carried_cell_moves.hpp"

#include "ooxml/carried/carried_attributes.hpp"
#include "ooxml/opc/relationships_reader.hpp"
#include "ooxml/worksheet/anchor_mover.hpp"
#include "ooxml/xml/xml_part_parser.hpp"

#include <pugixml.hpp>

#include <algorithm>
#include <set>

namespace ooxml {

namespace {

// The sheet's list of table parts without the ones of the given relationship ids.
void RemoveTableParts(CarriedWorksheet& carried, const std::set<std::string>& ids) {
    for (CarriedElement& element : carried.worksheet.elements) {
        if (element.name != "tableParts") {
            continue;
        }
        pugi::xml_document document;
        if (!document.load_string(element.xml.c_str(), XmlPartParseOptions)) {
            continue;
        }
        pugi::xml_node list = document.document_element();
        std::vector<pugi::xml_node> gone;
        for (pugi::xml_node part : list.children()) {
            const pugi::xml_attribute id = part.find_attribute([](pugi::xml_attribute attribute) {
                const std::string_view name = attribute.name();
                return name.size() >= 3 && name.substr(name.size() - 3) == ":id";
            });
            if (id && ids.count(id.value()) != 0) {
                gone.push_back(part);
            }
        }
        for (pugi::xml_node part : gone) {
            list.remove_child(part);
        }
        if (pugi::xml_attribute count = list.attribute("count")) {
            count.set_value(static_cast<long long>(std::distance(list.children().begin(), list.children().end())));
        }
        element.xml = list.first_child() ? ElementMarkup(list) : std::string();
    }
    std::erase_if(carried.worksheet.elements, [](const CarriedElement& element) { return element.xml.empty(); });
    std::erase_if(carried.worksheet.relationships,
                  [&ids](const Relationship& relationship) { return ids.count(relationship.id) != 0; });
}

}  // namespace

void MoveCarriedCells(WorkbookDocument& document, SheetDocument& sheet, const CellBlockMove& move) {
    if (!sheet.carried) {
        return;
    }
    auto moved = std::make_shared<CarriedWorksheet>(MoveCarriedReferences(*sheet.carried, move));
    std::set<std::string> deletedTables;
    if (document.carried) {
        for (const Relationship& relationship : moved->worksheet.relationships) {
            const auto part = document.carried->parts.find(relationship.target);
            if (relationship.external || part == document.carried->parts.end()) {
                continue;
            }
            if (HasRelationshipType(relationship, "vmlDrawing")) {
                if (std::optional<std::string> vml = MoveAnchorsInPart(part->second.bytes, move)) {
                    document.movedParts[relationship.target] = std::move(*vml);
                }
                continue;
            }
            if (!HasRelationshipType(relationship, "table")) {
                continue;
            }
            if (std::optional<std::string> table = MoveTableReferences(part->second.bytes, move)) {
                document.movedParts[relationship.target] = std::move(*table);
            } else {
                deletedTables.insert(relationship.id);
            }
        }
    }
    RemoveTableParts(*moved, deletedTables);
    sheet.carried = std::move(moved);
}

}  // namespace ooxml
