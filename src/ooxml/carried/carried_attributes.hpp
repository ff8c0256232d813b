#pragma once

#include "ooxml/document/carried_content.hpp"
#include "ooxml/xml/xml_pull_scanner.hpp"
#include "ooxml/xml/xml_writer.hpp"

#include <pugixml.hpp>

#include <initializer_list>
#include <string_view>
#include <vector>

namespace ooxml {

// An element's attributes but those a writer sets itself, named as written ("xmlns:r",
// "showGridLines"): what is kept of an element the engine rewrites.
std::vector<CarriedAttribute> AttributesExcept(pugi::xml_node element, std::initializer_list<std::string_view> written);
std::vector<CarriedAttribute> AttributesExcept(const std::vector<XmlAttribute>& attributes,
                                               std::initializer_list<std::string_view> written);

void WriteCarriedAttributes(XmlWriter& xml, const std::vector<CarriedAttribute>& attributes);

// An element of a parsed part as markup, to be written again as it is.
std::string ElementMarkup(pugi::xml_node element);
// A parsed part as markup, with the declaration it was parsed with (parse_declaration).
std::string DocumentMarkup(const pugi::xml_document& document);

}  // namespace ooxml
