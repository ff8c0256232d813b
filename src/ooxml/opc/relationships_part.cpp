#include "ooxml/opc/relationships_part.hpp"

#include <algorithm>

namespace ooxml {

std::string Relationships::Add(std::string_view type, std::string target) {
    std::size_t number = relationships_.size() + 1;
    std::string id = "rId" + std::to_string(number);
    while (Taken(id)) {
        id = "rId" + std::to_string(++number);
    }
    relationships_.push_back({id, std::string(type), std::move(target), false});
    return id;
}

void Relationships::Keep(const Relationship& relationship, std::string_view sourcePath) {
    relationships_.push_back({relationship.id, relationship.type,
                              relationship.external ? relationship.target : RelativeTarget(sourcePath, relationship.target),
                              relationship.external});
}

bool Relationships::Taken(std::string_view id) const {
    return std::any_of(relationships_.begin(), relationships_.end(),
                       [id](const Entry& relationship) { return relationship.id == id; });
}

void Relationships::Write(XmlWriter& xml) const {
    xml.Declaration();
    xml.StartElement("Relationships");
    xml.Attribute("xmlns", "http://schemas.openxmlformats.org/package/2006/relationships");
    for (const Entry& relationship : relationships_) {
        xml.StartElement("Relationship");
        xml.Attribute("Id", relationship.id);
        xml.Attribute("Type", relationship.type);
        xml.Attribute("Target", relationship.target);
        if (relationship.external) {
            xml.Attribute("TargetMode", "External");
        }
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

std::string RelativeTarget(std::string_view sourcePath, std::string_view targetPath) {
    const std::size_t slash = sourcePath.rfind('/');
    std::string_view folder = slash == std::string_view::npos ? std::string_view() : sourcePath.substr(0, slash + 1);
    // Drop the folders both paths share, then climb out of the source's remaining ones.
    std::size_t shared = 0;
    for (std::size_t i = 0; i < folder.size() && i < targetPath.size() && folder[i] == targetPath[i]; ++i) {
        if (folder[i] == '/') {
            shared = i + 1;
        }
    }
    folder.remove_prefix(shared);
    std::string target;
    for (const char c : folder) {
        if (c == '/') {
            target += "../";
        }
    }
    return target.append(targetPath.substr(shared));
}

}  // namespace ooxml
