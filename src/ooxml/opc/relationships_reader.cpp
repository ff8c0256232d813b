#include "ooxml/opc/relationships_reader.hpp"

#include "ooxml/opc/percent_decoder.hpp"
#include "ooxml/package_error.hpp"
#include "ooxml/xml/xml_node_access.hpp"
#include "ooxml/xml/xml_part_parser.hpp"
#include "ooxml/zip/zip_archive_reader.hpp"

#include <algorithm>
#include <optional>
#include <unordered_set>

namespace ooxml {

std::string RelationshipsPartName(std::string_view sourcePartName) {
    const std::size_t slash = sourcePartName.rfind('/');
    const std::string_view folder = slash == std::string_view::npos ? "" : sourcePartName.substr(0, slash + 1);
    const std::string_view file = slash == std::string_view::npos ? sourcePartName : sourcePartName.substr(slash + 1);
    return std::string(folder) + "_rels/" + std::string(file) + ".rels";
}

std::string ResolveRelationshipTarget(std::string_view sourcePartName, std::string_view target) {
    target = target.substr(0, target.find_first_of("#?"));
    std::string path;
    if (!target.empty() && target.front() == '/') {
        path = PercentDecoded(target.substr(1));
    } else {
        const std::size_t slash = sourcePartName.rfind('/');
        path = std::string(slash == std::string_view::npos ? "" : sourcePartName.substr(0, slash + 1)) +
               PercentDecoded(target);
    }
    std::vector<std::string_view> segments;
    const std::string_view whole(path);
    std::size_t start = 0;
    while (start <= whole.size()) {
        const std::size_t end = std::min(whole.find('/', start), whole.size());
        const std::string_view segment = whole.substr(start, end - start);
        if (segment == "..") {
            if (segments.empty()) {
                return {};
            }
            segments.pop_back();
        } else if (!segment.empty() && segment != ".") {
            segments.push_back(segment);
        }
        start = end + 1;
    }
    std::string partName;
    for (const std::string_view segment : segments) {
        if (!partName.empty()) {
            partName += '/';
        }
        partName += segment;
    }
    return partName;
}

std::vector<Relationship> ReadRelationships(const ZipArchiveReader& archive, std::string_view sourcePartName) {
    const std::string partName = RelationshipsPartName(sourcePartName);
    std::optional<std::string> xml = archive.Read(partName);
    if (!xml) {
        return {};
    }
    pugi::xml_document document;
    ParseXmlPart(document, *xml, partName);
    std::vector<Relationship> relationships;
    std::unordered_set<std::string> ids;
    ForEachChild(document.document_element(), "Relationship", [&](pugi::xml_node node) {
        Relationship relationship;
        relationship.id = AttributeText(node, "Id");
        // Markup refers to a relationship by its id: one without, or one used twice, could only be
        // written back into a part Excel would repair.
        if (relationship.id.empty() || !ids.insert(relationship.id).second) {
            throw PackageError(PackageError::Reason::Corrupt,
                               "A relationship " +
                                   (relationship.id.empty() ? std::string("without an Id")
                                                            : "Id \"" + relationship.id + "\" used twice") +
                                   " in " + partName);
        }
        relationship.type = AttributeText(node, "Type");
        relationship.external = AttributeText(node, "TargetMode") == "External";
        const std::string_view target = AttributeText(node, "Target");
        relationship.target =
            relationship.external ? std::string(target) : ResolveRelationshipTarget(sourcePartName, target);
        relationships.push_back(std::move(relationship));
    });
    return relationships;
}

bool HasRelationshipType(const Relationship& relationship, std::string_view typeName) {
    const std::string_view type(relationship.type);
    const std::size_t slash = type.rfind('/');
    return type.substr(slash == std::string_view::npos ? 0 : slash + 1) == typeName;
}

const Relationship* FindRelationshipOfType(const std::vector<Relationship>& relationships, std::string_view typeName) {
    for (const Relationship& relationship : relationships) {
        if (!relationship.external && HasRelationshipType(relationship, typeName)) {
            return &relationship;
        }
    }
    return nullptr;
}

std::unordered_map<std::string_view, const Relationship*> RelationshipsById(
    const std::vector<Relationship>& relationships) {
    std::unordered_map<std::string_view, const Relationship*> byId;
    byId.reserve(relationships.size());
    for (const Relationship& relationship : relationships) {
        byId.emplace(relationship.id, &relationship);
    }
    return byId;
}

const Relationship* FindRelationship(const std::vector<Relationship>& relationships, std::string_view id) {
    for (const Relationship& relationship : relationships) {
        if (relationship.id == id) {
            return &relationship;
        }
    }
    return nullptr;
}

}  // namespace ooxml
