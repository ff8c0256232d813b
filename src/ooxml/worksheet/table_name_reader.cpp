#include "ooxml/worksheet/table_name_reader.hpp"

#include "ooxml/xml/xml_node_access.hpp"

#include <pugixml.hpp>

namespace ooxml {

std::string ReadTableName(std::string_view tablePart) {
    // Table parts are small: parsed whole for the name their root gives.
    pugi::xml_document document;
    if (!document.load_buffer(tablePart.data(), tablePart.size())) {
        return {};
    }
    return std::string(AttributeText(document.document_element(), "displayName"));
}

}  // namespace ooxml
