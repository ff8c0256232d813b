#pragma once

#include <pugixml.hpp>

#include <cstdint>
#include <optional>
#include <string_view>

// Element and attribute access by local name: parts from other writers may bind the
// SpreadsheetML namespace to a prefix ("x:row"), and relationship ids always carry one ("r:id").
namespace ooxml {

std::string_view LocalName(const char* qualifiedName);

inline std::string_view LocalName(pugi::xml_node node) {
    return LocalName(node.name());
}

pugi::xml_node FirstChild(pugi::xml_node parent, std::string_view localName);
pugi::xml_attribute Attribute(pugi::xml_node node, std::string_view localName);

// Calls visit(child) for each child element of parent with that local name. An element wrapped in
// markup compatibility's <AlternateContent> counts in its place as its <Fallback> gives it: the
// reader understands none of the extensions its choices require, and list entries keep their index.
template <typename Visit>
void ForEachChild(pugi::xml_node parent, std::string_view localName, Visit&& visit) {
    for (pugi::xml_node child = parent.first_child(); child; child = child.next_sibling()) {
        if (child.type() != pugi::node_element) {
            continue;
        }
        const std::string_view name = LocalName(child);
        if (name == localName) {
            visit(child);
        } else if (name == "AlternateContent") {
            ForEachChild(FirstChild(child, "Fallback"), localName, visit);
        }
    }
}

// Number parsing that accepts nothing but a whole, finite number (surrounding blanks allowed).
std::optional<uint32_t> ParseUnsigned(std::string_view text);
std::optional<double> ParseDouble(std::string_view text);
// xsd:boolean: "1"/"true" or "0"/"false".
std::optional<bool> ParseBoolean(std::string_view text);

std::string_view AttributeText(pugi::xml_node node, std::string_view localName);
bool AttributeBool(pugi::xml_node node, std::string_view localName, bool fallback);
std::optional<uint32_t> AttributeUnsigned(pugi::xml_node node, std::string_view localName);
std::optional<double> AttributeDouble(pugi::xml_node node, std::string_view localName);

}  // namespace ooxml
