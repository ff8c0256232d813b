#include "ooxml/opc/carried_parts_reader.hpp"

#include "ooxml/opc/relationships_reader.hpp"

#include <algorithm>
#include <cctype>

namespace ooxml {

std::string CarriedPartsReader::Key(std::string_view partName) {
    std::string key(partName);
    std::transform(key.begin(), key.end(), key.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return key;
}

void CarriedPartsReader::Rewritten(std::string_view partName) {
    seen_.insert(Key(partName));
}

void CarriedPartsReader::Follow(const std::vector<Relationship>& relationships) {
    std::vector<std::string> pending;
    for (const Relationship& relationship : relationships) {
        if (!relationship.external && !relationship.target.empty()) {
            pending.push_back(relationship.target);
        }
    }
    while (!pending.empty()) {
        const std::string name = std::move(pending.back());
        pending.pop_back();
        if (!seen_.insert(Key(name)).second) {
            continue;
        }
        // A target that is not in the package, or has no content type, is no part to keep.
        std::optional<std::string> bytes = archive_.Read(name);
        std::string contentType = contentTypes_.Of(name);
        if (!bytes || contentType.empty()) {
            continue;
        }
        CarriedPart part;
        part.contentType = std::move(contentType);
        part.bytes = std::move(*bytes);
        part.relationships = ReadRelationships(archive_, name);
        if (!part.relationships.empty()) {
            part.relationshipsBytes = archive_.Read(RelationshipsPartName(name)).value_or("");
        }
        for (const Relationship& relationship : part.relationships) {
            if (!relationship.external && !relationship.target.empty()) {
                pending.push_back(relationship.target);
            }
        }
        parts_.emplace(name, std::move(part));
    }
}

}  // namespace ooxml
