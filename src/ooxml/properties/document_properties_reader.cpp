#include "ooxml/properties/document_properties_reader.hpp"

#include "ooxml/properties/iso_date_time_reader.hpp"
#include "ooxml/xml/xml_node_access.hpp"
#include "ooxml/xml/xml_part_parser.hpp"

namespace ooxml {

DocumentProperties ReadDocumentProperties(std::string& xml, std::string_view partName) {
    pugi::xml_document document;
    ParseXmlPart(document, xml, partName);
    const pugi::xml_node properties = document.document_element();
    DocumentProperties result;
    result.creator = FirstChild(properties, "creator").child_value();
    result.lastModifiedBy = FirstChild(properties, "lastModifiedBy").child_value();
    result.created = ParseIsoDateTime(FirstChild(properties, "created").child_value());
    result.modified = ParseIsoDateTime(FirstChild(properties, "modified").child_value());
    return result;
}

}  // namespace ooxml
