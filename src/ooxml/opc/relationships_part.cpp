#include "ooxml/opc/relationships_part.hpp"

#include <algorithm>
#include <charconv>
#include <cstdint>

namespace ooxml {

std::string Relationships::Add(std::string_view type, std::string target) {
    std::string id = "rId" + std::to_string(firstFreeNumber_);
    while (!ids_.insert(id).second) {
        id = "rId" + std::to_string(++firstFreeNumber_);
    }
    ++firstFreeNumber_;
    relationships_.push_back({id, std::string(type), std::move(target), false});
    return id;
}

void Relationships::Keep(const Relationship& relationship, std::string_view sourcePath) {
    ids_.insert(relationship.id);
    relationships_.push_back(
        {relationship.id, relationship.type,
         relationship.external ? relationship.target : RelativeTarget(sourcePath, relationship.target),
         relationship.external});
}

// Listed by id number ("rId2" before "rId10"), so a workbook saved again lists its relationships
// as before, whichever were kept and which made anew.
void Relationships::Write(XmlWriter& xml) const {
    std::vector<const Entry*> ordered;
    for (const Entry& relationship : relationships_) {
        ordered.push_back(&relationship);
    }
    const auto number = [](const Entry* relationship) {
        const std::string_view id = relationship->id;
        const std::size_t digits = id.find_last_not_of("0123456789") + 1;
        uint64_t value = 0;
        if (std::from_chars(id.data() + digits, id.data() + id.size(), value).ec != std::errc()) {
            value = digits < id.size() ? UINT64_MAX : 0;
        }
        return std::make_pair(id.substr(0, digits), value);
    };
    std::stable_sort(ordered.begin(), ordered.end(),
                     [&number](const Entry* a, const Entry* b) { return number(a) < number(b); });
    xml.Declaration();
    xml.StartElement("Relationships");
    xml.Attribute("xmlns", "http://schemas.openxmlformats.org/package/2006/relationships");
    for (const Entry* entry : ordered) {
        const Entry& relationship = *entry;
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
    const std::string_view folder =
        slash == std::string_view::npos ? std::string_view() : partPath.substr(0, slash + 1);
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
