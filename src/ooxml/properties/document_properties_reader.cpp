#include "ooxml/properties/document_properties_reader.hpp"

#include "ooxml/carried/carried_attributes.hpp"
#include "ooxml/properties/iso_date_time_reader.hpp"
#include "ooxml/xml/xml_node_access.hpp"
#include "ooxml/xml/xml_part_parser.hpp"

#include <algorithm>

namespace ooxml {

namespace {

// The root's children with the root's other namespace declarations; those the writer writes itself
// keep only their place (a carried element without markup), so that the part keeps its order.
void CarryElementsExcept(pugi::xml_node root, std::initializer_list<std::string_view> written,
                         std::initializer_list<std::string_view> writtenAttributes, CarriedMarkup& carried) {
    carried.rootAttributes = AttributesExcept(root, writtenAttributes);
    for (pugi::xml_node child = root.first_child(); child; child = child.next_sibling()) {
        if (child.type() != pugi::node_element) {
            continue;
        }
        const std::string_view name = LocalName(child);
        const bool rewritten = std::find(written.begin(), written.end(), name) != written.end();
        carried.elements.push_back({0, std::string(name), rewritten ? std::string() : ElementMarkup(child)});
    }
}

}  // namespace

DocumentProperties ReadDocumentProperties(std::string& xml, std::string_view partName, CarriedMarkup& carried) {
    pugi::xml_document document;
    ParseXmlPart(document, xml, partName);
    const pugi::xml_node properties = document.document_element();
    CarryElementsExcept(properties, {"lastModifiedBy", "modified"},
                        {"xmlns:cp", "xmlns:dc", "xmlns:dcterms", "xmlns:dcmitype", "xmlns:xsi"}, carried);
    DocumentProperties result;
    result.creator = FirstChild(properties, "creator").child_value();
    result.lastModifiedBy = FirstChild(properties, "lastModifiedBy").child_value();
    result.created = ParseIsoDateTime(FirstChild(properties, "created").child_value());
    result.modified = ParseIsoDateTime(FirstChild(properties, "modified").child_value());
    return result;
}

void ReadAppProperties(std::string& xml, std::string_view partName, CarriedMarkup& carried) {
    pugi::xml_document document;
    ParseXmlPart(document, xml, partName);
    CarryElementsExcept(document.document_element(),
                        {"Application", "DocSecurity", "ScaleCrop", "HeadingPairs", "TitlesOfParts", "LinksUpToDate",
                         "SharedDoc", "HyperlinksChanged", "AppVersion"},
                        {"xmlns", "xmlns:vt"}, carried);
}

}  // namespace ooxml
