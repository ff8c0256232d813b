#include "ooxml/opc/relationships_part.hpp"

namespace ooxml {

std::string Relationships::Add(std::string_view type, std::string target) {
    std::string id = "rId" + std::to_string(relationships_.size() + 1);
    relationships_.push_back({id, std::string(type), std::move(target)});
    return id;
}

void Relationships::Write(XmlWriter& xml) const {
    xml.Declaration();
    xml.StartElement("Relationships");
    xml.Attribute("xmlns", "http://schemas.openxmlformats.org/package/2006/relationships");
    for (const Relationship& relationship : relationships_) {
        xml.StartElement("Relationship");
        xml.Attribute("Id", relationship.id);
        xml.Attribute("Type", relationship.type);
        xml.Attribute("Target", relationship.target);
        xml.EndElement();
    }
    xml.EndElement();
}

std::string RelationshipsPartPath(std::string_view partPath) {
    const std::size_t slash = partPath.rfind('/');
    const std::string_view folder = slash == std::string_view::npos ? std::string_view() : partPath.substr(0, slash + 1);
    const std::string_view name = slash == std::string_view::npos ? partPath : partPath.substr(slash + 1);
    return std::string(folder) + "_rels/" + std::string(name) + ".rels";
}

}  // namespace ooxml
